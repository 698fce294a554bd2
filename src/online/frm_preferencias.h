#pragma once
// Language of the run and update setting, changed at any time.

#include <QDialog>

#include "online/online_commands.h"
#include "ui/screen.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace padral {

/// Nothing is stored before `cmdAceptar`. The program asks `isVisible` to know whether the dialog
/// is on the screen.
class frmPreferencias : public QDialog {
    Q_OBJECT
public:
    /// `alCambiarIdioma` runs once the language is stored: the main window takes its captions
    /// again.
    frmPreferencias(const Contexto& contexto, std::function<void()> alCambiarIdioma,
                    OrdenesVersion ordenes, QWidget* padre = nullptr);

    void reject() override;

protected:
    bool event(QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void crear();
    void activar();
    void presentar();
    void Anadir_captions();
    void comprobarAhora();
    void aceptar();

    EstadoCompartido& estado_;
    Pantallas& pantallas_;
    std::function<void()> alCambiarIdioma_;
    OrdenesVersion ordenes_;
    QString pendiente_;  ///< letter of the language chosen in the dialog
    bool comprobando_ = false;

    QLabel *lblIdioma_, *lblActualizaciones_;
    QRadioButton *optEusk_, *optCast_;
    QCheckBox* chkActOnline_;
    QPushButton *lblActAhora_, *cmdAceptar_, *cmdCancelar_;
};

}  // namespace padral
