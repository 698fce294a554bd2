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
};

void EsperaBloque(Trazado& trazado, const BloqueEsperado& bloque);

/// The common heading with the title lines of the page.
void EsperaCabecera(Trazado& trazado, std::span<const FilaTexto> titulos);
BloqueEsperado IdentificacionEsperada(float origen);

}  // namespace padral::test
