// The small rules that all fields share.

#include "core/field_rules.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/print_text.h"

namespace padral {
namespace {

struct CasoNumero {
    const char16_t* texto;
    qint32 valor;
};

TEST(ValorNumerico, NumeroDelPrincipio) {
    const CasoNumero casos[] = {
        {u"", 0},
        {u"   ", 0},
        {u"0", 0},
        {u"7", 7},
        {u"007", 7},
        {u"12", 12},
        {u"  12", 12},
        {u"12  ", 12},
        {u"1 2", 12},
        {u"12A", 12},
        {u"A12", 0},
        {u"12.5", 12},
        {u"12,5", 12},
        {u"-12", -12},
        {u" - 12", -12},
        {u"+12", 12},
        {u"--12", 0},
        {u"5-3", 5},
        {u"-", 0},
        {u"1/2", 1},
        {u"_2", 0},
        {u"٣", 0},
        {u"2147483647", 2147483647},
        {u"2147483648", 2147483647},
        {u"99999999999999999999", 2147483647},
        {u"-99999999999999999999", -2147483647},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(ValorNumerico(caso.texto), caso.valor)
            << QString::fromUtf16(caso.texto).toStdString();
}

struct CasoFormato {
    const char16_t *valor, *formato, *texto;
};

TEST(ValorFormateado, Casos) {
    const CasoFormato casos[] = {
        // What is no number is a zero.
        {u"", u"##0", u"0"},
        {u"ABC", u"##0", u"0"},
        {u"12A", u"##0.00", u"0,00"},
        {u"nan", u"0", u"0"},
        {u"inf", u"0", u"0"},
        // Without a point in the format only the integer part stays.
        {u"12", u"##0", u"12"},
        {u"12,99", u"##0", u"12"},
        {u"12.99", u"##0", u"12"},
        {u"-12,99", u"##0", u"-12"},
        {u"-0,5", u"##0", u"0"},
        {u"7", u"000", u"007"},
        {u"-7", u"000", u"-007"},
        {u"0", u"###", u""},
        {u"1234", u"##0", u"1234"},
        // With one the value is rounded to its places.
        {u"12", u"##0.00", u"12,00"},
        {u"12,5", u"##0.00", u"12,50"},
        {u" 12.346 ", u"##0.00", u"12,35"},
        {u"99,999", u"##0.00", u"100,00"},
        {u"0,5", u"#.00", u",50"},
        {u"-0,5", u"##0.00", u"-0,50"},
        {u"-0,001", u"##0.00", u"0,00"},
        {u"100", u"##0.0", u"100,0"},
        // Larger than any integer of the machine.
        {u"1e20", u"##0", u"100000000000000000000"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(ValorFormateado(QString::fromUtf16(caso.valor), QString::fromUtf16(caso.formato)),
                  QString::fromUtf16(caso.texto))
            << QString::fromUtf16(caso.valor).toStdString();
}

struct CasoPareja {
    const char16_t* valor;
    bool hayNo;
    const char16_t *si, *no;
    MarcaPareja marca;
};

TEST(PresentarParejaSiNo, Casos) {
    const CasoPareja casos[] = {
        {u"S", true, u"", u"", MarcaPareja::Si},
        {u"N", true, u"", u"", MarcaPareja::No},
        {u"N", false, u"", u"", MarcaPareja::Ninguna},
        {u"S", false, u"", u"", MarcaPareja::Si},
        {u"", true, u"", u"", MarcaPareja::Ninguna},
        {u" ", true, u"", u"", MarcaPareja::Ninguna},
        {u"s", true, u"", u"", MarcaPareja::Ninguna},
        {u"X", true, u"", u"", MarcaPareja::Ninguna},
        // A blank value for yes takes both defaults, whatever stands for no.
        {u"N", true, u" ", u"R", MarcaPareja::No},
        {u"R", true, u"  ", u"R", MarcaPareja::Ninguna},
        {u"O", true, u"O", u"R", MarcaPareja::Si},
        {u"R", true, u"O", u"R", MarcaPareja::No},
        {u"R", false, u"O", u"R", MarcaPareja::Ninguna},
        {u"S", true, u"O", u"R", MarcaPareja::Ninguna},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(PresentarParejaSiNo(QString::fromUtf16(caso.valor), caso.hayNo,
                                      QString::fromUtf16(caso.si), QString::fromUtf16(caso.no)),
                  caso.marca)
            << QString::fromUtf16(caso.valor).toStdString();
}

TEST(DirectorioPadre, HastaElUltimoSeparador) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"/a/b/c", u"/a/b"},        {u"/a/b/", u"/a/b"}, {u"/a", u""},
        {u"C:\\a\\b.txt", u"C:\\a"}, {u"a", u""},         {u"", u""},
    };
    for (const auto& [ruta, padre] : casos)
        EXPECT_EQ(DirectorioPadre(QString::fromUtf16(ruta)), QString::fromUtf16(padre));
}

}  // namespace
}  // namespace padral
