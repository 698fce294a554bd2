// What kind of taxpayer an identifier stands for.

#include "core/nif.h"

#include <gtest/gtest.h>

namespace padral {
namespace {

int claseEsperada(QChar letra) {
    if (QStringView(u"ABCDFNPQRSUVW").contains(letra)) return 1;
    return QStringView(u"EGHJ").contains(letra) ? 3 : 4;
}

TEST(ClasificarNif, CadaPrimeraLetra) {
    for (char16_t c = 1; c < 0x180; ++c)
        EXPECT_EQ(ClasificarNif(QChar(c)), claseEsperada(QChar(c))) << static_cast<int>(c);
}

struct Caso {
    const char16_t* valor;
    int clase;
};

TEST(ClasificarNif, Casos) {
    const Caso casos[] = {
        {u"", 0},    {u"A", 1},  {u"E", 3},   {u"X", 4},   {u"1", 4},   {u"__", 2},
        {u"K", 4},   {u"L", 4},  {u"M", 4},   {u"Y", 4},   {u"Z", 4},   {u"_", 4},
        {u" ", 4},   {u"a", 4},  {u"ABC", 1}, {u"UVW", 1}, {u"AC", 4},  {u"EG", 3},
        {u"GHJ", 3}, {u"EJ", 4}, {u"1__", 2}, {u"A__", 2}, {u"_1_", 4}, {u"A12345674", 4},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(ClasificarNif(QString::fromUtf16(caso.valor)), caso.clase)
            << QString::fromUtf16(caso.valor).toStdString();
}

TEST(ClasificarNif, LosConjuntosDeLetras) {
    EXPECT_EQ(LetrasClase1, u"ABCDFNPQRSUVW");
    EXPECT_EQ(LetrasClase3, u"EGHJ");
    EXPECT_EQ(LetrasGrupoGeneral, u"ABCDEFGHUJV");
    EXPECT_EQ(LetrasGrupoNW, u"NW");
    EXPECT_EQ(LetrasGrupoQR, u"QR");
    EXPECT_EQ(LetrasAnexoI, u"ABU");
}

}  // namespace
}  // namespace padral
