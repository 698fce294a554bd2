#pragma once
// What the two annexes share: heading and identification.

#include <span>

#include "printing/layout.h"

namespace padral {

/// Left edge of every block of the annexes.
inline constexpr Mm XAnexo = 0.1F;

/// A line of a heading.
struct LineaCabecera {
    float cuerpo;
    Rotulo rotulo;
};

struct CabeceraAnexo {
    Mm alto;
    Mm yRaya;  ///< rule between the number of the form and the name of the annex
    std::span<const LineaCabecera> lineas;
};
/// The heading with its frame. Leaves "times new roman", not bold.
void DibujarCabeceraAnexo(const Hoja& hoja, Mm x, Mm y, const CabeceraAnexo& cabecera);

/// Title of the identification. One annex begins it at its place, the other centres it there, which
/// makes it lose its weight.
constexpr Rotulo TituloIdentificacion(Mm x) {
    return Par(x, 2.25F, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS");
}
inline constexpr Mm AltoIdentificacionAnexo = 14;
/// The identification with its frame and values.
void DibujarIdentificacionAnexo(const Hoja& hoja, Mm x, Mm y, const Rotulo& titulo);

}  // namespace padral
