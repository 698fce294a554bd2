// Which copies are printed, in which order, and what becomes of them when the printer fails.

#include "printing/job.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

struct FilaOpciones {
    bool borrador, administracion, interesado;
    bool validas;
    QStringList copias;
};
const FilaOpciones filasOpciones[] = {
    {false, true, true, true, {QStringLiteral("AD"), QStringLiteral("IT")}},
    {false, true, false, true, {QStringLiteral("AD")}},
    {false, false, true, true, {QStringLiteral("IT")}},
    {false, false, false, false, {}},
    {true, true, true, true, {QStringLiteral("BO")}},
    {true, false, false, true, {QStringLiteral("BO")}},
};

TEST(Copias, ValidasYPedidas) {
    for (const auto& fila : filasOpciones) {
        const OpcionesImpresion opciones = {fila.borrador, fila.administracion, fila.interesado};
        EXPECT_EQ(ValidarCopias(opciones), fila.validas);
        EXPECT_EQ(CopiasPedidas(opciones), fila.copias);
    }
}

struct FilaCopia {
    const char16_t *tipo, *imagen;
};
void PrintTo(const FilaCopia& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.tipo).toStdString();
}

class CadaCopia : public testing::TestWithParam<FilaCopia> {};
TEST_P(CadaCopia, UnaPaginaConSuTitulo) {
    Impresion impresion;
    impresion.datos.DNI = QStringLiteral("12345678Z");
    const QString tipo = QString::fromUtf16(GetParam().tipo);
    const Documento& documento = impresion.Copia(tipo);
    EXPECT_EQ(documento.paginasTerminadas, 1);
    EXPECT_TRUE(documento.cerrado);
    EXPECT_TRUE(documento.destruido);
    EXPECT_EQ(documento.titulo, QStringLiteral("417-12345678Z-") + tipo);
    // The stamp is the last thing on the page.
    EXPECT_EQ(documento.operaciones.back().texto, QString::fromUtf16(GetParam().imagen));
}
INSTANTIATE_TEST_SUITE_P(Cinco, CadaCopia,
                         testing::Values(FilaCopia{u"AD", u"Administracion"},
                                         FilaCopia{u"IT", u"Interesado"},
                                         FilaCopia{u"BO", u"Borrador"}, FilaCopia{u"BA", u"Banco"},
                                         FilaCopia{u"IF", u"Informatica"}));

TEST(ImprimirDeclaracion, LasCopiasSoloSeDistinguenEnElTitulo) {
    Impresion impresion;
    for (const auto* tipo : {u"AD", u"IT", u"BO"}) impresion.Copia(QString::fromUtf16(tipo));
    ASSERT_EQ(impresion.fabrica.documentos.size(), 3U);
    const auto& primera = impresion.fabrica.documentos[0]->operaciones;
    for (const auto& documento : impresion.fabrica.documentos) {
        ASSERT_EQ(documento->operaciones.size(), primera.size());
        for (std::size_t i = 0; i + 1 < primera.size(); ++i)
            EXPECT_EQ(documento->operaciones[i].texto, primera[i].texto);
    }
}

TEST(ImprimirDeclaracion, UnaCopiaDesconocidaFallaAlEstampar) {
    for (const auto* tipo : {u"", u"XX", u"ad"}) {
        Impresion impresion;
        EXPECT_THROW(impresion.Copia(QString::fromUtf16(tipo)), Fallo);
        const Documento& documento = *impresion.fabrica.documentos.back();
        EXPECT_FALSE(documento.operaciones.empty());
        EXPECT_EQ(documento.paginasTerminadas, 0);
        EXPECT_FALSE(documento.cerrado);
    }
}

TEST(ImprimirDeclaracion, UnaImpresoraQueFallaNoSeCalla) {
    Impresion impresion;
    impresion.fabrica.documentoQueFalla = 0;
    impresion.fabrica.fallaEn = 40;
    try {
        impresion.Copia();
        FAIL() << "the failure got lost";
    } catch (const Fallo& fallo) {
        EXPECT_EQ(fallo.Castellano(), u"La impresora no responde.");
        EXPECT_EQ(fallo.Euskera(), u"Inprimagailuak ez du erantzuten.");
    }
    const Documento& documento = *impresion.fabrica.documentos.back();
    EXPECT_EQ(documento.operaciones.size(), 39U);
    EXPECT_TRUE(documento.destruido);
}

TEST(ImprimirDeclaracion, LaCopiaAnteriorQuedaEnviada) {
    Impresion impresion;
    impresion.fabrica.documentoQueFalla = 1;
    impresion.fabrica.fallaEn = 1;
    impresion.Copia(QStringLiteral("AD"));
    EXPECT_THROW(impresion.Copia(QStringLiteral("IT")), Fallo);
    EXPECT_TRUE(impresion.fabrica.documentos[0]->cerrado);
    EXPECT_EQ(impresion.fabrica.documentos[0]->paginasTerminadas, 1);
}

TEST(ImprimirDeclaracion, NoCambiaLosDatos) {
    Impresion impresion;
    impresion.datos.Causa1 = QStringLiteral("M");
    impresion.datos.FechaModificacion(20151231);
    const Fila antes = impresion.datos.ObtenerDatos();
    impresion.Copia();
    EXPECT_EQ(impresion.datos.ObtenerDatos(), antes);
}

}  // namespace
}  // namespace padral::test
