// The rows that the project ships.

#include <gtest/gtest.h>

#include <QSet>
#include <QTemporaryDir>

#include "core/text_catalogue.h"
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

struct Count {
    const char* table;
    int least, most;
};

TEST_F(Shipped, HasAsManyRowsAsTheCatalogueNeeds) {
    for (const auto& [table, least, most] : {Count{"TEpigrafes_2000", 980, 9999},
                                             {"TFormasJuridicas", 30, 90},
                                             {"TProvincias", 52, 52},
                                             {"TMunicipios", 85, 99},
                                             {"TSiglas", 40, 26 * 26},
                                             {"TMotivoCambio", 5, 5},
                                             {"TCausasCese", 9, 9}}) {
        const int rows =
            Value(path, (std::string("SELECT count(*) FROM ") + table).c_str()).toInt();
        EXPECT_GE(rows, least) << table;
        EXPECT_LE(rows, most) << table;
    }
}

TEST_F(Shipped, HasMunicipalitiesWithCodesOfOneToThreeDigits) {
    for (const char* range : {"1 AND 9", "10 AND 99", "100 AND 999"})
        EXPECT_GT(Value(path, (std::string("SELECT count(*) FROM TMunicipios WHERE T08_CODMUN"
                                           " BETWEEN ") +
                               range)
                                  .c_str())
                      .toInt(),
                  4)
            << range;
}

TEST_F(Shipped, HasAFormForEveryLetterOfAnEntity) {
    const Tabla forms = catalogue.FormasJuridicas();
    QSet<QString> letters;
    for (int row = 0; row < forms.UltimaFila(); ++row) letters.insert(forms(1, row).toString());
    QStringList sorted = letters.values();
    sorted.sort();
    EXPECT_EQ(sorted.join(QString()), QStringLiteral("ABCDEFGHJNPQRSUVW"));
}

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

// The list shows the numbered text in the place of the row, and the row is looked up by it.
TEST_F(Shipped, HasTheOtherCausesUnderTheirNumberedText) {
    const CatalogoTextos texts;
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        EXPECT_EQ(catalogue.ObtenerCodigoCausa(texts.Texto(66 + language).toUpper()),
                  QStringLiteral("99"));
    }
}

TEST_F(Shipped, FindsActivitiesByTheirNameAndTheirCode) {
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        const QStringList names = catalogue.Epigrafes();
        // Each lookup opens the file: some rows from all over the list are enough.
        for (qsizetype i = 0; i < names.size(); i += 1 + names.size() / 60) {
            const QString code = catalogue.ObtenerCodigoEpigrafe(names[i]);
            EXPECT_EQ(catalogue.ObtenerDescripcionEpigrafe(code), names[i]);
        }
    }
}

TEST_F(Shipped, HasTheActivityOfTheNoticeOnTheForm) {
    EXPECT_FALSE(catalogue.ObtenerDescActivEcon(QStringLiteral("1.8611")).isEmpty());
}

TEST_F(Shipped, NamesTheMissingActivityByItsNumberedText) {
    const CatalogoTextos texts;
    for (const qint16 language : {qint16{0}, qint16{10000}}) {
        offset = language;
        EXPECT_EQ(catalogue.EpigrafeSinActividad(), QStringList{texts.Texto(664 + language)});
        EXPECT_EQ(catalogue.ObtenerDescActivEcon(QStringLiteral("9999999")),
                  texts.Texto(664 + language));
    }
}

TEST_F(Shipped, HasStreetTypesByTheirCode) {
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Calle"));
    offset = 10000;
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Kalea"));
}

}  // namespace
}  // namespace padral::test
