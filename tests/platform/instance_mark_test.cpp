#include "platform/instance_mark.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace padral {
namespace {

// An object of this test alone: copies of the program may run beside it.
const char* mark() {
    static const std::string name = "/padral_test_" + std::to_string(getpid());
    return name.c_str();
}

struct InstanceMark : ::testing::Test {
    InstanceMark() { mark(); }
    ~InstanceMark() override { shm_unlink(mark()); }
};

// What an outside tool does: it knows that no copy runs when it gets the lock for itself alone.
bool toolGetsLock() {
    const int descriptor = shm_open(mark(), O_RDWR, 0);
    if (descriptor < 0) return true;
    const bool got = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    close(descriptor);
    return got;
}

// Runs a check in a process of its own, which ends with the mark that it may have made.
template <class Check>
int inProcess(Check check) {
    const pid_t child = fork();
    if (child == 0) _exit(check());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(InstanceMark, HasTheNameThatToolsLookFor) {
    EXPECT_STREQ(NombreMarcaInstancia(), "/ZZTT_Padral");
}

TEST_F(InstanceMark, IsHeldAsLongAsTheProcessRuns) {
    EXPECT_EQ(inProcess([] {
                  MarcarInstancia(mark());
                  return toolGetsLock() ? 1 : 0;
              }),
              0);
}

TEST_F(InstanceMark, IsSharedByASecondCopy) {
    EXPECT_EQ(inProcess([] {
                  MarcarInstancia(mark());
                  const int second = inProcess([] {
                      MarcarInstancia(mark());
                      return toolGetsLock() ? 1 : 0;
                  });
                  return second != 0 || toolGetsLock() ? 1 : 0;
              }),
              0);
}

TEST_F(InstanceMark, IsOpenToEveryUser) {
    EXPECT_EQ(inProcess([] {
                  umask(077);
                  MarcarInstancia(mark());
                  struct stat state {};
                  const int descriptor = shm_open(mark(), O_RDONLY, 0);
                  fstat(descriptor, &state);
                  return (state.st_mode & 0777) == 0666 ? 0 : 1;
              }),
              0);
}

}  // namespace
}  // namespace padral
