#include "printing/page3_section5_tables.h"

namespace padral::hoja3 {
namespace {

void DibujarCuadrosPreguntas(Impresora& p, Mm x, Mm y) {
    for (const Mm fila : filasDeCuadros)
        for (const ColumnaRespuesta& c : columnasRespuesta) {
            const Marco cuadro = Cuadro(c.xCuadro, fila);
            DibujarMarcos(p, x, y, {&cuadro, 1});
        }
    DibujarMarcos(p, x, y, cuadrosSolos);
}

void DibujarPregunta(const Hoja& hoja, Mm x, Mm y, const Pregunta5& q) {
    const Rotulo rotulo = ConPuntos(XNumeroPregunta, Par(q.x, q.y, q.eus, q.cas));
    DibujarVersion(hoja, x, y, {CuerpoRotulos, false, {&rotulo, 1}});
    const Casilla casilla = {.numero = q.numero, .lugarNumero = {XNumeroPregunta, q.y}};
    DibujarCasillas(hoja.impresora, x, y, {&casilla, 1}, CuerpoRotulos);
}

}  // namespace

void DibujarApartado5(const Hoja& hoja, Mm x, Mm y) {
    DibujarRayas(hoja.impresora, x, y, rayaApartado5);
    DibujarCuadrosPreguntas(hoja.impresora, x, y);
    DibujarVersion(hoja, x, y + Bajada, {CuerpoMarcas, true, titulosApartado5});
    DibujarVersion(hoja, x, y + Bajada, {CuerpoRotulos, false, rotulosAltos});
    DibujarVersion(hoja, x, y, {CuerpoRotulos, false, rotulosBajos});
    for (const GrupoPreguntas& g : gruposPreguntas)
        for (const Pregunta5& q : g.preguntas) DibujarPregunta(hoja, x, y + g.bajada, q);
}

void RellenarApartado5(const Hoja& hoja, Mm x, Mm y) {
    const RespuestasApartado5& datos = hoja.registros.apartado5;
    PonerLetra(hoja.impresora, CuerpoMarcas, true);
    for (const GrupoPreguntas& g : gruposPreguntas)
        for (const Pregunta5& q : g.preguntas)
            for (const ColumnaRespuesta& c : columnasRespuesta)
                if ((datos.*q.propiedad).texto() == QChar(c.letra))
                    EscribirTexto(hoja.impresora, x + c.xMarca, y + q.y - SubidaMarca,
                                  QStringLiteral("X"));
}

}  // namespace padral::hoja3
