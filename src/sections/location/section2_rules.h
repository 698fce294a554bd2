#pragma once
// What makes a domicile of section 2 valid.

#include <span>

#include "sections/location/address_block.h"

namespace padral {

/// The entries of a domicile that a rule can send the user to.
enum class CampoDireccion { Siglas, Calle, Provincia, Postal, CodigoMunicipio, Municipio };

/// A domicile as it stands on the screen.
struct DireccionEscrita {
    const BloqueDireccion& bloque;
    QString textoPostal;  ///< postal code as the field shows it
};

/// One rule: when it is broken, its message and title, and the entry that gets the focus.
struct ReglaDireccion {
    int numero;  ///< order of the check, from 1
    bool (*rota)(const DireccionEscrita&);
    int texto;
    int titulo;
    CampoDireccion foco;
};

/// The rules of a domicile that holds anything, in their order; only the first broken one is told.
std::span<const ReglaDireccion> ReglasDireccion();
/// The first broken rule, nullptr when none is.
const ReglaDireccion* PrimeraReglaRota(const DireccionEscrita& direccion);

}  // namespace padral
