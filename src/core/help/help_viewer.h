#pragma once
// The port to whatever shows help files on this system.

#include <QString>

class QWidget;

namespace padral {

class VisorAyuda {
public:
    virtual ~VisorAyuda() = default;
    /// Shows the page that `direccion` names (help file, "::/", topic) over `formulario`. Does not
    /// wait for the user.
    virtual void Abrir(const QString& direccion, QWidget* formulario) = 0;
};

}  // namespace padral
