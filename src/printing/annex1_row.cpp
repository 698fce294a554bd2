#include "printing/annex1_row.h"

#include "printing/annex1_tables.h"
#include "printing/furniture.h"
#include "printing/primitives.h"

namespace padral::anexo1 {
namespace {

void DibujarFila(Impresora& p, Mm x, Mm y) {
    MarcoGrueso(p, x, y, y + AltoFila);
    DibujarRayas(p, x, y, rayasFila);
    for (const ImagenFila& i : imagenesFila)
        p.PintarImagen(QString::fromUtf16(i.nombre), {x + i.lugar.x, y + i.lugar.y});
    DibujarRotulos(p, x, y, {CuerpoRotulos, false, rotulosRegimenes});
    for (const CampoParticipe& c : camposParticipe)
        DibujarRotulos(p, x, y, {c.cuerpo, false, c.rotulos});
    for (const Opcion& o : opciones) {
        const Marco marco = CuadroDe(o);
        DibujarMarcos(p, x, y, {&marco, 1});
    }
}

void RellenarCampos(Impresora& p, Mm x, Mm y, const DatosParticipe& participe) {
    PonerLetra(p, CuerpoValores, true);
    for (const CampoParticipe& c : camposParticipe) {
        const Valor valor = c.valor == nullptr ? std::nullopt : c.valor(participe);
        if (valor) EscribirTexto(p, x + c.lugarValor.x, y + c.lugarValor.y, *valor);
    }
}

void MarcarOpciones(Impresora& p, Mm x, Mm y, const DatosParticipe& participe) {
    PonerLetra(p, CuerpoMarcas, true);
    for (const Opcion& o : opciones) {
        const QString letra = (participe.*o.propiedad).texto();
        if ((o.minusculas ? letra.toUpper() : letra) == QChar(o.letra))
            EscribirTexto(p, x + o.xMarca, y + filasOpciones[o.fila].yMarca, QStringLiteral("X"));
    }
}

}  // namespace

void DibujarFilaParticipe(Impresora& p, Mm x, Mm y, const cParticipes& participe) {
    DibujarFila(p, x, y);
    RellenarCampos(p, x, y, participe);
    MarcarOpciones(p, x, y, participe);
}

}  // namespace padral::anexo1
