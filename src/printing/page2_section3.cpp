#include "printing/page2_section3_tables_below.h"

namespace padral::hoja2 {
namespace {

constexpr std::span<const Casilla> grupos[] = {casillasActividad, casillasPreferencias,
                                               casillasContacto, casillasConsentimiento,
                                               casillasEntidad};

void RellenarPorcentaje(const Hoja& hoja, Mm y) {
    PonerLetra(hoja.impresora, 8, true);
    if (const Valor porcentaje = Porcentaje(hoja))
        EscribirDerecha(hoja.impresora, XDerechaPorcentaje, y + YPorcentaje, *porcentaje);
}

}  // namespace

void DibujarApartado3(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, rayasApartado3);
    DibujarMarcos(p, x, y, marcosSueltos);
    DibujarRotulos(p, x, y, {8, true, tituloApartado3});
    for (const auto& grupo : grupos) DibujarCasillas(p, x, y, grupo, CuerpoPequeno);
    DibujarRotulos(p, x, y, {8, true, tituloEntidades});
}

void RellenarApartado3(const Hoja& hoja, Mm x, Mm y) {
    for (const auto& grupo : grupos) RellenarCasillas(hoja, x, y, grupo);
    RellenarPorcentaje(hoja, y);
}

}  // namespace padral::hoja2
