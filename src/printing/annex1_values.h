#pragma once
// What stands in the fields of a participant.

#include "core/fixed_text.h"
#include "participants/participant.h"
#include "printing/layout.h"

namespace padral::anexo1 {

template <auto propiedad>
Valor TextoDe(const DatosParticipe& p) {
    return Texto(SinRelleno(p.*propiedad));
}
template <auto propiedad>
Valor NumeroDe(const DatosParticipe& p) {
    return NumeroSiHay(p.*propiedad);
}
/// Like every street of the form: nothing without its name.
inline Valor Calle(const DatosParticipe& p) {
    if (p.NombreVia.vacio()) return std::nullopt;
    return p.SiglasDom.recortado() + QStringLiteral("/ ") + p.NombreVia.recortado();
}
/// With as many decimals as it has, behind a comma in both languages.
inline Valor Participacion(const DatosParticipe& p) {
    constexpr int CifrasExactas = 7;  // of a single precision number
    if (p.PorcenPart == 0) return std::nullopt;
    return QString::number(static_cast<double>(p.PorcenPart), 'g', CifrasExactas)
        .replace(u'.', u',');
}

}  // namespace padral::anexo1
