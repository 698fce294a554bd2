#include "printing/page3.h"

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "printing/furniture.h"
#include "printing/page3_sections.h"
#include "printing/primitives.h"

namespace padral {

namespace hoja3 {

bool EnEuskera(const Hoja& hoja) { return hoja.estado.mdi.IDI() == u"E"; }

void DibujarVersion(const Hoja& hoja, Mm x, Mm y, const GrupoRotulos& grupo) {
    const bool euskera = EnEuskera(hoja);
    for (const Rotulo& r : grupo.rotulos) {
        const Rotulo uno = EnUnIdioma(r, euskera);
        DibujarRotulos(hoja.impresora, x, y, {grupo.cuerpo, grupo.negrita, {&uno, 1}});
    }
}

}  // namespace hoja3

namespace {

constexpr Mm AltoCabecera = 12.5F;

constexpr Raya rayasCabecera[] = {
    {42, 0, 42, AltoCabecera},
    {153.5F, 0, 153.5F, AltoCabecera},
};
constexpr Casilla casillasCabecera[] = {
    {.numero = u"1", .lugarNumero = {2, 1.5F}},
    {.numero = u"2", .lugarNumero = {45, 1.5F}},
};
constexpr Rotulo rotulosCabecera[] = {
    Par(10, 1.5F, u"IFZ", u"N.I.F."),
    Par(53, 1.5F, u"Deiturak eta izena, edo sozietatearen izena",
        u"Apellidos y Nombre / Razón Social"),
    Par(159, 1.5F, u"Erreferentzia Zk.", u"Nº Referencia"),
};

void DibujarCabeceraHoja3(const Hoja& hoja, Mm x, Mm y) {
    DibujarRayas(hoja.impresora, x, y, rayasCabecera);
    DibujarCasillas(hoja.impresora, x, y, casillasCabecera);
    hoja3::DibujarVersion(hoja, x, y, {8, false, rotulosCabecera});
}

void RellenarCabeceraHoja3(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    const cDatosGenerales& datos = hoja.registros.generales;
    PonerLetra(p, 10, true);
    EscribirTexto(p, x + 2, y + 5, datos.DNI);
    EscribirTexto(p, x + 44, y + 5, datos.NOMBRE);
    EscribirTexto(p, x + 155.5F, y + 5, datos.NumeroArchivo);
    p.estado.cuerpo = 8;
}

constexpr Bloque bloques[] = {
    {0, 0, AltoCabecera, DibujarCabeceraHoja3, RellenarCabeceraHoja3},
    {21, 0, 90, hoja3::DibujarApartado4, hoja3::RellenarApartado4},
    {114, 0, 145, hoja3::DibujarApartado5, hoja3::RellenarApartado5},
};

}  // namespace

void ImprimirApartados4y5(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen) {
    for (const Bloque& b : bloques) ImprimirBloque(hoja, x, y, b);
    EstamparCopia(hoja.impresora, imagen);
    hoja.impresora.FinPagina();
}

}  // namespace padral
