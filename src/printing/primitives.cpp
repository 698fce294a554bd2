#include "printing/primitives.h"

namespace padral {
namespace {

/// Part of its height by which a text begins above its coordinate.
constexpr Mm Subida = 0.35F;
/// Between the last dot and what follows.
constexpr Mm HuecoTrasPuntos = 1;
constexpr Punto LugarCopia = {193.5F, 125};

void ImprimirEn(Impresora& p, Mm x, Mm y, const QString& texto) {
    p.estado.punto = {x, y};
    p.Imprimir(texto);
}

}  // namespace

void DibujarLinea(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2) {
    p.Linea({x1, y1}, {x2, y2}, ColorNegro);
}

void DibujarMarco(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2) {
    p.estado.relleno = ColorBlanco;
    p.Caja({x1, y1}, {x2, y2}, ColorNegro);
    p.estado.pluma = PlumaFina;
}

void DibujarCajaGris(Impresora& p, Mm x1, Mm y1, Mm x2, Mm y2) {
    p.estado.relleno = ColorGris;
    p.CajaRellena({x1, y1}, {x2, y2}, ColorGris);
}

void EscribirTexto(Impresora& p, Mm x, Mm y, const QString& texto) {
    ImprimirEn(p, x, y - p.AltoTexto(texto) * Subida, texto);
}

void EscribirConPuntos(Impresora& p, Mm x, Mm y, Mm xHasta, const QString& texto) {
    const Mm libre = xHasta - HuecoTrasPuntos - x - p.AnchoTexto(texto);
    const int puntos = static_cast<int>(libre / p.AnchoTexto(QStringLiteral(".")));
    EscribirTexto(p, x, y, puntos > 0 ? texto + QString(puntos, u'.') : texto);
}

void EscribirBilingue(Impresora& p, Mm x, Mm y, const QString& eus, const QString& cas) {
    const Mm arriba = y - p.AltoTexto(eus) * Subida;
    p.estado.cursiva = true;
    ImprimirEn(p, x, arriba, eus);
    const Mm segunda = x + p.AnchoTexto(eus + u' ');
    p.estado.cursiva = false;
    ImprimirEn(p, segunda, arriba, QStringLiteral("/ ") + cas);
}

void EscribirCentradoEnAncho(Impresora& p, Mm x, Mm y, Mm ancho, const QString& texto) {
    ImprimirEn(p, ancho / 2 + x - p.AnchoTexto(texto) / 2, y, texto);
}

void EscribirBilingueCentradoEnAncho(Impresora& p, Mm x, Mm y, Mm ancho, const QString& eus,
                                     const QString& cas) {
    const Mm x0 = ancho / 2 + x - p.AnchoTexto(eus + u'/' + cas) / 2;
    p.estado.cursiva = true;
    ImprimirEn(p, x0, y, eus);
    const Mm segunda = x0 + p.AnchoTexto(eus);
    p.estado.cursiva = false;
    ImprimirEn(p, segunda, y, QStringLiteral(" / ") + cas);
}

void EscribirCentrado(Impresora& p, Mm x, Mm y, const QString& texto, bool negrita) {
    p.estado.cursiva = false;
    p.estado.negrita = negrita;
    ImprimirEn(p, x - p.AnchoTexto(texto) / 2, y - p.AltoTexto(texto) / 2, texto);
}

void EscribirBilingueCentrado(Impresora& p, Mm x, Mm y, const QString& eus, const QString& cas) {
    p.estado.negrita = false;
    const QString entero = eus + QStringLiteral(" / ") + cas;
    const Mm x0 = x - p.AnchoTexto(entero) / 2;
    const Mm y0 = y - p.AltoTexto(entero) / 2;
    p.estado.cursiva = true;
    ImprimirEn(p, x0, y0, eus);
    const Mm segunda = x0 + p.AnchoTexto(eus);
    p.estado.cursiva = false;
    ImprimirEn(p, segunda, y0, QStringLiteral(" / ") + cas);
}

void EscribirDerecha(Impresora& p, Mm xDerecha, Mm y, const QString& texto) {
    ImprimirEn(p, xDerecha - p.AnchoTexto(texto), y, texto);
}

void EstamparCopia(Impresora& p, const QString& imagen) { p.PintarImagen(imagen, LugarCopia); }

}  // namespace padral
