#pragma once
// The commands "mnuBackup" and "mnuRestore" of the main window.

#include <functional>

class QWidget;

namespace padral {

struct EstadoCompartido;
class DialogosCopia;

/// What rebuilds the state of the run after a restore, in this order.
struct PasosTrasRestaurar {
    /// Carries an older file into the present layout; true: the process must end at once.
    std::function<bool()> traspasar;
    std::function<void()> iniciarSesion;
    /// The captions of the main window; the language may have changed with the file.
    std::function<void()> ponerRotulos;
    std::function<void()> habilitarMenus;
};

/// The declaration open in the run is not saved first and not touched.
void HacerCopia(EstadoCompartido& estado, DialogosCopia& dialogos, QWidget* ventana);
/// True: the process must end at once. Without a restore nothing in the run changes.
bool RestaurarCopia(EstadoCompartido& estado, DialogosCopia& dialogos, QWidget* ventana,
                    const PasosTrasRestaurar& pasos);

}  // namespace padral
