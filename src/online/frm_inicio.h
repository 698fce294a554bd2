#pragma once
// The splash: it stays in front for some seconds while the program starts.

#include <QWidget>

#include "core/shared_state.h"

namespace padral {

class frmInicio : public QWidget {
    Q_OBJECT
public:
    explicit frmInicio(EstadoCompartido& estado);

    /// Shows the splash and holds the start for 3 seconds, yielding to the event loop.
    void Cargar();

private:
    EstadoCompartido& estado_;
};

}  // namespace padral
