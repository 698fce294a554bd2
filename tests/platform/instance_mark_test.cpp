#include "platform/instance_mark.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace padral {
namespace {

// What an outside tool does: it knows that no copy runs when it gets the lock for itself alone.
bool toolGetsLock() {
    const int descriptor = shm_open(NombreMarcaInstancia(), O_RDWR, 0);
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

TEST(InstanceMark, HasTheNameThatToolsLookFor) {
    EXPECT_STREQ(NombreMarcaInstancia(), "/ZZTT_Padral");
}

TEST(InstanceMark, IsHeldAsLongAsTheProcessRuns) {
    EXPECT_EQ(inProcess([] {
                  MarcarInstancia();
                  return toolGetsLock() ? 1 : 0;
              }),
              0);
}

TEST(InstanceMark, IsSharedByASecondCopy) {
    EXPECT_EQ(inProcess([] {
                  MarcarInstancia();
                  const int second = inProcess([] {
                      MarcarInstancia();
                      return toolGetsLock() ? 1 : 0;
                  });
                  return second != 0 || toolGetsLock() ? 1 : 0;
              }),
              0);
}

TEST(InstanceMark, IsOpenToEveryUser) {
    EXPECT_EQ(inProcess([] {
                  shm_unlink(NombreMarcaInstancia());
                  umask(077);
                  MarcarInstancia();
                  struct stat state {};
                  const int descriptor = shm_open(NombreMarcaInstancia(), O_RDONLY, 0);
                  fstat(descriptor, &state);
                  return (state.st_mode & 0777) == 0666 ? 0 : 1;
              }),
              0);
}

}  // namespace
}  // namespace padral
