#pragma once
// The two sections of the second page.

#include "printing/layout.h"

namespace padral::hoja2 {

/// Size of all captions that tell no other, and of the box numbers: with a larger one the numbers
/// of three digits would run into their captions.
inline constexpr float CuerpoPequeno = 7;

/// The four domiciles with their frames; `y` is the top of the first.
void DibujarApartado2(const Hoja& hoja, Mm x, Mm y);
/// Their values. A domicile marked as the fiscal one shows its mark and nothing else.
void RellenarApartado2(const Hoja& hoja, Mm x, Mm y);

/// The census data without their outer frame, which the page draws.
void DibujarApartado3(const Hoja& hoja, Mm x, Mm y);
void RellenarApartado3(const Hoja& hoja, Mm x, Mm y);

}  // namespace padral::hoja2
