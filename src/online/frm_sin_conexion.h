#pragma once
// Tells that the version check failed, in both languages at once.

#include <QDialog>

#include "ui/screen.h"

namespace padral {

class FrmSinConexion : public QDialog {
    Q_OBJECT
public:
    /// `SitAct` of the run chooses the text: 1 no connection, any other bad data. The wait cursor
    /// ends.
    explicit FrmSinConexion(const Contexto& contexto, QWidget* padre = nullptr);

protected:
    void showEvent(QShowEvent* evento) override;

private:
    QWidget* crearAviso();
    QWidget* crearPie();
    void guardarAviso(bool noPreguntar);

    EstadoCompartido& estado_;
};

}  // namespace padral
