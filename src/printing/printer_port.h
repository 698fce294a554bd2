#pragma once
// The printer as the pages see it: state, text, lines, boxes, pictures, page end.

#include <QString>
#include <memory>
#include <optional>

namespace padral {

/// Millimetres from the top left of the printable area, Y growing downwards.
using Mm = float;

struct Punto {
    Mm x = 0, y = 0;
};
struct Tamano {
    Mm ancho = 0, alto = 0;
};

/// 0xRRGGBB.
using Color = quint32;
inline constexpr Color ColorNegro = 0x000000;
inline constexpr Color ColorBlanco = 0xFFFFFF;
inline constexpr Color ColorGris = 0xE0E0E0;

/// What the operations use. It persists from call to call and from page to page.
struct EstadoDibujo {
    QString fuente;
    float cuerpo = 10;  ///< font size in points
    bool negrita = false, cursiva = false, subrayado = false;
    int pluma = 1;                   ///< pen width in 1/600 inch
    Color relleno = ColorBlanco;     ///< fill colour
    Color primerPlano = ColorNegro;  ///< colour of texts
    Punto punto;                     ///< current point: top left of the next text
};

/// One document on a printer. A failure throws Fallo. A page leaves when it is complete: pages
/// already ended go out even when the document is given up, the page in progress does not.
class Impresora {
public:
    Impresora() = default;
    Impresora(const Impresora&) = delete;
    Impresora& operator=(const Impresora&) = delete;
    /// Closes the document if Cerrar has not, without a word about failures.
    virtual ~Impresora() = default;

    EstadoDibujo estado;

    /// Prints at the current point, which then stands at the end of the text.
    virtual void Imprimir(const QString& texto) = 0;
    /// Advance width in the current font.
    virtual Mm AnchoTexto(const QString& texto) const = 0;
    /// Ascent plus descent of the current font, also for an empty text.
    virtual Mm AltoTexto(const QString& texto) const = 0;
    virtual void Linea(Punto desde, Punto hasta, Color color) = 0;
    /// Outline with the current pen; nothing is filled.
    virtual void Caja(Punto desde, Punto hasta, Color color) = 0;
    virtual void CajaRellena(Punto desde, Punto hasta, Color color) = 0;
    /// Paints the picture of that name (see pictures.h), at its natural size unless one is given.
    virtual void PintarImagen(const QString& nombre, Punto en,
                              std::optional<Tamano> tamano = std::nullopt) = 0;
    virtual void FinPagina() = 0;
    /// Hands the document over; the last chance to hear that this failed.
    virtual void Cerrar() = 0;
};

/// Opens documents on the printer of the moment.
class FabricaImpresora {
public:
    virtual ~FabricaImpresora() = default;
    /// `titulo` names form, identifier and copy ("417-12345678Z-AD").
    virtual std::unique_ptr<Impresora> Abrir(const QString& titulo) = 0;
};

}  // namespace padral
