#pragma once
// The second page: the four domiciles and the census data.

#include "printing/layout.h"

namespace padral {

/// Draws the second page and ends it. Entered with Y 35.5, the top of the identification.
/// `imagen` names the copy title to stamp.
void ImprimirHoja2(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
