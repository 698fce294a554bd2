#pragma once
// What the tests of section 5 share.

#include <algorithm>

#include "sections/tax/section5_rules.h"
#include "sections/tax_changes.h"

namespace padral::pruebas {

/// The answers that the entry check asks of everybody.
inline constexpr const char16_t* Las17[] = {
    u"GRANEMPRESA",   u"SOCIEDADES",     u"ADMINISTRACIONES", u"EXENTASOCI",
    u"ART117",        u"COOPERATIVA",    u"CONSOLIDACION",    u"DOMINANTE",
    u"SATISRENDTRAB", u"SATISRENDARREN", u"IRPFDIRECTA",      u"IRPFDIRECTSIMPLIF",
    u"IVA",           u"NORECARGO",      u"NOAGRIC",          u"NOEXENTAS",
    u"NOCONCIERTO"};

}  // namespace padral::pruebas
