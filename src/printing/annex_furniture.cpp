#include "printing/annex_furniture.h"

#include "declaration/general_data.h"
#include "printing/furniture.h"
#include "printing/primitives.h"

namespace padral {
namespace {

constexpr Mm XPrimeraColumna = 60, XUltimaColumna = 172;

/// Pen of the rules in the identification, finer than all others.
constexpr int PlumaIdentificacion = 1;
constexpr Raya rayasIdentificacion[] = {
    {0, 4, AnchoImpreso, 4},
    {38, 4, 38, AltoIdentificacionAnexo},
};
constexpr Casilla casillasIdentificacion[] = {
    {.numero = u"1", .lugarNumero = {2, 5.5F}, .rotulos = {Par(4, 5.5F, u"IFZ", u" N.I.F.")}},
    {.numero = u"2",
     .lugarNumero = {40, 5.5F},
     .rotulos = {Par(43, 5.5F, u"Deiturak eta izena, edo sozietatearen izena",
                     u"Apellidos y nombre, o Razón Social")}},
};

}  // namespace

void DibujarCabeceraAnexo(const Hoja& hoja, Mm x, Mm y, const CabeceraAnexo& cabecera) {
    Impresora& p = hoja.impresora;
    const Raya rayas[] = {
        {XPrimeraColumna, 0, XPrimeraColumna, cabecera.alto},
        {XUltimaColumna, 0, XUltimaColumna, cabecera.alto},
        {XUltimaColumna, cabecera.yRaya, AnchoImpreso, cabecera.yRaya},
    };
    MarcoGrueso(p, x, y, y + cabecera.alto);
    DibujarRayas(p, x, y, rayas);
    PonerFuente(p, FuenteRomana);
    for (const LineaCabecera& l : cabecera.lineas)
        DibujarRotulos(p, x, y, {l.cuerpo, false, {&l.rotulo, 1}});
    DibujarAutoridad(hoja, x, y);
}

void DibujarIdentificacionAnexo(const Hoja& hoja, Mm x, Mm y, const Rotulo& titulo) {
    Impresora& p = hoja.impresora;
    const cDatosGenerales& datos = hoja.registros.generales;
    MarcoGrueso(p, x, y, y + AltoIdentificacionAnexo);
    p.estado.pluma = PlumaIdentificacion;
    DibujarRayas(p, x, y, rayasIdentificacion);
    DibujarRotulos(p, x, y, {8, true, {&titulo, 1}});
    DibujarCasillas(p, x, y, casillasIdentificacion);
    PonerLetra(p, 10, true);
    EscribirTexto(p, x + 2, y + 9, datos.DNI);
    EscribirTexto(p, x + 40, y + 9, datos.NOMBRE);
}

}  // namespace padral
