#pragma once
// The two sections of the third page, and what they share.

#include "printing/layout.h"

namespace padral::hoja3 {

/// Size of the captions that tell no other, and of the box numbers.
inline constexpr float CuerpoRotulos = 7;
/// Size of the marks and of the section titles.
inline constexpr float CuerpoMarcas = 8;

/// The Basque version is for the language letter "E", the Spanish one for any other.
bool EnEuskera(const Hoja& hoja);
/// Draws the captions of the version.
void DibujarVersion(const Hoja& hoja, Mm x, Mm y, const GrupoRotulos& grupo);

/// The requests without their outer frame, which the page draws.
void DibujarApartado4(const Hoja& hoja, Mm x, Mm y);
/// Their marks and the entity of which the declarant is a member.
void RellenarApartado4(const Hoja& hoja, Mm x, Mm y);

/// The questions without their outer frame, likewise.
void DibujarApartado5(const Hoja& hoja, Mm x, Mm y);
/// Their marks.
void RellenarApartado5(const Hoja& hoja, Mm x, Mm y);

}  // namespace padral::hoja3
