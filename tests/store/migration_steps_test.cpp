// The steps of a migration, and files and places that keep one from coming about: told in plain
// words, and the file is as before.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QFile>
#include <array>

#include "platform/another_user.h"
#include "platform/failure.h"
#include "store/migration.h"
#include "store/older_files.h"
#include "store/schema.h"

namespace padral::test {
namespace {

using store::Migration;
using store::MigrationStep;

void toThird(SQLite::Database& db) {
    db.exec("CREATE TABLE TPasos (paso INTEGER NOT NULL) STRICT");
    db.exec("INSERT INTO TPasos SELECT user_version FROM pragma_user_version");
}
void toFourth(SQLite::Database& db) {
    db.exec("INSERT INTO TPasos SELECT user_version FROM pragma_user_version");
    db.exec("CREATE INDEX IPasos ON TPasos (paso)");
}
void fourthLayout(SQLite::Database& db) {
    store::CreateDeclarationTables(db);
    db.exec("CREATE TABLE TPasos (paso INTEGER NOT NULL) STRICT");
    db.exec("CREATE INDEX IPasos ON TPasos (paso)");
}
void failsInSql(SQLite::Database& db) {
    db.exec("DELETE FROM TDeclaraciones");
    db.exec("INSERT INTO TNone VALUES (1)");
}
void breaksARule(SQLite::Database& db) {
    db.exec("DELETE FROM TParticipes");
    db.exec("UPDATE TDeclaraciones SET DNI = NULL");
}
void tellsPlainly(SQLite::Database& db) {
    db.exec("DROP TABLE TAnexoII");
    throw Fallo(QStringLiteral("No."), QStringLiteral("Ez."));
}
void doesNothing(SQLite::Database&) {}

const MigrationStep FirstStep = store::DeclarationsMigration().steps.front();

// The words that tell the failure of a migration and its cause.
void expectRefused(const QString& mod, const Migration& migration, const QString& spanish,
                   const QString& basque, int busyTimeout = 30) {
    try {
        store::Migrate(mod, busyTimeout, migration);
        ADD_FAILURE() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_EQ(failure.Castellano(),
                  QStringLiteral("El archivo «%1» es de una versión anterior del programa y no se"
                                 " ha podido adaptar; sigue como estaba.\n%2")
                      .arg(mod, spanish));
        EXPECT_EQ(failure.Euskera(),
                  QStringLiteral("«%1» fitxategia programaren aurreko bertsio batekoa da, eta ezin"
                                 " izan da egokitu; lehen bezala dago.\n%2")
                      .arg(mod, basque));
    }
}

struct Steps : OlderFile {
    // Refused, the bytes are the same, and no file is left beside it.
    void ExpectUntouched(const Migration& migration, const QString& spanish,
                         const QString& basque) {
        const QByteArray before = Bytes(mod);
        const QStringList files = FilesBeside(mod);
        expectRefused(mod, migration, spanish, basque);
        EXPECT_EQ(Bytes(mod), before);
        EXPECT_EQ(FilesBeside(mod), files);
    }
    QString Damaged() const { return QStringLiteral("El archivo «%1» está dañado.").arg(mod); }
    QString DamagedBasque() const {
        return QStringLiteral("«%1» fitxategia hondatuta dago.").arg(mod);
    }
};

TEST_F(Steps, RunInOrderFromTheLayoutOfTheFile) {
    const auto before = Content(mod);
    const std::array<MigrationStep, 3> three{{FirstStep, {2, toThird}, {3, toFourth}}};
    EXPECT_TRUE(store::Migrate(mod, 30, {three, fourthLayout}));
    EXPECT_EQ(Version(), QStringLiteral("4"));
    EXPECT_EQ(Rows(mod, QStringLiteral("TPasos"), {QStringLiteral("paso")}),
              (QStringList{QStringLiteral("2"), QStringLiteral("3")}));
    ExpectSurvived(mod, before);
    EXPECT_EQ(Value(copy, "PRAGMA user_version"), QStringLiteral("1"));
}

TEST_F(Steps, BeforeTheLayoutOfTheFileAreLeftOut) {
    store::Migrate(mod);
    const auto before = Content(mod);
    const std::array<MigrationStep, 3> three{{{1, failsInSql}, {2, toThird}, {3, toFourth}}};
    EXPECT_TRUE(store::Migrate(mod, 30, {three, fourthLayout}));
    EXPECT_EQ(Version(), QStringLiteral("4"));
    ExpectSurvived(mod, before);
    EXPECT_EQ(Value(Path("DPadralMod_v2.mdb"), "PRAGMA user_version"), QStringLiteral("2"));
}

TEST_F(Steps, ThatFailLeaveTheFileAsItWas) {
    const QString spanish =
        QStringLiteral("El motor de datos ha fallado en el archivo «%1» (código %2).");
    const QString basque =
        QStringLiteral("Datu-motorrak huts egin du «%1» fitxategian (%2 kodea).");
    const auto create = store::CreateDeclarationTables;
    const std::array<MigrationStep, 2> sql{{FirstStep, {2, failsInSql}}};
    ExpectUntouched({sql, create}, spanish.arg(mod).arg(1), basque.arg(mod).arg(1));
    const std::array<MigrationStep, 2> rule{{FirstStep, {2, breaksARule}}};
    ExpectUntouched({rule, create}, spanish.arg(mod).arg(19), basque.arg(mod).arg(19));
    const std::array<MigrationStep, 2> plain{{FirstStep, {2, tellsPlainly}}};
    ExpectUntouched({plain, create}, QStringLiteral("No."), QStringLiteral("Ez."));
    EXPECT_TRUE(store::Migrate(mod));
}

TEST_F(Steps, MustArriveAtTheTablesOfAFreshFile) {
    const std::array<MigrationStep, 1> none{{{1, doesNothing}}};
    ExpectUntouched({none, store::CreateDeclarationTables}, Damaged(), DamagedBasque());
    const std::array<MigrationStep, 2> noIndex{{FirstStep, {2, toThird}}};
    ExpectUntouched({noIndex, fourthLayout}, Damaged(), DamagedBasque());
}

struct SpoiledLayout {
    const char* name;
    const char* sql;
};

TEST_F(Steps, RefuseATableThatIsNotOfTheLayout) {
    for (const SpoiledLayout& spoiled :
         {SpoiledLayout{"no table", "DROP TABLE TApartado7"},
          SpoiledLayout{"no index", "DROP INDEX IListaDni"},
          SpoiledLayout{"other column", "ALTER TABLE TAnexoII RENAME COLUMN Obligado TO Otro"},
          SpoiledLayout{"no column", "ALTER TABLE TAnexoII DROP COLUMN Obligado"},
          SpoiledLayout{"one column more", "ALTER TABLE TAnexoII ADD COLUMN Otro TEXT"},
          SpoiledLayout{"no settings", "DELETE FROM TGENERAL"}}) {
        SCOPED_TRACE(spoiled.name);
        WriteLayout(mod, 1);
        Execute(mod, spoiled.sql);
        ExpectUntouched(store::DeclarationsMigration(), Damaged(), DamagedBasque());
    }
}

TEST_F(Steps, RefuseAFileThatIsDamagedWhereNoStepLooks) {
    const int page =
        Value(mod, "SELECT rootpage FROM sqlite_schema WHERE name = 'TApartado5'").toInt();
    QByteArray content = Bytes(mod);
    content.replace((page - 1) * 4096, 4096, QByteArray(4096, '\xA5'));
    Overwrite(mod, content);
    ExpectUntouched(store::DeclarationsMigration(), Damaged(), DamagedBasque());
}

TEST_F(Steps, LeaveANewerFileAlone) {
    Execute(mod, "PRAGMA user_version = 3");
    const QByteArray before = Bytes(mod);
    try {
        store::Migrate(mod);
        ADD_FAILURE() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_EQ(
            failure.Castellano(),
            QStringLiteral("El archivo «%1» es de una versión más nueva del programa.").arg(mod));
        EXPECT_EQ(
            failure.Euskera(),
            QStringLiteral("«%1» fitxategia programaren bertsio berriago batekoa da.").arg(mod));
    }
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

struct ReadOnlyOlder : Steps {
    const QString spanish =
        QStringLiteral("No se puede escribir en el archivo «%1»: es de solo lectura.").arg(mod);
    const QString basque =
        QStringLiteral("Ezin da «%1» fitxategian idatzi: irakurtzeko soilik da.").arg(mod);
    const QByteArray folder = QFileInfo(mod).path().toLocal8Bit();
    void Spoil(mode_t ofFolder, mode_t ofFile) {
        chmod(mod.toLocal8Bit().constData(), ofFile);
        chmod(folder.constData(), ofFolder);
        const QByteArray before = Bytes(mod);
        {
            const AnotherUser somebody;
            expectRefused(mod, store::DeclarationsMigration(), spanish, basque);
        }
        chmod(folder.constData(), 0755);
        EXPECT_EQ(Bytes(mod), before);
        EXPECT_EQ(FilesBeside(mod).size(), 2);
    }
};

TEST_F(ReadOnlyOlder, FilesAreTold) { Spoil(0777, 0444); }
TEST_F(ReadOnlyOlder, FoldersAreTold) { Spoil(0555, 0666); }

TEST_F(Steps, WaitNoLongerThanTheyAreTold) {
    SQLite::Database other(mod.toStdString(), SQLITE_OPEN_READWRITE);
    const SQLite::Transaction held(other, SQLite::TransactionBehavior::IMMEDIATE);
    expectRefused(
        mod, store::DeclarationsMigration(),
        QStringLiteral("El archivo «%1» está bloqueado por otro programa.").arg(mod),
        QStringLiteral("Beste programa batek blokeatuta dauka «%1» fitxategia.").arg(mod));
    EXPECT_EQ(Version(), QStringLiteral("1"));
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

}  // namespace
}  // namespace padral::test
