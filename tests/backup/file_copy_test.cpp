// Copies that take their place whole, and the old file that stays beside.

#include "store/file_copy.h"

#include <SQLiteCpp/Transaction.h>
#include <sys/wait.h>
#include <unistd.h>

#include "failing_calls.h"
#include "platform/failure.h"
#include "store/new_files.h"
#include "store/schema.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using namespace padral::store;

const QDateTime Now(QDate(2026, 1, 31), QTime(10, 15, 30));

struct FileCopy : StoreFiles {
    const QString bak = Path("bak.mdb");
    const QString kept = Path("DPadralMod_20260131_101530.mdb");

    static void Fill(const QString& path, int declarations) {
        if (!QFileInfo::exists(path)) CreateDeclarationsFile(path);
        SvrDPadral::cDeclaracionesSvr server;
        server.mdbname = path;
        for (int i = 0; i < declarations; ++i) server.GuardarDeclaracion(DistinctDeclaration(0, i));
    }
    CopyJob Backup() const {
        return {.source = mod, .place = bak, .sourceInUse = true, .now = Now, .busyTimeout = 20};
    }
    CopyJob Restore() const { return {.source = bak, .place = mod, .now = Now, .busyTimeout = 20}; }
    QStringList Passing() const {
        return QFileInfo(mod).dir().entryList({QStringLiteral("*.nuevo*")},
                                              QDir::Files | QDir::Hidden);
    }
    // Leaves the file with the journal of a save that was killed in the middle.
    void KillASave() const {
        const pid_t child = fork();
        if (child == 0) {
            const FaultyDisk disk(DiskFault::Kill, 14);
            Server().GuardarDeclaracion(DistinctDeclaration(0, 90));
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
        ASSERT_GT(QFileInfo(mod + QStringLiteral("-journal")).size(), 512);
    }
    template <class Work>
    static QString Refusal(Work work) {
        try {
            work();
        } catch (const Fallo& failure) {
            return failure.Castellano();
        }
        return {};
    }
};

TEST_F(FileCopy, IsTheSameFile) {
    Fill(mod, 3);
    CheckedCopy copy(Backup());
    EXPECT_FALSE(QFileInfo::exists(bak));
    EXPECT_EQ(copy.Summary().declarations, 3);
    copy.Install();
    EXPECT_EQ(CheckHead(bak), SchemaVersion);
    EXPECT_EQ(CountDeclarations(bak), 3);
    EXPECT_EQ(Passing(), QStringList());
}

TEST_F(FileCopy, WhatIsNotInstalledLeavesNothing) {
    { const CheckedCopy copy(Backup()); }
    EXPECT_FALSE(QFileInfo::exists(bak));
    EXPECT_EQ(Passing(), QStringList());
}

// Another copy of the program saves while this one copies: the result is of one moment.
TEST_F(FileCopy, AnotherProgramMayWriteMeanwhile) {
    Fill(mod, 60);
    CopyJob job = Backup();
    bool saved = false;
    job.goOn = [&](LongStep step, int share) {
        if (step == LongStep::Copying && !saved && share < 1000) {
            saved = true;
            Server().GuardarDeclaracion(DistinctDeclaration(0, 90));
        }
        return true;
    };
    CheckedCopy copy(job);
    EXPECT_TRUE(saved);
    EXPECT_EQ(copy.Summary().declarations, 61);
}

TEST_F(FileCopy, LockedSourceInUseIsTold) {
    SQLite::Database other(mod.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(Refusal([&] { CheckedCopy copy(Backup()); }),
              QStringLiteral("El archivo «%1» está bloqueado por otro programa.").arg(mod));
    EXPECT_EQ(Passing(), QStringList());
}

// Some networks answer every lock like this.
TEST_F(FileCopy, CopyThatKnowsNoLocksIsReadWithoutThem) {
    Fill(bak, 2);
    SQLite::Database other(bak.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(CheckedCopy(Restore()).Summary().declarations, 2);
}

TEST_F(FileCopy, LockedPlaceIsToldAndStays) {
    Fill(bak, 2);
    SQLite::Database other(mod.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    CheckedCopy copy(Restore());
    EXPECT_EQ(Refusal([&] { copy.InstallKeepingOld(); }),
              QStringLiteral("El archivo «%1» está bloqueado por otro programa.").arg(mod));
    other.exec("ROLLBACK");
    EXPECT_EQ(CountDeclarations(mod), 0);
    EXPECT_FALSE(QFileInfo::exists(kept));
}

// What it saved then would be in neither file.
TEST_F(FileCopy, NobodySavesWhileTheFileChanges) {
    Fill(mod, 1);
    Fill(bak, 2);
    CheckedCopy copy(Restore());
    QString refusal;
    const BeforeLink other([&] {
        refusal = Refusal([&] { Server(10).GuardarDeclaracion(DistinctDeclaration(0, 90)); });
    });
    copy.InstallKeepingOld();
    EXPECT_EQ(refusal,
              QStringLiteral("El archivo «%1» está bloqueado por otro programa.").arg(mod));
    EXPECT_EQ(CountDeclarations(kept), 1);
}

TEST_F(FileCopy, OldFileStaysUnderADatedName) {
    Fill(mod, 1);
    Fill(bak, 2);
    const QByteArray old = Bytes(mod);
    EXPECT_EQ(CheckedCopy(Restore()).InstallKeepingOld(), kept);
    EXPECT_EQ(CountDeclarations(mod), 2);
    EXPECT_EQ(Bytes(kept), old);
}

TEST_F(FileCopy, NoNameIsTakenTwice) {
    Fill(bak, 2);
    Overwrite(kept, "one");
    Overwrite(Path("DPadralMod_20260131_101530_2.mdb"), "two");
    EXPECT_EQ(CheckedCopy(Restore()).InstallKeepingOld(), Path("DPadralMod_20260131_101530_3.mdb"));
    EXPECT_EQ(Bytes(kept), "one");
    EXPECT_EQ(Bytes(Path("DPadralMod_20260131_101530_2.mdb")), "two");
}

TEST_F(FileCopy, RightsOfTheOldFileAreKept) {
    Fill(bak, 2);
    constexpr QFile::Permissions Rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser |
                                          QFile::WriteUser | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(QFile::setPermissions(mod, Rights));
    const WithoutLinks stick;
    CheckedCopy(Restore()).InstallKeepingOld();
    EXPECT_EQ(QFile::permissions(mod), Rights);
    EXPECT_EQ(QFile::permissions(kept), Rights);
}

TEST_F(FileCopy, OldFileIsCopiedWhereItCannotHaveTwoNames) {
    const WithoutLinks stick;
    Fill(mod, 1);
    Fill(bak, 2);
    EXPECT_EQ(CheckedCopy(Restore()).InstallKeepingOld(), kept);
    EXPECT_EQ(CountDeclarations(mod), 2);
    EXPECT_EQ(CountDeclarations(kept), 1);
    Overwrite(mod, "damaged");
    EXPECT_EQ(CheckedCopy(Restore()).InstallKeepingOld(), Path("DPadralMod_20260131_101530_2.mdb"));
    EXPECT_EQ(CountDeclarations(mod), 2);
    EXPECT_EQ(Bytes(Path("DPadralMod_20260131_101530_2.mdb")), "damaged");
    EXPECT_EQ(Passing(), QStringList());
}

// The journal that a killed save left is played back into the old file, never into the new one.
TEST_F(FileCopy, JournalOfAKilledSaveBelongsToTheOldFile) {
    Fill(mod, 1);
    Fill(bak, 2);
    KillASave();
    CheckedCopy(Restore()).InstallKeepingOld();
    EXPECT_EQ(CheckDeclarationsFile(mod, mod, Restore().goOn).declarations, 2);
    EXPECT_EQ(CheckDeclarationsFile(kept, kept, Restore().goOn).declarations, 1);
}

TEST_F(FileCopy, JournalThatCannotBePlayedBackDoesNotMeetTheNewFile) {
    Fill(mod, 1);
    Fill(bak, 2);
    KillASave();
    const QByteArray journal = Bytes(mod + QStringLiteral("-journal"));
    Overwrite(mod, Bytes(mod).replace(0, 16, QByteArray(16, 'x')));
    const QByteArray old = Bytes(mod);
    CheckedCopy(Restore()).InstallKeepingOld();
    EXPECT_EQ(CheckDeclarationsFile(mod, mod, Restore().goOn).declarations, 2);
    EXPECT_EQ(Bytes(kept), old);
    EXPECT_EQ(Bytes(kept + QStringLiteral("-journal")), journal);
}

TEST_F(FileCopy, JournalOfADamagedFileGoesWithIt) {
    Fill(bak, 2);
    Overwrite(mod, "damaged");
    Overwrite(mod + QStringLiteral("-journal"), "its journal");
    CheckedCopy(Restore()).InstallKeepingOld();
    EXPECT_FALSE(QFileInfo::exists(mod + QStringLiteral("-journal")));
    EXPECT_EQ(CountDeclarations(mod), 2);
    EXPECT_EQ(Bytes(kept), "damaged");
    EXPECT_EQ(Bytes(kept + QStringLiteral("-journal")), "its journal");
}

TEST_F(FileCopy, BackupPlaysBackTheJournalFirst) {
    Fill(mod, 1);
    KillASave();
    CheckedCopy copy(Backup());
    EXPECT_EQ(copy.Summary().declarations, 1);
}

TEST_F(FileCopy, FilesLeftByAKilledProgramGo) {
    const QString left = Path("bak.mdb.1a2b.nuevo"), fresh = Path("bak.mdb.3c4d.nuevo");
    for (const QString& path : {left, fresh}) Overwrite(path, "x");
    const auto date = [](const QString& path, const QDateTime& time) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    };
    date(left, Now.addDays(-2));
    date(fresh, Now.addSecs(-60));
    CheckedCopy(Backup()).Install();
    EXPECT_FALSE(QFileInfo::exists(left));
    EXPECT_TRUE(QFileInfo::exists(fresh));
}

}  // namespace
}  // namespace padral::test
