#include "store/catalogue_lookups.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/failure.h"
#include "store/catalogue_sql.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

struct Lookups : StoreFiles {
    qint16 offset = 0;
    const ConsultasCatalogo catalogue{lec, offset};
};

struct SqlText {
    const sql::Consulta& query;
    QStringView spanish, basque, end;
};

TEST(CatalogueSql, IsTheTextOfTheProgram) {
    const std::vector<SqlText> texts{
        {sql::CodigoEpigrafe, u"select EPICODEPI from TEpigrafes_2000 where EPIDEPCAS='",
         u"select EPICODEPI  from TEpigrafes_2000 where EPIDEPEUS='", u"'"},
        {sql::DescripcionEpigrafe, u"select EPIDEPCAS from TEpigrafes_2000 where EPICODEPI='",
         u"select EPIDEPEUS from TEpigrafes_2000 where EPICODEPI='", u"'"},
        {sql::DescActivEcon, u"select epidepcas from Tepigrafes_2000 where epicodepi='",
         u"select epidepeus from Tepigrafes_2000 where epicodepi='", u"'"},
        {sql::CodigoFormaJuridica, u"select CODFORMA from TFormasJuridicas where DESCRIFORMACAS='",
         u"select CODFORMA from TFormasJuridicas where DESCRIFORMAEUS='", u"' ORDER BY CODFORMA"},
        {sql::DescFormaJuridica, u"select descriformacas from TFormasJuridicas where codforma=",
         u"select descriformaeus from TFormasJuridicas where codforma=", u""},
        {sql::NombreProvincia, u"select T07_PRO_CAS from TProvincias where T07_PRO_ID=",
         u"select T07_PRO_EUS from TProvincias where T07_PRO_ID=", u""},
        {sql::DescripcionSiglas, u"select siglas_cas from TSiglas where Siglas_Codigo='",
         u"select siglas_eus from TSiglas where Siglas_Codigo='", u"'"},
        {sql::CodigoCausa, u"select CODCAUSA from TCausasCese where CAUSACAS='",
         u"select CODCAUSA  from TCausasCese where CAUSAEUS='", u"'"},
        {sql::CausaCese, u"Select CAUSACAS From TCausasCese WHERE  CODCAUSA='",
         u"Select CAUSAEUS From TCausasCese WHERE  CODCAUSA='", u"'"},
        {sql::Municipio, u"Select T08_NOMMUN From TMunicipios where T08_CODMUN=",
         u"Select T08_NOMMUN From TMunicipios where T08_CODMUN=", u""}};
    for (const SqlText& text : texts) {
        EXPECT_EQ(text.query.castellano, text.spanish);
        EXPECT_EQ(text.query.euskera, text.basque);
        EXPECT_EQ(text.query.final, text.end);
    }
}

TEST(CatalogueSql, OfTheListsIsTheTextOfTheProgram) {
    const std::vector<SqlText> texts{
        {sql::ListaSiglas, u"Select SIGLAS_CODIGO, SIGLAS_CAS From TSIGLAS ORDER BY SIGLAS_CAS",
         u"Select SIGLAS_CODIGO, SIGLAS_EUS From TSIGLAS ORDER BY SIGLAS_EUS", u""},
        {sql::ListaProvincias,
         u"Select T07_PRO_ID, T07_PRO_CAS From TProvincias Order By T07_PRO_CAS",
         u"Select T07_PRO_ID, T07_PRO_EUS From TProvincias Order By T07_PRO_EUS", u""},
        {sql::ListaMunicipios,
         u"Select T08_CODMUN, T08_NOMMUN From TMunicipios Order By T08_NOMMUN",
         u"Select T08_CODMUN, T08_NOMMUN From TMunicipios Order By T08_NOMMUN", u""},
        {sql::Epigrafes,
         u"Select EPIDEPCAS From TEpigrafes_2000 WHERE NOT(EPICODEPI='9999999') ORDER BY "
         u"EPIDEPCAS,EPICODEPI",
         u"Select EPIDEPEUS From TEpigrafes_2000 WHERE NOT(EPICODEPI='9999999') ORDER BY "
         u"EPIDEPEUS,EPICODEPI",
         u""},
        {sql::EpigrafeSinActividad,
         u"Select EPIDEPCAS From TEpigrafes_2000 WHERE (EPICODEPI='9999999') ORDER BY "
         u"EPIDEPCAS,EPICODEPI",
         u"Select EPIDEPEUS From TEpigrafes_2000 WHERE (EPICODEPI='9999999') ORDER BY "
         u"EPIDEPEUS,EPICODEPI",
         u""},
        {sql::FormasJuridicas,
         u"Select CODFORMA,LETDNI,DESCRIFORMACAS From TFormasJuridicas ORDER BY CODFORMA",
         u"Select CODFORMA,LETDNI,DESCRIFORMAEUS From TFormasJuridicas ORDER BY CODFORMA", u""},
        {sql::MotivosCambio, u"Select MOTIVOCAS From TMotivoCambio ORDER BY CODIGO",
         u"Select MOTIVOEUS From TMotivoCambio ORDER BY CODIGO", u""},
        {sql::CausasCese, u"Select CAUSACAS From TCausasCese", u"Select CAUSAEUS From TCausasCese",
         u""}};
    for (const SqlText& text : texts) {
        EXPECT_EQ(text.query.castellano, text.spanish);
        EXPECT_EQ(text.query.euskera, text.basque);
        EXPECT_EQ(text.query.final, text.end);
    }
}

// A key is put into the query as it stands.
TEST_F(Lookups, FailOnAQuoteInAKeyWithTheNameOfTheFile) {
    const QString key = QStringLiteral("O'X");
    const std::vector<std::function<QString()>> lookups{
        [&] { return catalogue.ObtenerCodigoEpigrafe(key); },
        [&] { return catalogue.ObtenerDescripcionEpigrafe(key); },
        [&] { return catalogue.ObtenerDescActivEcon(key); },
        [&] { return catalogue.ObtenerCodigoFormaJuridica(key); },
        [&] { return catalogue.ObtenerDescripcionSiglas(key); },
        [&] { return catalogue.ObtenerCodigoCausa(key); },
        [&] { return catalogue.ObtenerCausaCese(key); }};
    for (const auto& lookup : lookups) {
        try {
            lookup();
            ADD_FAILURE() << "no failure";
        } catch (const Fallo& failure) {
            EXPECT_TRUE(failure.Castellano().contains(lec));
            EXPECT_TRUE(failure.Euskera().contains(lec));
        }
    }
}

TEST_F(Lookups, FindOneTextInSpanish) {
    EXPECT_EQ(catalogue.ObtenerCodigoEpigrafe(QStringLiteral("SIN ACTIVIDAD")),
              QStringLiteral("9999999"));
    EXPECT_EQ(catalogue.ObtenerDescripcionEpigrafe(QStringLiteral("1.8611")),
              QStringLiteral("ALQUILER DE VIVIENDAS"));
    EXPECT_EQ(catalogue.ObtenerDescActivEcon(QStringLiteral("1.9721")),
              QStringLiteral("PELUQUERÍA"));
    EXPECT_EQ(catalogue.ObtenerCodigoFormaJuridica(QStringLiteral("Sociedad Anonima - A")),
              QStringLiteral("1"));
    EXPECT_EQ(catalogue.ObtenerDescFormaJuridica(90), QStringLiteral("OTROS"));
    EXPECT_EQ(catalogue.ObtenerNombreProvincia(28), QStringLiteral("Madrid"));
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Calle"));
    EXPECT_EQ(catalogue.ObtenerCodigoCausa(QStringLiteral("CESIÓN")), QStringLiteral("10"));
    EXPECT_EQ(catalogue.ObtenerCausaCese(QStringLiteral("99")), QStringLiteral("OTRAS"));
    EXPECT_EQ(catalogue.NombreMunicipio(7), QStringLiteral("Ñabarri"));
}

TEST_F(Lookups, FindOneTextInBasque) {
    offset = 10000;
    EXPECT_EQ(catalogue.ObtenerCodigoEpigrafe(QStringLiteral("JARDUERARIK GABE")),
              QStringLiteral("9999999"));
    EXPECT_EQ(catalogue.ObtenerDescripcionEpigrafe(QStringLiteral("1.8611")),
              QStringLiteral("ETXEBIZITZAK"));
    EXPECT_EQ(catalogue.ObtenerDescActivEcon(QStringLiteral("1.9721")),
              QStringLiteral("ILE APAINDEGIA"));
    EXPECT_EQ(catalogue.ObtenerCodigoFormaJuridica(QStringLiteral("BESTELAKOAK")),
              QStringLiteral("90"));
    EXPECT_EQ(catalogue.ObtenerDescFormaJuridica(1), QStringLiteral("SOZIETATE ANONIMOA - A"));
    EXPECT_EQ(catalogue.ObtenerNombreProvincia(28), QStringLiteral("Madril"));
    EXPECT_EQ(catalogue.ObtenerDescripcionSiglas(QStringLiteral("CL")), QStringLiteral("Kalea"));
    EXPECT_EQ(catalogue.ObtenerCodigoCausa(QStringLiteral("UZTEA")), QStringLiteral("10"));
    EXPECT_EQ(catalogue.ObtenerCausaCese(QStringLiteral("99")), QStringLiteral("BESTEAK"));
    EXPECT_EQ(catalogue.NombreMunicipio(7), QStringLiteral("Ñabarri"));
}

TEST_F(Lookups, GiveAnEmptyTextForWhatTheCatalogueDoesNotKnow) {
    const QString none = QStringLiteral("none");
    for (const QString& text :
         {catalogue.ObtenerCodigoEpigrafe(none), catalogue.ObtenerDescripcionEpigrafe(none),
          catalogue.ObtenerDescActivEcon(none), catalogue.ObtenerCodigoFormaJuridica(none),
          catalogue.ObtenerDescFormaJuridica(77), catalogue.ObtenerNombreProvincia(0),
          catalogue.ObtenerDescripcionSiglas(none), catalogue.ObtenerCodigoCausa(none),
          catalogue.ObtenerCausaCese(none), catalogue.NombreMunicipio(0)}) {
        EXPECT_TRUE(text.isEmpty());
        EXPECT_FALSE(text.isNull());
    }
}

TEST_F(Lookups, TakeTheLowestCodeOfADescriptionThatRepeats) {
    EXPECT_EQ(catalogue.ObtenerCodigoFormaJuridica(QStringLiteral("REPETIDA - E")),
              QStringLiteral("2"));
}

TEST_F(Lookups, ListKeysAndTextsInSpanishOrder) {
    const Tabla provinces = catalogue.ListaProvincias();
    EXPECT_EQ(provinces.FilaEntera(0), (Fila{QStringLiteral("C1"), QStringLiteral("Álava")}));
    EXPECT_EQ(provinces(1, 3), QVariant(QStringLiteral("Zamora")));
    const Tabla municipalities = catalogue.ListaMunicipios();
    EXPECT_EQ(municipalities(1, 1), QVariant(QStringLiteral("Nuarbe")));
    EXPECT_EQ(municipalities.FilaEntera(2),
              (Fila{QStringLiteral("C7"), QStringLiteral("Ñabarri")}));
    EXPECT_EQ(municipalities(1, 3), QVariant(QStringLiteral("Oreta")));
    EXPECT_EQ(catalogue.ListaSiglas().FilaEntera(1),
              (Fila{QStringLiteral("CL"), QStringLiteral("Calle")}));
    offset = 10000;
    EXPECT_EQ(catalogue.ListaSiglas().FilaEntera(0),
              (Fila{QStringLiteral("AV"), QStringLiteral("Etorbidea")}));
    EXPECT_EQ(catalogue.ListaProvincias()(1, 0), QVariant(QStringLiteral("Araba")));
}

TEST_F(Lookups, ListActivitiesWithTheRowForNoneApart) {
    EXPECT_EQ(catalogue.Epigrafes(),
              (QStringList{QStringLiteral("ALQUILER DE VIVIENDAS"),
                           QStringLiteral("ÁREAS DE DESCANSO"), QStringLiteral("PELUQUERÍA")}));
    EXPECT_EQ(catalogue.EpigrafeSinActividad(), QStringList{QStringLiteral("SIN ACTIVIDAD")});
    offset = 10000;
    EXPECT_EQ(catalogue.EpigrafeSinActividad(), QStringList{QStringLiteral("JARDUERARIK GABE")});
}

TEST_F(Lookups, ListFormsByCodeMotivesByCodeAndCausesAsTheyStand) {
    const Tabla forms = catalogue.FormasJuridicas();
    EXPECT_EQ(forms(0, 0), QVariant(1));
    EXPECT_EQ(forms.FilaEntera(3), (Fila{90, QStringLiteral(""), QStringLiteral("OTROS")}));
    EXPECT_EQ(catalogue.MotivosCambio().first(), QStringLiteral("00-No hay cambios"));
    EXPECT_EQ(
        catalogue.CausasCese(),
        (QStringList{QStringLiteral("CESIÓN"), QStringLiteral("OTRAS"), QStringLiteral("BAJA")}));
    offset = 10000;
    EXPECT_EQ(catalogue.CausasCese().first(), QStringLiteral("UZTEA"));
    EXPECT_EQ(catalogue.MotivosCambio().last(), QStringLiteral("31-Azkena"));
    EXPECT_EQ(catalogue.FormasJuridicas()(2, 3), QVariant(QStringLiteral("BESTELAKOAK")));
}

Tabla keyedList() {
    Tabla list;
    for (const auto& [key, text] : {std::pair{u"C1", u"Álava"},
                                    {u"c20", u"Kelmaria"},
                                    {u"cl", u"Calle"},
                                    {u"CL", u"second"},
                                    {u"-1", u"minus"},
                                    {u"C-1", u"not a code"},
                                    {u"C0", u"zero"},
                                    {u"C99999999999999999999", u"long"}})
        list.Anadir({QStringView(key).toString(), QStringView(text).toString()});
    return list;
}

struct ItemSearch {
    const char16_t* key;
    const char16_t* text;
};

TEST(BuscarListItem, FindsTheFirstKeyWithoutRegardToCase) {
    for (const ItemSearch& search : {ItemSearch{u"20", u"Kelmaria"},
                                     {u"1", u"Álava"},
                                     {u"01", u"Álava"},
                                     {u"CL", u"Calle"},
                                     {u"cl", u"Calle"},
                                     {u"C20", u"Kelmaria"},
                                     {u"2", u""},
                                     {u"XX", u""},
                                     {u"", u""},
                                     {u"020", u"Kelmaria"},
                                     {u" 20 ", u""},
                                     {u"+1", u""},
                                     {u"-1", u"minus"},
                                     {u"0", u"zero"},
                                     {u"00", u"zero"},
                                     {u"99999999999999999999", u"long"}})
        EXPECT_EQ(BuscarListItem(keyedList(), QStringView(search.key).toString()),
                  QStringView(search.text).toString())
            << QStringView(search.key).toString().toStdString();
    EXPECT_EQ(BuscarListItem({}, QStringLiteral("20")), QStringLiteral(""));
}

struct ComboSearch {
    const char16_t* code;
    int index;
};

TEST(SeleccionarComboPorCodigo, TakesTheFirstItemThatBeginsWithTheTwoCharacters) {
    const QStringList items{QStringLiteral("00-No"), QStringLiteral("10-Si"),
                            QStringLiteral("AB-x"), QStringLiteral("10-again"),
                            QStringLiteral("9")};
    for (const ComboSearch& search : {ComboSearch{u"00", 0},
                                      {u"10", 1},
                                      {u"ab", 2},
                                      {u"20", -1},
                                      {u"", -1},
                                      {u"  ", -1},
                                      {u"1", -1},
                                      {u"10-", -1},
                                      {u"9", 4}})
        EXPECT_EQ(SeleccionarComboPorCodigo(QStringView(search.code).toString(), items),
                  search.index)
            << QStringView(search.code).toString().toStdString();
    EXPECT_EQ(SeleccionarComboPorCodigo(QStringLiteral("  "), {QStringLiteral("  blanks")}), 0);
}

Tabla forms(int rows) {
    Tabla table(3);
    for (int row = 0; row < rows; ++row)
        table.Anadir({row, QStringLiteral("A"), QString::number(row)});
    return table;
}

TEST(OrdenFormasJuridicas, PutsTheLastRowFirst) {
    const QString none, name = QStringLiteral("NAME");
    const QStringList three{QStringLiteral("2"), QStringLiteral("0"), QStringLiteral("1")};
    EXPECT_EQ(OrdenFormasJuridicas(forms(3), none, 90), three);
    EXPECT_EQ(OrdenFormasJuridicas(forms(3), name, 1), three);
    EXPECT_EQ(OrdenFormasJuridicas(forms(3), name, 90), three + QStringList{name});
    EXPECT_EQ(OrdenFormasJuridicas(forms(1), none, 90), QStringList{QStringLiteral("0")});
    EXPECT_EQ(OrdenFormasJuridicas(forms(0), none, 90), QStringList());
}

}  // namespace
}  // namespace padral::test
