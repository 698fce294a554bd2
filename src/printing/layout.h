#pragma once
// Blocks of a page as tables: rules, captions and the map of numbered boxes.

#include <optional>
#include <span>

#include "printing/printer_port.h"

namespace padral {

struct EstadoCompartido;
class cDatosGenerales;
struct DatosApartado2;
struct DatosApartado3;
struct DatosApartado4;
struct RespuestasApartado5;
struct DatosApartado6;
struct DatosApartado7;
struct DatosAnexoII;
struct Participantes;

/// The records that the pages read. Printing changes none of them.
struct RegistrosImpresos {
    const cDatosGenerales& generales;
    const DatosApartado2& apartado2;
    const DatosApartado3& apartado3;
    const DatosApartado4& apartado4;
    const RespuestasApartado5& apartado5;
    const DatosApartado6& apartado6;
    const DatosApartado7& apartado7;
    const Participantes& participantes;
    const DatosAnexoII& anexoII;
};

/// What the routines of a page work with.
struct Hoja {
    Impresora& impresora;
    EstadoCompartido& estado;
    const RegistrosImpresos& registros;
};

/// A straight line; positions here and below are offsets from the origin of the block.
struct Raya {
    Mm x1, y1, x2, y2;
};

struct Marco {
    Mm x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    bool Hay() const { return x2 > x1; }
};

/// The frame of a check mark, 4 x 4 mm.
constexpr Marco Cuadro(Mm x, Mm y) { return {x, y, x + 4, y + 4}; }

/// How a caption is written. Basque beside Spanish is in italics, a language alone is not.
enum class Forma { Ninguna, Euskera, Castellano, Par, Sola };

/// A caption at a point, centred on it or, with `ancho`, centred in that width from `x` (`y` is its
/// top then).
struct Rotulo {
    Forma forma = Forma::Ninguna;
    Mm x = 0, y = 0, ancho = 0;
    const char16_t* texto = nullptr;    ///< Basque text of a pair
    const char16_t* segundo = nullptr;  ///< Spanish text of a pair
    bool subrayado = false;             ///< not for a pair
    bool enPunto = false;  ///< centred on the point: never bold, and in italics in a pair only
    Mm puntosHasta = 0;    ///< with dots up to what stands there; not for a pair
};

constexpr Rotulo Eus(Mm x, Mm y, const char16_t* texto) {
    return {Forma::Euskera, x, y, 0, texto, nullptr};
}
constexpr Rotulo Cas(Mm x, Mm y, const char16_t* texto) {
    return {Forma::Castellano, x, y, 0, texto, nullptr};
}
constexpr Rotulo Par(Mm x, Mm y, const char16_t* eus, const char16_t* cas) {
    return {Forma::Par, x, y, 0, eus, cas};
}
/// The same caption centred in a width.
constexpr Rotulo EnAncho(Mm ancho, Rotulo rotulo) {
    rotulo.ancho = ancho;
    return rotulo;
}
/// The same caption centred on its point.
constexpr Rotulo EnPunto(Rotulo rotulo) {
    rotulo.enPunto = true;
    return rotulo;
}
constexpr Rotulo Subrayado(Rotulo rotulo) {
    rotulo.subrayado = true;
    return rotulo;
}
constexpr Rotulo ConPuntos(Mm hasta, Rotulo rotulo) {
    rotulo.puntosHasta = hasta;
    return rotulo;
}
/// The part of a caption that a page in one language has: that text of a pair, alone; of a caption
/// in the other language, nothing.
constexpr Rotulo EnUnIdioma(Rotulo rotulo, bool euskera) {
    const Forma ajena = euskera ? Forma::Castellano : Forma::Euskera;
    if (rotulo.forma == ajena) return {};
    if (rotulo.forma == Forma::Par && !euskera) rotulo.texto = rotulo.segundo;
    if (rotulo.forma != Forma::Ninguna) rotulo.forma = Forma::Sola;
    return rotulo;
}

/// What stands in a box; nothing when the box stays empty.
using Valor = std::optional<QString>;

/// A numbered box of the form: number, frame or field, captions, and the value with its place. A
/// box with two check frames takes two rows, the second without number.
struct Casilla {
    const char16_t* numero = nullptr;
    Punto lugarNumero = {};
    bool numeroADerecha = false;  ///< the number ends at its place, which is its top
    Marco marco = {};
    float cuerpo = 8;  ///< size of the captions
    Rotulo rotulos[4] = {};
    Valor (*valor)(const Hoja&) = nullptr;
    Punto lugarValor = {};
    float cuerpoValor = 8;
};

/// Captions that share size and weight.
struct GrupoRotulos {
    float cuerpo;
    bool negrita;
    std::span<const Rotulo> rotulos;
};

void DibujarRayas(Impresora& p, Mm x, Mm y, std::span<const Raya> rayas);
void DibujarMarcos(Impresora& p, Mm x, Mm y, std::span<const Marco> marcos);
void DibujarRotulos(Impresora& p, Mm x, Mm y, const GrupoRotulos& grupo);
/// Numbers (bold), captions and frames of the boxes.
void DibujarCasillas(Impresora& p, Mm x, Mm y, std::span<const Casilla> casillas,
                     float cuerpoNumeros = 8);
/// The values of the boxes, bold.
void RellenarCasillas(const Hoja& hoja, Mm x, Mm y, std::span<const Casilla> casillas);

/// Sets size and weight.
void PonerLetra(Impresora& p, float cuerpo, bool negrita);
/// Mark of a check box, when the condition holds.
Valor Marca(bool condicion);
/// A text property: written as it is, empty or not.
inline Valor Texto(const QString& texto) { return texto; }
/// A numeric property: plain digits, nothing for 0.
Valor NumeroSiHay(qint32 numero);
/// A date property in the order of the language, nothing for 0.
Valor FechaSiHay(const Hoja& hoja, qint32 fecha);

}  // namespace padral
