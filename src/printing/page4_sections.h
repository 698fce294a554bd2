#pragma once
// The two sections of the fourth page.

#include "printing/layout.h"

namespace padral::hoja4 {

/// The cessation without its outer frame, which the page draws.
void DibujarApartado6(const Hoja& hoja, Mm x, Mm y);
/// Its dates and its cause.
void RellenarApartado6(const Hoja& hoja, Mm x, Mm y);

/// The intra-community operations without their outer frame, likewise.
void DibujarApartado7(const Hoja& hoja, Mm x, Mm y);
/// Their marks.
void RellenarApartado7(const Hoja& hoja, Mm x, Mm y);

}  // namespace padral::hoja4
