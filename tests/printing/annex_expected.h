#pragma once
// The pieces that both annexes share, in rows.

#include "furniture_expected.h"

namespace padral::test {

/// The heading of an annex without its authority; `yRaya` is the rule below the number of the form.
BloqueEsperado CabeceraAnexoEsperada(float y, float alto, float yRaya,
                                     const std::vector<FilaEnPunto>& lineas);
/// The identification without its title and its values.
BloqueEsperado IdentificacionAnexoEsperada(float y);
/// The document without the two rules of the identification of that page, which must be there with
/// a pen of their own.
Documento SinRayasFinas(const Documento& documento, int pagina, float yIdentificacion);

/// Texts of a page that are not empty.
qsizetype Escritos(const Documento& documento, int pagina);

}  // namespace padral::test
