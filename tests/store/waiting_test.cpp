// A file that another program holds locked for a moment is waited for.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/store_files.h"
#include "store/wait_watch.h"

namespace padral::test {
namespace {

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
