// SPDX-License-Identifier: MIT
#include "platform/process/file_run_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QCoreApplication>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "base/errors.h"
#include "support/file_bytes.h"
#include "support/program_folder.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

struct RunLockTest : ::testing::Test {
  ProgramFolder folder;
  std::unique_ptr<RunLock> one = FileRunLocks().makeRunLock(folder.path());
  std::unique_ptr<RunLock> other = FileRunLocks().makeRunLock(folder.path());
  RunLock& first = *one;
  RunLock& second = *other;

  std::string refusalOfSecond() {
    try {
      second.take();
    } catch (const std::runtime_error& refusal) {
      return refusal.what();
    }
    return "taken";
  }
};

TEST_F(RunLockTest, KeepsASecondRunOutAndNamesTheProcessAndTheFolder) {
  first.take();
  const std::string refusal = refusalOfSecond();
  EXPECT_THAT(refusal, HasSubstr(std::to_string(QCoreApplication::applicationPid())));
  EXPECT_THAT(refusal, HasSubstr(folder.path()));
}

TEST_F(RunLockTest, IsFreeAgainAfterItsRelease) {
  first.take();
  first.release();
  EXPECT_EQ(refusalOfSecond(), "taken");
}

TEST_F(RunLockTest, MayBeTakenTwiceByTheSame) {
  first.take();
  first.take();
  first.release();
  EXPECT_EQ(refusalOfSecond(), "taken");
}

TEST_F(RunLockTest, LeavesNothingInTheFolder) {
  first.take();
  EXPECT_TRUE(std::filesystem::exists(folder.file("tarnwick.lock")));
  first.release();
  EXPECT_FALSE(std::filesystem::exists(folder.file("tarnwick.lock")));
}

TEST_F(RunLockTest, LeavesTheOneOfAnotherRunAloneThatTookItsPlace) {
  SKIP_ON_WINDOWS("There nobody can remove the file.");
  first.take();
  std::filesystem::remove(folder.file("tarnwick.lock"));
  second.take();
  first.release();
  EXPECT_THROW(first.take(), std::runtime_error);
}

TEST_F(RunLockTest, IsAFileOfItsOwnerAlone) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder.");
  namespace fs = std::filesystem;
  first.take();
  EXPECT_EQ(fs::status(folder.file("tarnwick.lock")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(RunLockTest, DoesNotCountAFileThatWasLeftWhateverIsInIt) {
  const std::string livingProcess = std::to_string(QCoreApplication::applicationPid()) + "\ntarnwick\nthis-machine\n";
  for (const std::string& left : {std::string(), std::string("99999999\ntarnwick\n"), livingProcess}) {
    std::ofstream(folder.file("tarnwick.lock"), std::ios::binary) << left;
    EXPECT_EQ(refusalOfSecond(), "taken");
    EXPECT_THROW(first.take(), std::runtime_error) << "it has become a lock like any other";
    second.release();
  }
}

TEST_F(RunLockTest, NamesAnotherProgramWhileTheFileTellsNoName) {
  SKIP_ON_WINDOWS("There nobody else can write the file.");
  first.take();
  std::filesystem::resize_file(folder.file("tarnwick.lock"), 0);
  EXPECT_THAT(refusalOfSecond(), HasSubstr("another program checks"));
}

TEST_F(RunLockTest, WritesBehindNoLink) {
  SKIP_ON_WINDOWS("There a link takes a right of its own.");
  std::ofstream(folder.file("other")) << "untouched";
  std::filesystem::create_symlink(folder.file("other"), folder.file("tarnwick.lock"));
  EXPECT_THROW(first.take(), std::runtime_error);
  EXPECT_EQ(bytesOfFile(folder.file("other")), "untouched");
}

TEST_F(RunLockTest, SaysThatAFolderIsMissing) {
  EXPECT_THROW(FileRunLocks().makeRunLock(folder.file("nowhere"))->take(), FileError);
}

}  // namespace
}  // namespace tarnwick::testing
