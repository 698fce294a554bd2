// A file that another program holds locked for a moment is waited for.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "store/store_files.h"

namespace padral::test {
namespace {

/// While it lives the engine calls back each time it has found a lock and is going to wait.
class WaitWatch {
public:
    explicit WaitWatch(std::function<void()> onWait)
        : real_(sqlite3_vfs_find(nullptr)), onWait_(std::move(onWait)) {
        vfs_ = *real_;
        vfs_.zName = "watched waits";
        vfs_.pNext = nullptr;
        vfs_.pAppData = this;
        vfs_.xSleep = [](sqlite3_vfs* vfs, int microseconds) {
            auto* watch = static_cast<WaitWatch*>(vfs->pAppData);
            watch->onWait_();
            return watch->real_->xSleep(watch->real_, microseconds);
        };
        // The files of the engine's own disk look for its data.
        vfs_.xOpen = [](sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags,
                        int* out) {
            auto* real = static_cast<WaitWatch*>(vfs->pAppData)->real_;
            return real->xOpen(real, name, file, flags, out);
        };
        sqlite3_vfs_register(&vfs_, 1);
    }
    ~WaitWatch() {
        sqlite3_vfs_unregister(&vfs_);
        sqlite3_vfs_register(real_, 1);
    }
    WaitWatch(const WaitWatch&) = delete;
    WaitWatch& operator=(const WaitWatch&) = delete;

private:
    sqlite3_vfs* real_;
    sqlite3_vfs vfs_{};
    std::function<void()> onWait_;
};

struct Pipe {
    std::array<int, 2> ends{};
    Pipe() { EXPECT_EQ(pipe(ends.data()), 0); }
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }
    void Tell() const { EXPECT_EQ(write(ends[1], "x", 1), 1); }
    void Await() const {
        char said = 0;
        EXPECT_EQ(read(ends[0], &said, 1), 1);
    }
};

TEST_F(StoreFiles, ALockThatEndsInTimeIsWaitedFor) {
    const Pipe locked, waiting;
    const pid_t other = fork();
    if (other == 0) {
        alarm(60);  // not for ever, should the test go wrong
        SQLite::Database db(mod.toStdString(), SQLITE_OPEN_READWRITE);
        SQLite::Transaction held(db, SQLite::TransactionBehavior::EXCLUSIVE);
        locked.Tell();
        waiting.Await();
        held.commit();
        _exit(0);
    }
    locked.Await();
    int waits = 0;
    {
        const WaitWatch watch([&] {
            if (++waits == 1) waiting.Tell();
        });
        EXPECT_NO_THROW(Server().GuardarDeclaracion(DistinctDeclaration(0, 5)));
    }
    if (waits == 0) waiting.Tell();
    int status = 1;
    waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_GT(waits, 0) << "the save met no lock";
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TDeclaraciones"), QStringLiteral("1"));
}

TEST(Waiting, LastsFiveSecondsUnlessToldOtherwise) {
    EXPECT_EQ(SvrDPadral::cDeclaracionesSvr().busyTimeout, 5000);
}

}  // namespace
}  // namespace padral::test
