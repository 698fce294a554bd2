#pragma once
// Annex II: non-residents and further situations and options in the I.V.A.

#include "printing/layout.h"

namespace padral {

/// Draws the page of Annex II and ends it. Entered with Y 3, the top of its heading. It bears no
/// copy title and is the same in all copies.
void ImprimirAnexoII(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
