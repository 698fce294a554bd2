#pragma once
// The splash: it stays in front for some seconds while the program starts.

#include <QFrame>

#include "core/shared_state.h"
#include "online/online_commands.h"

class QLabel;
class QVBoxLayout;

namespace padral {

class frmInicio : public QFrame {
    Q_OBJECT
public:
    explicit frmInicio(EstadoCompartido& estado, OrdenesVersion ordenes = {});

    /// Shows the splash and holds the start for 3 seconds, yielding to the event loop. With
    /// `ActOnline` 1 it checks the version and holds for 4 seconds, the check counted in.
    void Cargar();

private:
    QWidget* crearImagen();
    QWidget* crearTextos();
    void linea(QVBoxLayout* columna, const char16_t* nombre, const QString& texto, double veces);

    EstadoCompartido& estado_;
    OrdenesVersion ordenes_;
    QLabel* lblAct_;
};

}  // namespace padral
