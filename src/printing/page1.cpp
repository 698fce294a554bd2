#include "printing/page1.h"

#include "printing/furniture.h"
#include "printing/page1_tables_below.h"

namespace padral {
namespace {

constexpr Mm YCabecera = 4;
constexpr Mm PasoBloque = 5;

void DibujarCabeceraHoja1(const Hoja& hoja, Mm x, Mm y) {
    DibujarCabeceraComun(hoja, x, y);
    DibujarRotulos(hoja.impresora, x, y, {24, true, hoja1::tituloEuskera});
    DibujarRotulos(hoja.impresora, x, y, {24, true, hoja1::tituloCastellano});
}

void DibujarApartado1(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, hoja1::rayasApartado1);
    DibujarRotulos(p, x, y, {8, true, hoja1::tituloApartado1});
    DibujarRotulos(p, x, y, {8, false, hoja1::gruposApartado1});
    DibujarCasillas(p, x, y, hoja1::casillasApartado1);
}

void RellenarApartado1(const Hoja& hoja, Mm x, Mm y) {
    RellenarCasillas(hoja, x, y, hoja1::casillasApartado1);
}

void DibujarSolicitudNIF(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, hoja1::rayasSolicitud);
    DibujarRotulos(p, x, y, {8, true, hoja1::tituloSolicitud});
    DibujarRotulos(p, x, y, {7, true, hoja1::columnasSolicitud});
    DibujarCasillas(p, x, y, hoja1::casillasSolicitud);
}

void RellenarSolicitudNIF(const Hoja& hoja, Mm x, Mm y) {
    RellenarCasillas(hoja, x, y, hoja1::casillasSolicitud);
}

void DibujarModificacionNIF(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, hoja1::rayasModificacion);
    DibujarRotulos(p, x, y, {8, true, hoja1::tituloModificacion});
    DibujarCasillas(p, x, y, hoja1::casillasModificacion);
}

void RellenarModificacionNIF(const Hoja& hoja, Mm x, Mm y) {
    RellenarCasillas(hoja, x, y, hoja1::casillasModificacion);
    Impresora& p = hoja.impresora;
    for (const auto& motivo : hoja1::motivosCambio) {
        if (motivo.codigo != hoja.registros.generales.MotivoCambio) continue;
        p.estado.cuerpo = motivo.cuerpo;
        EscribirTexto(p, x + motivo.x, y + hoja1::YMotivo, QString::fromUtf16(motivo.texto));
    }
}

void DibujarObligado(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, hoja1::rayasObligado);
    DibujarRotulos(p, x, y, {8, true, hoja1::tituloObligado});
    DibujarCasillas(p, x, y, hoja1::casillasObligado);
    p.PintarImagen(QStringLiteral("ParaAdministracion"), {x + 122, y + 7});
}

void RellenarObligado(const Hoja& hoja, Mm x, Mm y) {
    RellenarCasillas(hoja, x, y, hoja1::casillasObligado);
}

// The origin of the change block lies 30 mm above its frame.
constexpr Bloque bloques[] = {
    {0, 0, 12, DibujarIdentificacion, RellenarIdentificacion},
    {17, 0, 50, DibujarApartado1, RellenarApartado1},
    {72, 0, 30, DibujarSolicitudNIF, RellenarSolicitudNIF},
    {77, 30, 42, DibujarModificacionNIF, RellenarModificacionNIF},
    {124, 0, 44, DibujarObligado, RellenarObligado},
};

}  // namespace

void ImprimirPaginasPrincipales(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen) {
    Impresora& p = hoja.impresora;
    PonerFuente(p, FuenteRomana);
    p.estado.pluma = PlumaGruesa;
    DibujarCabeceraHoja1(hoja, x, YCabecera);
    for (const Bloque& b : bloques) {
        y += PasoBloque;
        ImprimirBloque(hoja, x, y, b);
    }
    EstamparCopia(p, imagen);
    p.FinPagina();
}

}  // namespace padral
