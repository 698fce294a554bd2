// Closing dates of a financial year: day and month.

#include <gtest/gtest.h>

#include "core/fecha.h"
#include "core/text_catalogue.h"
#include "support/print_text.h"

namespace padral {
namespace {

class FechaMMDD : public ::testing::TestWithParam<char16_t> {
protected:
    void SetUp() override { fecha.fecidioma = QChar(GetParam()); }
    const CatalogoTextos textos;
    cFecha fecha{textos};
};

INSTANTIATE_TEST_SUITE_P(Idiomas, FechaMMDD, ::testing::Values(u'C', u'E'));

TEST_P(FechaMMDD, MascaraVacia) { EXPECT_EQ(fecha.FecVaciaMMDD(), QStringLiteral("__/__")); }

TEST_P(FechaMMDD, DiasDeCadaMes) {
    const int ultimos[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int mes = 0; mes <= 13; ++mes)
        for (int dia = 0; dia <= 32; ++dia) {
            const bool vale = mes >= 1 && mes <= 12 && dia >= 1 && dia <= ultimos[mes - 1];
            const QString texto =
                QStringLiteral("%1/%2").arg(dia, 2, 10, QChar(u'0')).arg(mes, 2, 10, QChar(u'0'));
            EXPECT_EQ(fecha.EsFechaMMDD(texto), vale) << texto.toStdString();
            if (mes + dia == 0) continue;
            EXPECT_EQ(fecha.LongToStringMMDD(mes * 100 + dia),
                      vale ? texto : QStringLiteral("__/__"));
        }
}

TEST_P(FechaMMDD, UnTextoQueNoEsNumeroEsUnErrorParaQuienLlama) {
    for (const char16_t* texto : {u"__/__", u"3_/12", u"31/1_", u"_1/12", u"aa/12"})
        EXPECT_THROW(fecha.EsFechaMMDD(QString::fromUtf16(texto)), ErrorDeConversion)
            << QString::fromUtf16(texto).toStdString();
}

struct Caso {
    const char16_t* texto;
    qint32 numero;
};

TEST_P(FechaMMDD, TextoANumero) {
    const Caso casos[] = {{u"31/12", 1231}, {u"29/02", 229}, {u"01/01", 101},
                          {u"__/__", 0},    {u"3_/12", 0},   {u"31/1_", 0}};
    for (const auto& caso : casos)
        EXPECT_EQ(fecha.StringToLongMMDD(QString::fromUtf16(caso.texto)), caso.numero);
}

TEST_P(FechaMMDD, NumeroATexto) {
    const Caso casos[] = {{u"31/12", 1231}, {u"29/02", 229}, {u"01/01", 101},  {u"__/__", 1301},
                          {u"__/__", 0},    {u"__/__", -1},  {u"__/__", 230},  {u"__/__", 431},
                          {u"__/__", 100},  {u"__/__", 31},  {u"__/__", -1231}};
    for (const auto& caso : casos)
        EXPECT_EQ(fecha.LongToStringMMDD(caso.numero), QString::fromUtf16(caso.texto))
            << caso.numero;
}

TEST_P(FechaMMDD, GuardaElTextoDos) {
    fecha.LongToStringMMDD(1231);
    fecha.LongToStringMMDD(0);
    EXPECT_EQ(fecha.UltimoError(), QString());
    fecha.LongToStringMMDD(1301);
    EXPECT_EQ(fecha.UltimoError(), GetParam() == u'E' ? QStringLiteral("                  BAI")
                                                      : QStringLiteral("                  SI"));
}

}  // namespace
}  // namespace padral
