// How the declarations list is laid out, and its captions.

#include <QBoxLayout>
#include <QHeaderView>
#include <algorithm>

#include "store/list/button_bar.h"
#include "store/list/frm_dec_lista.h"
#include "ui/art.h"

namespace padral {

namespace {

/// Captions and tool tips by text id.
enum : int {
    TituloAbrir = 556,
    TituloEliminar = 593,
};

constexpr int TitulosColumna[] = {355, 356, 577, 578, 579, 439};
/// Texts that column 5 can show.
constexpr int TextosTipo[] = {582, 583, 584, 585, 586, 587, 402, 588, 589, 590};
/// The widest usual text of the other columns.
const QString Muestras[] = {
    QStringLiteral("W00000000W"), QString(26, u'N'), QStringLiteral("WWW0000000"),
    QStringLiteral("00/00/0000"), QString(),         QStringLiteral("2,3,4,5,6,7,AI,AII")};
constexpr int MargenBoton = 28;
constexpr std::size_t ColTipo = 5, ColApartados = 6;

}  // namespace

FrmDecLista::FrmDecLista(const Contexto& contexto, EstadoDeclaracion& declaracion, cDecLista& lista)
    : Pantalla(QStringLiteral("FrmDecLista"), contexto), declaracion_(declaracion), lista_(lista) {
    titulo_ = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    flxDeclaraciones_ = new RejillaDeclaraciones(this);
    flxDeclaraciones_->setObjectName(QStringLiteral("flxDeclaraciones"));
    modelo_ = new ModeloDeclaraciones(lista_, this);
    flxDeclaraciones_->setModel(modelo_);
    crearBusqueda();
    lblResultado_ = Etiqueta(QStringLiteral("lblResultado"), this);
    lblayuda_ = Etiqueta(QStringLiteral("lblayuda"), this);
    for (QLabel* linea : {lblResultado_, lblayuda_}) linea->setWordWrap(true);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(titulo_);
    todo->addWidget(lblayuda_);
    todo->addWidget(flxDeclaraciones_, 1);
    todo->addWidget(lblResultado_);
    todo->addWidget(crearBotones());
    conectar();
    conectarBotones();
}

void FrmDecLista::crearBusqueda() {
    txtBusqueda_ = new CampoTexto(QStringLiteral("txtBusqueda"), TextoFijo<9>::Ancho, this);
    txtBusqueda_->hide();
    txtBusqueda_->installEventFilter(this);
    auto* cabecera = flxDeclaraciones_->horizontalHeader()->viewport();
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
    utilidades_.Flex = flxDeclaraciones_;
    utilidades_.txtBusqueda = txtBusqueda_;
}

QPushButton* FrmDecLista::crearBoton(const char16_t* nombre, QWidget* padre) {
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QString::fromUtf16(nombre));
    return boton;
}

QWidget* FrmDecLista::crearBotones() {
    auto* barra = new BarraBotones(this);
    const auto poner = [&](QHBoxLayout* grupo, const char16_t* nombre) {
        auto* boton = crearBoton(nombre, barra);
        grupo->addWidget(boton);
        return boton;
    };
    auto *primero = barra->Primero(), *segundo = barra->Segundo();
    cmdAnterior_ = poner(primero, u"cmdAnterior");
    primero->addStretch(1);
    cmdBuscar_ = poner(primero, u"cmdBuscar");
    cmdTodos_ = poner(primero, u"cmdTodos");
    segundo->addStretch(1);
    CmdNuevo_ = poner(segundo, u"CmdNuevo");
    CmdCopiarDeclaracion_ = poner(segundo, u"CmdCopiarDeclaracion");
    cmdVerDeclaracion_ = poner(segundo, u"cmdVerDeclaracion");
    CmdEliminar_ = poner(segundo, u"CmdEliminar");
    return barra;
}

void FrmDecLista::conectar() {
    auto* rejilla = flxDeclaraciones_;
    connect(rejilla->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmDecLista::elegirFila);
    connect(rejilla, &QTableView::doubleClicked, this, &FrmDecLista::accionDeFila);
    connect(rejilla, &RejillaDeclaraciones::intro, this, &FrmDecLista::accionDeFila);
    connect(rejilla, &RejillaDeclaraciones::ordenPedido, this, &FrmDecLista::ordenarPor);
    connect(rejilla, &RejillaDeclaraciones::pasoDeColumna, this, &FrmDecLista::moverColumna);
    connect(rejilla, &QTableView::pressed, this, [this](const QModelIndex& celda) {
        if (lista_.EnBusqueda()) elegirColumna(celda.column());
    });
    connect(rejilla, &RejillaDeclaraciones::geometriaCambiada, this, [this] {
        presentarFlecha();
        if (txtBusqueda_->isVisible()) utilidades_.PosicionarTxtBusqueda();
    });
    connect(rejilla->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &FrmDecLista::ordenarPor);
    for (auto* flecha : {picasc_, picdesc_})
        connect(flecha, &ImagenPulsable::pulsada, this, &FrmDecLista::invertirOrden);
    guardia_.Registrar(txtBusqueda_, [this] { return guardarCriterioEnMano(); });
}

void FrmDecLista::Anadir_captions() {
    QStringList titulos{QString()};
    for (const int id : TitulosColumna) titulos << Texto(id);
    modelo_->PonerTitulos(titulos);
    ponerMinimos();
    struct Boton {
        QPushButton* boton;
        int caption, ayuda;
    };
    const Boton botones[] = {{cmdVerDeclaracion_, 562, 567}, {CmdNuevo_, 563, 564},
                             {CmdEliminar_, 565, 566},       {CmdCopiarDeclaracion_, 568, 569},
                             {cmdTodos_, 558, 559},          {cmdAnterior_, 408, 557}};
    for (const auto& [boton, caption, ayuda] : botones) {
        boton->setText(Texto(caption));
        boton->setToolTip(Texto(ayuda));
        boton->setMinimumWidth(boton->fontMetrics().horizontalAdvance(boton->text()) + MargenBoton);
    }
    const auto nombrar = [this](QWidget* flecha, const QString& castellano,
                                const QString& euskera) {
        flecha->setAccessibleName(estado_.SegunIdioma(castellano, euskera));
        flecha->setToolTip(flecha->accessibleName());
    };
    nombrar(picasc_, QStringLiteral("Orden ascendente"), QStringLiteral("Goranzko ordena"));
    nombrar(picdesc_, QStringLiteral("Orden descendente"), QStringLiteral("Beheranzko ordena"));
    presentarTitulo();
}

void FrmDecLista::presentarTitulo() {
    const bool eliminar = lista_.ENTRADA == QStringLiteral("E");
    const QString& titulo = Texto(eliminar ? TituloEliminar : TituloAbrir);
    setWindowTitle(titulo);
    titulo_->setText(titulo.trimmed());
    flxDeclaraciones_->setAccessibleName(titulo.trimmed());
}

// Where room is scarce name, type and sections give way: of them a part still tells something.
void FrmDecLista::ponerMinimos() {
    const auto* rejilla = flxDeclaraciones_;
    RejillaDeclaraciones::Anchos minimos{}, estrechos{};
    for (std::size_t c = 1; c < minimos.size(); ++c) {
        const QString titulo = Texto(TitulosColumna[c - 1]);
        const int flecha =
            cDecLista::EsColumnaBuscable(static_cast<int>(c)) ? LadoFlecha + 2 * MargenFlecha : 0;
        const int cabecera = rejilla->AnchoTexto(titulo) + flecha;
        minimos[c] = std::max(rejilla->AnchoTexto(Muestras[c - 1]), cabecera);
        estrechos[c] = c == ColTipo || c == ColApartados ? cabecera : minimos[c];
    }
    for (const int id : TextosTipo)
        minimos[ColTipo] = std::max(minimos[ColTipo], rejilla->AnchoTexto(Texto(id)));
    estrechos[cDecLista::ColNombre] = rejilla->AnchoTexto(QString(8, u'N'));
    flxDeclaraciones_->PonerMinimos(minimos, estrechos);
}

}  // namespace padral
