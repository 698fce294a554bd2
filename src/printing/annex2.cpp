#include "printing/annex2.h"

#include "printing/annex2_tables.h"
#include "printing/annex2_tables_below.h"
#include "printing/annex_furniture.h"
#include "printing/furniture.h"

namespace padral {

namespace {

using namespace anexo2;

constexpr LineaCabecera lineas[] = {
    {16, EnPunto(Eus(115, 4, u"PADRAL AITORPENA"))},
    {14, EnPunto(Cas(115, 9, u"DECLARACIÓN PADRAL"))},
    {8, EnPunto(Eus(115, 14, u"LURRALDE ESPAINIARREAN EGOLIARRAK EZ DIREN SUBJEKTU PASIBOAK"))},
    {8, EnPunto(Eus(115, 17, u"ETA BEZ-AREN BESTE HAINBAT EGOERA ETA AUKERA"))},
    {8, EnPunto(Cas(115, 22, u"SUJETOS PASIVOS NO RESIDENTES EN TERRITORIO ESPAÑOL"))},
    {8, EnPunto(Cas(115, 25, u"Y OTRAS SITUACIONES Y OPCIONES EN EL IVA"))},
    {32, EnPunto(Cas(182, 10, u"417"))},
    {10, EnPunto(Eus(182, 18, u"II eranskina"))},
    {10, EnPunto(Cas(182, 22, u"Anexo II"))},
};
constexpr CabeceraAnexo cabecera = {28, 16, lineas};
constexpr Rotulo tituloIdentificacion = EnPunto(TituloIdentificacion(100));
/// Between two blocks.
constexpr Mm Hueco = 4;

struct BloqueAnexoII {
    Mm alto, avance;
    Mm yRaya;  ///< below the title
    std::span<const Rotulo> titulos;
    std::span<const Casilla> casillas;
};
constexpr BloqueAnexoII bloques[] = {
    {65, 69, 10, titulosDomicilio, casillasDomicilio},
    {25, 29, 6, titulosRepresentante, casillasRepresentante},
    {50, 55, 9, titulosObligaciones, casillasObligaciones},
    {67, 67, 9, titulosOtrasSituaciones, casillasOtrasSituaciones},
};

void DibujarBloque(const Hoja& hoja, Mm x, Mm y, const BloqueAnexoII& b) {
    Impresora& p = hoja.impresora;
    MarcoGrueso(p, x, y, y + b.alto);
    DibujarLinea(p, x, y + b.yRaya, x + AnchoImpreso, y + b.yRaya);
    DibujarRotulos(p, x, y, {CuerpoTitulos, true, b.titulos});
    DibujarCasillas(p, x, y, b.casillas);
    RellenarCasillas(hoja, x, y, b.casillas);
}

}  // namespace

void ImprimirAnexoII(const Hoja& hoja, Mm& x, Mm& y, const QString& /*imagen*/) {
    DibujarCabeceraAnexo(hoja, x, y, cabecera);
    y += cabecera.alto + Hueco;
    DibujarIdentificacionAnexo(hoja, x, y, tituloIdentificacion);
    y += AltoIdentificacionAnexo + Hueco;
    for (const BloqueAnexoII& b : bloques) {
        DibujarBloque(hoja, x, y, b);
        y += b.avance;
    }
    hoja.impresora.FinPagina();
}

}  // namespace padral
