#include "store/common_server.h"

#include <gtest/gtest.h>

namespace padral::SvrBaseComunLib {
namespace {

struct Identifier {
    const char16_t* text;
    bool valid;
};

class Identifiers : public ::testing::TestWithParam<Identifier> {};

TEST_P(Identifiers, AreToldValidOrNot) {
    const QString text = QStringView(GetParam().text).toString();
    EXPECT_EQ(cMiscelaneos().ValidaNifCif(text), GetParam().valid) << text.toStdString();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Persons, Identifiers, ::testing::Values(
    Identifier{u"12345678Z", true}, Identifier{u"00000000T", true}, Identifier{u"99999999R", true},
    Identifier{u"X1234567L", true}, Identifier{u"Y1234567X", true}, Identifier{u"Z1234567R", true},
    Identifier{u"K1234567L", true}, Identifier{u"L1234567L", true}, Identifier{u"M1234567L", true},
    Identifier{u"12345678A", false}, Identifier{u"12345678z", false},
    Identifier{u"x1234567L", false}, Identifier{u"X1234567X", false},
    Identifier{u"Y1234567L", false}, Identifier{u"1234567L", false},
    Identifier{u"123456789Z", false}, Identifier{u"12345678", false}, Identifier{u"", false},
    Identifier{u"123456789", false}, Identifier{u"1234567AZ", false},
    Identifier{u" 2345678Z", false}, Identifier{u"-2345678Z", false},
    Identifier{u"1+345678Z", false}, Identifier{u"T1234567L", false}));

INSTANTIATE_TEST_SUITE_P(Entities, Identifiers, ::testing::Values(
    Identifier{u"A12345674", true}, Identifier{u"B12345674", true}, Identifier{u"E12345674", true},
    Identifier{u"H12345674", true}, Identifier{u"N1234567D", true}, Identifier{u"P1234567D", true},
    Identifier{u"Q1234567D", true}, Identifier{u"R1234567D", true}, Identifier{u"S1234567D", true},
    Identifier{u"W1234567D", true}, Identifier{u"A00000000", true}, Identifier{u"Q0000000J", true},
    Identifier{u"C12345674", true}, Identifier{u"C1234567D", true}, Identifier{u"D12345674", true},
    Identifier{u"F1234567D", true}, Identifier{u"G12345674", true}, Identifier{u"J1234567D", true},
    Identifier{u"U12345674", true}, Identifier{u"V1234567D", true},
    Identifier{u"A1234567D", false}, Identifier{u"B1234567D", false},
    Identifier{u"E1234567D", false}, Identifier{u"H1234567D", false},
    Identifier{u"N12345674", false}, Identifier{u"P12345674", false},
    Identifier{u"Q12345674", false}, Identifier{u"W12345674", false},
    Identifier{u"A12345675", false}, Identifier{u"C1234567E", false},
    Identifier{u"I12345674", false}, Identifier{u"O12345674", false},
    Identifier{u"Ñ12345674", false}, Identifier{u"a12345674", false},
    Identifier{u"A1234567", false}, Identifier{u"A1234567٤", false}));
// clang-format on

TEST(Office, IsNamedInTheLanguageAsked) {
    cMiscelaneos server;
    EXPECT_EQ(server.HaciendaFiscalidad(), QStringLiteral("Departamento de Hacienda y Finanzas"));
    for (const int language : {1000, 10000}) {
        server.Idioma = language;
        EXPECT_EQ(server.HaciendaFiscalidad(), QStringLiteral("Ogasun eta Finantza Departamentua"));
    }
    EXPECT_EQ(DireccionWebAutoridad(), QStringLiteral("www.kelmaria.example"));
}

}  // namespace
}  // namespace padral::SvrBaseComunLib
