// Files of older layouts are carried to the present one with all that they hold.

#include "store/migration.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <gtest/gtest.h>

#include <QFile>

#include "store/database.h"
#include "store/general_server.h"
#include "store/new_files.h"
#include "store/older_files.h"
#include "store/participants_server.h"
#include "store/schema.h"

namespace padral::test {
namespace {

using store::FileFault;
using store::FileKind;
using store::Migrate;

class OlderLayout : public StoreFiles, public ::testing::WithParamInterface<int> {};

TEST_P(OlderLayout, IsCarriedToThePresentOneWithEveryValueOfEveryRow) {
    const QStringList fresh = Definitions(mod);
    WriteLayout(mod, GetParam());
    const auto before = Content(mod);
    for (auto table = before.begin(); table != before.end(); ++table)
        ASSERT_FALSE(table->rows.isEmpty()) << table.key().toStdString();
    EXPECT_TRUE(Migrate(mod));
    ExpectSurvived(mod, before);
    EXPECT_EQ(Definitions(mod), fresh);
    EXPECT_EQ(Value(mod, "PRAGMA user_version"), QString::number(store::SchemaVersion));
    EXPECT_EQ(Value(mod, "PRAGMA application_id"), QStringLiteral("1346654797"));
    EXPECT_EQ(Value(mod, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_FALSE(Migrate(mod));
}

INSTANTIATE_TEST_SUITE_P(Layouts, OlderLayout,
                         ::testing::Range(store::OldestSchemaVersion, store::SchemaVersion));

TEST_F(OlderFile, IsReadByTheOperationsAfterwards) {
    Migrate(mod);
    qint32 key = 2;
    SvrDPadral::FilasDeclaracion rows;
    Server().CargarDeclaracion(key, rows);
    EXPECT_EQ(rows.general.value(1), QStringLiteral("B20000004"));
    EXPECT_EQ(rows.general.value(2), QStringLiteral("nube blanca, s.l."));
    EXPECT_EQ(rows.general.value(4), 20240102);
    EXPECT_EQ(rows.apartado2.value(0), QStringLiteral("SiglasDomicilioFis 2"));
    EXPECT_EQ(rows.apartado6.value(0), 2000);
    EXPECT_EQ(rows.anexoII.value(18), 2018);
    ASSERT_EQ(rows.numParti, 2);
    EXPECT_EQ(rows.participes(3, 1), QStringLiteral("Ibáñez, Ane"));
    EXPECT_EQ(rows.participes(15, 0), 25.25F);
    SvrDPadral::cGeneral general;
    general.mdbnameread = general.mdbnamewrite = mod;
    EXPECT_EQ(general.NumeroDeclaraciones(), 3);
    EXPECT_EQ(general.DameIdioma(), QStringLiteral("E"));
    EXPECT_EQ(general.ObtenerActOnline(), 1);
    SvrVuelco::cDeclaSvr auxiliary;
    auxiliary.mdbname = mod;
    Tabla copied;
    EXPECT_EQ(auxiliary.DameParticipesAux(2, {}, copied, QStringLiteral("0"), {}),
              QStringLiteral("2"));
}

TEST_F(OlderFile, GivesNoKeyOfADeletedRowAgain) {
    Migrate(mod);
    EXPECT_EQ(Server().GuardarDeclaracion(DistinctDeclaration(0, 5)), 5);
    EXPECT_EQ(Server().AñadirParticipe(OneRow(Participant(0, 5, 1))), 5);
}

TEST_F(OlderFile, HasOneRowOfSettingsFromThenOn) {
    Execute(mod, "INSERT INTO TGENERAL VALUES ('C', 0, 'another')");
    Migrate(mod);
    EXPECT_EQ(Rows(mod, QStringLiteral("TGENERAL"),
                   {QStringLiteral("Fila"), QStringLiteral("IDI"), QStringLiteral("ActOnline"),
                    QStringLiteral("VersionOrden"), QStringLiteral("BACKUP_TVC")}),
              QStringList(QStringLiteral("1|'E'|1|'153.120.42.0'|''")));
    const char* const second =
        "INSERT INTO TGENERAL (IDI, ActOnline, VersionOrden)"
        " VALUES ('C', 0, '')";
    EXPECT_THROW(Execute(mod, second), SQLite::Exception);
}

TEST_F(OlderFile, KeepsWhatItHasBesideTheTables) {
    Execute(mod, "CREATE TABLE Notas (texto TEXT); INSERT INTO Notas VALUES ('mine')");
    EXPECT_TRUE(Migrate(mod));
    EXPECT_EQ(Value(mod, "SELECT texto FROM Notas"), QStringLiteral("mine"));
}

TEST_F(OlderFile, IsKeptAsACopyBesideThePresentOne) {
    const auto before = Content(mod);
    const QStringList definitions = Definitions(mod);
    ASSERT_TRUE(QFile::setPermissions(mod, QFile::ReadOwner | QFile::WriteOwner));
    const auto permissions = QFile::permissions(mod);
    Migrate(mod);
    EXPECT_EQ(FilesBeside(mod),
              (QStringList{QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb"),
                           QStringLiteral("DPadralMod_v1.mdb")}));
    ExpectSurvived(copy, before);
    EXPECT_EQ(Definitions(copy), definitions);
    EXPECT_EQ(Value(copy, "PRAGMA user_version"), QStringLiteral("1"));
    EXPECT_EQ(Value(copy, "PRAGMA application_id"), QStringLiteral("1346654797"));
    EXPECT_EQ(Value(copy, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(QFile::permissions(copy), permissions);
}

TEST_F(OlderFile, HasACopyThatCanTakeItsPlace) {
    Migrate(mod);
    ASSERT_TRUE(QFile::remove(mod));
    ASSERT_TRUE(QFile::rename(copy, mod));
    EXPECT_TRUE(Migrate(mod));
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TDeclaraciones"), QStringLiteral("3"));
}

TEST_F(OlderFile, IsCopiedUnderTheNextNameThatIsFree) {
    Overwrite(copy, "something else");
    Overwrite(Path("DPadralMod_v1_2.mdb"), "of other people");
    Migrate(mod);
    EXPECT_EQ(Bytes(copy), "something else");
    EXPECT_EQ(Bytes(Path("DPadralMod_v1_2.mdb")), "of other people");
    EXPECT_EQ(Value(Path("DPadralMod_v1_3.mdb"), "SELECT count(*) FROM TDeclaraciones"),
              QStringLiteral("3"));
}

TEST_F(OlderFile, IsNotCopiedTwice) {
    Overwrite(copy, "something else");
    EXPECT_EQ(store::KeepCopy(mod, 1), Path("DPadralMod_v1_2.mdb"));
    EXPECT_EQ(store::KeepCopy(mod, 1), QString());
    Migrate(mod);
    EXPECT_EQ(FilesBeside(mod).size(), 4);
    Overwrite(copy + QStringLiteral(".nuevo"), "half a copy of a program that was killed");
    WriteLayout(mod, 1);
    EXPECT_EQ(store::KeepCopy(mod, 1), QString());
    EXPECT_EQ(FilesBeside(mod).size(), 4);
}

TEST_F(StoreFiles, APresentFileIsNotWrittenNorCopied) {
    Server().GuardarDeclaracion(DistinctDeclaration(0, 5));
    const QByteArray before = Bytes(mod);
    EXPECT_FALSE(Migrate(mod));
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

struct SaidIdentity {
    const char* name;
    FileKind kind;
    store::Identity identity;
    std::optional<FileFault> fault;
};

TEST(FileIdentity, TellsWhatAFileIsGoodFor) {
    const int mod = 0x5044524D, lec = 0x5044524C;
    const SaidIdentity cases[] = {
        {"present", FileKind::Declarations, {mod, 2}, {}},
        {"older", FileKind::Declarations, {mod, 1}, FileFault::Older},
        {"never been", FileKind::Declarations, {mod, 0}, FileFault::Damaged},
        {"negative", FileKind::Declarations, {mod, -1}, FileFault::Damaged},
        {"newer", FileKind::Declarations, {mod, 3}, FileFault::Newer},
        {"foreign", FileKind::Declarations, {0, 2}, FileFault::Foreign},
        {"the other one", FileKind::Declarations, {lec, 1}, FileFault::Foreign},
        {"catalogue", FileKind::Catalogue, {lec, 1}, {}},
        {"older catalogue", FileKind::Catalogue, {lec, 0}, FileFault::Damaged},
        {"newer catalogue", FileKind::Catalogue, {lec, 2}, FileFault::Newer},
    };
    for (const SaidIdentity& said : cases)
        EXPECT_EQ(store::IdentityFault(said.kind, said.identity), said.fault) << said.name;
}

TEST_F(OlderFile, IsRefusedByTheOperations) {
    const QByteArray before = Bytes(mod);
    SvrDPadral::cGeneral general;
    general.mdbnameread = general.mdbnamewrite = mod;
    SvrVuelco::cDeclaSvr auxiliary;
    auxiliary.mdbname = mod;
    const std::function<void()> operations[] = {
        [&] { Server().GuardarDeclaracion({}); },
        [&] { Server().EliminarDeclaracion(1); },
        [&] { general.NumeroDeclaraciones(); },
        [&] { general.DameIdioma(); },
        [&] { general.CambiarIdioma(QStringLiteral("C")); },
        [&] { auxiliary.InsertarParticipes(2, {}); },
    };
    for (const auto& operation : operations) try {
            operation();
            ADD_FAILURE() << "no failure";
        } catch (const Fallo& failure) {
            EXPECT_EQ(failure.Castellano(),
                      QStringLiteral("El archivo «%1» es de una versión anterior del programa."
                                     " Se adaptará al iniciarlo de nuevo.")
                          .arg(mod));
            EXPECT_EQ(failure.Euskera(),
                      QStringLiteral("«%1» fitxategia programaren aurreko bertsio batekoa da."
                                     " Berriro abiaraztean egokituko da.")
                          .arg(mod));
        }
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

}  // namespace
}  // namespace padral::test
