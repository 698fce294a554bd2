#include "store/participants_server.h"

#include <gtest/gtest.h>

#include "store/store_files.h"

namespace padral::test {
namespace {

using SvrVuelco::cDeclaSvr;
using SvrVuelco::CriteriosParticipes;

struct Person {
    const char16_t *dni, *name, *street, *town;
    float share;
};

constexpr std::array<Person, 4> People{{{u"B20000002", u"NUÑEZ", u"GRANDE", u"Oreta", 33.33F},
                                        {u"12345678Z", u"nunez", u"ÑANDU", u"Azpil", 5.5F},
                                        {u"X1234567L", u"OÑA", u"NUEVA", u"", 33.33F},
                                        {u"a20000001", u"ÑU", u"grande", u"Oreta", 100.0F}}};

struct Auxiliary : StoreFiles {
    cDeclaSvr server;
    Auxiliary() {
        server.mdbname = mod;
        server.InsertarParticipes(1, table());
    }
    static Fila row(const Person& person, int cspa) {
        Fila values = Participant(cspa, 1, cspa);
        values[2] = QStringView(person.dni).toString();
        values[3] = QStringView(person.name).toString();
        values[5] = QStringView(person.street).toString();
        values[14] = QStringView(person.town).toString();
        values[15] = person.share;
        return values;
    }
    static Tabla table() {
        Tabla rows;
        for (const Person& person : People) rows.Anadir(row(person, rows.Filas() + 1));
        return rows;
    }
    std::vector<int> Keys(const CriteriosParticipes& criteria, const char* column,
                          const char* direction, qint32 csde = 1) const {
        Tabla rows;
        const QString count = server.DameParticipesAux(
            csde, criteria, rows, QString::fromUtf8(column), QString::fromUtf8(direction));
        EXPECT_EQ(count, QString::number(rows.Filas()));
        std::vector<int> keys;
        for (int i = 0; i < rows.Filas(); ++i) keys.push_back(rows(0, i).toInt());
        return keys;
    }
};

TEST_F(Auxiliary, GivesTheRowsBackValueForValueInTheirOrder) {
    Tabla rows;
    EXPECT_EQ(server.DameParticipesAux(1, {}, rows, QStringLiteral("0"), QStringLiteral("ASC")),
              QStringLiteral("4"));
    for (int i = 0; i < rows.Filas(); ++i)
        ExpectSame(rows.FilaEntera(i), table().FilaEntera(i), "row");
}

struct Order {
    const char *column, *direction;
    std::vector<int> keys;
};

TEST_F(Auxiliary, SortsByEachColumn) {
    for (const Order& order : std::vector<Order>{{"1", "ASC", {2, 4, 1, 3}},
                                                 {"1", "DESC", {3, 1, 4, 2}},
                                                 {"2", "ASC", {2, 1, 4, 3}},
                                                 {"3", "ASC", {1, 4, 3, 2}},
                                                 {"3", "DESC", {2, 3, 1, 4}},
                                                 {"4", "ASC", {3, 2, 1, 4}},
                                                 {"5", "ASC", {2, 1, 3, 4}},
                                                 {"5", "DESC", {4, 1, 3, 2}},
                                                 {"0", "DESC", {1, 2, 3, 4}},
                                                 {"6", "ASC", {1, 2, 3, 4}}})
        EXPECT_EQ(Keys({}, order.column, order.direction), order.keys)
            << order.column << order.direction;
}

struct Search {
    std::size_t column;
    const char16_t* value;
    std::vector<int> keys;
};

TEST_F(Auxiliary, FindsByEachCriterionWithoutRegardToCase) {
    for (const Search& search : std::vector<Search>{{1, u"A20000001", {1, 3, 4}},
                                                    {2, u"NU", {1, 2}},
                                                    {2, u"ñ", {4}},
                                                    {3, u"Grande", {1, 4}},
                                                    {4, u"ore", {1, 4}},
                                                    {5, u"33,33", {1, 3, 4}},
                                                    {5, u"5.5", {1, 2, 3, 4}},
                                                    {5, u"101", {}}}) {
        CriteriosParticipes criteria;
        criteria[search.column] = QStringView(search.value).toString();
        EXPECT_EQ(Keys(criteria, "0", "ASC"), search.keys) << search.column;
    }
    CriteriosParticipes several;
    several[0] = QStringLiteral("not used");
    several[1] = QStringLiteral("B");
    EXPECT_EQ(Keys(several, "0", "ASC"), (std::vector<int>{1, 3}));
    several[2] = QStringLiteral("N");
    several[5] = QStringLiteral("33");
    EXPECT_EQ(Keys(several, "1", "ASC"), std::vector<int>{1});
}

TEST_F(Auxiliary, ReplacesTheWholeListOfTheDeclarationOnly) {
    server.InsertarParticipes(2, OneRow(row(People[0], 9)));
    server.InsertarParticipes(1, OneRow(row(People[1], 8)));
    EXPECT_EQ(Keys({}, "0", "ASC"), std::vector<int>{8});
    EXPECT_EQ(Keys({}, "0", "ASC", 2), std::vector<int>{9});
    server.InsertarParticipes(1, {});
    EXPECT_TRUE(Keys({}, "0", "ASC").empty());
}

TEST_F(Auxiliary, GoesWithItsDeclarationAndNoOther) {
    server.InsertarParticipes(2, OneRow(row(People[0], 9)));
    Server().EliminarDeclaracion(1);
    EXPECT_TRUE(Keys({}, "0", "ASC", 1).empty());
    EXPECT_EQ(Keys({}, "0", "ASC", 2), std::vector<int>{9});
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TParticipesAux"), QStringLiteral("1"));
    // The participants alone are another matter.
    Server().EliminarParticipes(2);
    EXPECT_EQ(Keys({}, "0", "ASC", 2), std::vector<int>{9});
}

TEST_F(Auxiliary, IsApartFromTheParticipantsOfTheDeclaration) {
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TParticipes"), QStringLiteral("0"));
    EXPECT_TRUE(Keys({}, "0", "ASC", 3).empty());
}

}  // namespace
}  // namespace padral::test
