#pragma once
// The choice of language of the first start. Its captions show both languages.

#include <QDialog>
#include <functional>

#include "core/shared_state.h"
#include "online/online_commands.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

namespace padral {

class FrmIdioma : public QDialog {
    Q_OBJECT
public:
    /// `alCambiarIdioma` runs once the language is stored: the main window takes its captions
    /// again.
    FrmIdioma(EstadoCompartido& estado, std::function<void()> alCambiarIdioma,
              QWidget* padre = nullptr, OrdenesVersion ordenes = {});

    void reject() override;

protected:
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* control, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void crearMarco();
    QWidget* crearPregunta();
    void elegir(const QString& letra, bool esperarResultado);
    void comprobar(bool esperarResultado);
    void guardarAviso(bool marcado);

    EstadoCompartido& estado_;
    std::function<void()> alCambiarIdioma_;
    OrdenesVersion ordenes_;
    QGroupBox* frame1_;
    QPushButton *cmdcastellano_, *cmdeuskera_;
    QCheckBox* chkActOnline_;
    QLabel *lblActOnline_, *lblAct_;
    bool comprobando_ = false;
};

}  // namespace padral
