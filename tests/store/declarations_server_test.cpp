#include "store/declarations_server.h"

#include <gtest/gtest.h>

#include "store/schema.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using SvrDPadral::FilasDeclaracion;

struct Declarations : StoreFiles {
    FilasDeclaracion Load(qint32 csde) const {
        FilasDeclaracion rows;
        Server().CargarDeclaracion(csde, rows);
        return rows;
    }
};

TEST_F(Declarations, ComeBackValueForValue) {
    const FilasDeclaracion saved = DistinctDeclaration(0, 10);
    const qint32 key = Server().GuardarDeclaracion(saved);
    FilasDeclaracion expected = saved;
    expected.general[0] = key;
    ExpectSame(Load(key), expected);
}

TEST_F(Declarations, GetANewKeyWhenTheirFirstElementIsZero) {
    const qint32 first = Server().GuardarDeclaracion(DistinctDeclaration(0, 10));
    const qint32 second = Server().GuardarDeclaracion(DistinctDeclaration(0, 50));
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first);
    EXPECT_EQ(Load(first).general[1], DistinctDeclaration(0, 10).general[1]);
}

TEST_F(Declarations, ReplaceTheOneOfTheirKey) {
    const qint32 first = Server().GuardarDeclaracion(DistinctDeclaration(0, 10));
    const qint32 other = Server().GuardarDeclaracion(DistinctDeclaration(0, 30));
    EXPECT_EQ(Server().GuardarDeclaracion(DistinctDeclaration(first, 60)), first);
    ExpectSame(Load(first), DistinctDeclaration(first, 60));
    ExpectSame(Load(other), DistinctDeclaration(other, 30));
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TDeclaraciones"), QStringLiteral("2"));
}

TEST_F(Declarations, AreSavedAgainAfterAnotherCopyDeletedThem) {
    const qint32 key = Server().GuardarDeclaracion(DistinctDeclaration(0, 10));
    Server().EliminarDeclaracion(key);
    EXPECT_EQ(Server().GuardarDeclaracion(DistinctDeclaration(key, 20)), key);
    ExpectSame(Load(key), DistinctDeclaration(key, 20));
}

TEST_F(Declarations, KeepEmptyAndBlankApartInEveryText) {
    for (const QString& text : {QStringLiteral(""), QStringLiteral(" "), QStringLiteral("  x  ")}) {
        FilasDeclaracion rows = DistinctDeclaration(0, 1);
        for (Fila FilasDeclaracion::*section :
             {&FilasDeclaracion::general, &FilasDeclaracion::apartado2,
              &FilasDeclaracion::apartado3, &FilasDeclaracion::apartado4,
              &FilasDeclaracion::apartado5, &FilasDeclaracion::apartado6,
              &FilasDeclaracion::apartado7, &FilasDeclaracion::anexoII})
            for (QVariant& value : rows.*section)
                if (value.metaType().id() == QMetaType::QString) value = text;
        rows.general[0] = Server().GuardarDeclaracion(rows);
        ExpectSame(Load(rows.general[0].toInt()), rows);
    }
}

TEST_F(Declarations, KeepNumbersFromTheLowestToTheHighest) {
    for (const int number : {0, -1, 99999, 2147483647, -2147483647 - 1}) {
        FilasDeclaracion rows = DistinctDeclaration(0, 1);
        for (QVariant& value : rows.apartado2)
            if (value.metaType().id() == QMetaType::Int) value = number;
        rows.general[0] = Server().GuardarDeclaracion(rows);
        ExpectSame(Load(rows.general[0].toInt()), rows);
    }
}

// What an unfilled record reads as: 0, "" or a blank by the type, never a null.
TEST_F(Declarations, ReadMissingValuesAsEmptyByType) {
    const qint32 key = Server().GuardarDeclaracion({});
    FilasDeclaracion rows = Load(key);
    EXPECT_EQ(rows.general[1], QVariant(QStringLiteral("")));
    EXPECT_EQ(rows.general[4], QVariant(0));
    EXPECT_EQ(rows.apartado4[0], QVariant(QStringLiteral(" ")));
    EXPECT_EQ(rows.apartado5[27], QVariant(QStringLiteral(" ")));
    EXPECT_EQ(rows.apartado7[58], QVariant(QStringLiteral("")));
    EXPECT_EQ(rows.anexoII[18], QVariant(0));
    for (const Fila* row : {&rows.general, &rows.apartado2, &rows.apartado3, &rows.apartado7})
        for (const QVariant& value : *row) EXPECT_FALSE(value.isNull());
}

TEST_F(Declarations, OfAnUnknownKeyAreEmptyArrays) {
    qint32 key = 77;
    FilasDeclaracion rows = DistinctDeclaration(77, 3);
    Server().CargarDeclaracion(key, rows);
    EXPECT_EQ(key, 77);
    EXPECT_EQ(rows.general.size(), 18);
    EXPECT_EQ(rows.general[0], QVariant(0));
    EXPECT_EQ(rows.general[2], QVariant(QStringLiteral("")));
    EXPECT_EQ(rows.apartado2.size(), 47);
    EXPECT_EQ(rows.apartado5[3], QVariant(QStringLiteral(" ")));
    EXPECT_EQ(rows.anexoII.size(), 19);
    EXPECT_EQ(rows.participes.UltimaFila(), -1);
    EXPECT_EQ(rows.numParti, 0);
}

TEST_F(Declarations, WithoutParticipantsHaveAnEmptyTable) {
    const FilasDeclaracion rows = Load(Server().GuardarDeclaracion(DistinctDeclaration(0, 1)));
    EXPECT_EQ(rows.numParti, 0);
    EXPECT_EQ(rows.participes.Columnas(), 20);
    EXPECT_LT(rows.participes.UltimaFila(), 0);
}

TEST_F(Declarations, DoNotSaveTheParticipantsThatTravelWithThem) {
    FilasDeclaracion rows = DistinctDeclaration(0, 1);
    rows.participes = OneRow(Participant(0, 1, 5));
    rows.numParti = 1;
    EXPECT_EQ(Load(Server().GuardarDeclaracion(rows)).numParti, 0);
}

TEST_F(Declarations, AreDeletedWithAllTheirSections) {
    const qint32 gone = Server().GuardarDeclaracion(DistinctDeclaration(0, 1));
    const qint32 kept = Server().GuardarDeclaracion(DistinctDeclaration(0, 30));
    Server().EliminarParticipes(gone);
    Server().EliminarDeclaracion(gone);
    ExpectSame(Load(kept), DistinctDeclaration(kept, 30));
    for (const store::RecordTable& table : store::SectionTables())
        EXPECT_EQ(Value(mod, ("SELECT count(*) FROM " + std::string(table.name)).c_str()),
                  QStringLiteral("1"));
    // A key is not given again: what is left of the old declaration finds no new owner.
    EXPECT_GT(Server().GuardarDeclaracion(DistinctDeclaration(0, 1)), kept);
}

TEST_F(Declarations, ThatAreMissingAreDeletedWithoutAnError) {
    const QByteArray before = Bytes(mod);
    Server().EliminarDeclaracion(5);
    Server().EliminarParticipes(5);
    Server().EliminarParticipe(5);
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TParticipes"), QStringLiteral("0"));
    EXPECT_EQ(Bytes(mod).size(), before.size());
}

struct ParticipantRows : Declarations {
    const qint32 csde = Server().GuardarDeclaracion(DistinctDeclaration(0, 1));
};

TEST_F(ParticipantRows, AreAddedUnderNewKeysInTheirOrder) {
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    const qint32 second = Server().AñadirParticipe(OneRow(Participant(first, csde, 7)));
    EXPECT_GT(second, first);
    const FilasDeclaracion rows = Load(csde);
    EXPECT_EQ(rows.numParti, 2);
    ExpectSame(rows.participes.FilaEntera(0), Participant(first, csde, 5), "first");
    ExpectSame(rows.participes.FilaEntera(1), Participant(second, csde, 7), "second");
}

TEST_F(ParticipantRows, KeepTheirPercentageInSinglePrecision) {
    Fila row = Participant(0, csde, 5);
    row[15] = 33.33F;
    Server().AñadirParticipe(OneRow(row));
    EXPECT_EQ(Load(csde).participes(15, 0).toFloat(), 33.33F);
}

TEST_F(ParticipantRows, AreModifiedByTheirKey) {
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    const qint32 second = Server().AñadirParticipe(OneRow(Participant(0, csde, 6)));
    Server().ModificarParticipe(OneRow(Participant(first, csde, 9)));
    const FilasDeclaracion rows = Load(csde);
    ASSERT_EQ(rows.numParti, 2);
    ExpectSame(rows.participes.FilaEntera(0), Participant(first, csde, 9), "modified");
    ExpectSame(rows.participes.FilaEntera(1), Participant(second, csde, 6), "untouched");
}

// Another copy may have deleted it since it was loaded here.
TEST_F(ParticipantRows, ThatAreGoneComeBackUnderTheirKey) {
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    const qint32 second = Server().AñadirParticipe(OneRow(Participant(0, csde, 6)));
    Server().EliminarParticipe(first);
    Server().ModificarParticipe(OneRow(Participant(first, csde, 9)));
    const FilasDeclaracion rows = Load(csde);
    ASSERT_EQ(rows.numParti, 2);
    ExpectSame(rows.participes.FilaEntera(0), Participant(first, csde, 9), "back");
    ExpectSame(rows.participes.FilaEntera(1), Participant(second, csde, 6), "untouched");
    // A key that the store has not given yet is not given twice after that.
    Server().ModificarParticipe(OneRow(Participant(second + 5, csde, 7)));
    EXPECT_GT(Server().AñadirParticipe(OneRow(Participant(0, csde, 8))), second + 5);
    EXPECT_EQ(Load(csde).numParti, 4);
}

TEST_F(ParticipantRows, ComeBackWithTheirDeclaration) {
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    const qint32 second = Server().AñadirParticipe(OneRow(Participant(0, csde, 6)));
    FilasDeclaracion loaded = Load(csde);
    Server().EliminarParticipes(csde);
    Server().EliminarDeclaracion(csde);
    ASSERT_EQ(Load(csde).numParti, 0);
    EXPECT_EQ(Server().GuardarDeclaracion(loaded), csde);
    for (int i = 0; i < loaded.participes.Filas(); ++i)
        Server().ModificarParticipe(OneRow(loaded.participes.FilaEntera(i)));
    const FilasDeclaracion back = Load(csde);
    ExpectSame(back, loaded);
    ASSERT_EQ(back.numParti, 2);
    ExpectSame(back.participes.FilaEntera(0), Participant(first, csde, 5), "first");
    ExpectSame(back.participes.FilaEntera(1), Participant(second, csde, 6), "second");
}

// What is left of a deleted one, such as a list in memory, finds no other in its place.
TEST_F(ParticipantRows, NeverGetAKeyThatWasGivenBefore) {
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    const qint32 second = Server().AñadirParticipe(OneRow(Participant(0, csde, 6)));
    Server().EliminarParticipe(second);
    const qint32 third = Server().AñadirParticipe(OneRow(Participant(0, csde, 7)));
    EXPECT_GT(second, first);
    EXPECT_GT(third, second);
    Server().EliminarParticipes(csde);
    EXPECT_GT(Server().AñadirParticipe(OneRow(Participant(0, csde, 8))), third);
}

TEST_F(ParticipantRows, AreDeletedOneByOneOrAllOfADeclaration) {
    const qint32 other = Server().GuardarDeclaracion(DistinctDeclaration(0, 2));
    const qint32 first = Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    Server().AñadirParticipe(OneRow(Participant(0, csde, 6)));
    Server().AñadirParticipe(OneRow(Participant(0, other, 7)));
    Server().EliminarParticipe(first);
    EXPECT_EQ(Load(csde).numParti, 1);
    Server().EliminarParticipes(csde);
    EXPECT_EQ(Load(csde).numParti, 0);
    EXPECT_EQ(Load(other).numParti, 1);
}

TEST_F(ParticipantRows, AreLeftByTheDeletionOfTheirDeclaration) {
    Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    Server().EliminarDeclaracion(csde);
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TParticipes"), QStringLiteral("1"));
}

TEST_F(ParticipantRows, AreKeptWhenTheirDeclarationIsSavedAgain) {
    Server().AñadirParticipe(OneRow(Participant(0, csde, 5)));
    Server().GuardarDeclaracion(DistinctDeclaration(csde, 20));
    EXPECT_EQ(Load(csde).numParti, 1);
}

TEST_F(ParticipantRows, OfAnEmptyTableAreNone) {
    EXPECT_EQ(Server().AñadirParticipe({}), 0);
    Server().ModificarParticipe({});
    EXPECT_EQ(Load(csde).numParti, 0);
}

}  // namespace
}  // namespace padral::test
