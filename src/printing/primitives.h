#pragma once
// The drawing routines of which every page is made. They set only the drawing state that they
// name; all else stays as it was. Coordinates are millimetres, see printer_port.h.

#include <QString>

#include "printing/printer_port.h"

namespace padral {

/// Pen of a section's outer frame and pen of all else, in 1/600 inch.
inline constexpr int PlumaGruesa = 6;
inline constexpr int PlumaFina = 2;

/// Width of the form and of all its section frames.
inline constexpr Mm AnchoImpreso = 193;

/// Black line with the current pen.
void DibujarLinea(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2);
/// Black rectangle with the current pen on white fill colour; leaves the thin pen.
void DibujarMarco(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2);
/// Grey rectangle over a field that the form does not use.
void DibujarCajaGris(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2);

/// Text whose base line sits near `y`: it begins 0.35 of its height above.
void EscribirTexto(Impresora& p, Mm x, Mm y, const QString& texto);
/// The same text filled with dots: as many as fit up to 1 mm before `xHasta`.
void EscribirConPuntos(Impresora& p, Mm x, Mm y, Mm xHasta, const QString& texto);
/// "eus / cas", Basque in italics, at a point as EscribirTexto; leaves italics off.
void EscribirBilingue(Impresora& p, Mm x, Mm y, const QString& eus, const QString& cas);
/// Centred between `x` and `x + ancho`; `y` is the top.
void EscribirCentradoEnAncho(Impresora& p, Mm x, Mm y, Mm ancho, const QString& texto);
/// The pair centred between `x` and `x + ancho`; `y` is the top. It sits slightly right of the
/// centre, since the measure leaves out the blanks round the slash: the form has it so.
void EscribirBilingueCentradoEnAncho(Impresora& p, Mm x, Mm y, Mm ancho, const QString& eus,
                                     const QString& cas);
/// Centred on the point in both directions, roman, bold as asked.
void EscribirCentrado(Impresora& p, Mm x, Mm y, const QString& texto, bool negrita);
/// The pair centred on the point in both directions, not bold.
void EscribirBilingueCentrado(Impresora& p, Mm x, Mm y, const QString& eus, const QString& cas);
/// Ends at `xDerecha`; `y` is the top.
void EscribirDerecha(Impresora& p, Mm xDerecha, Mm y, const QString& texto);
/// The copy title in the right margin.
void EstamparCopia(Impresora& p, const QString& imagen);

}  // namespace padral
