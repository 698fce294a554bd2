// Entering search criteria in the grid of a list.

#include <QKeyEvent>

#include "ui/list/list_screen.h"

namespace padral {

void PantallaConLista::presentarCriterios() {
    rejilla_->setSelectionMode(QTableView::NoSelection);
    modelo_->MostrarCriterios();
    const int columna = columnaEnMano();
    if (!modelo_->EsColumnaBuscable(columna)) return;
    rejilla_->setCurrentIndex(modelo_->index(0, columna));
    rejilla_->scrollTo(rejilla_->currentIndex());
    const auto [ancho, filtro] = entradaDe(columna);
    txtBusqueda_->PonerFiltro(ancho, filtro);
    txtBusqueda_->Presentar(modelo_->Criterio(columna));
    txtBusqueda_->setAccessibleName(modelo_->Titulo(columna));
    // Over the header the box hides the caption.
    if (utilidades_.SobreCabecera) txtBusqueda_->setPlaceholderText(modelo_->Titulo(columna));
    utilidades_.PosicionarTxtBusqueda();
}

void PantallaConLista::pulsarBuscar() {
    if (enBusqueda()) {
        if (guardarCriterioEnMano()) terminarBusqueda();
        return;
    }
    // The button may go off until a column is picked; the grid is where that is done.
    rejilla_->setFocus(Qt::OtherFocusReason);
    iniciarBusqueda();
    if (columnaEnMano() == 0)
        refrescar();
    else
        elegirColumna(columnaEnMano());
}

void PantallaConLista::terminarBusqueda() {
    acabarBusqueda();
    rejilla_->setFocus(Qt::OtherFocusReason);
    refrescar();
}

void PantallaConLista::elegirColumna(int columna) {
    if (!modelo_->EsColumnaBuscable(columna)) return;
    tomarColumna(columna);
    refrescar();
    txtBusqueda_->setFocus(Qt::OtherFocusReason);
    SeleccionarTexto(txtBusqueda_);
}

bool PantallaConLista::moverColumna(int paso) {
    const int columna = columnaEnMano() + paso;
    if (!modelo_->EsColumnaBuscable(columna)) return false;
    if (guardia_.ConfirmarCampoEnFoco()) elegirColumna(columna);
    return true;
}

bool PantallaConLista::guardarCriterioEnMano() {
    const int columna = columnaEnMano();
    if (!enBusqueda() || columna == 0) return true;
    if (!tomarCriterio(columna, txtBusqueda_->text())) {
        SeleccionarTexto(txtBusqueda_);
        return false;
    }
    modelo_->MostrarCriterios();
    return true;
}

bool PantallaConLista::teclaEnBusqueda(QKeyEvent* evento) {
    const bool alInicio = !txtBusqueda_->hasSelectedText() && txtBusqueda_->cursorPosition() == 0;
    const bool alFinal = !txtBusqueda_->hasSelectedText() &&
                         txtBusqueda_->cursorPosition() == txtBusqueda_->text().size();
    switch (evento->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: {
            // The key that opened the search may still be down.
            if (evento->isAutoRepeat()) return true;
            const Espera espera(pantallas_);
            pulsarBuscar();
            return true;
        }
        case Qt::Key_Tab:
            return moverColumna(1);
        case Qt::Key_Backtab:
            return moverColumna(-1);
        case Qt::Key_Right:
            return evento->modifiers() == Qt::NoModifier && alFinal && moverColumna(1);
        case Qt::Key_Left:
            return evento->modifiers() == Qt::NoModifier && alInicio && moverColumna(-1);
        default:
            return false;
    }
}

bool PantallaConLista::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtBusqueda_ && evento->type() == QEvent::KeyPress)
        return teclaEnBusqueda(static_cast<QKeyEvent*>(evento));
    return Pantalla::eventFilter(objeto, evento);
}

}  // namespace padral
