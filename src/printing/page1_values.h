#pragma once
// What stands in the boxes of the first page.

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "printing/layout.h"

namespace padral::hoja1 {

inline const cDatosGenerales& Datos(const Hoja& h) { return h.registros.generales; }

template <char16_t letra>
Valor SiCausa1(const Hoja& h) {
    return Marca(Datos(h).Causa1 == QChar(letra));
}
template <char16_t letra>
Valor SiCausa2(const Hoja& h) {
    return Marca(Datos(h).Causa2 == QChar(letra));
}
template <QString DatosGeneralesStore::*propiedad>
Valor ComoEsta(const Hoja& h) {
    return Texto(Datos(h).*propiedad);
}

/// Box 12: only a change has a date of change.
inline Valor FechaDelCambio(const Hoja& h) {
    return Datos(h).Causa1 == u"M" ? FechaSiHay(h, Datos(h).FechaModificacion()) : std::nullopt;
}

}  // namespace padral::hoja1
