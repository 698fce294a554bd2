// Which e-mail addresses section 3 accepts.

#include <gtest/gtest.h>

#include "sections/location/section3_rules.h"
#include "sections/record_checks.h"

namespace padral::pruebas {
namespace {

struct Direccion {
    const char16_t* texto;
    bool valida;
};
void PrintTo(const Direccion& d, std::ostream* salida) { *salida << s(d.texto); }

class Direcciones : public ::testing::TestWithParam<Direccion> {};

TEST_P(Direcciones, SeAceptaONo) {
    EXPECT_EQ(Validar_Email(q(GetParam().texto)), GetParam().valida);
}
INSTANTIATE_TEST_SUITE_P(
    Filas, Direcciones,
    ::testing::Values(
        // One name, one at sign, one domain with a dot.
        Direccion{u"info@kelmaria.eus", true}, Direccion{u"a@b.c", true},
        Direccion{u"INFO@KELMARIA.EUS", true}, Direccion{u"Info@Kelmaria.Eus", true},
        Direccion{u"  info@kelmaria.eus  ", true}, Direccion{u"1@2.3", true},
        Direccion{u"ana.lasa@kelmaria.eus", true}, Direccion{u"ana_lasa@kelmaria.eus", true},
        Direccion{u"ana-lasa@kelmaria.eus", true}, Direccion{u"ana@correo.kelmaria.eus", true},
        Direccion{u"ana@kel-maria.eus", true}, Direccion{u"ana@kel_maria.eus", true},
        Direccion{u"a.n.a@k.e.l", true}, Direccion{u"ana2015@k2.eus", true},
        Direccion{u"a.b@c.d-e", true}, Direccion{u"a-b_c.d@e.f", true},
        // Nothing, or not enough.
        Direccion{u"", false}, Direccion{u"   ", false}, Direccion{u"a", false},
        Direccion{u"info", false}, Direccion{u"@", false}, Direccion{u".", false},
        Direccion{u"@.", false},
        // No at sign, no dot, no dot after the at sign.
        Direccion{u"info.kelmaria.eus", false}, Direccion{u"info@kelmaria", false},
        Direccion{u"ana.lasa@kelmaria", false}, Direccion{u"infokelmariaeus", false},
        // Two signs in a row.
        Direccion{u"info@@kelmaria.eus", false}, Direccion{u"info@kelmaria..eus", false},
        Direccion{u"ana..lasa@kelmaria.eus", false}, Direccion{u"ana.@kelmaria.eus", false},
        Direccion{u"ana@.kelmaria.eus", false}, Direccion{u"ana-_lasa@kelmaria.eus", false},
        Direccion{u"ana@-kelmaria.eus", false}, Direccion{u"ana__lasa@kelmaria.eus", false},
        // A sign at an end.
        Direccion{u".ana@kelmaria.eus", false}, Direccion{u"_ana@kelmaria.eus", false},
        Direccion{u"-ana@kelmaria.eus", false}, Direccion{u"@kelmaria.eus", false},
        Direccion{u"ana@kelmaria.eus.", false}, Direccion{u"ana@kelmaria.eus-", false},
        Direccion{u"ana@kelmaria.eus_", false}, Direccion{u"ana@kelmaria.eus@", false},
        // Two at signs.
        Direccion{u"ana@kel@maria.eus", false}, Direccion{u"a@b.c@d.e", false},
        // Other characters.
        Direccion{u"ana lasa@kelmaria.eus", false}, Direccion{u"ana@kel maria.eus", false},
        Direccion{u"ana+lasa@kelmaria.eus", false}, Direccion{u"ana/lasa@kelmaria.eus", false},
        Direccion{u"ana,lasa@kelmaria.eus", false}, Direccion{u"ana;eus@kelmaria.eus", false},
        Direccion{u"ñaki@kelmaria.eus", false}, Direccion{u"ÑAKI@KELMARIA.EUS", false},
        Direccion{u"josé@kelmaria.eus", false}, Direccion{u"ana@kelmaria.eus\t!", false},
        // The sign of the kelvin becomes a small k, the dotted capital I a small i.
        Direccion{u"\u212Aoldo@kelmaria.eus", false}, Direccion{u"ana@\u212Aelmaria.eus", false},
        Direccion{u"\u0130on@kelmaria.eus", false}, Direccion{u"\"ana\"@kelmaria.eus", false},
        Direccion{u"ana@kelmaria.eu5º", false}));

TEST(DireccionLarga, NoHayLimite) {
    const QString nombre(10000, u'a');
    EXPECT_TRUE(Validar_Email(nombre + q(u"@kelmaria.eus")));
    EXPECT_FALSE(Validar_Email(nombre));
    EXPECT_FALSE(Validar_Email(QString(10000, u'@')));
}

}  // namespace
}  // namespace padral::pruebas
