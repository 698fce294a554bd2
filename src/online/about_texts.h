#pragma once
// Texts of the splash and of the about box; they stand outside the catalogue.

#include <QString>

namespace padral {

/// Copyright line of the splash and the about box.
QString LineaCopyright();
/// "La aplicación Declaración Padral permite ..." and its Basque counterpart.
QString DescripcionCastellano();
QString DescripcionEuskera();

}  // namespace padral
