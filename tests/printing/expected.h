#pragma once
// Rows that tell what a page must show, and the search for each of them in what was drawn.

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_printer.h"

namespace padral::test {

inline constexpr float X = 0.1F;  // left edge of every block

/// A frame or rule, offsets from the origin of its block.
struct FilaTrazo {
    float x1, y1, x2, y2;
};
/// A box number; `derecha`: its right end stands at x and its top at y.
struct FilaNumero {
    const char16_t* numero;
    float x, y;
    bool derecha = false;
};
/// A text at a point or, with `ancho`, centred in that width below `y`. With `hasta` it is followed
/// by as many dots as fit up to 1 mm before that place.
struct FilaTexto {
    float x, y, ancho;
    float cuerpo;
    bool negrita, cursiva;
    const char16_t* texto;
    bool subrayado = false;
    float hasta = 0;
};
/// A Basque and Spanish pair, likewise.
struct FilaPar {
    float x, y, ancho;
    float cuerpo;
    bool negrita;
    const char16_t *eus, *cas;
};
/// A text or, with `cas`, a pair centred on a point in both directions.
struct FilaEnPunto {
    float x, y;
    float cuerpo;
    bool negrita;
    const char16_t* eus;
    const char16_t* cas = nullptr;
};

/// A text as it must be recorded.
struct TextoEsperado {
    QString texto;
    float x, y;
    float cuerpo;
    bool negrita, cursiva;
    QString fuente;
    bool subrayado = false;
};

/// What was drawn on one page and not yet claimed by a row.
class Trazado {
public:
    explicit Trazado(const Documento& documento, int pagina = 1);

    void Espera(const TextoEsperado& t);
    void EsperaCaja(float origen, const FilaTrazo& f, int pluma);
    void EsperaLinea(float origen, const FilaTrazo& f);
    void EsperaGris(float origen, const FilaTrazo& f);
    void EsperaImagen(const QString& nombre, float x, float y, std::optional<Tamano> tamano = {});
    /// Nothing was drawn that no row told.
    void EsperaNadaMas() const;
    /// Claims every empty text: values that are written though they are empty.
    void QuitaTextosVacios();

private:
    template <class Prueba>
    bool quitar(Prueba prueba);
    std::vector<Operacion> quedan_;
};

/// Texts of one page in their order.
QStringList TextosDePagina(const Documento& documento, int pagina);

/// Texts that a row stands for. Positions follow from the fixed metric: a text at a point begins
/// 0.35 of its height (0.4 mm a point) above it.
std::vector<TextoEsperado> Textos(float origen, const FilaNumero& fila, float cuerpo = 8);
std::vector<TextoEsperado> Textos(float origen, const FilaTexto& fila);
std::vector<TextoEsperado> Textos(float origen, const FilaPar& fila);
std::vector<TextoEsperado> Textos(float origen, const FilaEnPunto& fila);
/// The same texts in "times new roman".
std::vector<TextoEsperado> EnRomana(std::vector<TextoEsperado> textos);
/// A value in bold "Arial Narrow".
TextoEsperado ValorEsperado(float origen, float x, float y, const QString& texto, float cuerpo = 8);
/// A value in bold "times new roman".
TextoEsperado ValorRomano(float origen, float x, float y, const QString& texto, float cuerpo = 8);

}  // namespace padral::test
