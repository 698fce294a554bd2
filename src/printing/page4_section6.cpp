#include "core/shared_state.h"
#include "printing/page4_section6_tables.h"
#include "printing/page4_sections.h"

namespace padral::hoja4 {

void DibujarApartado6(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, rayasApartado6);
    DibujarRotulos(p, x, y, {8, true, tituloApartado6});
    DibujarRotulos(p, x, y, {8, false, rotulosApartado6});
    DibujarRotulos(p, x, y, {6, false, avisoApartado6});
}

void RellenarApartado6(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    const DatosApartado6& datos = hoja.registros.apartado6;
    PonerLetra(p, 8, true);
    for (const FechaApartado6& f : fechasApartado6)
        if (const Valor fecha = FechaSiHay(hoja, datos.*f.propiedad))
            EscribirTexto(p, x + f.x, y + YFechas, *fecha);
    if (datos.CAUSA == 0)
        EscribirTexto(p, x + XCausa, y + YDescripcion, datos.DESCRIPCIONCAUSA.texto());
    else
        EscribirTexto(p, x + XCausa, y + YCausa,
                      hoja.estado.catalogo.ObtenerCausaCese(QString::number(datos.CAUSA)));
}

}  // namespace padral::hoja4
