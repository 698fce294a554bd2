#pragma once
// What makes section 5 valid.

#include <span>

#include "core/review.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"

namespace padral {

/// What the entry check looks at.
struct Entrada5 {
    const RespuestasApartado5& respuestas;
    const DatosApartado4& apartado4;
    qint32 fechaVigor;  ///< effective date
};

/// One step of the entry check: the first that fires ends it.
struct PasoEntrada5 {
    int numero;  ///< order, from 1
    bool (*salta)(const Entrada5&);
    int texto;  ///< 0: the section is accepted with nothing further checked
    const char16_t* prefijo = u"";
};

/// One rule of the consistency check.
struct ReglaApartado5 {
    int numero;  ///< order, from 1
    bool (*rota)(const RespuestasApartado5&, qint32 fechaVigor);
    int texto;
    bool exclamacion = false;
};

/// Title of all messages of section 5.
constexpr int TituloReglasApartado5 = 83;

/// The steps of `ValidarIntroduccionDatos` in their order.
std::span<const PasoEntrada5> PasosIntroduccion5();
/// The rules of `DatosValidos` in their order; only the first broken one is told.
std::span<const ReglaApartado5> ReglasApartado5();
/// The first broken rule, nullptr when none is.
const ReglaApartado5* PrimeraReglaRota(const RespuestasApartado5& respuestas, qint32 fechaVigor);

/// The section when it is left, changed or not: at most one message.
Revision ValidarIntroduccionDatos(const RespuestasApartado5& respuestas,
                                  const DatosApartado4& apartado4, qint32 fechaVigor);
/// A changed section when it is left, after the entry check: at most one message.
Revision DatosValidos(const RespuestasApartado5& respuestas, qint32 fechaVigor);

}  // namespace padral
