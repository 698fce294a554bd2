#pragma once
// Tests of one-letter answers, for the rules across sections.

#include <array>

#include "declaration/cross_rules.h"

namespace padral {

inline bool es(const Letra& letra, char16_t valor) { return letra.texto().at(0) == valor; }
inline bool si(const Letra& letra) { return es(letra, u'S'); }
inline bool no(const Letra& letra) { return es(letra, u'N'); }
/// Answered with something else than no.
inline bool noEsNo(const Letra& letra) { return !no(letra) && !es(letra, u' '); }
inline bool vacio(const QString& texto) { return texto.trimmed().isEmpty(); }

/// Whether the type of the declaration is that letter.
inline bool tipo(const Cruce& c, QStringView letra) { return c.d.general.Causa1 == letra; }
/// The identifier is of a legal person, or empty.
inline bool sociedad(const Cruce& c) { return c.clase == 0 || c.clase == 1; }
inline bool personaFisica(const Cruce& c) { return c.clase == 4; }

inline bool causaEn(const Cruce& c, std::initializer_list<int> causas) {
    for (const int causa : causas)
        if (c.d.apartado6.CAUSA == causa) return true;
    return false;
}

}  // namespace padral
