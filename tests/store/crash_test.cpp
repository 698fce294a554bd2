// A save that is killed, or that the disk refuses, at any of its steps leaves the old declaration
// or the new one, whole.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/failure.h"
#include "store/faulty_disk.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

constexpr int Old = 10, New = 50;
// More than a save has; keeps a test that goes wrong from running on.
constexpr int MostSteps = 500;

struct Crash : StoreFiles {
    const qint32 key = Server().GuardarDeclaracion(DistinctDeclaration(0, Old));

    // Seed of the declaration that the file holds; every value must be of the same one.
    int Held() const {
        qint32 asked = key;
        SvrDPadral::FilasDeclaracion rows;
        Server().CargarDeclaracion(asked, rows);
        const int seed = rows.general[4].toInt() / 1000;
        ExpectSame(rows, DistinctDeclaration(key, seed));
        EXPECT_EQ(Value(mod, "PRAGMA integrity_check"), QStringLiteral("ok"));
        return seed;
    }
    void SaveNew() const { Server().GuardarDeclaracion(DistinctDeclaration(key, New)); }

    // Saves in a process that is killed before a step; false when the save came to its end.
    bool SaveKilledAt(int step) const {
        const pid_t child = fork();
        if (child == 0) {
            const FaultyDisk disk(DiskFault::Kill, step);
            SaveNew();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
};

TEST_F(Crash, KilledAtAnyStepLeavesTheOldDeclaration) {
    int step = 1;
    while (step < MostSteps && SaveKilledAt(step)) {
        EXPECT_EQ(Held(), Old) << "step " << step;
        ++step;
    }
    EXPECT_GT(step, 10);
    EXPECT_LT(step, MostSteps);
    EXPECT_EQ(Held(), New);
}

class RefusedSave : public Crash, public ::testing::WithParamInterface<DiskFault> {
protected:
    // False when the save came to its end.
    bool SaveRefusedAt(int step) const {
        const FaultyDisk disk(GetParam(), step);
        try {
            SaveNew();
        } catch (const Fallo& failure) {
            EXPECT_TRUE(failure.Castellano().contains(mod)) << failure.what();
            return true;
        }
        return false;
    }
};

TEST_P(RefusedSave, AtAnyStepIsToldAndLeavesTheOldDeclaration) {
    int step = 1;
    while (step < MostSteps && SaveRefusedAt(step)) {
        EXPECT_EQ(Held(), Old) << "step " << step;
        ++step;
    }
    EXPECT_GT(step, 10);
    EXPECT_LT(step, MostSteps);
    EXPECT_EQ(Held(), New);
}

INSTANTIATE_TEST_SUITE_P(Disk, RefusedSave, ::testing::Values(DiskFault::Full, DiskFault::Error));

TEST_F(Crash, FullDiskIsToldInPlainWords) {
    const FaultyDisk disk(DiskFault::Full, 1);
    try {
        SaveNew();
        FAIL() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_TRUE(failure.Castellano().startsWith(u"No queda sitio en el disco"));
        EXPECT_TRUE(failure.Euskera().startsWith(u"Ez dago lekurik diskoan"));
    }
}

// Two copies of the program on one file.
TEST_F(Crash, TwoProcessesSaveSideBySide) {
    constexpr int Each = 15;
    std::array<pid_t, 2> children{};
    for (pid_t& child : children) {
        child = fork();
        if (child != 0) continue;
        for (int i = 0; i < Each; ++i) Server().GuardarDeclaracion(DistinctDeclaration(0, i));
        _exit(0);
    }
    for (const pid_t child : children) {
        int status = 1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TDeclaraciones"), QString::number(2 * Each + 1));
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TAnexoII"), QString::number(2 * Each + 1));
    EXPECT_EQ(Held(), Old);
}

}  // namespace
}  // namespace padral::test
