#pragma once
// The fourth page: cessation and intra-community operations.

#include "printing/layout.h"

namespace padral {

/// Draws the fourth page and ends it. Entered with Y 34, 3 mm above the identification. `imagen`
/// names the copy title to stamp.
void ImprimirApartados6y7(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
