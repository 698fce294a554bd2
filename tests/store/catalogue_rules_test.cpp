// Each rule of the catalogue rows with a line that breaks it and its neighbours that do not.

#include <gtest/gtest.h>

#include <QFile>
#include <tuple>

#include "make_catalogue/load_catalogue.h"
#include "make_catalogue/rules.h"
#include "store/catalogue_files.h"
#include "store/catalogue_rule_cases.h"
#include "store/catalogue_schema.h"

namespace padral::test {
namespace {

using namespace lines;

constexpr const char* Sixty = "ABCDEFGHIJ ABCDEFGHI ABCDEFGHI ABCDEFGHI ABCDEFGHI ABCDEFGHI";

struct CatalogueRules : CatalogueFiles {
    /// "<file>:<line>: <what>", empty when the files are taken.
    std::string Refusal() const {
        try {
            catalogue::WriteCatalogue(Folder(), lec);
            return {};
        } catch (const catalogue::BadRows& rows) {
            return rows.what();
        }
    }
    std::string At(const char* table, int line) const {
        return File(table).toStdString() + ":" + std::to_string(line) + ": ";
    }
};

TEST_F(CatalogueRules, TakeRowsThatKeepThem) { EXPECT_EQ(Refusal(), ""); }

TEST_F(CatalogueRules, RefuseABadRowWithItsFileAndLine) {
    const QByteArray before = Bytes(lec);
    for (const auto& [table, line, text, what] : BadLines) {
        const QByteArray good = Bytes(File(table));
        Replace(table, line, text);
        EXPECT_EQ(Refusal(), At(table, line) + what) << text;
        Write(table, good);
    }
    EXPECT_EQ(Bytes(lec), before);
}

TEST_F(CatalogueRules, TellWhatIsMissingInTheLastLine) {
    for (const auto& [table, last, what] :
         {std::tuple{Provinces, 53, "51 rows instead of 52"}, {Causes, 10, "no row \"99\""}}) {
        const QByteArray good = Bytes(File(table));
        Replace(table, last, "");
        EXPECT_EQ(Refusal(), At(table, last - 1) + what);
        Write(table, good);
    }
}

TEST_F(CatalogueRules, RefuseFilesWithoutRows) {
    for (const auto& [text, what] :
         {std::pair{"", "no line with the names of the columns"},
          {"T08_CODMUN,T08_NOMMUN\n", "no rows"},
          {"T08_CODMUN,T08_NOMMUN,X\n1,Zubi,2\n", "3 columns instead of 2"}}) {
        Write(Municipalities, text);
        EXPECT_EQ(Refusal(), At(Municipalities, 1) + what);
    }
    ASSERT_TRUE(QFile::remove(File(Municipalities)));
    EXPECT_EQ(Refusal(), At(Municipalities, 1) + "cannot be read");
}

TEST_F(CatalogueRules, TellAllBadRowsOfARun) {
    Replace(Municipalities, 4, "Azpil,x");
    Replace(Municipalities, 2, "Zubi#,0");
    Replace(Municipalities, 3, "Zubi");
    Replace(Causes, 2, "10,cese,UZTEA");
    EXPECT_EQ(Refusal(), At(Municipalities, 2) + "T08_CODMUN \"0\": must be from 1 to 999\n" +
                             At(Municipalities, 2) + "T08_NOMMUN \"Zubi#\": " LETTERS "\n" +
                             At(Municipalities, 3) + "1 field instead of 2\n" +
                             At(Municipalities, 4) +
                             "T08_CODMUN \"x\": must be a number without zeros in front\n" +
                             At(Causes, 2) + "CAUSACAS \"cese\": " CAPITALS);
}

TEST_F(CatalogueRules, TellBothTextsOfARowWhoseTextsAreFixed) {
    Replace(Provinces, 21, "20,Otra,Besterik");
    EXPECT_EQ(Refusal(),
              At(Provinces, 21) + "T07_PRO_CAS \"Otra\": must be \"Kelmaria\" in this row\n" +
                  At(Provinces, 21) + "T07_PRO_EUS \"Besterik\": must be \"Kelmaria\" in this row");
}

TEST_F(CatalogueRules, TellNoMoreThanFiftyBadRows) {
    QByteArray rows = "T08_CODMUN,T08_NOMMUN\n";
    for (int i = 0; i < 53; ++i) rows += "1\n";
    Write(Municipalities, rows);
    const QString refusal = QString::fromStdString(Refusal());
    EXPECT_EQ(refusal.count(u'\n'), 50);
    EXPECT_EQ(refusal.section(u'\n', 49),
              QString::fromStdString(At(Municipalities, 51)) +
                  QStringLiteral("1 field instead of 2\n... and 3 more"));
}

TEST_F(CatalogueRules, TakeTheNeighboursOfBadRows) {
    for (const auto& [table, line, text, what] : GoodLines) {
        const QByteArray good = Bytes(File(table));
        Replace(table, line, text);
        EXPECT_EQ(Refusal(), what) << text;
        Write(table, good);
    }
}

TEST_F(CatalogueRules, TakeNamesOfSixtyCharacters) {
    ASSERT_EQ(std::string(Sixty).size(), 60U);
    const QByteArray longest = QByteArray("1.681,ABC,") + Sixty;
    Replace(Activities, 2, longest.constData());
    EXPECT_EQ(Refusal(), "");
    Replace(Activities, 2, (longest + 'A').constData());
    EXPECT_EQ(Refusal(),
              At(Activities, 2) + "EPIDEPEUS \"" + Sixty + "A\": must have 3 to 60 characters");
}

TEST(CatalogueRuleTables, NameTheColumnsOfTheTables) {
    const auto rules = catalogue::TableRules();
    const auto tables = store::CatalogueTables();
    ASSERT_EQ(rules.size(), tables.size());
    for (std::size_t i = 0; i < rules.size(); ++i) {
        EXPECT_EQ(rules[i].table.toString().toStdString(), tables[i].name);
        ASSERT_EQ(rules[i].columns.size(), tables[i].fields.size()) << tables[i].name;
        for (std::size_t j = 0; j < tables[i].fields.size(); ++j)
            EXPECT_EQ(rules[i].columns[j].column.toString().toStdString(),
                      tables[i].fields[j].name);
    }
}

}  // namespace
}  // namespace padral::test
