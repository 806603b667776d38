// SPDX-License-Identifier: MIT
#include "store/restoration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/run_lock.h"
#include "store/compaction_fixture.h"
#include "support/child_process.h"
#include "support/file_bytes.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Says whether a run is on.
class RunLocks final : public RunLockMaker {
 public:
  std::unique_ptr<RunLock> makeRunLock(const std::string&) override { return std::make_unique<Lock>(*this); }
  bool isTaken = false;
  bool isReadOnly = false;

 private:
  struct Lock final : RunLock {
    explicit Lock(RunLocks& locks) : locks_(locks) {}
    void take() override {
      if (locks_.isTaken) {
        throw RunIsOn("folder", "a program (process 7)", "folder/lock");
      }
      if (locks_.isReadOnly) {
        throw NoRunLock("folder/lock", "The folder cannot be written", "");
      }
    }
    void release() noexcept override {}
    RunLocks& locks_;
  };
};

class RestorationTest : public CompactionFixture {
 protected:
  RestorationTest() {
    Compaction(database, connections, files, prompts).compact();
    database.execute("update sites set url = 'changed' where idSite = 3");
    database.close();
    fs::rename(folder.file("temp.mdb"), folder.file("copy.mdb"));
  }

  Restoration::Outcome restore(const std::string& name = "copy.mdb") {
    return Restoration(folder.path(), connections, files, clock, locks).restore(folder.file(name));
  }
  std::string faultOf(const std::string& name) {
    const std::string before = bytes("tarnwick.mdb");
    const std::string fileBefore = fs::is_regular_file(folder.file(name)) ? bytes(name) : "";
    const std::string othersBefore = others();
    try {
      restore(name);
    } catch (const std::exception& error) {
      EXPECT_EQ(bytes("tarnwick.mdb"), before);
      EXPECT_EQ(fs::is_regular_file(folder.file(name)) ? bytes(name) : "", fileBefore);
      EXPECT_EQ(others(), othersBefore);
      return error.what();
    }
    return "";
  }
  std::string urlOf3() const { return folder.queryText("select url from sites where idSite = 3"); }

  RunLocks locks;
};

TEST_F(RestorationTest, TheCopyTakesThePlaceOfTheListWhichIsKept) {
  const std::string before = contents();
  const std::string copy = contents("copy.mdb");
  const std::string bytesOfCopy = bytes("copy.mdb");
  const Restoration::Outcome outcome = restore();
  EXPECT_EQ(outcome.sites, 2);
  EXPECT_EQ(contents(), copy);
  EXPECT_EQ(outcome.kept, folder.file("replaced-2024-05-17-120000.mdb"));
  EXPECT_EQ(contents("replaced-2024-05-17-120000.mdb"), before);
  EXPECT_EQ(bytes("copy.mdb"), bytesOfCopy);
  EXPECT_EQ(others(), "backup.mdb copy.mdb replaced-2024-05-17-120000.mdb");
}

TEST_F(RestorationTest, AnyListFromBeforeIsKept) {
  restore();
  const Restoration::Outcome outcome = restore();
  EXPECT_EQ(outcome.kept, folder.file("replaced-2024-05-17-120000-more.mdb"));
}

TEST_F(RestorationTest, ADamagedListIsReplacedAndKeptAsItIs) {
  for (const std::string damaged : {"", "no database, but long enough to look like something"}) {
    writeFile(folder.databasePath(), damaged);
    const Restoration::Outcome outcome = restore();
    EXPECT_EQ(urlOf3(), "http://a/");
    EXPECT_EQ(bytesOfFile(outcome.kept), damaged);
  }
}

TEST_F(RestorationTest, AMissingListIsThereAgain) {
  fs::remove(folder.databasePath());
  EXPECT_EQ(restore().kept, "");
  EXPECT_EQ(urlOf3(), "http://a/");
}

TEST_F(RestorationTest, WhatTheLogOfAKilledProgramHoldsIsKeptWithItsList) {
  database.reopen();
  database.execute("update sites set url = 'in the log' where idSite = 3");
  const std::string file = bytesOfFile(folder.databasePath());
  const std::string log = bytesOfFile(folder.databasePath() + "-wal");
  database.close();
  writeFile(folder.databasePath(), file);
  writeFile(folder.databasePath() + "-wal", log);
  const Restoration::Outcome outcome = restore();
  EXPECT_EQ(urlOf3(), "http://a/");
  EXPECT_FALSE(exists("tarnwick.mdb-wal"));
  EXPECT_THAT(contents(fs::path(outcome.kept).filename().string()), HasSubstr("in the log"));
}

TEST_F(RestorationTest, ACopyComesWithItsLog) {
  database.reopen();
  database.execute("update sites set url = 'in the log' where idSite = 3");
  writeFile(folder.file("copy.mdb"), bytesOfFile(folder.databasePath()));
  writeFile(folder.file("copy.mdb-wal"), bytesOfFile(folder.databasePath() + "-wal"));
  database.close();
  folder.execute("update sites set url = 'later' where idSite = 3");
  restore();
  EXPECT_EQ(urlOf3(), "in the log");
}

TEST_F(RestorationTest, WhatIsNoSoundListIsRefused) {
  EXPECT_THAT(faultOf("none.mdb"), HasSubstr("There is no file"));
  EXPECT_THAT(faultOf("."), HasSubstr("is no file"));
  EXPECT_THAT(faultOf("tarnwick.mdb"), HasSubstr("is the list itself"));
  writeFile(folder.file("text.mdb"), "a text");
  EXPECT_THAT(faultOf("text.mdb"), HasSubstr("is no sound copy of a list"));
  writeFile(folder.file("empty.mdb"), "");
  EXPECT_THAT(faultOf("empty.mdb"), HasSubstr("the file is empty"));
  const std::string copy = bytes("copy.mdb");
  writeFile(folder.file("short.mdb"), copy.substr(0, copy.size() / 2));
  const std::string fault = faultOf("short.mdb");
  EXPECT_THAT(fault, StartsWith("The file " + folder.file("short.mdb") + " is no sound copy of a list. Nothing was"));
  EXPECT_THAT(fault, Not(HasSubstr(".new"))) << "no name that nobody has given";
  EXPECT_THAT(fault, Not(HasSubstr("backup.mdb")));
  std::string torn = copy;
  torn.replace(copy.size() / 2, 6000, 6000, '\xff');
  writeFile(folder.file("torn.mdb"), torn);
  EXPECT_THAT(faultOf("torn.mdb"), HasSubstr("is no sound copy of a list"));
}

TEST_F(RestorationTest, AnotherProgramsDatabaseAndANewerListAreRefused) {
  const ProgramFolder other;
  other.execute("drop view sites");
  fs::copy_file(other.databasePath(), folder.file("other.mdb"));
  EXPECT_THAT(faultOf("other.mdb"), HasSubstr("no list of Tarnwick"));
  const ProgramFolder newer;
  newer.execute("pragma user_version = 99");
  fs::copy_file(newer.databasePath(), folder.file("newer.mdb"));
  EXPECT_THAT(faultOf("newer.mdb"), HasSubstr("form 99"));
}

TEST_F(RestorationTest, AnOlderListIsBroughtUpToDate) {
  const ProgramFolder older;
  older.execute("drop table if exists siteOptions; pragma user_version = 0");
  fs::copy_file(older.databasePath(), folder.file("older.mdb"));
  restore("older.mdb");
  EXPECT_NE(folder.queryText("pragma user_version"), "0");
}

TEST_F(RestorationTest, ARunIsNotDisturbed) {
  locks.isTaken = true;
  EXPECT_EQ(faultOf("copy.mdb"),
            "A run is on in this folder: a program (process 7) checks the sites of " + folder.path() +
                ", and would go on with the list that is to be replaced. Stop that run first; when no such process "
                "exists on that machine any more, remove folder/lock. Nothing was changed.");
}

TEST_F(RestorationTest, AFolderThatCannotBeWrittenIsTold) {
  locks.isReadOnly = true;
  EXPECT_EQ(faultOf("copy.mdb"), "folder/lock: The folder cannot be written, so the list in it cannot be replaced.");
}

TEST_F(RestorationTest, AProgramThatHasTheListOpenIsNotDisturbed) {
  ChildProcess helper(TARNWICK_COMPACTION_HELPER, {"hold", folder.path()});
  ASSERT_TRUE(helper.waitForLine());
  try {
    restore();
    FAIL() << "restored";
  } catch (const DataAccessError& error) {
    EXPECT_THAT(error.what(), HasSubstr("is in use by another program"));
  }
  EXPECT_EQ(others(), "backup.mdb copy.mdb");
  helper.kill();
  restore();
  EXPECT_EQ(urlOf3(), "http://a/");
}

TEST_F(RestorationTest, KilledAtAnyMomentItLeavesOneOfTheTwoWhole) {
  const std::string copy = contents("copy.mdb");
  bool killedBefore = false;
  bool killedAfter = false;
  for (int round = 0; round < 30 || (!killedAfter && round < 300); ++round) {
    folder.execute("update sites set url = 'round " + std::to_string(round) + "' where idSite = 3");
    const std::string before = contents();
    ChildProcess helper(TARNWICK_COMPACTION_HELPER, {"restore", folder.path()});
    ASSERT_TRUE(helper.waitForLine());
    std::this_thread::sleep_for(std::chrono::milliseconds(round));  // sleeps because the moment of the kill differs
    helper.kill();
    ASSERT_TRUE(exists("tarnwick.mdb")) << "round " << round;
    const std::string now = contents();
    EXPECT_TRUE(now == before || now == copy) << "round " << round;
    killedBefore = killedBefore || now == before;
    killedAfter = killedAfter || now == copy;
    database.reopen();
    Compaction(database, connections, files, prompts).removeRemains();
    database.close();
    EXPECT_THAT(others(), ::testing::Not(HasSubstr(".new")));
  }
  EXPECT_TRUE(killedBefore);
  EXPECT_TRUE(killedAfter);
}

}  // namespace
}  // namespace tarnwick::testing
