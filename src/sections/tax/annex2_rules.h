#pragma once
// What makes Annex II valid.

#include <span>

#include "core/nif.h"
#include "core/review.h"
#include "sections/tax/annex2.h"

namespace padral {

/// Effective date from which the special pro-rata rule can no longer be opted for, `yyyymmdd`.
inline constexpr qint32 FinProrrataEspecial = 20140101;

/// The annex when it is left: its record and what only the screen knows.
struct AnexoIIEscrito {
    const DatosAnexoII& datos;
    qint32 provincia;    ///< number in `numCodigoProvincia`
    bool revocacion;     ///< `chkRevocacion` is ticked
    QString porcentaje;  ///< text of `numPorcentaje`
    const ServidorNif& validaNif;
};

/// The lists of the representative's address.
enum class ListaAnexoII : std::size_t { Provincias, Municipios, Ninguna };

/// One rule: when it is broken, its message, and the field or the list that it sends the user to.
struct ReglaAnexoII {
    int numero;  ///< order of the check, from 1
    bool (*rota)(const AnexoIIEscrito&);
    AvisoRegla aviso;
    ListaAnexoII lista = ListaAnexoII::Ninguna;  ///< opens after the message
};

/// The rules in their order. The one on the municipality has a row for each place that it leads to.
std::span<const ReglaAnexoII> ReglasAnexoII();
/// The annex when it is left, changed or not: its first broken rule, nullptr when it is valid.
const ReglaAnexoII* ValidarAnexoII(const AnexoIIEscrito& anexo);

}  // namespace padral
