#pragma once
// One participant on the page of Annex I.

#include "printing/layout.h"

namespace padral {

class cParticipes;

namespace anexo1 {

inline constexpr Mm AltoFila = 46;

/// The block of a participant with its heavy frame and its values; `y` is its top.
void DibujarFilaParticipe(Impresora& p, Mm x, Mm y, const cParticipes& participe);

}  // namespace anexo1
}  // namespace padral
