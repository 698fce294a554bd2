#pragma once
// What stands in the boxes of Annex II.

#include "printing/layout.h"
#include "sections/tax/annex2.h"

namespace padral::anexo2 {

using D2 = DatosAnexoII;

inline const DatosAnexoII& Datos(const Hoja& h) { return h.registros.anexoII; }

template <QString DatosAnexoII::*propiedad>
Valor ComoEsta(const Hoja& h) {
    return Texto(Datos(h).*propiedad);
}
template <QString DatosAnexoII::*propiedad, char16_t letra>
Valor SiLetra(const Hoja& h) {
    return Marca(Datos(h).*propiedad == QChar(letra));
}

inline Valor ProvinciaEnMayusculas(const Hoja& h) { return Datos(h).NombreProvincia.toUpper(); }

inline Valor PorcentajePropuesto(const Hoja& h) {
    const int porcentaje = Datos(h).PORCENTAJE;
    return porcentaje > 0 ? NumeroSiHay(porcentaje) : std::nullopt;
}

}  // namespace padral::anexo2
