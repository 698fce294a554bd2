#include "printing/page4.h"

#include "printing/furniture.h"
#include "printing/page4_sections.h"
#include "printing/primitives.h"

namespace padral {
namespace {

constexpr Mm YCabecera = 4;
constexpr Mm AltoCabecera = 29;
constexpr Mm XReferencia = 172;

constexpr Raya rayasCabecera[] = {
    {60, 0, 60, AltoCabecera},
    {XReferencia, 0, XReferencia, AltoCabecera},
    {XReferencia, 17, AnchoImpreso, 17},
    {XReferencia, 22, AnchoImpreso, 22},
};
constexpr Rotulo titulos[] = {
    EnPunto(Eus(115, 5, u"PADRAL AITORPENA")),
    EnPunto(Cas(115, 18, u"DECLARACIÓN PADRAL")),
};
constexpr Rotulo numeroImpreso[] = {EnPunto(Cas(182, 10, u"417"))};

constexpr Bloque bloques[] = {
    {3, 0, 12, DibujarIdentificacion, RellenarIdentificacion},
    {18, 0, 15, hoja4::DibujarApartado6, hoja4::RellenarApartado6},
    {36, 0, 211, hoja4::DibujarApartado7, hoja4::RellenarApartado7},
};

void DibujarCabeceraHoja4(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    MarcoGrueso(p, x, y, y + AltoCabecera);
    DibujarRayas(p, x, y, rayasCabecera);
    PonerFuente(p, FuenteRomana);
    DibujarRotulos(p, x, y, {16, false, titulos});
    DibujarRotulos(p, x, y, {32, false, numeroImpreso});
    DibujarAutoridad(hoja, x, y);
}

}  // namespace

void ImprimirApartados6y7(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen) {
    DibujarCabeceraHoja4(hoja, x, YCabecera);
    for (const Bloque& b : bloques) ImprimirBloque(hoja, x, y, b);
    EstamparCopia(hoja.impresora, imagen);
    hoja.impresora.FinPagina();
}

}  // namespace padral
