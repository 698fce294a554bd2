#pragma once
// The print dialog: draft or official, which copies, which printer.

#include <QDialog>
#include <functional>

#include "declaration/declaration.h"
#include "printing/job.h"
#include "printing/ui/print_target.h"
#include "ui/screen.h"

class QAbstractButton;
class QCheckBox;
class QGroupBox;
class QPushButton;
class QRadioButton;

namespace padral {

/// Opened by the general data screen after it has saved. However the dialog closes, the
/// declaration is opened afresh in that screen. A failure of the printer is thrown as Fallo.
class FrmImOf : public QDialog {
    Q_OBJECT
public:
    FrmImOf(const Contexto& contexto, cDeclaraciones& declaracion, DestinoImpresion& destino);

    /// Captions and tool tips in the language of the run.
    void Anadir_captions();
    /// The command of `btnAceptar`: prints the copies asked for and closes, unless none is.
    void Aceptar();
    void done(int resultado) override;

private:
    QWidget* crearTipo();
    QWidget* crearCopias();
    QWidget* crearBotones();
    QGroupBox* marco(const QString& nombre);
    QPushButton* boton(const QString& nombre, std::function<void()> orden);
    QWidget* conImagen(const QString& nombre, const QString& dibujo, QPushButton* suBoton);
    OpcionesImpresion opciones() const;
    void avisarFicheros();

    EstadoCompartido& estado_;
    Pantallas& pantallas_;
    GuardiaCampos& guardia_;
    cDeclaraciones& declaracion_;
    DestinoImpresion& destino_;

    QGroupBox *fraopciones_, *frameTipoImpreso_, *fracopias_;
    QRadioButton *optOficial_, *optBorrador_;
    QCheckBox *chkCopiaAdministracion_, *chkCopiaInteresado_;
    QPushButton *btnOpcionesImpresora_, *btnCancelar_, *btnAceptar_;
    bool cerrado_ = false;
};

}  // namespace padral
