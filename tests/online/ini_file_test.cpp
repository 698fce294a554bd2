// Values of ini files, as the classic call reads them.

#include "platform/ini_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace padral {
namespace {

struct FicheroIni : ::testing::Test {
    QTemporaryDir carpeta;

    QString ruta() const { return carpeta.filePath(QStringLiteral("version.ini")); }
    QString leer(const QByteArray& contenido, const char16_t* clave = u"currentversion") {
        QFile fichero(ruta());
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(contenido);
        fichero.close();
        return LeerValorIni(QStringLiteral("informacion"), QString::fromUtf16(clave), ruta());
    }
};

struct CasoIni {
    const char *contenido, *valor;
};

TEST_F(FicheroIni, FindsTheValue) {
    const CasoIni casos[] = {
        {"[informacion]\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
        {"[informacion]\ncurrentversion=1.30.1", "1.30.1"},
        {"[informacion]\rcurrentversion=1.30.1\r", "1.30.1"},
        // Names without regard to case.
        {"[INFORMACION]\r\nCurrentVersion=1.30.1\r\n", "1.30.1"},
        // Blanks around names and value.
        {" [informacion] \r\n\tcurrentversion \t=  1.30.1 \t\r\n", "1.30.1"},
        {"[ informacion ]\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
        // Blanks, equals signs, semicolons and brackets inside stay.
        {"[informacion]\r\ncurrentversion=a b=c ; [d]\r\n", "a b=c ; [d]"},
        // Other keys and sections before and after.
        {"currentversion=0\r\n[otra]\r\ncurrentversion=9\r\n[informacion]\r\nuna=2\r\n\r\n"
         "currentversion=1.30.1\r\n[tercera]\r\ncurrentversion=8\r\n",
         "1.30.1"},
        {"[informacion]\r\nno key\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
        // A bracket that is not closed names no section.
        {"[informacion]\r\n[otra\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
        {"[informacion] ; text\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(leer(caso.contenido), QString::fromLatin1(caso.valor)) << caso.contenido;
}

TEST_F(FicheroIni, IsEmptyWithoutTheValue) {
    for (const char* contenido :
         {"", "\r\n", "currentversion=1.30.1\r\n", "[otra]\r\ncurrentversion=1.30.1\r\n",
          "[informacion]\r\n", "[informacion]\r\ncurrentversion\r\n",
          "[informacion]\r\ncurrentversion=\r\n", "[informacion]\r\ncurrentversion=   \r\n",
          "[informacion]\r\ncurrentversion2=1\r\nmi currentversion=2\r\n",
          "<html><body>currentversion=1.30.1</body></html>"})
        EXPECT_EQ(leer(contenido), QString()) << contenido;
}

TEST_F(FicheroIni, IsEmptyWithoutTheFile) {
    const QString seccion = QStringLiteral("informacion"), clave = QStringLiteral("downloadurl");
    EXPECT_EQ(LeerValorIni(seccion, clave, ruta()), QString());
    EXPECT_EQ(LeerValorIni(seccion, clave, carpeta.path()), QString());
    EXPECT_EQ(LeerValorIni(seccion, clave, QString()), QString());
}

TEST_F(FicheroIni, PassesOverComments) {
    const CasoIni casos[] = {
        {"[informacion]\r\n;currentversion=9\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
        {"[informacion]\r\n  ; currentversion=9\r\n", ""},
        {";[informacion]\r\ncurrentversion=9\r\n", ""},
        {"[informacion]\r\n;[otra]\r\ncurrentversion=1.30.1\r\n", "1.30.1"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(leer(caso.contenido), QString::fromLatin1(caso.valor)) << caso.contenido;
}

TEST_F(FicheroIni, TakesTheFirstSectionAndTheFirstKey) {
    const CasoIni casos[] = {
        {"[informacion]\r\ncurrentversion=1\r\ncurrentversion=2\r\n", "1"},
        {"[informacion]\r\ncurrentversion=\r\ncurrentversion=2\r\n", ""},
        {"[informacion]\r\ncurrentversion=1\r\n[informacion]\r\ncurrentversion=2\r\n", "1"},
        {"[informacion]\r\nuna=1\r\n[Informacion]\r\ncurrentversion=2\r\n", ""},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(leer(caso.contenido), QString::fromLatin1(caso.valor)) << caso.contenido;
}

TEST_F(FicheroIni, TakesMatchingQuotesOff) {
    const CasoIni casos[] = {
        {"\"1.30.1\"", "1.30.1"}, {"'1.30.1'", "1.30.1"}, {"\" 1.30.1 \"", " 1.30.1 "},
        {"\"1.30.1", "\"1.30.1"}, {"1.30.1'", "1.30.1'"}, {"\"1.30.1'", "\"1.30.1'"},
        {"''1''", "'1'"},         {"\"\"", ""},           {"\"", "\""},
        {"a\"b\"", "a\"b\""},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(leer(QByteArray("[informacion]\r\ncurrentversion= ") + caso.contenido + " \r\n"),
                  QString::fromLatin1(caso.valor))
            << caso.contenido;
}

TEST_F(FicheroIni, GivesAtMost1023Characters) {
    const QByteArray cabeza = "[informacion]\r\ncurrentversion=";
    EXPECT_EQ(leer(cabeza + QByteArray(1023, 'x')), QString(1023, u'x'));
    EXPECT_EQ(leer(cabeza + QByteArray(1024, 'x')), QString(1023, u'x'));
    EXPECT_EQ(leer(cabeza + QByteArray(5000, 'x') + "\r\n"), QString(1023, u'x'));
    // Letters, not bytes; a character of two units is not cut in two.
    EXPECT_EQ(leer(cabeza + QByteArray("\xC3\xB1").repeated(1023)), QString(1023, u'ñ'));
    EXPECT_EQ(leer(cabeza + QByteArray(1022, 'x') + "\xF0\x9F\x98\x80"), QString(1022, u'x'));
}

TEST_F(FicheroIni, ReadsBothEncodings) {
    const CasoIni casos[] = {
        {"[informacion]\r\ncurrentversion=Versi\xC3\xB3n \xE2\x82\xAC", "Versión €"},
        {"\xEF\xBB\xBF[informacion]\r\ncurrentversion=Versi\xC3\xB3n", "Versión"},
        {"[informacion]\r\ncurrentversion=Versi\xF3n \x80 \x93\xA1s\xED!\x94", "Versión € “¡sí!”"},
        {"[informacion]\r\ncurrentversion=\x8A\x9F\x8E\x9E", "ŠŸŽž"},
        // Half a character at the end is none of UTF-8.
        {"[informacion]\r\ncurrentversion=a\xC3", "aÃ"},
        {"[informaci\xF3n]\r\n[informacion]\r\ncurrentversion=1", "1"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(leer(caso.contenido), QString::fromUtf8(caso.valor)) << caso.valor;
}

}  // namespace
}  // namespace padral
