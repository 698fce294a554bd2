#include "store/list/frm_dec_lista.h"

#include <QShowEvent>

namespace padral {

namespace {

constexpr int AyudaLista = 573;
constexpr int TextoBuscar = 560, AyudaBuscar = 561;
constexpr int TextoResultado = 581, AyudaResultado = 570;

const QColor ColorFondoFila = QColor::fromRgb(0x3A6EA5);
const QColor ColorTextoFila = QColor::fromRgb(0xFFFFFF);

}  // namespace

void FrmDecLista::Cargar() {
    Anadir_captions();
    estado_.ModificacionesPendientes = false;
    lista_.PrepararEntrada();
    PresentaDatos();
    Presentabotones();
}

void FrmDecLista::showEvent(QShowEvent* evento) {
    Pantalla::showEvent(evento);
    if (!evento->spontaneous()) pantallas_.DeshabilitarMenus();
}

void FrmDecLista::CargarFlxDeclaraciones() {
    SvrDPadral::ListaDeclaraciones filas;
    lista_.Consultar(filas);
    modelo_->MostrarFilas(std::move(filas));
}

void FrmDecLista::PresentaDatos() {
    if (lista_.EnBusqueda())
        presentarCriterios();
    else
        presentarLista();
    presentarFlecha();
    lblayuda_->setText(lista_.ETIQUETAAYUDA);
    lblResultado_->setText(lista_.ETIQUETARESULTADO);
}

void FrmDecLista::presentarLista() {
    flxDeclaraciones_->setSelectionMode(QTableView::SingleSelection);
    CargarFlxDeclaraciones();
    const int fila = BuscarFilaPorValor(*modelo_, 0, lista_.csde);
    if (lista_.HayFilas()) {
        flxDeclaraciones_->setCurrentIndex(modelo_->index(fila - 1, cDecLista::ColDni));
        flxDeclaraciones_->scrollTo(flxDeclaraciones_->currentIndex());
    } else {
        lista_.LimpiarSeleccion();
    }
    lista_.ETIQUETAAYUDA = Texto(AyudaLista);
    lista_.ETIQUETARESULTADO = lista_.LineaResultado();
}

void FrmDecLista::elegirFila() {
    const int fila = flxDeclaraciones_->currentIndex().row();
    if (!listaConFilas() || fila < 0) return;
    lista_.Seleccionar(modelo_->Filas(), fila);
    utilidades_.SeleccionarGrid(ColorFondoFila, ColorTextoFila, filaMarcada_);
}

void FrmDecLista::presentarFlecha() {
    const int columna = lista_.ORDEN.toInt();
    const bool hay = !lista_.EnBusqueda() && cDecLista::EsColumnaBuscable(columna);
    const bool ascendente = lista_.TIPOORDEN == QStringLiteral("ASC");
    picasc_->setVisible(hay && ascendente);
    picdesc_->setVisible(hay && !ascendente);
    const QRect cabecera = flxDeclaraciones_->CabeceraDe(columna);
    for (auto* flecha : {picasc_, picdesc_})
        flecha->move(cabecera.right() - LadoFlecha - MargenFlecha,
                     cabecera.center().y() - LadoFlecha / 2);
}

void FrmDecLista::Presentabotones() {
    const bool baja = lista_.EnBaja();
    const bool lista = !lista_.EnBusqueda();
    const bool eleccion = listaConFilas() && lista_.HaySeleccion();
    struct Boton {
        QPushButton* boton;
        bool visible, activo;
    };
    const bool columnaEnMano = lista_.SELECCIONACTUAL.toInt() != 0;
    const Boton botones[] = {
        {cmdVerDeclaracion_, !baja, eleccion},
        {CmdEliminar_, baja, eleccion},
        {CmdNuevo_, !baja, lista},
        {CmdCopiarDeclaracion_, !baja, eleccion},
        {cmdAnterior_, true, true},
        {cmdBuscar_, true, lista || columnaEnMano || utilidades_.hayAlgunaCondicion()},
        {cmdTodos_, true, lista && lista_.TS_COUNT() > 0},
    };
    for (const auto& [boton, visible, activo] : botones) {
        boton->setVisible(visible);
        boton->setEnabled(activo);
    }
    cmdBuscar_->setText(Texto(lista ? TextoBuscar : TextoResultado));
    cmdBuscar_->setToolTip(Texto(lista ? AyudaBuscar : AyudaResultado));
}

}  // namespace padral
