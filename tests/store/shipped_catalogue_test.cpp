// The rows that the project ships.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "make_catalogue/load_catalogue.h"
#include "store/catalogue_lookups.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

struct Shipped : ::testing::Test {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("DPadralLec.mdb"));
    qint16 offset = 0;
    const ConsultasCatalogo catalogue{path, offset};

    void SetUp() override {
        catalogue::WriteCatalogue(QStringLiteral(PADRAL_SOURCE_DIR "/data/catalogue"), path);
    }
};

TEST_F(Shipped, NamesAllProvincesAndTheTerritoryInBothLanguages) {
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        EXPECT_EQ(catalogue.ListaProvincias().Filas(), 52);
        EXPECT_EQ(catalogue.ObtenerNombreProvincia(20), QStringLiteral("Kelmaria"));
    }
    EXPECT_EQ(catalogue.ObtenerNombreProvincia(1), QStringLiteral("Araba"));
    EXPECT_EQ(catalogue.ObtenerNombreProvincia(52), QStringLiteral("Melilla"));
}

TEST_F(Shipped, KeepsTextsWithinTheirFields) {
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        for (const auto& [list, width] : {std::pair{catalogue.ListaProvincias(), 20},
                                          {catalogue.ListaMunicipios(), 25},
                                          {catalogue.ListaSiglas(), 15}})
            for (int row = 0; row < list.Filas(); ++row) {
                EXPECT_LE(list(1, row).toString().size(), width);
                EXPECT_FALSE(list(1, row).toString().isEmpty());
            }
        for (const QString& cause : catalogue.CausasCese()) EXPECT_LE(cause.size(), 20);
    }
}

TEST_F(Shipped, EndsLegalFormsWithTheirLetterAndHasTheOthersLast) {
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        const Tabla forms = catalogue.FormasJuridicas();
        EXPECT_EQ(forms(0, forms.UltimaFila()), QVariant(90));
        for (int row = 0; row < forms.UltimaFila(); ++row)
            EXPECT_EQ(forms(2, row).toString().last(1), forms(1, row).toString());
    }
}

TEST_F(Shipped, HasTheMotivesWithTheirCodesInFront) {
    EXPECT_EQ(
        catalogue.MotivosCambio(),
        (QStringList{QStringLiteral("00-No hay cambios"), QStringLiteral("10-Errores anteriores"),
                     QStringLiteral("20-Cambio de razón social o nombre"),
                     QStringLiteral("30-Transformación de CIF y forma jurídica"),
                     QStringLiteral("31-Transformación de forma jurídica sin cambio de CIF")}));
    offset = 10000;
    QStringList codes;
    for (const QString& motive : catalogue.MotivosCambio()) codes.append(motive.left(3));
    EXPECT_EQ(codes.join(QString()), QStringLiteral("00-10-20-30-31-"));
}

TEST_F(Shipped, HasTheCausesOfCessationInTheirOrder) {
    QString codes;
    for (const QString& cause : catalogue.CausasCese())
        codes += catalogue.ObtenerCodigoCausa(cause) + u' ';
    EXPECT_EQ(codes, QStringLiteral("10 11 20 22 30 31 32 33 99 "));
}

TEST_F(Shipped, FindsEveryActivityByItsNameAndItsCode) {
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        for (const QString& name : catalogue.Epigrafes() + catalogue.EpigrafeSinActividad()) {
            const QString code = catalogue.ObtenerCodigoEpigrafe(name);
            EXPECT_LE(code.size(), 7);
            EXPECT_EQ(catalogue.ObtenerDescripcionEpigrafe(code), name);
        }
        EXPECT_EQ(
            catalogue.ObtenerDescActivEcon(QStringLiteral("9999999")),
            language == 0 ? QStringLiteral("SIN ACTIVIDAD") : QStringLiteral("JARDUERARIK GABE"));
    }
}

TEST_F(Shipped, HasStreetTypesByTheirCode) {
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Calle"));
    offset = 10000;
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Kalea"));
}

}  // namespace
}  // namespace padral::test
