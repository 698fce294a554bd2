// How the screens of a list are laid out, and their captions.

#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/art.h"
#include "ui/list/list_screen.h"

namespace padral {

namespace {

using Anchos = RejillaLista::Anchos;

constexpr int MargenBoton = 28;
constexpr std::size_t ColumnaElastica = 2;

Anchos proporciones(std::span<const ColumnaLista> columnas) {
    Anchos anchos{0};
    for (const auto& columna : columnas) anchos.push_back(columna.proporcion);
    return anchos;
}

}  // namespace

PantallaConLista::PantallaConLista(const QString& nombre, const Contexto& contexto,
                                   const QString& nombreRejilla,
                                   std::span<const ColumnaLista> columnas)
    : Pantalla(nombre, contexto), columnas_(columnas) {
    titulo_ = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    rejilla_ = new RejillaLista(nombreRejilla, proporciones(columnas), ColumnaElastica, this);
    crearBusqueda();
    lblResultado_ = Etiqueta(QStringLiteral("lblResultado"), this);
    lblayuda_ = Etiqueta(QStringLiteral("lblayuda"), this);
    for (QLabel* linea : {lblResultado_, lblayuda_}) linea->setWordWrap(true);
}

void PantallaConLista::crearBusqueda() {
    txtBusqueda_ = new CampoTexto(QStringLiteral("txtBusqueda"), 0, this);
    txtBusqueda_->hide();
    txtBusqueda_->installEventFilter(this);
    auto* cabecera = rejilla_->horizontalHeader()->viewport();
    const auto flecha = [&](const char16_t* nombre, const char16_t* dibujo) {
        auto* imagen =
            new ImagenPulsable(QString::fromUtf16(nombre), QString::fromUtf16(dibujo), cabecera);
        imagen->setPixmap(Dibujo(QString::fromUtf16(dibujo))
                              .pixmap(QSize(LadoFlecha, LadoFlecha), devicePixelRatioF()));
        imagen->setFixedSize(LadoFlecha, LadoFlecha);
        imagen->setFocusPolicy(Qt::NoFocus);
        imagen->hide();
        return imagen;
    };
    picasc_ = flecha(u"picasc", u"sort_asc");
    picdesc_ = flecha(u"picdesc", u"sort_desc");
    utilidades_.Flex = rejilla_;
    utilidades_.txtBusqueda = txtBusqueda_;
}

void PantallaConLista::montar(ModeloLista* modelo, QWidget* botones) {
    modelo_ = modelo;
    rejilla_->setModel(modelo);
    utilidades_.SobreCabecera = modelo->Sitio() == SitioCriterios::Cabecera;
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(titulo_);
    todo->addWidget(lblayuda_);
    todo->addWidget(rejilla_, 1);
    todo->addWidget(lblResultado_);
    todo->addWidget(botones);
    conectar();
}

void PantallaConLista::conectar() {
    connect(rejilla_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &PantallaConLista::elegirFila);
    connect(rejilla_, &QTableView::doubleClicked, this, &PantallaConLista::accionDeFila);
    connect(rejilla_, &RejillaLista::intro, this, &PantallaConLista::accionDeFila);
    connect(rejilla_, &RejillaLista::ordenPedido, this, &PantallaConLista::ordenarPor);
    connect(rejilla_, &RejillaLista::pasoDeColumna, this, &PantallaConLista::moverColumna);
    connect(rejilla_, &QTableView::pressed, this, [this](const QModelIndex& celda) {
        if (enBusqueda()) elegirColumna(celda.column());
    });
    connect(rejilla_, &RejillaLista::geometriaCambiada, this, [this] {
        presentarFlecha();
        if (!txtBusqueda_->isHidden()) utilidades_.PosicionarTxtBusqueda();
    });
    connect(rejilla_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &PantallaConLista::pulsarCabecera);
    for (auto* flecha : {picasc_, picdesc_})
        connect(flecha, &ImagenPulsable::pulsada, this, &PantallaConLista::invertirOrden);
    guardia_.Registrar(txtBusqueda_, [this] { return guardarCriterioEnMano(); });
}

void PantallaConLista::ponerTitulos(const QString& titulo) {
    setWindowTitle(titulo);
    titulo_->setText(titulo.trimmed());
    rejilla_->setAccessibleName(titulo.trimmed());
    QStringList titulos{QString()};
    for (const auto& columna : columnas_) titulos << Texto(columna.titulo);
    modelo_->PonerTitulos(titulos);
    const auto [anchos, estrechos] = minimos();
    rejilla_->PonerMinimos(anchos, estrechos);
    const auto nombrar = [this](QWidget* flecha, const QString& castellano,
                                const QString& euskera) {
        flecha->setAccessibleName(estado_.SegunIdioma(castellano, euskera));
        flecha->setToolTip(flecha->accessibleName());
    };
    nombrar(picasc_, QStringLiteral("Orden ascendente"), QStringLiteral("Goranzko ordena"));
    nombrar(picdesc_, QStringLiteral("Orden descendente"), QStringLiteral("Beheranzko ordena"));
}

std::pair<Anchos, Anchos> PantallaConLista::minimos() const {
    Anchos anchos{0}, estrechos{0};
    for (const auto& columna : columnas_) {
        const bool ordena = modelo_->EsColumnaBuscable(static_cast<int>(anchos.size()));
        const int flecha = ordena ? LadoFlecha + 2 * MargenFlecha : 0;
        const int cabecera = rejilla_->AnchoTexto(Texto(columna.titulo)) + flecha;
        const auto ancho = [this](const char16_t* texto) {
            return rejilla_->AnchoTexto(QString::fromUtf16(texto));
        };
        anchos.push_back(std::max(ancho(columna.muestra), cabecera));
        if (!columna.estrecha)
            estrechos.push_back(anchos.back());
        else
            estrechos.push_back(*columna.estrecha ? ancho(columna.estrecha) : cabecera);
    }
    return {anchos, estrechos};
}

void PantallaConLista::rotular(QPushButton* boton, int caption, int ayuda) {
    boton->setText(Texto(caption));
    boton->setToolTip(Texto(ayuda));
    darHolgura(boton);
}

void PantallaConLista::darHolgura(QPushButton* boton) {
    const QString texto = boton->text().trimmed();
    boton->setMinimumWidth(boton->fontMetrics().horizontalAdvance(texto) + MargenBoton);
}

}  // namespace padral
