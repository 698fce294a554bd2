#include "printing/layout.h"

#include "core/shared_state.h"
#include "printing/primitives.h"

namespace padral {
namespace {

QString Cadena(const char16_t* texto) { return QString::fromUtf16(texto); }

void EscribirSuelto(Impresora& p, Mm x, Mm y, const Rotulo& r) {
    const QString texto = Cadena(r.texto);
    p.estado.cursiva = r.forma == Forma::Euskera;
    p.estado.subrayado = r.subrayado;
    if (r.enPunto)
        EscribirCentrado(p, x + r.x, y + r.y, texto, false);
    else if (r.ancho > 0)
        EscribirCentradoEnAncho(p, x + r.x, y + r.y, r.ancho, texto);
    else if (r.puntosHasta > 0)
        EscribirConPuntos(p, x + r.x, y + r.y, x + r.puntosHasta, texto);
    else
        EscribirTexto(p, x + r.x, y + r.y, texto);
    p.estado.cursiva = p.estado.subrayado = false;
}

void EscribirPar(Impresora& p, Mm x, Mm y, const Rotulo& r) {
    const QString eus = Cadena(r.texto);
    const QString cas = Cadena(r.segundo);
    if (r.enPunto)
        EscribirBilingueCentrado(p, x + r.x, y + r.y, eus, cas);
    else if (r.ancho > 0)
        EscribirBilingueCentradoEnAncho(p, x + r.x, y + r.y, r.ancho, eus, cas);
    else
        EscribirBilingue(p, x + r.x, y + r.y, eus, cas);
}

void EscribirRotulo(Impresora& p, Mm x, Mm y, const Rotulo& r) {
    if (r.forma == Forma::Ninguna) return;
    if (r.forma == Forma::Par)
        EscribirPar(p, x, y, r);
    else
        EscribirSuelto(p, x, y, r);
}

void DibujarNumero(Impresora& p, Mm x, Mm y, const Casilla& c, float cuerpo) {
    if (c.numero == nullptr) return;
    PonerLetra(p, cuerpo, true);
    const Punto en = {x + c.lugarNumero.x, y + c.lugarNumero.y};
    if (c.numeroADerecha)
        EscribirDerecha(p, en.x, en.y, Cadena(c.numero));
    else
        EscribirTexto(p, en.x, en.y, Cadena(c.numero));
}

}  // namespace

void PonerLetra(Impresora& p, float cuerpo, bool negrita) {
    p.estado.cuerpo = cuerpo;
    p.estado.negrita = negrita;
}

Valor Marca(bool condicion) { return condicion ? Valor(QStringLiteral("X")) : std::nullopt; }

Valor NumeroSiHay(qint32 numero) {
    return numero == 0 ? std::nullopt : Valor(QString::number(numero));
}

Valor FechaSiHay(const Hoja& hoja, qint32 fecha) {
    return fecha == 0 ? std::nullopt : Valor(hoja.estado.fecha.LongToString(fecha));
}

void DibujarRayas(Impresora& p, Mm x, Mm y, std::span<const Raya> rayas) {
    for (const Raya& r : rayas) DibujarLinea(p, x + r.x1, y + r.y1, x + r.x2, y + r.y2);
}

void DibujarMarcos(Impresora& p, Mm x, Mm y, std::span<const Marco> marcos) {
    for (const Marco& m : marcos)
        if (m.Hay()) DibujarMarco(p, x + m.x1, y + m.y1, x + m.x2, y + m.y2);
}

void DibujarRotulos(Impresora& p, Mm x, Mm y, const GrupoRotulos& grupo) {
    PonerLetra(p, grupo.cuerpo, grupo.negrita);
    for (const Rotulo& r : grupo.rotulos) EscribirRotulo(p, x, y, r);
}

void DibujarCasillas(Impresora& p, Mm x, Mm y, std::span<const Casilla> casillas,
                     float cuerpoNumeros) {
    for (const Casilla& c : casillas) {
        DibujarNumero(p, x, y, c, cuerpoNumeros);
        DibujarRotulos(p, x, y, {c.cuerpo, false, c.rotulos});
        DibujarMarcos(p, x, y, {&c.marco, 1});
    }
}

void RellenarCasillas(const Hoja& hoja, Mm x, Mm y, std::span<const Casilla> casillas) {
    Impresora& p = hoja.impresora;
    for (const Casilla& c : casillas) {
        if (c.valor == nullptr) continue;
        PonerLetra(p, c.cuerpoValor, true);
        if (const Valor valor = c.valor(hoja))
            EscribirTexto(p, x + c.lugarValor.x, y + c.lugarValor.y, *valor);
    }
}

}  // namespace padral
