#include "make_catalogue/csv.h"

#include <gtest/gtest.h>

#include <QFile>

#include "make_catalogue/load_catalogue.h"
#include "store/catalogue_schema.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using catalogue::CsvError;
using catalogue::ParseCsv;
using Records = std::vector<catalogue::Record>;

struct Csv {
    const char* text;
    Records records;
};

TEST(Csv, SplitsRecordsAndFields) {
    for (const Csv& csv :
         std::vector<Csv>{{"", {}},
                          {"a,b\n1,2\n", {{"a", "b"}, {"1", "2"}}},
                          {"a,b\r\n1,2", {{"a", "b"}, {"1", "2"}}},
                          {"\xEF\xBB\xBF"
                           "a\n\nñ\n",
                           {{"a"}, {"ñ"}}},
                          {"a,b\n,\n", {{"a", "b"}, {"", ""}}},
                          {"a,b\n\"x, y\",\"\"\"z\"\"\"\n", {{"a", "b"}, {"x, y", "\"z\""}}},
                          {"a\n\"two\nlines\"\n", {{"a"}, {"two\nlines"}}},
                          {"a,b\n \"x\" , y\n", {{"a", "b"}, {" \"x\" ", " y"}}},
                          {"a,b\n\"x\",\"y\"", {{"a", "b"}, {"x", "y"}}}})
        EXPECT_EQ(ParseCsv(csv.text), csv.records) << csv.text;
}

TEST(Csv, RefusesWhatIsBrokenWithItsLine) {
    for (const auto& [text, line] : {std::pair{"a\n\"open\n", "line 3"},
                                     {"a,b\n1\n", "line 2"},
                                     {"a\n1,2\n", "line 2"},
                                     {"a\n\"x\"y\n", "line 2"},
                                     {"a,b\n\"1\n2\",3\n4\n", "line 4"}})
        try {
            ParseCsv(text);
            ADD_FAILURE() << text;
        } catch (const CsvError& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(line)) << error.what();
        }
}

struct Loading : StoreFiles {
    void SetUp() override {
        Write("TEpigrafes_2000", "EPICODEPI,EPIDEPCAS,EPIDEPEUS\n");
        Write("TFormasJuridicas", "CODFORMA,LETDNI,DESCRIFORMACAS,DESCRIFORMAEUS\n");
        Write("TProvincias", "T07_PRO_ID,T07_PRO_CAS,T07_PRO_EUS\n");
        Write("TMunicipios", "T08_NOMMUN,T08_CODMUN\n\"Uno, dos\",5\n");
        Write("TSiglas", "Siglas_Codigo,siglas_cas,siglas_eus\n");
        Write("TMotivoCambio", "CODIGO,MOTIVOCAS,MOTIVOEUS\n");
        Write("TCausasCese", "CODCAUSA,CAUSACAS,CAUSAEUS\n99,b,b\n10,a,a\n");
    }
    void Write(const char* table, const QByteArray& text) const {
        Overwrite(Path(table) + QStringLiteral(".csv"), text);
    }
    void Load() const { catalogue::WriteCatalogue(Path(""), lec); }
};

TEST_F(Loading, ReplacesTheCatalogueByTheRows) {
    Load();
    EXPECT_EQ(Value(lec, "SELECT T08_NOMMUN FROM TMunicipios WHERE T08_CODMUN = 5"),
              QStringLiteral("Uno, dos"));
    EXPECT_EQ(Value(lec, "SELECT CAUSACAS FROM TCausasCese"), QStringLiteral("b"));
    EXPECT_EQ(Value(lec, "SELECT count(*) FROM TProvincias"), QStringLiteral("0"));
}

TEST_F(Loading, RefusesWrongRowsAndKeepsTheOldCatalogue) {
    const QByteArray before = Bytes(lec);
    for (const char* text :
         {"T08_CODMUN,T08_NOMMUN\nx,a\n", "T08_CODMUN,T08_NOMMUN\n1,a\n1,b\n", "T08_CODMUN\n1\n",
          "T08_CODMUN,OTHER\n1,a\n", "", "T08_CODMUN,T08_NOMMUN\n99999999999,a\n"}) {
        Write("TMunicipios", text);
        try {
            Load();
            ADD_FAILURE() << text;
        } catch (const std::exception& error) {
            EXPECT_NE(std::string(error.what()).find("TMunicipios.csv"), std::string::npos)
                << error.what();
        }
        EXPECT_EQ(Bytes(lec), before);
    }
    QFile::remove(Path("TMunicipios.csv"));
    EXPECT_THROW(Load(), CsvError);
}

}  // namespace
}  // namespace padral::test
