#include "store/general_server.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using SvrDPadral::cGeneral;

struct General : StoreFiles {
    cGeneral OnDeclarations() const {
        cGeneral server;
        server.mdbnameread = mod;
        server.mdbnamewrite = mod;
        return server;
    }
    cGeneral OnCatalogue() const {
        cGeneral server;
        server.mdbnameread = lec;
        return server;
    }
};

TEST_F(General, HasTheValuesOfAFreshStore) {
    EXPECT_EQ(OnDeclarations().NumeroDeclaraciones(), 0);
    EXPECT_EQ(OnDeclarations().DameIdioma(), QStringLiteral("C"));
    EXPECT_EQ(OnDeclarations().ObtenerActOnline(), -1);
    std::array<qint32, 3> dates{};
    OnCatalogue().DameFechaMinimaMaxima(dates);
    EXPECT_EQ(dates, (std::array<qint32, 3>{19000101, 20991231, 19900101}));
    EXPECT_EQ(OnCatalogue().URLAct(), QStringLiteral("http://padral.kelmaria.invalid/version"));
    EXPECT_EQ(OnCatalogue().BackupTvc(), QStringLiteral(""));
}

TEST_F(General, CountsTheDeclarations) {
    Server().GuardarDeclaracion({});
    const qint32 second = Server().GuardarDeclaracion({});
    EXPECT_EQ(OnDeclarations().NumeroDeclaraciones(), 2);
    Server().EliminarDeclaracion(second);
    EXPECT_EQ(OnDeclarations().NumeroDeclaraciones(), 1);
}

TEST_F(General, KeepsTheLanguageAndTheUpdateSetting) {
    OnDeclarations().CambiarIdioma(QStringLiteral("E"));
    EXPECT_EQ(OnDeclarations().DameIdioma(), QStringLiteral("E"));
    for (const qint16 value : {qint16{1}, qint16{0}, qint16{-1}}) {
        OnDeclarations().GuardarActOnline(value);
        EXPECT_EQ(OnDeclarations().ObtenerActOnline(), value);
    }
    EXPECT_EQ(OnDeclarations().DameIdioma(), QStringLiteral("E"));
}

TEST_F(General, GivesNumericKeysOfAResultBehindALetter) {
    Tabla rows;
    OnCatalogue().CargarResultado(
        QStringLiteral("Select T08_CODMUN, T08_NOMMUN From TMunicipios Order By T08_CODMUN"), rows);
    ASSERT_EQ(rows.Filas(), 4);
    EXPECT_EQ(rows.Columnas(), 2);
    EXPECT_EQ(rows(0, 0), QVariant(QStringLiteral("C3")));
    EXPECT_EQ(rows(1, 0), QVariant(QStringLiteral("Oreta")));
    EXPECT_EQ(rows(0, 3), QVariant(QStringLiteral("C120")));
}

TEST_F(General, GivesTextKeysOfAResultAsTheyAre) {
    Tabla rows;
    OnCatalogue().CargarResultado(
        QStringLiteral("Select SIGLAS_CODIGO, SIGLAS_CAS From TSIGLAS ORDER BY SIGLAS_CAS"), rows);
    EXPECT_EQ(rows(0, 0), QVariant(QStringLiteral("AV")));
}

TEST_F(General, GivesResultsWithoutRowsAsEmptyTablesAndTexts) {
    Tabla rows(5);
    OnCatalogue().CargarResultado(QStringLiteral("Select * From TSiglas where 1=0"), rows);
    EXPECT_LT(rows.UltimaFila(), 0);
    EXPECT_EQ(rows.Columnas(), 3);
    QStringList list{QStringLiteral("old")};
    OnCatalogue().ObtenerEpigrafe(QStringLiteral("Select EPIDEPCAS From TEpigrafes_2000 where 1=0"),
                                  list);
    EXPECT_TRUE(list.isEmpty());
    QString text = QStringLiteral("old");
    OnCatalogue().ObtenerCodigoFormaJuridica(
        QStringLiteral("select CODFORMA from TFormasJuridicas where DESCRIFORMACAS='none'"), text);
    EXPECT_TRUE(text.isEmpty());
    EXPECT_FALSE(text.isNull());
}

TEST_F(General, GivesTheThreeColumnsOfLegalFormsAsTheyAre) {
    Tabla rows;
    OnCatalogue().ObtenerFormaJuridica(
        QStringLiteral(
            "Select CODFORMA,LETDNI,DESCRIFORMACAS From TFormasJuridicas ORDER BY CODFORMA"),
        rows);
    ASSERT_EQ(rows.Filas(), 4);
    EXPECT_EQ(rows.FilaEntera(0),
              (Fila{1, QStringLiteral("A"), QStringLiteral("SOCIEDAD ANONIMA - A")}));
    EXPECT_EQ(rows(0, 3), QVariant(90));
}

TEST_F(General, GivesTheNameOfAMunicipality) {
    Tabla rows;
    OnCatalogue().CargarMunicipio(
        QStringLiteral("Select T08_NOMMUN From TMunicipios where T08_CODMUN=7"), rows);
    EXPECT_EQ(rows(0, 0), QVariant(QStringLiteral("Ñabarri")));
}

TEST_F(General, GivesListsInTheOrderOfTheQuery) {
    QStringList list;
    OnCatalogue().ObtenerMotivoCambio(
        QStringLiteral("Select MOTIVOCAS From TMotivoCambio ORDER BY CODIGO"), list);
    EXPECT_EQ(list,
              (QStringList{QStringLiteral("00-No hay cambios"), QStringLiteral("31-Último")}));
    OnCatalogue().ObtenerDescriCese(QStringLiteral("Select CAUSACAS From TCausasCese"), list);
    EXPECT_EQ(list, (QStringList{QStringLiteral("CESIÓN"), QStringLiteral("OTRAS"),
                                 QStringLiteral("BAJA")}));
}

using OneText = void (cGeneral::*)(const QString&, QString&) const;

TEST_F(General, GivesTheFirstColumnOfTheFirstRowAsText) {
    for (const OneText operation :
         {&cGeneral::ObtenerCausaCese, &cGeneral::ObtenerCodigoEpigrafe,
          &cGeneral::ObtenerDescripcionEpigrafe, &cGeneral::ObtenerCodigoFormaJuridica,
          &cGeneral::ObtenerNombreProvincia, &cGeneral::ObtenerDescripcionSiglas,
          &cGeneral::ObtenerDescActivEcon, &cGeneral::ObtenerDescFormaJuridica,
          &cGeneral::ObtenerCodigoCausa}) {
        QString text;
        (OnCatalogue().*operation)(
            QStringLiteral("select T07_PRO_ID, T07_PRO_CAS from TProvincias order by T07_PRO_ID"),
            text);
        EXPECT_EQ(text, QStringLiteral("1"));
        (OnCatalogue().*operation)(QStringLiteral("select T07_PRO_EUS from TProvincias where 1=0"),
                                   text);
        EXPECT_EQ(text, QStringLiteral(""));
    }
}

TEST_F(General, ComparesTextsOfAConditionWithoutRegardToCase) {
    for (const char16_t* sql : {u"select CODCAUSA from TCausasCese where CAUSACAS='cesión'",
                                u"select codcausa from tcausascese where CausaCas='CESIÓN'"}) {
        QString text;
        OnCatalogue().ObtenerCodigoCausa(QStringView(sql).toString(), text);
        EXPECT_EQ(text, QStringLiteral("10"));
    }
    QString text;
    OnCatalogue().ObtenerDescripcionSiglas(
        QStringLiteral("select siglas_cas from TSiglas where Siglas_Codigo='cl'"), text);
    EXPECT_EQ(text, QStringLiteral("Calle"));
}

TEST_F(General, FailsWithTheFileForAQueryThatIsNone) {
    QString text;
    try {
        OnCatalogue().ObtenerCodigoCausa(QStringLiteral("select CODCAUSA where '"), text);
        FAIL() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_TRUE(failure.Castellano().contains(lec));
        EXPECT_TRUE(failure.Euskera().contains(lec));
    }
}

TEST_F(General, NeverChangesTheCatalogue) {
    const QByteArray before = Bytes(lec);
    Tabla rows;
    EXPECT_THROW(OnCatalogue().CargarResultado(QStringLiteral("DELETE FROM TSiglas"), rows), Fallo);
    EXPECT_EQ(Bytes(lec), before);
}

}  // namespace
}  // namespace padral::test
