#include "printing/page4_section7_tables.h"
#include "printing/page4_section7_tables_below.h"
#include "printing/page4_sections.h"

namespace padral::hoja4 {
namespace {

void DibujarNumeros(Impresora& p, Mm x, Mm y) {
    p.estado.cuerpo = 8;
    for (const ColumnaEstados& c : columnasEstados)
        EscribirCentrado(p, x + c.lugarNumero.x, y + c.lugarNumero.y, QString::fromUtf16(c.numero),
                         true);
}

void DibujarEstados(Impresora& p, Mm x, Mm y) {
    const Mm primeraColumna = x + columnasEstados[0].xCuadro;
    PonerLetra(p, 8, false);
    for (std::size_t fila = 0; fila < FilasEstados.size(); ++fila) {
        const Mm arriba = y + YEstados + BajadaFila(fila);
        EscribirConPuntos(p, XRotuloEstado, arriba + BajadaRotuloEstado, primeraColumna,
                          QString::fromUtf16(rotulosEstados[fila]));
        for (const ColumnaEstados& c : columnasEstados) {
            const Marco cuadro = Cuadro(c.xCuadro, 0);
            DibujarMarcos(p, x, arriba, {&cuadro, 1});
        }
    }
}

void MarcarColumna(const Hoja& hoja, Mm x, Mm y, const ColumnaEstados& columna) {
    const DatosApartado7& datos = hoja.registros.apartado7;
    for (std::size_t fila = 0; fila < FilasEstados.size(); ++fila) {
        const std::size_t estado = FilasEstados[fila].indice();
        for (const QString& respuesta : {datos.LimSupPais[estado], datos.DestRevocPais[estado]})
            if (respuesta == QChar(columna.letra))
                EscribirTexto(hoja.impresora, x + columna.xMarca,
                              y + YMarcasEstados + BajadaFila(fila), QStringLiteral("X"));
    }
}

}  // namespace

void DibujarApartado7(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRotulos(p, x, y, {8, true, tituloApartado7});
    DibujarRayas(p, x, y, rayasApartado7);
    DibujarMarcos(p, x, y, marcosRotulos);
    DibujarRotulos(p, x, y, {9, false, rotulosVentas});
    DibujarRotulos(p, x, y, {8, false, rotulosApartado7});
    DibujarNumeros(p, x, y);
    DibujarEstados(p, x, y);
    DibujarRotulos(p, x, y, {8, false, rotulosSujetos});
    DibujarRotulos(p, x, y, {8, false, rotulosRespuestas});
    DibujarCasillas(p, x, y, casillasApartado7);
}

void RellenarApartado7(const Hoja& hoja, Mm x, Mm y) {
    PonerLetra(hoja.impresora, 8, true);
    for (const ColumnaEstados& c : columnasEstados) MarcarColumna(hoja, x, y, c);
    RellenarCasillas(hoja, x, y, casillasApartado7);
    for (int vez = 0; vez < 2; ++vez) RellenarCasillas(hoja, x, y, {&casillaAgric, 1});
}

}  // namespace padral::hoja4
