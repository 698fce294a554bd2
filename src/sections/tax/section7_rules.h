#pragma once
// What makes section 7 valid.

#include "core/review.h"
#include "sections/tax/section7.h"

namespace padral {

/// No box of the section is ticked.
inline constexpr AvisoRegla AvisoSinDatos7{281, 125};

/// A section when it is left, changed or not: every broken rule is told.
Revision ValidarApartado7(const DatosApartado7& apartado);

}  // namespace padral
