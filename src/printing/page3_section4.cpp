#include "core/shared_state.h"
#include "printing/page3_section4_tables.h"

namespace padral::hoja3 {
namespace {

void DibujarCuadros(const Hoja& hoja, Mm x, Mm y, const Solicitud& s) {
    const Version version = EnEuskera(hoja) ? Euskera : Castellano;
    for (const CuadroSolicitud& c : s.cuadros) {
        if (c.letra == 0) continue;
        const Casilla casilla = {.numero = c.numero,
                                 .lugarNumero = {c.xNumero[version], s.yRotulo},
                                 .marco = Cuadro(c.xCuadro[version], s.yCuadro)};
        DibujarCasillas(hoja.impresora, x, y, {&casilla, 1}, CuerpoRotulos);
    }
}

void DibujarRegistroExportadores(const Hoja& hoja, Mm x, Mm y) {
    const RotuloFechado& r = registroExportadores;
    const bool antes = hoja.registros.generales.FECHADECLARACION < r.desde;
    PonerLetra(hoja.impresora, CuerpoRotulos, false);
    EscribirConPuntos(hoja.impresora, x + r.x, y + r.y, x + r.hasta,
                      hoja.estado.Texto(antes ? r.antes : r.despues));
}

}  // namespace

void DibujarApartado4(const Hoja& hoja, Mm x, Mm y) {
    DibujarRayas(hoja.impresora, x, y, rayaApartado4);
    DibujarVersion(hoja, x, y, {CuerpoMarcas, true, tituloApartado4});
    DibujarVersion(hoja, x, y, {CuerpoRotulos, true, negritasApartado4});
    DibujarVersion(hoja, x, y, {CuerpoRotulos, false, rotulosApartado4});
    DibujarRegistroExportadores(hoja, x, y);
    for (const Solicitud& s : solicitudes) {
        DibujarVersion(hoja, x, y, {CuerpoRotulos, false, s.rotulos});
        DibujarCuadros(hoja, x, y, s);
    }
}

void RellenarApartado4(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    const DatosApartado4& datos = hoja.registros.apartado4;
    PonerLetra(p, CuerpoMarcas, true);
    for (const Solicitud& s : solicitudes)
        for (const CuadroSolicitud& c : s.cuadros)
            if (c.letra != 0 && (datos.*s.propiedad).texto() == QChar(c.letra))
                EscribirTexto(p, x + c.xMarca, y + s.yMarca, QStringLiteral("X"));
    EscribirCentradoEnAncho(p, x + XNif, y + YEntidad, AnchoNif, datos.NIF.recortado());
    EscribirCentradoEnAncho(p, x + XNombre, y + YEntidad, AnchoNombre, datos.NOMBRE.recortado());
}

}  // namespace padral::hoja3
