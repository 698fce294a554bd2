// Entering search criteria in the grid of the declarations list.

#include <QKeyEvent>

#include "core/field_rules.h"
#include "store/list/frm_dec_lista.h"

namespace padral {

namespace {

enum : int {
    FechaNoValida = 151,
    AyudaBusqueda = 576,
    ErrorBusqueda = 580,
};

/// Characters that a criterion takes, by column 1 to 4.
constexpr int AnchoCriterio[] = {9, 40, 10, 10};

}  // namespace

void FrmDecLista::presentarCriterios() {
    flxDeclaraciones_->setSelectionMode(QTableView::NoSelection);
    modelo_->MostrarCriterios();
    lista_.ETIQUETAAYUDA = Texto(AyudaBusqueda);
    lista_.ETIQUETARESULTADO.clear();
    const int columna = lista_.SELECCIONACTUAL.toInt();
    if (!cDecLista::EsColumnaBuscable(columna)) return;
    flxDeclaraciones_->setCurrentIndex(modelo_->index(0, columna));
    flxDeclaraciones_->scrollTo(flxDeclaraciones_->currentIndex());
    const auto filtro = columna == cDecLista::ColFecha ? &FiltrarTeclaFecha : &FiltrarTecla;
    txtBusqueda_->PonerFiltro(AnchoCriterio[columna - 1], filtro);
    txtBusqueda_->Presentar(lista_.Criterio(columna));
    txtBusqueda_->setAccessibleName(
        modelo_->headerData(columna, Qt::Horizontal, Qt::DisplayRole).toString());
    utilidades_.PosicionarTxtBusqueda();
}

void FrmDecLista::pulsarBuscar() {
    if (lista_.EnBusqueda()) {
        if (guardarCriterioEnMano()) terminarBusqueda();
        return;
    }
    // The button goes off until a column is picked; the grid is where that is done.
    flxDeclaraciones_->setFocus(Qt::OtherFocusReason);
    lista_.IniciarBusqueda();
    PresentaDatos();
    Presentabotones();
}

void FrmDecLista::terminarBusqueda() {
    lista_.TerminarBusqueda();
    flxDeclaraciones_->setFocus(Qt::OtherFocusReason);
    txtBusqueda_->hide();
    PresentaDatos();
    Presentabotones();
}

void FrmDecLista::elegirColumna(int columna) {
    if (!cDecLista::EsColumnaBuscable(columna)) return;
    lista_.SELECCIONACTUAL = QString::number(columna);
    PresentaDatos();
    Presentabotones();
    txtBusqueda_->setFocus(Qt::OtherFocusReason);
    SeleccionarTexto(txtBusqueda_);
}

bool FrmDecLista::moverColumna(int paso) {
    const int columna = lista_.SELECCIONACTUAL.toInt() + paso;
    if (!cDecLista::EsColumnaBuscable(columna)) return false;
    if (guardia_.ConfirmarCampoEnFoco()) elegirColumna(columna);
    return true;
}

bool FrmDecLista::guardarCriterioEnMano() {
    const int columna = lista_.SELECCIONACTUAL.toInt();
    if (!lista_.EnBusqueda() || columna == 0) return true;
    const QString valor = txtBusqueda_->text();
    if (!lista_.CriterioValido(columna, valor)) {
        estado_.avisador.Mostrar(
            {Texto(FechaNoValida), Texto(ErrorBusqueda), Icono::Exclamacion, Botones::Aceptar});
        SeleccionarTexto(txtBusqueda_);
        return false;
    }
    lista_.GuardarCriterio(columna, valor);
    modelo_->MostrarCriterios();
    return true;
}

bool FrmDecLista::teclaEnBusqueda(QKeyEvent* evento) {
    const bool alInicio = !txtBusqueda_->hasSelectedText() && txtBusqueda_->cursorPosition() == 0;
    const bool alFinal = !txtBusqueda_->hasSelectedText() &&
                         txtBusqueda_->cursorPosition() == txtBusqueda_->text().size();
    switch (evento->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: {
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

bool FrmDecLista::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtBusqueda_ && evento->type() == QEvent::KeyPress)
        return teclaEnBusqueda(static_cast<QKeyEvent*>(evento));
    return Pantalla::eventFilter(objeto, evento);
}

}  // namespace padral
