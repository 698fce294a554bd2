#include "core/help/help_window.h"

#include <QBoxLayout>
#include <QDir>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>

#include "core/help/contents_tree.h"
#include "core/help/help_browser.h"
#include "core/help/help_texts.h"
#include "core/help/search_panel.h"

namespace padral {

namespace {

constexpr QSize Tamaño(1000, 650);
constexpr int AnchoPaneles = 320;

void rotular(QToolButton* boton, const QString& texto, const QString& tecla) {
    boton->setText(texto);
    boton->setToolTip(QStringLiteral("%1 (%2)").arg(texto, tecla));
    boton->setAccessibleName(texto);
}

}  // namespace

VentanaAyuda::VentanaAyuda(QWidget* dueño)
    : QDialog(dueño, Qt::Window),
      navegador_(new NavegadorAyuda(this)),
      arbol_(new ArbolContenido(this)),
      busqueda_(new PanelBusqueda(this)),
      fichas_(new QTabWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its main window, whether the help is open or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    crearBotones();
    crearAtajos();
    auto* botones = new QHBoxLayout;
    for (QToolButton* uno : {atras_, adelante_, indice_}) botones->addWidget(uno);
    botones->addStretch();
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(botones);
    columna->addWidget(crearPaneles(), 1);
    connect(navegador_, &QTextBrowser::sourceChanged, arbol_,
            [this](const QUrl& direccion) { arbol_->Señalar(direccion.fileName()); });
    connect(arbol_, &ArbolContenido::Elegida, this, &VentanaAyuda::abrirPagina);
    connect(busqueda_, &PanelBusqueda::Elegida, this,
            [this](const QString& pagina, const QStringList& palabras) {
                abrirPagina(pagina);
                navegador_->Resaltar(palabras);
            });
    navegador_->setFocus();
    resize(Tamaño.boundedTo(screen()->availableGeometry().size()));
}

QToolButton* VentanaAyuda::boton(const QString& nombre, int icono) {
    auto* nuevo = new QToolButton(this);
    nuevo->setObjectName(nombre);
    nuevo->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icono)));
    nuevo->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return nuevo;
}

void VentanaAyuda::crearBotones() {
    atras_ = boton(QStringLiteral("cmdAtras"), QStyle::SP_ArrowBack);
    adelante_ = boton(QStringLiteral("cmdAdelante"), QStyle::SP_ArrowForward);
    indice_ = boton(QStringLiteral("cmdIndice"), QStyle::SP_DirHomeIcon);
    atras_->setEnabled(false);
    adelante_->setEnabled(false);
    connect(navegador_, &QTextBrowser::backwardAvailable, atras_, &QWidget::setEnabled);
    connect(navegador_, &QTextBrowser::forwardAvailable, adelante_, &QWidget::setEnabled);
    connect(atras_, &QToolButton::clicked, navegador_, &QTextBrowser::backward);
    connect(adelante_, &QToolButton::clicked, navegador_, &QTextBrowser::forward);
    connect(indice_, &QToolButton::clicked, this, [this] { abrirPagina(inicio_); });
}

QWidget* VentanaAyuda::crearPaneles() {
    fichas_->addTab(arbol_, QString());
    fichas_->addTab(busqueda_, QString());
    auto* division = new QSplitter(this);
    division->addWidget(fichas_);
    division->addWidget(navegador_);
    division->setChildrenCollapsible(false);
    division->setStretchFactor(0, 1);
    division->setStretchFactor(1, 2);
    division->setSizes({AnchoPaneles, Tamaño.width() - AnchoPaneles});
    return division;
}

void VentanaAyuda::crearAtajos() {
    const auto atajo = [this](const QKeySequence& tecla, auto hacer) {
        connect(new QShortcut(tecla, this), &QShortcut::activated, this, hacer);
    };
    atajo(Qt::ALT | Qt::Key_Left, [this] { navegador_->backward(); });
    atajo(Qt::ALT | Qt::Key_Right, [this] { navegador_->forward(); });
    atajo(Qt::ALT | Qt::Key_Home, [this] { abrirPagina(inicio_); });
    atajo(QKeySequence::Find, [this] { irABuscar(); });
}

void VentanaAyuda::irABuscar() {
    fichas_->setCurrentWidget(busqueda_);
    busqueda_->Enfocar();
}

void VentanaAyuda::Poner(const EstadoCompartido& estado) {
    setWindowTitle(estado.Texto(633));
    navegador_->setAccessibleName(textos_ayuda::Pagina.En(estado));
    rotular(atras_, textos_ayuda::Atras.En(estado), textos_ayuda::TeclaAtras.En(estado));
    rotular(adelante_, textos_ayuda::Adelante.En(estado), textos_ayuda::TeclaAdelante.En(estado));
    rotular(indice_, textos_ayuda::Indice.En(estado), textos_ayuda::TeclaIndice.En(estado));
    const QString contenido = textos_ayuda::FichaContenido.En(estado);
    fichas_->setTabText(0, contenido);
    fichas_->setTabText(1, textos_ayuda::FichaBuscar.En(estado));
    arbol_->setAccessibleName(QString(contenido).remove(u'&'));
    busqueda_->Poner(estado);
    navegador_->SinPagina = textos_ayuda::PaginaAusente.En(estado);
}

void VentanaAyuda::Abrir(const QString& carpeta, const QString& tema, const QString& inicio) {
    const bool otra = carpeta != carpeta_;
    carpeta_ = carpeta;
    inicio_ = inicio;
    if (otra) {
        const auto contenido = LeerContenido(carpeta);
        arbol_->Llenar(contenido);
        busqueda_->PonerPaginas(carpeta, contenido);
    }
    abrirPagina(tema);
    // The way back does not lead to the pages of the other language.
    if (otra) navegador_->clearHistory();
}

void VentanaAyuda::abrirPagina(const QString& pagina) {
    navegador_->Abrir(QDir(carpeta_).filePath(pagina));
}

}  // namespace padral
