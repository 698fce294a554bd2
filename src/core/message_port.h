#pragma once
// The port through which every rule and every question speaks to the user.

#include <QString>

namespace padral {

enum class Icono { Ninguno, Informacion, Exclamacion, Error };
enum class Botones { Aceptar, AceptarCancelar, SiNo };
enum class Respuesta { Aceptar, Cancelar, Si, No };

/// A modal message box. Texts are plain: no markup is read, an ampersand is an ampersand.
struct Mensaje {
    QString texto;
    QString titulo;
    Icono icono = Icono::Informacion;
    Botones botones = Botones::Aceptar;
    bool operator==(const Mensaje&) const = default;
};

/// Shows message boxes. Closing a question with Esc or the box's X answers Cancelar or No.
/// The wait cursor has ended by the time the box shows.
class Avisador {
public:
    virtual ~Avisador() = default;
    virtual Respuesta Mostrar(const Mensaje& mensaje) = 0;
};

}  // namespace padral
