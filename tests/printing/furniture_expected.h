#pragma once
// Blocks of a page in rows, and the pieces that several pages share.

#include <span>

#include "expected.h"

namespace padral::test {

struct BloqueEsperado {
    const char* nombre;
    float origen;
    FilaTrazo marcoGrueso;
    std::vector<FilaTrazo> rayas;
    std::vector<FilaNumero> numeros;
    std::vector<FilaTrazo> marcos;
    std::vector<FilaTexto> textos;
    std::vector<FilaPar> pares;
    float cuerpoNumeros = 8;
    std::vector<FilaTrazo> grises = {};
    std::vector<FilaEnPunto> centrados = {};
    bool romana = false;  ///< the texts in "times new roman" instead of "Arial Narrow"
};

void EsperaBloque(Trazado& trazado, const BloqueEsperado& bloque);

/// The common heading with the title lines of the page.
void EsperaCabecera(Trazado& trazado, std::span<const FilaTexto> titulos);
/// Authority and emblem of the headings from the fourth page on.
void EsperaAutoridad(Trazado& trazado, float origen);
BloqueEsperado IdentificacionEsperada(float origen);

}  // namespace padral::test
