#include "store/list/frm_dec_lista.h"

#include <QShowEvent>

namespace padral {

namespace {

enum : int {
    TextoBuscar = 560,
    AyudaBuscar = 561,
    AyudaResultado = 570,
    AyudaLista = 573,
    AyudaBusqueda = 576,
    TextoResultado = 581,
};

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
    PantallaConLista::PresentaDatos();
    const bool busqueda = lista_.EnBusqueda();
    lista_.ETIQUETAAYUDA = Texto(busqueda ? AyudaBusqueda : AyudaLista);
    lista_.ETIQUETARESULTADO = busqueda ? QString() : lista_.LineaResultado();
    lblayuda_->setText(lista_.ETIQUETAAYUDA);
    lblResultado_->setText(lista_.ETIQUETARESULTADO);
}

void FrmDecLista::cargarFilas() {
    CargarFlxDeclaraciones();
    if (!lista_.HayFilas()) lista_.LimpiarSeleccion();
}

int FrmDecLista::filaPropia() const { return BuscarFilaPorValor(*modelo_, 0, lista_.csde) - 1; }

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
        {cmdBuscar_, true, lista || columnaEnMano || utilidades().hayAlgunaCondicion()},
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
