#include "store/list_query.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "store/collation.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using SvrDPadral::CriteriosLista;

std::string plan(const QString& path, const std::string& sql) {
    SQLite::Database db(path.toStdString(), SQLITE_OPEN_READONLY);
    SQLite::Statement explain(db, "EXPLAIN QUERY PLAN " + sql);
    std::string text;
    while (explain.executeStep()) text += explain.getColumn(3).getString() + "\n";
    return text;
}

TEST_F(StoreFiles, ListIsReadFromOneIndexInItsOrder) {
    const QString value = QStringLiteral("1");
    std::vector<CriteriosLista> searches(6);
    for (std::size_t column = 1; column <= 4; ++column)
        searches[column][column] = searches[5][column] = value;
    const std::array<const char*, 4> indexes{"IListaDni", "IListaNombre", "IListaReferencia",
                                             "IListaFecha"};
    for (int column = 1; column <= 4; ++column)
        for (const char* direction : {"ASC", "DESC"})
            for (const CriteriosLista& criteria : searches) {
                const std::string text = plan(mod, store::ListSql(criteria, QString::number(column),
                                                                  QString::fromUtf8(direction)));
                EXPECT_NE(text.find("USING COVERING INDEX " +
                                    std::string(indexes[static_cast<std::size_t>(column - 1)])),
                          std::string::npos)
                    << text;
                EXPECT_EQ(text.find("TEMP B-TREE"), std::string::npos) << text;
            }
}

TEST_F(StoreFiles, ListWithoutAColumnIsReadInTheOrderOfTheKeys) {
    EXPECT_EQ(plan(mod, store::ListSql({}, QStringLiteral("0"), QStringLiteral("DESC")))
                  .find("TEMP B-TREE"),
              std::string::npos);
}

TEST(Collation, PutsÑBehindNAndIgnoresCase) {
    const std::vector<QString> order{QStringLiteral("ana"),   QStringLiteral("ÁNGEL"),
                                     QStringLiteral("nuez"),  QStringLiteral("NUNEZ"),
                                     QStringLiteral("NUÑEZ"), QStringLiteral("ñandu"),
                                     QStringLiteral("ona")};
    for (std::size_t i = 0; i + 1 < order.size(); ++i) {
        EXPECT_LT(store::SortKey(order[i]), store::SortKey(order[i + 1])) << i;
        EXPECT_LT(store::CompareSpanish(order[i].toStdString(), order[i + 1].toStdString()), 0)
            << i;
    }
    EXPECT_EQ(store::SortKey(QStringLiteral("Ñandú")), store::SortKey(QStringLiteral("ñANDÚ")));
    EXPECT_NE(store::SortKey(QStringLiteral("nandu")), store::SortKey(QStringLiteral("nandú")));
    EXPECT_EQ(store::CompareSpanish("CESIÓN", "Cesión"), 0);
}

TEST(Collation, MakesKeysOfLongTextsWhole) {
    const QString longText(5000, u'ñ');
    EXPECT_LT(store::SortKey(longText), store::SortKey(longText + u'a'));
}

}  // namespace
}  // namespace padral::test
