#include "core/help/help_browser.h"

#include <QFile>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace padral {

namespace {

void rotular(QToolButton* boton, const QString& texto) {
    boton->setText(texto);
    boton->setToolTip(texto);
    boton->setAccessibleName(texto);
}

}  // namespace

QVariant NavegadorAyuda::loadResource(int tipo, const QUrl& nombre) {
    if (tipo != QTextDocument::HtmlResource) return QTextBrowser::loadResource(tipo, nombre);
    const QUrl entera = source().resolved(nombre);
    QFile pagina(entera.toLocalFile());
    if (entera.isLocalFile() && pagina.open(QIODevice::ReadOnly))
        return QString::fromUtf8(pagina.readAll());
    const QString buscada = entera.isLocalFile() ? entera.fileName() : entera.toDisplayString();
    return QStringLiteral("<p>%1</p>").arg(SinPagina.arg(buscada.toHtmlEscaped()));
}

VentanaAyuda::VentanaAyuda(QWidget* dueño)
    : QDialog(dueño, Qt::Window), navegador_(new NavegadorAyuda(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its main window, whether the help is open or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    atras_ = boton(QStringLiteral("cmdAtras"), QStyle::SP_ArrowBack);
    adelante_ = boton(QStringLiteral("cmdAdelante"), QStyle::SP_ArrowForward);
    indice_ = boton(QStringLiteral("cmdIndice"), QStyle::SP_DirHomeIcon);
    atras_->setEnabled(false);
    adelante_->setEnabled(false);
    connect(navegador_, &QTextBrowser::backwardAvailable, atras_, &QWidget::setEnabled);
    connect(navegador_, &QTextBrowser::forwardAvailable, adelante_, &QWidget::setEnabled);
    connect(atras_, &QToolButton::clicked, navegador_, &QTextBrowser::backward);
    connect(adelante_, &QToolButton::clicked, navegador_, &QTextBrowser::forward);
    connect(indice_, &QToolButton::clicked, navegador_,
            [this] { navegador_->setSource(QUrl::fromLocalFile(paginaIndice_)); });

    auto* botones = new QHBoxLayout;
    for (QToolButton* uno : {atras_, adelante_, indice_}) botones->addWidget(uno);
    botones->addStretch();
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(botones);
    columna->addWidget(navegador_);
    navegador_->setFocus();
    resize(680, 600);
}

QToolButton* VentanaAyuda::boton(const QString& nombre, int icono) {
    auto* nuevo = new QToolButton(this);
    nuevo->setObjectName(nombre);
    nuevo->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icono)));
    nuevo->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return nuevo;
}

void VentanaAyuda::Poner(const EstadoCompartido& estado) {
    setWindowTitle(estado.Texto(633));
    navegador_->setAccessibleName(estado.Texto(633));
    rotular(atras_, estado.SegunIdioma(QStringLiteral("Atrás"), QStringLiteral("Atzera")));
    rotular(adelante_, estado.SegunIdioma(QStringLiteral("Adelante"), QStringLiteral("Aurrera")));
    rotular(indice_, estado.SegunIdioma(QStringLiteral("Índice"), QStringLiteral("Aurkibidea")));
    navegador_->SinPagina =
        estado.SegunIdioma(QStringLiteral("No se encuentra la página de ayuda «%1»."),
                           QStringLiteral("Ez da «%1» laguntza-orria aurkitu."));
}

void VentanaAyuda::Abrir(const QString& pagina, const QString& indice) {
    paginaIndice_ = indice;
    const QUrl direccion = QUrl::fromLocalFile(pagina);
    if (navegador_->source() == direccion)
        navegador_->reload();
    else
        navegador_->setSource(direccion);
}

}  // namespace padral
