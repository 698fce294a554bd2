#pragma once
// The third page: requests and tax situation.

#include "printing/layout.h"

namespace padral {

/// Draws the third page and ends it. Entered with Y 4, the top of its heading. The page is in the
/// language of the run, and its font is that of the page before it. `imagen` names the copy title
/// to stamp.
void ImprimirApartados4y5(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
