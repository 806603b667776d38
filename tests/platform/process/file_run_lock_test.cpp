#include "platform/process/file_run_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QCoreApplication>

#include <filesystem>
#include <fstream>

#include "support/program_folder.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

struct RunLockTest : ::testing::Test {
  ProgramFolder folder;
  FileRunLock first{folder.path()};
  FileRunLock second{folder.path()};

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

TEST_F(RunLockTest, IsAFileOfItsOwnerAlone) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder.");
  namespace fs = std::filesystem;
  first.take();
  EXPECT_EQ(fs::status(folder.file("tarnwick.lock")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(RunLockTest, DoesNotCountWhatAProcessThatIsGoneLeft) {
  // The form in which the lock keeps its holder: process, program, host, which Windows knows by another name.
  const QString host =
      tarnwick::testing::kOnWindows ? qEnvironmentVariable("COMPUTERNAME") : QSysInfo::machineHostName();
  std::ofstream(folder.file("tarnwick.lock"), std::ios::binary) << "99999999\ntarnwick\n" << host.toStdString() << "\n";
  EXPECT_EQ(refusalOfSecond(), "taken");
}

TEST_F(RunLockTest, RemovesWhatAProcessLeavesThatIsKilledWhileItTakesOverALock) {
  for (const char* left : {"tarnwick.lock.rmlock", "tarnwick.lock.rmlock.rmlock"}) {
    std::ofstream(folder.file(left)).flush();
    first.take();
    EXPECT_FALSE(std::filesystem::exists(folder.file(left))) << left;
    EXPECT_THROW(second.take(), std::runtime_error);
    first.release();
  }
}

TEST_F(RunLockTest, DoesNotCountAFileWithoutANameAsAProcessLeavesThatIsKilledWhileItMakesIt) {
  std::ofstream(folder.file("tarnwick.lock")).flush();
  EXPECT_EQ(refusalOfSecond(), "taken");
  FileRunLock third(folder.path());
  EXPECT_THROW(third.take(), std::runtime_error) << "it has become a lock like any other";
}

TEST_F(RunLockTest, SaysThatAFolderIsMissing) {
  FileRunLock nowhere(folder.file("nowhere"));
  EXPECT_THROW(nowhere.take(), std::runtime_error);
}

}  // namespace
}  // namespace tarnwick::testing
