// A migration that is killed, that the disk refuses, or that another program makes at the same
// time: afterwards the file is the whole older one or the whole present one.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "platform/failure.h"
#include "store/faulty_disk.h"
#include "store/migration.h"
#include "store/older_files.h"
#include "store/wait_watch.h"

namespace padral::test {
namespace {

// More than a migration has; keeps a test that goes wrong from running on.
constexpr int MostMigrationSteps = 500;

struct MigrationCrash : OlderFile {
    const QMap<QString, TableContent> before = Content(mod);
    const QStringList older = Definitions(mod);

    // Whole, and of the older layout.
    void ExpectOlder(int step) const {
        SCOPED_TRACE(step);
        ExpectSurvived(mod, before);
        EXPECT_EQ(Definitions(mod), older);
        EXPECT_EQ(Version(), QStringLiteral("1"));
        EXPECT_EQ(Value(mod, "PRAGMA integrity_check"), QStringLiteral("ok"));
    }
    // Whole, of the present layout, with one copy of the older one and nothing else beside it.
    void ExpectPresent() const {
        ExpectSurvived(mod, before);
        EXPECT_EQ(Version(), QStringLiteral("2"));
        EXPECT_EQ(Value(mod, "PRAGMA integrity_check"), QStringLiteral("ok"));
        EXPECT_EQ(FilesBeside(mod),
                  (QStringList{QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb"),
                               QStringLiteral("DPadralMod_v1.mdb")}));
        ExpectSurvived(copy, before);
        EXPECT_EQ(Definitions(copy), older);
    }
    // False when the migration came to its end.
    bool KilledAt(int step) const {
        const pid_t child = fork();
        if (child == 0) {
            const FaultyDisk disk(DiskFault::Kill, step);
            store::Migrate(mod);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
};

TEST_F(MigrationCrash, KilledAtAnyStepLeavesTheOlderFile) {
    int step = 1;
    while (step < MostMigrationSteps && !HasFailure() && KilledAt(step)) ExpectOlder(step++);
    EXPECT_GT(step, 30);
    EXPECT_LT(step, MostMigrationSteps);
    ExpectPresent();
}

class RefusedMigration : public MigrationCrash, public ::testing::WithParamInterface<DiskFault> {
protected:
    // False when the migration came to its end.
    bool RefusedAt(int step) const {
        const FaultyDisk disk(GetParam(), step);
        try {
            store::Migrate(mod);
        } catch (const Fallo& failure) {
            const QStringList cause = failure.Castellano().split(u'\n');
            EXPECT_TRUE(cause.first().endsWith(QStringLiteral("sigue como estaba.")));
            EXPECT_EQ(cause.last(), GetParam() == DiskFault::Full
                                        ? QStringLiteral("No queda sitio en el disco para el"
                                                         " archivo «%1».")
                                              .arg(mod)
                                        : QStringLiteral("El disco falla al leer o escribir el"
                                                         " archivo «%1».")
                                              .arg(mod));
            return true;
        }
        return false;
    }
};

TEST_P(RefusedMigration, AtAnyStepIsToldAndLeavesTheOlderFile) {
    int step = 1;
    while (step < MostMigrationSteps && !HasFailure() && RefusedAt(step)) ExpectOlder(step++);
    EXPECT_GT(step, 30);
    EXPECT_LT(step, MostMigrationSteps);
    ExpectPresent();
}

INSTANTIATE_TEST_SUITE_P(Disk, RefusedMigration,
                         ::testing::Values(DiskFault::Full, DiskFault::Error));

TEST_F(MigrationCrash, AFullDiskLeavesNoHalfCopy) {
    const FaultyDisk disk(DiskFault::Full, 5);
    EXPECT_THROW(store::Migrate(mod), Fallo);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

// All started at once, with what they wait for left to chance.
TEST_F(MigrationCrash, SeveralProcessesCarryItOverOnce) {
    std::array<pid_t, 4> children{};
    for (pid_t& child : children) {
        child = fork();
        if (child != 0) continue;
        try {
            store::Migrate(mod, 60000);
        } catch (const Fallo&) {
            _exit(1);
        }
        _exit(0);
    }
    for (const pid_t child : children) {
        int status = 1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    ExpectPresent();
}

TEST_F(MigrationCrash, AFileThatAnotherProgramCarriedMeanwhileIsLeftAsItIs) {
    const Pipe locked, waiting;
    const pid_t other = fork();
    if (other == 0) {
        alarm(60);  // not for ever, should the test go wrong
        SQLite::Database db(mod.toStdString(), SQLITE_OPEN_READWRITE);
        SQLite::Transaction held(db, SQLite::TransactionBehavior::IMMEDIATE);
        locked.Tell();
        waiting.Await();
        db.exec("PRAGMA user_version = 2");
        held.commit();
        _exit(0);
    }
    locked.Await();
    int waits = 0;
    {
        const WaitWatch watch([&] {
            if (++waits == 1) waiting.Tell();
        });
        EXPECT_TRUE(store::Migrate(mod));
    }
    if (waits == 0) waiting.Tell();
    int status = 1;
    waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_GT(waits, 0) << "the migration met no lock";
    EXPECT_EQ(Definitions(mod), older);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

}  // namespace
}  // namespace padral::test
