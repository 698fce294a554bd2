// The functions of the C library stand here under their own names: a name in the program goes
// before that of a shared library.
#include "failing_calls.h"

#include <dlfcn.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace padral::test {

namespace {

struct Calls {
    DiskFault fault = DiskFault::None;
    int at = 0;
    int steps = 0;
    bool links = true;
    std::function<void()> beforeLink;
};
Calls calls;

// The error of the next step, 0 for none.
int errorOfNextStep() {
    if (++calls.steps < calls.at) return 0;
    switch (calls.fault) {
        case DiskFault::Kill:
            kill(getpid(), SIGKILL);
            break;
        case DiskFault::Full:
            return ENOSPC;
        case DiskFault::Error:
            return EIO;
        case DiskFault::None:
            break;
    }
    return 0;
}

template <class Function>
Function* behind(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int failWith(int error) {
    errno = error;
    return -1;
}

}  // namespace

FailingCalls::FailingCalls(DiskFault fault, int step) {
    calls.fault = fault;
    calls.at = step;
    calls.steps = 0;
}
FailingCalls::~FailingCalls() { calls.fault = DiskFault::None; }
int FailingCalls::Steps() const { return calls.steps; }

WithoutLinks::WithoutLinks() { calls.links = false; }
WithoutLinks::~WithoutLinks() { calls.links = true; }

BeforeLink::BeforeLink(std::function<void()> what) { calls.beforeLink = std::move(what); }
BeforeLink::~BeforeLink() { calls.beforeLink = nullptr; }

}  // namespace padral::test

using padral::test::behind;
using padral::test::calls;
using padral::test::errorOfNextStep;
using padral::test::failWith;

extern "C" {

int rename(const char* from, const char* to) noexcept {
    if (const int error = errorOfNextStep()) return failWith(error);
    static auto* const real = behind<int(const char*, const char*)>("rename");
    return real(from, to);
}

int link(const char* from, const char* to) noexcept {
    if (calls.beforeLink) calls.beforeLink();
    if (!calls.links) return failWith(EPERM);
    if (const int error = errorOfNextStep()) return failWith(error);
    static auto* const real = behind<int(const char*, const char*)>("link");
    return real(from, to);
}

int fsync(int file) {
    if (const int error = errorOfNextStep()) return failWith(error);
    static auto* const real = behind<int(int)>("fsync");
    return real(file);
}

int unlink(const char* path) noexcept {
    errorOfNextStep();
    static auto* const real = behind<int(const char*)>("unlink");
    return real(path);
}

}  // extern "C"
