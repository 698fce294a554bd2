#pragma once
// Pieces that several pages share.

#include "printing/layout.h"

namespace padral {

/// Common heading of pages 1 and 2, 30 mm high: frame, emblem, authority, number of the form.
/// The caller sets the pen of the frame. Ends in "Arial Narrow"; the title lines of the page
/// follow.
void DibujarCabeceraComun(const Hoja& hoja, Mm x, Mm y);

/// Authority and emblem in the heading of the fourth page and the annexes: names, department in
/// both languages, web address. Leaves "times new roman", size 7, not bold.
void DibujarAutoridad(const Hoja& hoja, Mm x, Mm y);

/// Identification block, 12 mm high without its outer frame, which the page draws.
void DibujarIdentificacion(const Hoja& hoja, Mm x, Mm y);
/// Its values; leaves size 8.
void RellenarIdentificacion(const Hoja& hoja, Mm x, Mm y);

/// Outer frame of a section over the whole width, from `y1` to `y2`.
void MarcoGrueso(Impresora& p, Mm x, Mm y1, Mm y2);

/// A block of a page: its origin below the Y of the page, and its frame from its origin.
struct Bloque {
    Mm origen;
    Mm arriba, abajo;
    void (*dibujar)(const Hoja&, Mm x, Mm y);
    void (*rellenar)(const Hoja&, Mm x, Mm y);
};
/// Frame, empty form and values of the block.
void ImprimirBloque(const Hoja& hoja, Mm x, Mm y, const Bloque& bloque);

inline constexpr const char16_t* FuenteRomana = u"times new roman";
inline constexpr const char16_t* FuenteEstrecha = u"Arial Narrow";

/// Sets the font of what follows.
void PonerFuente(Impresora& p, const char16_t* nombre);

/// Frame and width of the column for the titles of a heading.
inline constexpr Mm XTitulos = 59;
inline constexpr Mm AnchoTitulos = 112.5F;

}  // namespace padral
