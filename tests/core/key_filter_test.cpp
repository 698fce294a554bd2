// What a key may type.

#include <gtest/gtest.h>

#include "core/field_rules.h"
#include "support/print_text.h"

namespace padral {
namespace {

constexpr QStringView Alfabeto =
    u"0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ@";

// The two letters outside the alphabet whose capital is a plain one: dotless i and long s.
constexpr int OtraI = 0x131, OtraS = 0x17F;

int esperada(int tecla) {
    if (tecla == 8) return 8;
    if (tecla == OtraI) return u'I';
    if (tecla == OtraS) return u'S';
    const QChar c(static_cast<char16_t>(tecla));
    if (c >= u'a' && c <= u'z') return tecla - 32;
    if (c == u'ñ') return QChar(u'Ñ').unicode();
    if (c == u'ç') return QChar(u'Ç').unicode();
    return Alfabeto.contains(c) ? tecla : 0;
}

TEST(FiltrarTecla, ElAlfabeto) {
    EXPECT_EQ(AlfabetoTexto, Alfabeto.toString());
    EXPECT_EQ(AlfabetoTexto.size(), 10 + 27 + 28);
}

TEST(FiltrarTecla, TodasLasTeclas) {
    for (int tecla = 0; tecla <= 0xFFFF; ++tecla)
        EXPECT_EQ(FiltrarTecla(tecla), esperada(tecla)) << tecla;
}

TEST(FiltrarTecla, FueraDeLosCodigosNoHayTecla) {
    EXPECT_EQ(FiltrarTecla(-1), 0);
    EXPECT_EQ(FiltrarTecla(0x10000 + u'A'), 0);
}

struct Caso {
    char16_t tecla, codigo;
};

TEST(FiltrarTecla, Casos) {
    const Caso casos[] = {{u'a', u'A'}, {u'z', u'Z'},   {u'ñ', u'Ñ'}, {u'Ñ', u'Ñ'}, {u'ç', u'Ç'},
                          {u'Ç', u'Ç'}, {u'º', u'º'},   {u'ª', u'ª'}, {u'0', u'0'}, {u' ', u' '},
                          {u'@', u'@'}, {u'\\', u'\\'}, {8, 8},       {13, 0},      {9, 0},
                          {u'"', 0},    {u'#', 0},      {u'\'', 0},   {u'[', 0},    {u']', 0},
                          {u'á', 0},    {u'Á', 0},      {u'ü', 0},    {u'€', 0},    {127, 0}};
    for (const auto& caso : casos)
        EXPECT_EQ(FiltrarTecla(caso.tecla), caso.codigo) << static_cast<int>(caso.tecla);
}

TEST(FiltrarTeclaFecha, TodasLasTeclas) {
    for (int tecla = -1; tecla <= 0x10000; ++tecla) {
        const bool vale = (tecla >= 48 && tecla <= 57) || tecla == 8 || tecla == 47;
        EXPECT_EQ(FiltrarTeclaFecha(tecla), vale ? tecla : 0) << tecla;
    }
}

}  // namespace
}  // namespace padral
