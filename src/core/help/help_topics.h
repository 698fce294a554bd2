#pragma once
// Which page of the help tells about which screen.

#include <QString>
#include <span>

#include "core/shared_state.h"

namespace padral {

struct TemaFormulario {
    const char16_t* formulario;
    const char16_t* castellano;  ///< page in Spanish
    const char16_t* euskera;     ///< page in Basque
};

/// All forms with a page. Both editions of a screen have the same.
std::span<const TemaFormulario> TemasAyuda();

bool TieneTema(const QString& formulario);
/// The page on a form in the language of the run; for a form that has none, the start page.
QString TemaDe(const EstadoCompartido& estado, const QString& formulario);
/// The start page.
QString TemaInicial(const EstadoCompartido& estado);

}  // namespace padral
