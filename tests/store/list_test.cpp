#include <gtest/gtest.h>

#include "store/store_files.h"

namespace padral::test {
namespace {

using SvrDPadral::CriteriosLista;
using SvrDPadral::FilasDeclaracion;
using SvrDPadral::ListaDeclaraciones;

struct Entry {
    const char16_t* identifier;
    const char16_t* name;
    const char16_t* reference;
    int date;
};

// Keys 1 to 6.
constexpr std::array<Entry, 6> Entries{{{u"B20000002", u"NUÑEZ ANA", u"R2", 20200301},
                                        {u"12345678Z", u"ÑANDU SA", u"r10", 20191231},
                                        {u"a20000001", u"nunez luis", u"S1", 0},
                                        {u"X1234567L", u"OÑATE", u"", 20200301},
                                        {u"12345678Z", u"ZUBIA", u"R1", 20210101},
                                        {u"E12345674", u"ÁLAVA", u"Ñ1", 20150101}}};

struct List : StoreFiles {
    List() {
        for (const Entry& entry : Entries)
            Server().GuardarDeclaracion(Listed(QString(QStringView(entry.identifier).toString()),
                                               QStringView(entry.name).toString(),
                                               QStringView(entry.reference).toString(),
                                               entry.date));
    }
    std::vector<int> Keys(const CriteriosLista& criteria, const char* column,
                          const char* direction) const {
        ListaDeclaraciones list;
        const QString count = Server().DameDeclaraciones(criteria, list, QString::fromUtf8(column),
                                                         QString::fromUtf8(direction));
        EXPECT_EQ(count, QString::number(list.Filas()));
        std::vector<int> keys;
        for (int row = 0; row < list.Filas(); ++row) keys.push_back(list.csde(row));
        return keys;
    }
};

struct Order {
    const char* column;
    const char* direction;
    std::vector<int> keys;
};

TEST_F(List, SortsByEachColumnBothWaysAndTiesByKeyTheSameWay) {
    const std::vector<Order> orders{
        {"1", "ASC", {2, 5, 3, 1, 6, 4}}, {"1", "DESC", {4, 6, 1, 3, 5, 2}},
        {"2", "ASC", {6, 3, 1, 2, 4, 5}}, {"2", "DESC", {5, 4, 2, 1, 3, 6}},
        {"3", "ASC", {4, 6, 5, 2, 1, 3}}, {"3", "DESC", {3, 1, 2, 5, 6, 4}},
        {"4", "ASC", {3, 6, 2, 1, 4, 5}}, {"4", "DESC", {5, 4, 1, 2, 6, 3}},
        {"0", "ASC", {1, 2, 3, 4, 5, 6}}, {"5", "DESC", {6, 5, 4, 3, 2, 1}},
        {"", "ASC", {1, 2, 3, 4, 5, 6}},  {"-1", "desc", {6, 5, 4, 3, 2, 1}},
        {"4", "", {3, 6, 2, 1, 4, 5}}};
    for (const Order& order : orders)
        EXPECT_EQ(Keys({}, order.column, order.direction), order.keys)
            << order.column << order.direction;
}

struct Search {
    int column;
    const char16_t* value;
    std::vector<int> keys;
};

TEST_F(List, FindsByEachCriterionWithoutRegardToCase) {
    const std::vector<Search> searches{{1, u"12345678Z", {1, 2, 3, 4, 5, 6}},
                                       {1, u"A20000001", {1, 3, 4, 6}},
                                       {1, u"b2", {1, 4, 6}},
                                       {1, u"Z", {}},
                                       {2, u"NU", {1, 3}},
                                       {2, u"nuñ", {1}},
                                       {2, u"Ñ", {2}},
                                       {2, u"ñAN", {2}},
                                       {2, u"N", {1, 3}},
                                       {2, u"UÑEZ", {}},
                                       {2, u"NUÑEZ ANA", {1}},
                                       {2, u"NUÑEZ ANA ", {}},
                                       {2, u"á", {6}},
                                       {2, u"%", {}},
                                       {2, u"_", {}},
                                       {3, u"R", {1, 2, 5}},
                                       {3, u"r1", {2, 5}},
                                       {3, u"ñ", {6}},
                                       {4, u"20200301", {1, 4, 5}},
                                       {4, u"20210102", {}},
                                       {4, u"0", {1, 2, 3, 4, 5, 6}}};
    for (const Search& search : searches) {
        CriteriosLista criteria;
        criteria[static_cast<std::size_t>(search.column)] = QStringView(search.value).toString();
        EXPECT_EQ(Keys(criteria, "0", "ASC"), search.keys)
            << search.column << " " << QStringView(search.value).toString().toStdString();
    }
}

TEST_F(List, MeetsAllCriteriaAtOnceUnderEveryOrder) {
    const CriteriosLista criteria{QStringLiteral("not used"), QStringLiteral("1"),
                                  QStringLiteral("nu"), QStringLiteral("R"),
                                  QStringLiteral("20200101")};
    for (const char* column : {"0", "1", "2", "3", "4"})
        EXPECT_EQ(Keys(criteria, column, "ASC"), std::vector<int>{1}) << column;
}

TEST_F(List, TakesQuotesInACriterionAsTheyAre) {
    CriteriosLista criteria;
    criteria[2] = QStringLiteral("O'");
    EXPECT_TRUE(Keys(criteria, "2", "ASC").empty());
    Server().GuardarDeclaracion(Listed({}, QStringLiteral("O'NEILL \"X\""), {}, 0));
    EXPECT_EQ(Keys(criteria, "2", "ASC"), std::vector<int>{7});
}

TEST_F(List, FollowsChangesAndDeletions) {
    FilasDeclaracion changed = Listed(QStringLiteral("1"), QStringLiteral("AAA"), {}, 1);
    changed.general[0] = 5;
    Server().GuardarDeclaracion(changed);
    Server().EliminarDeclaracion(6);
    EXPECT_EQ(Keys({}, "2", "ASC"), (std::vector<int>{5, 3, 1, 2, 4}));
    CriteriosLista criteria;
    criteria[2] = QStringLiteral("ZUBIA");
    EXPECT_TRUE(Keys(criteria, "2", "ASC").empty());
}

TEST_F(List, HasTheColumnsByTheirIndex) {
    FilasDeclaracion rows;
    rows.general = {0,
                    QStringLiteral("dni"),
                    QStringLiteral("name Ñ"),
                    QStringLiteral("ref"),
                    20200102,
                    0,
                    0,
                    QStringLiteral("M"),
                    QStringLiteral("D"),
                    QString(),
                    QString(),
                    0,
                    QStringLiteral("XX    X ")};
    const int key = Server().GuardarDeclaracion(rows);
    ListaDeclaraciones list;
    CriteriosLista criteria;
    criteria[2] = QStringLiteral("name");
    EXPECT_EQ(
        Server().DameDeclaraciones(criteria, list, QStringLiteral("2"), QStringLiteral("ASC")),
        QStringLiteral("1"));
    const QVariantList expected{
        key,      QStringLiteral("dni"), QStringLiteral("name Ñ"),   QStringLiteral("ref"),
        20200102, QStringLiteral("M"),   QStringLiteral("XX    X "), QStringLiteral("D")};
    for (int column = 0; column < 8; ++column)
        EXPECT_EQ(list(column, 0), expected[column]) << column;
    EXPECT_EQ(list.fecha(0), 20200102);
    EXPECT_EQ(list.texto(ListaDeclaraciones::Causa2, 0), QStringLiteral("D"));
    EXPECT_EQ(list.texto(ListaDeclaraciones::Csde, 0), QString());
}

TEST_F(List, GivesNothingOutsideItsRowsAndColumns) {
    ListaDeclaraciones list;
    Server().DameDeclaraciones({}, list, QStringLiteral("1"), QStringLiteral("ASC"));
    EXPECT_EQ(list.UltimaFila(), 5);
    for (const auto& [column, row] : {std::pair{-1, 0}, {8, 0}, {0, -1}, {0, 6}})
        EXPECT_FALSE(list(column, row).isValid()) << column << " " << row;
}

TEST_F(StoreFiles, ListOfAnEmptyFileHasNoRowAndForgetsOldOnes) {
    ListaDeclaraciones list;
    list.Reservar(1);
    list.Anadir(1, 2, {"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(list.texto(ListaDeclaraciones::Apartados, 0), QStringLiteral("e"));
    EXPECT_EQ(Server().DameDeclaraciones({}, list, QStringLiteral("1"), QStringLiteral("ASC")),
              QStringLiteral("0"));
    EXPECT_LT(list.UltimaFila(), 0);
}

}  // namespace
}  // namespace padral::test
