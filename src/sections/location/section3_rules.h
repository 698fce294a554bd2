#pragma once
// What makes section 3 valid.

#include <QString>
#include <span>

#include "sections/location/section3.h"

namespace padral {

/// Whether an e-mail address has the form that the authority asks for: letters a to z, digits and
/// the signs "_-.@", one at sign, a dot after it, no two signs in a row, none at either end. Case
/// and blanks around it do not matter.
bool Validar_Email(const QString& texto);

/// Section 3 as it stands on the screen.
struct Apartado3Escrito {
    const cApartado3& registro;
    bool epigrafeElegido;  ///< the list of headings has a selection
    QString codigo;        ///< code of the heading as its field shows it
    QString sinEpigrafe;   ///< free description as its field shows it
    QString tipo;          ///< type of the declaration, "P", "I", "M" or "C"
};

/// One rule: when it is broken, its message, and the control that gets the focus. The title is
/// always TituloReglasApartado3.
struct ReglaApartado3 {
    int numero;  ///< order of the check, from 1
    bool (*rota)(const Apartado3Escrito&);
    int texto;
    const char16_t* foco;
};

constexpr int TituloReglasApartado3 = 123;

/// The rules in their order; only the first broken one is told.
std::span<const ReglaApartado3> ReglasApartado3();
/// The first broken rule, nullptr when none is.
const ReglaApartado3* PrimeraReglaRota(const Apartado3Escrito& apartado);

}  // namespace padral
