// SPDX-License-Identifier: MIT
// File systems that do not know every kind of lock, in the place of which the system's own call is exchanged.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <memory>

#include "base/errors.h"
#include "platform/process/file_run_lock.h"
#include "support/program_folder.h"

namespace {

enum class Locks { all, ofOpenFilesOnly, none };
Locks known = Locks::all;

}  // namespace

extern "C" int flock(int descriptor, int operation) noexcept {
  if (known == Locks::all) {
    return static_cast<int>(syscall(SYS_flock, descriptor, operation));
  }
  if (known == Locks::none) {
    // The kind that is asked for next is refused for a file that cannot be written.
    const int unwritable = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(unwritable, descriptor);
    close(unwritable);
  }
  errno = ENOLCK;
  return -1;
}

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

struct RunLockOnOddDisks : ::testing::Test {
  RunLockOnOddDisks() { known = Locks::ofOpenFilesOnly; }
  ~RunLockOnOddDisks() override { known = Locks::all; }
  RunLockOnOddDisks(const RunLockOnOddDisks&) = delete;
  RunLockOnOddDisks& operator=(const RunLockOnOddDisks&) = delete;

  ProgramFolder folder;
  std::unique_ptr<RunLock> first = FileRunLocks().makeRunLock(folder.path());
  std::unique_ptr<RunLock> second = FileRunLocks().makeRunLock(folder.path());
};

TEST_F(RunLockOnOddDisks, KeepsASecondRunOutByTheLocksThatThereAre) {
  first->take();
  EXPECT_THROW(second->take(), std::runtime_error);
  first->release();
  EXPECT_NO_THROW(second->take());
}

TEST_F(RunLockOnOddDisks, SaysThatThereAreNoneInsteadOfNamingARunThatIsNotOn) {
  known = Locks::none;
  try {
    first->take();
    ADD_FAILURE() << "It was taken.";
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("has no locks"));
  }
  EXPECT_FALSE(std::filesystem::exists(folder.file("tarnwick.lock")));
}

}  // namespace
}  // namespace tarnwick::testing
