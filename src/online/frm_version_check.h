#pragma once
// Tells that another version is published, or that this one is. Its captions show both languages.

#include <QDialog>

#include "online/online_commands.h"
#include "ui/screen.h"

class QLabel;

namespace padral {

class FrmVersionCheck : public QDialog {
    Q_OBJECT
public:
    /// Shows what the version check found; the wait cursor ends. Without a parent, or with one that
    /// stays in front of all windows, the dialog does so as well.
    FrmVersionCheck(const Contexto& contexto, OrdenesVersion ordenes, QWidget* padre = nullptr);

private:
    QWidget* crearVersiones();
    QWidget* crearDatos();
    QWidget* crearBotones();
    QLabel* rotulo(const char16_t* nombre, QWidget* padre);
    void actualizar();
    void irYTerminar();

    EstadoCompartido& estado_;
    OrdenesVersion ordenes_;
};

}  // namespace padral
