#pragma once
// What tests of two processes need: a signal from one to the other, and notice of a wait.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <utility>

namespace padral::test {

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

}  // namespace padral::test
