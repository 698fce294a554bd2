#include "printing/furniture.h"
#include "printing/page2_section2_tables.h"
#include "printing/page2_sections.h"

namespace padral::hoja2 {
namespace {

void DibujarColumnas(Impresora& p, Mm x, Mm y, const FilaDomicilio& fila,
                     std::span<const Mm> columnas) {
    for (const Mm columna : columnas)
        DibujarLinea(p, x + columna, y + fila.arriba, x + columna, y + fila.abajo);
}

/// Numbers and captions; `orden` is that of the domicile.
void DibujarCampos(Impresora& p, Mm x, Mm y, const Domicilio& d, std::size_t orden) {
    for (const CampoDomicilio& c : camposDomicilio) {
        const Mm fila = formas[d.clase].filas[c.fila].yRotulo;
        const Casilla casilla = {.numero = c.numeros[orden],
                                 .lugarNumero = {c.xNumero, fila},
                                 .cuerpo = CuerpoPequeno,
                                 .rotulos = {Par(c.xRotulo[d.clase], fila, c.eus, c.cas)}};
        DibujarCasillas(p, x, y, {&casilla, 1}, CuerpoPequeno);
    }
}

/// The grey cells come first: captions and codes stand on them.
void DibujarDomicilio(Impresora& p, Mm x, Mm y, const Domicilio& d, std::size_t orden) {
    const FormaDomicilio& forma = formas[d.clase];
    MarcoGrueso(p, x, y, y + forma.alto);
    DibujarRayas(p, x, y, d.rayas);
    DibujarColumnas(p, x, y, forma.filas[0], columnasPrimera);
    DibujarColumnas(p, x, y, forma.filas[1], columnasSegunda);
    for (const CeldaClave& celda : celdasClave)
        DibujarCajaGris(p, x + celda.x1, y + forma.grisArriba, x + celda.x2, y + forma.grisAbajo);
    DibujarRotulos(p, x, y, {8, true, d.titulos});
    DibujarCampos(p, x, y, d, orden);
    if (d.elMismo != nullptr) DibujarMarcos(p, x, y, {&marcoElMismo, 1});
}

void RellenarDomicilio(Impresora& p, Mm x, Mm y, const Domicilio& d, const DatosApartado2& datos) {
    if (d.elMismo != nullptr && datos.*d.elMismo == u"X") {
        EscribirTexto(p, x + lugarElMismo.x, y + lugarElMismo.y, QStringLiteral("X"));
        return;
    }
    for (const CampoDomicilio& c : camposDomicilio)
        if (const Valor valor = c.valor(datos.*d.datos))
            EscribirTexto(p, x + c.xValor, y + formas[d.clase].filas[c.fila].yValor, *valor);
}

}  // namespace

void DibujarApartado2(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    for (std::size_t orden = 0; orden < std::size(domicilios); ++orden)
        DibujarDomicilio(p, x, y + domicilios[orden].origen, domicilios[orden], orden);
    DibujarRotulos(p, x, y, {CuerpoPequeno, false, rotulosInternet});
}

void RellenarApartado2(const Hoja& hoja, Mm x, Mm y) {
    PonerLetra(hoja.impresora, 8, true);
    for (const Domicilio& d : domicilios)
        RellenarDomicilio(hoja.impresora, x, y + d.origen, d, hoja.registros.apartado2);
}

}  // namespace padral::hoja2
