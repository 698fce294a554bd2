#include "printing/page2.h"

#include "printing/furniture.h"
#include "printing/page2_sections.h"
#include "printing/primitives.h"

namespace padral {
namespace {

constexpr Mm YCabecera = 4;

struct LineaTitulo {
    float cuerpo;
    Rotulo rotulo;
};
constexpr LineaTitulo titulos[] = {
    {22, EnAncho(AnchoTitulos, Eus(XTitulos, 3, u"PADRAL AITORPENA"))},
    {12, EnAncho(AnchoTitulos, Eus(XTitulos, 10, u"HELBIDEAK ETA BESTELAKO DATU PADRALAK"))},
    {22, EnAncho(AnchoTitulos, Cas(XTitulos, 16, u"DECLARACIÓN PADRAL"))},
    {12, EnAncho(AnchoTitulos, Cas(XTitulos, 23, u"DOMICILIO Y OTROS DATOS PADRALES"))},
};

constexpr Mm YApartado2 = 13;
constexpr Bloque identificacion = {0, 0, 12, DibujarIdentificacion, RellenarIdentificacion};
constexpr Bloque apartado3 = {149, 0, 99, hoja2::DibujarApartado3, hoja2::RellenarApartado3};

void DibujarCabeceraHoja2(const Hoja& hoja, Mm x, Mm y) {
    DibujarCabeceraComun(hoja, x, y);
    for (const LineaTitulo& t : titulos)
        DibujarRotulos(hoja.impresora, x, y, {t.cuerpo, true, {&t.rotulo, 1}});
}

}  // namespace

void ImprimirHoja2(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen) {
    Impresora& p = hoja.impresora;
    p.estado.pluma = PlumaGruesa;
    DibujarCabeceraHoja2(hoja, x, YCabecera);
    ImprimirBloque(hoja, x, y, identificacion);
    hoja2::DibujarApartado2(hoja, x, y + YApartado2);
    hoja2::RellenarApartado2(hoja, x, y + YApartado2);
    ImprimirBloque(hoja, x, y, apartado3);
    EstamparCopia(p, imagen);
    p.FinPagina();
}

}  // namespace padral
