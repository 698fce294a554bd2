#include "printing/annex1.h"

#include "participants/participant.h"
#include "printing/annex1_row.h"
#include "printing/annex_furniture.h"
#include "printing/primitives.h"

namespace padral {
namespace {

constexpr LineaCabecera lineas[] = {
    {16, EnPunto(Eus(115, 5, u"PADRAL AITORPENA"))},
    {14, EnPunto(Cas(115, 10, u"DECLARACIÓN PADRAL"))},
    {7, EnPunto(Eus(115, 16, u"SOZIETATEEN GAINEKO ZERGARI LOTU GABEKO ENTITATEETAKO"))},
    {7, EnPunto(Eus(115, 19, u"KIDE EDO PARTAIDEEN ZERRENDA, EDO BAZKIDEENA"))},
    {7, EnPunto(Cas(115, 23, u"RELACIÓN DE MIEMBROS O PARTÍCIPES DE ENTIDADES"))},
    {7, EnPunto(Cas(115, 26, u"NO SUJETAS AL IMPUESTO SOBRE SOCIEDADES O SOCIOS"))},
    {32, EnPunto(Cas(182, 10, u"417"))},
    {12, EnPunto(Eus(182, 19, u"I eranskina"))},
    {12, EnPunto(Cas(182, 23, u" Anexo I"))},
};
constexpr CabeceraAnexo cabecera = {29, 17, lineas};
constexpr Rotulo tituloIdentificacion = TituloIdentificacion(70);

// Tops of the blocks.
constexpr Mm YCabecera = 4;
constexpr Mm YIdentificacion = 37;
constexpr Mm YPrimeraFila = 55;

constexpr int FilasPorPagina = 5;

bool Eliminado(const cParticipes& participe) { return participe.Modo.texto() == u"E"; }

void EmpezarPagina(const Hoja& hoja, Mm& x, Mm& y) {
    x = XAnexo;
    DibujarCabeceraAnexo(hoja, x, YCabecera, cabecera);
    DibujarIdentificacionAnexo(hoja, x, YIdentificacion, tituloIdentificacion);
    y = YPrimeraFila;
}

}  // namespace

void ImprimirAnexoI(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen) {
    Impresora& p = hoja.impresora;
    int filas = 0;
    for (const auto& ParticipeImpresion : hoja.registros.participantes.colParticipes) {
        if (Eliminado(*ParticipeImpresion)) continue;
        if (filas == 0) EmpezarPagina(hoja, x, y);
        // A page that fills up is stamped before its last row.
        if (filas == FilasPorPagina - 1) EstamparCopia(p, imagen);
        anexo1::DibujarFilaParticipe(p, x, y, *ParticipeImpresion);
        y += anexo1::AltoFila;
        filas = (filas + 1) % FilasPorPagina;
        if (filas == 0) p.FinPagina();
    }
    if (filas == 0) return;
    EstamparCopia(p, imagen);
    p.FinPagina();
}

}  // namespace padral
