// Dates of a declaration in both languages.

#include "core/fecha.h"

#include <gtest/gtest.h>

#include "core/text_catalogue.h"
#include "support/print_text.h"

namespace padral {
namespace {

const CatalogoTextos& textos() {
    static const CatalogoTextos catalogo;
    return catalogo;
}

cFecha fechaEn(char16_t idioma) {
    cFecha fecha(textos());
    fecha.fecidioma = QChar(idioma);
    return fecha;
}

struct CasoTexto {
    char16_t idioma;
    const char16_t* texto;
    bool valida;
    qint32 numero;
};

void PrintTo(const CasoTexto& caso, std::ostream* salida) {
    *salida << QString(QChar(caso.idioma)).toStdString() << ' '
            << QString::fromUtf16(caso.texto).toStdString();
}

const CasoTexto Textos[] = {
    {u'C', u"__/__/____", true, 0},
    {u'E', u"____/__/__", true, 0},
    {u'C', u"____/__/__", false, -1},
    {u'E', u"__/__/____", false, -1},
    {u'C', u"", false, -1},
    {u'E', u"", false, -1},
    // Leap years
    {u'C', u"29/02/2000", true, 20000229},
    {u'C', u"29/02/1900", false, -1},
    {u'C', u"29/02/2004", true, 20040229},
    {u'C', u"30/02/2004", false, -1},
    {u'C', u"31/02/2004", false, -1},
    {u'C', u"29/02/2003", false, -1},
    {u'C', u"28/02/2003", true, 20030228},
    {u'C', u"29/02/2400", true, 24000229},
    {u'C', u"29/02/2100", false, -1},
    {u'E', u"2000/02/29", true, 20000229},
    {u'E', u"1900/02/29", false, -1},
    // Days of each month
    {u'C', u"31/01/2002", true, 20020131},
    {u'C', u"31/03/2002", true, 20020331},
    {u'C', u"30/04/2002", true, 20020430},
    {u'C', u"31/04/2002", false, -1},
    {u'C', u"31/05/2002", true, 20020531},
    {u'C', u"30/06/2002", true, 20020630},
    {u'C', u"31/06/2002", false, -1},
    {u'C', u"31/07/2002", true, 20020731},
    {u'C', u"31/08/2002", true, 20020831},
    {u'C', u"30/09/2002", true, 20020930},
    {u'C', u"31/09/2002", false, -1},
    {u'C', u"31/10/2002", true, 20021031},
    {u'C', u"30/11/2002", true, 20021130},
    {u'C', u"31/11/2002", false, -1},
    {u'C', u"31/12/2002", true, 20021231},
    {u'C', u"32/12/2002", false, -1},
    {u'C', u"00/12/2002", false, -1},
    {u'C', u"01/00/2002", false, -1},
    {u'C', u"01/13/2002", false, -1},
    {u'E', u"2002/12/31", true, 20021231},
    {u'E', u"2002/04/31", false, -1},
    {u'E', u"2002/13/01", false, -1},
    {u'E', u"2002/01/00", false, -1},
    // Years of less than four digits
    {u'C', u"01/01/1000", true, 10000101},
    {u'C', u"01/01/9999", true, 99990101},
    {u'C', u"01/01/999", false, -1},
    {u'C', u"01/01/0999", false, -1},
    {u'C', u"01/01/0000", false, -1},
    {u'E', u"0999/01/01", false, -1},
    {u'E', u"1000/01/01", true, 10000101},
    // Masks half filled
    {u'C', u"3_/12/2002", false, -1},
    {u'C', u"_3/12/2002", false, -1},
    {u'C', u"31/1_/2002", false, -1},
    {u'C', u"31/12/200_", false, -1},
    {u'C', u"31/12/20__", false, -1},
    {u'C', u"31/12/____", false, -1},
    {u'C', u"__/12/2002", false, -1},
    {u'C', u"__/__/2002", false, -1},
    {u'C', u"1_/__/____", false, -1},
    {u'E', u"2002/12/3_", false, -1},
    {u'E', u"2002/12/__", false, -1},
    {u'E', u"200_/12/31", false, -1},
    {u'E', u"2___/__/__", false, -1},
    // The last part is read by its leading digits, the number takes its last characters
    {u'C', u"31/12/2002 x", true, 0},
    {u'C', u"31/12/2002 ", true, 0},
    {u'C', u"31/12/2002x", false, -1},
    {u'C', u"31/12/ 2002", false, -1},
    {u'C', u"31/12/20021", true, 211231},
    {u'C', u"31/12/02002", true, 20021231},
    {u'C', u"29/02/20001", false, -1},
    {u'E', u"2002/12/31 x", true, 0},
    {u'E', u"2002/12/031", true, 20021231},
    {u'E', u"2002/12/311", false, -1},
    {u'E', u"20021/12/31", false, -1},
    // No digits, and the order of the other language
    {u'C', u"aa/12/2002", false, -1},
    {u'C', u"-1/12/2002", false, -1},
    {u'C', u"2002/12/31", false, -1},
    {u'E', u"31/12/2002", false, -1},
};

class FechaTexto : public ::testing::TestWithParam<CasoTexto> {};

TEST_P(FechaTexto, ValeYSeConvierte) {
    const auto& caso = GetParam();
    const cFecha fecha = fechaEn(caso.idioma);
    const QString texto = QString::fromUtf16(caso.texto);
    EXPECT_EQ(fecha.EsFecha(texto), caso.valida) << texto.toStdString();
    EXPECT_EQ(fecha.StringToLong(texto), caso.numero) << texto.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Casos, FechaTexto, ::testing::ValuesIn(Textos));

struct CasoNumero {
    qint32 numero;
    const char16_t *castellano, *euskera;
};

void PrintTo(const CasoNumero& caso, std::ostream* salida) { *salida << caso.numero; }

const CasoNumero Numeros[] = {
    {20021231, u"31/12/2002", u"2002/12/31"},  {20000229, u"29/02/2000", u"2000/02/29"},
    {20040101, u"01/01/2004", u"2004/01/01"},  {10000101, u"01/01/1000", u"1000/01/01"},
    {0, u"__/__/____", u"____/__/__"},         {-1, u"__/__/____", u"____/__/__"},
    {-20021231, u"__/__/____", u"____/__/__"}, {20020230, u"__/__/____", u"____/__/__"},
    {19000229, u"__/__/____", u"____/__/__"},  {20021301, u"__/__/____", u"____/__/__"},
    {20020431, u"__/__/____", u"____/__/__"},  {1, u"__/__/____", u"____/__/__"},
    {9991231, u"__/__/____", u"____/__/__"},   {2147483647, u"__/__/____", u"____/__/__"},
};

class FechaNumero : public ::testing::TestWithParam<CasoNumero> {};

TEST_P(FechaNumero, DaElTextoDelIdioma) {
    const auto& caso = GetParam();
    EXPECT_EQ(fechaEn(u'C').LongToString(caso.numero), QString::fromUtf16(caso.castellano));
    EXPECT_EQ(fechaEn(u'E').LongToString(caso.numero), QString::fromUtf16(caso.euskera));
}

INSTANTIATE_TEST_SUITE_P(Casos, FechaNumero, ::testing::ValuesIn(Numeros));

TEST(Fecha, VaciaSegunElIdioma) {
    EXPECT_EQ(cFecha(textos()).fecidioma, QStringLiteral("C"));
    EXPECT_EQ(fechaEn(u'C').FecVacia(), QStringLiteral("__/__/____"));
    EXPECT_EQ(fechaEn(u'E').FecVacia(), QStringLiteral("____/__/__"));
    EXPECT_EQ(fechaEn(u'X').FecVacia(), QStringLiteral("__/__/____"));
}

// The empty mask asks for "E", the cut of a date for "C".
TEST(Fecha, ConOtraLetraLaMascaraEmpiezaPorElDiaYElCortePorElAnyo) {
    cFecha fecha = fechaEn(u'X');
    EXPECT_TRUE(fecha.EsFecha(QStringLiteral("__/__/____")));
    EXPECT_EQ(fecha.StringToLong(QStringLiteral("__/__/____")), 0);
    EXPECT_EQ(fecha.StringToLong(QStringLiteral("____/__/__")), -1);
    EXPECT_EQ(fecha.StringToLong(QStringLiteral("2002/12/31")), 20021231);
    EXPECT_EQ(fecha.StringToLong(QStringLiteral("31/12/2002")), -1);
    EXPECT_EQ(fecha.LongToString(20021231), QStringLiteral("2002/12/31"));
    EXPECT_EQ(fecha.LongToString(0), QStringLiteral("__/__/____"));
}

TEST(Fecha, AnyoMinimo) {
    const cFecha fecha = fechaEn(u'C');
    const QString texto = QStringLiteral("31/12/2002");
    EXPECT_TRUE(fecha.EsFecha(texto, 2002));
    EXPECT_FALSE(fecha.EsFecha(texto, 2003));
    EXPECT_EQ(fecha.StringToLong(texto, 2002), 20021231);
    EXPECT_EQ(fecha.StringToLong(texto, 2003), -1);
    EXPECT_TRUE(fecha.EsFecha(QStringLiteral("__/__/____"), 2003));
    EXPECT_EQ(fecha.StringToLong(QStringLiteral("__/__/____"), 2003), 0);
    EXPECT_FALSE(fechaEn(u'E').EsFecha(QStringLiteral("2002/12/31"), 2003));
}

TEST(Fecha, AnyoDelTexto) {
    EXPECT_EQ(fechaEn(u'C').miYear(QStringLiteral("31/12/2002")), 2002);
    EXPECT_EQ(fechaEn(u'E').miYear(QStringLiteral("2003/12/31")), 2003);
    EXPECT_EQ(fechaEn(u'E').miYear(QStringLiteral(" 999/12/31")), 999);
    EXPECT_EQ(fechaEn(u'C').miYear(QStringLiteral("__/__/____")), 0);
    EXPECT_EQ(fechaEn(u'E').miYear(QStringLiteral("____/__/__")), 0);
}

// The argument counts by being there; its value does not.
TEST(Fecha, NumeroDiaMesAnyo) {
    for (const bool valor : {true, false}) {
        EXPECT_EQ(fechaEn(u'C').LongToString(31122002, valor), QStringLiteral("31/12/2002"));
        EXPECT_EQ(fechaEn(u'E').LongToString(31122002, valor), QStringLiteral("2002/12/31"));
        EXPECT_EQ(fechaEn(u'C').LongToString(20021231, valor), QStringLiteral("20/02/1231"));
        EXPECT_EQ(fechaEn(u'C').LongToString(31132002, valor), QStringLiteral("__/__/____"));
        EXPECT_EQ(fechaEn(u'C').LongToString(0, valor), QStringLiteral("__/__/____"));
    }
    EXPECT_EQ(fechaEn(u'C').LongToString(31122002), QStringLiteral("__/__/____"));
}

TEST(Fecha, GuardaElTextoDosTrasUnNumeroQueNoEsFecha) {
    cFecha fecha = fechaEn(u'C');
    fecha.LongToString(20021231);
    fecha.LongToString(0);
    EXPECT_EQ(fecha.UltimoError(), QString());
    fecha.LongToString(20020230);
    EXPECT_EQ(fecha.UltimoError(), QStringLiteral("                  SI"));
    cFecha euskera = fechaEn(u'E');
    euskera.LongToString(20020230);
    EXPECT_EQ(euskera.UltimoError(), QStringLiteral("                  BAI"));
}

/// Every day of four centuries' turns goes to text and back.
TEST(Fecha, IdaYVueltaDeTodosLosDias) {
    cFecha castellano = fechaEn(u'C'), euskera = fechaEn(u'E');
    int dias = 0;
    for (const int anyo : {1899, 1900, 1999, 2000, 2004})
        for (int mes = 0; mes <= 13; ++mes)
            for (int dia = 0; dia <= 32; ++dia) {
                const qint32 numero = anyo * 10000 + mes * 100 + dia;
                const QString texto = castellano.LongToString(numero);
                if (texto == castellano.FecVacia()) continue;
                ++dias;
                EXPECT_EQ(castellano.StringToLong(texto), numero);
                EXPECT_EQ(euskera.StringToLong(euskera.LongToString(numero)), numero);
            }
    EXPECT_EQ(dias, 5 * 365 + 2);
}

}  // namespace
}  // namespace padral
