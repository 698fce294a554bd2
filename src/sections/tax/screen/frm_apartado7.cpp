#include "sections/tax/screen/frm_apartado7.h"

#include <QKeyEvent>
#include <algorithm>

#include "sections/tax/screen/frm_apartado7_tables.h"

namespace padral {

using namespace apartado7;

void FrmApartado7::Cargar() {
    Anadir_captions();
    Refrescar();
    ActualizarBotones();
    apartado_.Modificaciones = false;
}

void FrmApartado7::presentar(const Casilla& casilla) {
    casilla.caja->setChecked(*casilla.respuesta == casilla.valor);
}

void FrmApartado7::Refrescar() {
    refrescando_ = true;
    for (const auto& casilla : casillas_) presentar(casilla);
    refrescando_ = false;
}

void FrmApartado7::ActualizarBotones() { actualizarSiguiente(); }

void FrmApartado7::conectarCasillas() {
    for (const auto& casilla : casillas_)
        guardia_.Orden(casilla.caja, [this, &casilla] { pulsar(casilla); });
}

// The boxes of a pair share their answer, so that the refresh unticks the other one.
void FrmApartado7::pulsar(const Casilla& casilla) {
    // The toolkit has turned the box already.
    if (refrescando_) return presentar(casilla);
    *casilla.respuesta = casilla.caja->isChecked() ? casilla.valor : QString();
    apartado_.Modificaciones = true;
    Refrescar();
    ActualizarBotones();
    focusNextPrevChild(true);
}

bool FrmApartado7::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        const bool sola = (tecla->modifiers() & ~Qt::KeypadModifier) == 0;
        if (sola && (tecla->key() == Qt::Key_Up || tecla->key() == Qt::Key_Down))
            return irPorLaColumna(objeto, tecla->key() == Qt::Key_Down);
    }
    return PantallaApartado::eventFilter(objeto, evento);
}

/// From a box of the states to the one above or below it; from the last row on to the subjects.
bool FrmApartado7::irPorLaColumna(const QObject* desde, bool abajo) {
    constexpr std::size_t EnUnaFila = Columnas.size();
    constexpr std::size_t EnEstados = EnUnaFila * FilasEstados.size();
    std::size_t i = 0;
    while (i < EnEstados && casillas_[i].caja != desde) ++i;
    if (i == EnEstados) return false;
    if (abajo)
        casillas_[std::min(i + EnUnaFila, EnEstados)].caja->setFocus(Qt::TabFocusReason);
    else if (i >= EnUnaFila)
        casillas_[i - EnUnaFila].caja->setFocus(Qt::BacktabFocusReason);
    return true;
}

}  // namespace padral
