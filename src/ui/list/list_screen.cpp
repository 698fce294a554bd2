#include "ui/list/list_screen.h"

namespace padral {

namespace {

const QColor ColorFondoFila = QColor::fromRgb(0x3A6EA5);
const QColor ColorTextoFila = QColor::fromRgb(0xFFFFFF);

}  // namespace

QWidget* PantallaConLista::FocoInicial() {
    if (txtBusqueda_->isHidden()) return rejilla_;
    return txtBusqueda_;
}

void PantallaConLista::PresentaDatos() {
    if (enBusqueda())
        presentarCriterios();
    else
        presentarLista();
    presentarFlecha();
}

void PantallaConLista::presentarLista() {
    txtBusqueda_->hide();
    rejilla_->setSelectionMode(QTableView::SingleSelection);
    cargarFilas();
    if (!hayFilas()) return;
    rejilla_->setCurrentIndex(modelo_->index(filaPropia(), 1));
    rejilla_->scrollTo(rejilla_->currentIndex());
}

void PantallaConLista::elegirFila() {
    const int fila = rejilla_->currentIndex().row();
    if (!listaConFilas() || fila < 0) return;
    tomarFila(fila);
    utilidades_.SeleccionarGrid(ColorFondoFila, ColorTextoFila, filaMarcada_);
}

void PantallaConLista::presentarFlecha() {
    const int columna = columnaDeOrden();
    const bool hay = !enBusqueda() && modelo_->EsColumnaBuscable(columna);
    picasc_->setVisible(hay && ordenAscendente());
    picdesc_->setVisible(hay && !ordenAscendente());
    const QRect cabecera = rejilla_->CabeceraDe(columna);
    for (auto* flecha : {picasc_, picdesc_})
        flecha->move(cabecera.right() - LadoFlecha - MargenFlecha,
                     cabecera.center().y() - LadoFlecha / 2);
}

void PantallaConLista::refrescar() {
    PresentaDatos();
    Presentabotones();
}

void PantallaConLista::verTodos() {
    // The button goes off with this.
    rejilla_->setFocus(Qt::OtherFocusReason);
    quitarCriterios();
    refrescar();
}

void PantallaConLista::pulsarCabecera(int columna) {
    if (!enBusqueda() || modelo_->Sitio() != SitioCriterios::Cabecera)
        ordenarPor(columna);
    else if (guardia_.ConfirmarCampoEnFoco())
        elegirColumna(columna);
}

void PantallaConLista::ordenarPor(int columna) {
    if (!tomarOrden(columna)) return;
    const Espera espera(pantallas_);
    refrescar();
}

void PantallaConLista::invertirOrden() {
    const Espera espera(pantallas_);
    tomarOrdenInverso();
    refrescar();
}

}  // namespace padral
