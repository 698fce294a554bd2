#pragma once
// What a screen knows of the main window: show another screen, leave, lock the menus, wait.

#include <QString>

namespace padral {

class Pantallas {
public:
    virtual ~Pantallas() = default;
    /// Loads and shows the screen of that form name, e.g. u"FrmDatGen". The main window itself is
    /// u"MDIPadral". A screen already loaded just comes to the front.
    virtual void Mostrar(const QString& nombre) = 0;
    /// Unloads the screen of that name. No check of a field runs.
    virtual void Descargar(const QString& nombre) = 0;
    /// Whether the program has a screen of that name; the buttons of others stay off.
    virtual bool Disponible(const QString& nombre) const {
        Q_UNUSED(nombre)
        return true;
    }
    /// Reads the number of declarations again and turns the commands of the main window on.
    virtual void HabilitarMenus() = 0;
    virtual void DeshabilitarMenus() = 0;
    /// true: wait cursor, and the user's input is dropped until false.
    virtual void CursorEspera(bool activo) = 0;
};

/// The wait cursor for the time of a handler.
class Espera {
public:
    explicit Espera(Pantallas& pantallas) : pantallas_(pantallas) { pantallas_.CursorEspera(true); }
    ~Espera() { pantallas_.CursorEspera(false); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;

private:
    Pantallas& pantallas_;
};

}  // namespace padral
