#include "core/fixed_text.h"

#include <gtest/gtest.h>

#include "support/print_text.h"

namespace padral {
namespace {

TEST(TextoFijo, SinAsignarSonBlancos) {
    EXPECT_EQ(TextoFijo<9>().texto(), QStringLiteral("         "));
    EXPECT_TRUE(TextoFijo<9>().vacio());
    EXPECT_EQ(Letra().texto(), QStringLiteral(" "));
}

TEST(TextoFijo, SeRellenaYSeCortaAlAsignar) {
    TextoFijo<4> t = QStringLiteral("AB");
    EXPECT_EQ(t.texto(), QStringLiteral("AB  "));
    EXPECT_EQ(t.recortado(), QStringLiteral("AB"));
    t = QStringLiteral("ABCDEF");
    EXPECT_EQ(t.texto(), QStringLiteral("ABCD"));
    t = QStringLiteral(" A");
    EXPECT_EQ(t.texto(), QStringLiteral(" A  "));
    EXPECT_EQ(t.recortado(), QStringLiteral("A"));
    t = QString();
    EXPECT_EQ(t.texto(), QStringLiteral("    "));
    EXPECT_TRUE(t.vacio());
    EXPECT_EQ(TextoFijo<4>::Ancho, 4);
}

TEST(TextoFijo, ComparaConElTextoRellenado) {
    const TextoFijo<4> t = QStringLiteral("AB");
    EXPECT_TRUE(t == QStringLiteral("AB"));
    EXPECT_TRUE(t == QStringLiteral("AB  "));
    EXPECT_FALSE(t == QStringLiteral(" AB"));
    EXPECT_FALSE(t == QStringLiteral("ab"));
    EXPECT_TRUE(t == TextoFijo<4>(QStringView(u"AB")));
    EXPECT_TRUE(Letra() == QString());
}

}  // namespace
}  // namespace padral
