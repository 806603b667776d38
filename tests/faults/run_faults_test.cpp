// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>

#include "base/errors.h"
#include "faults/faults_fixture.h"
#include "support/faulty_disk.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class RunFaults : public ::testing::Test {
 protected:
  std::size_t requests() const { return used.server.requests().size(); }
  static constexpr std::size_t kSites = 4;

  FaultyDisk disk;
  UsedFolder used;
};

TEST_F(RunFaults, SitesAreNotFetchedAgainAndAgainWhileNothingCanBeStored) {
  RunningProgram running(used);
  disk.failAt(FaultyDisk::Operation::write, FaultyDisk::Failure::broken, 1, FaultyDisk::kForEver);
  running.program.startRun();
  running.letPass(minutes(10));
  EXPECT_LE(requests(), kSites);
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1));
  EXPECT_THAT(running.boxTexts(), HasSubstr("Reading or writing the database"));
  disk.heal();
  running.letPass(seconds(2));
  used.expectAllRecordedOnce(running.boxTexts());
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1));
}

TEST_F(RunFaults, APassOfWhichNothingCanBeStoredEndsBeforeAllSitesAreFetched) {
  constexpr int kMore = 40;
  for (int site = 0; site < kMore; ++site) {
    used.folder.execute("insert into sites (url,method,active,tInterval) values ('" + used.server.url("/up") +
                        "','GET',1,10)");
  }
  RunningProgram running(used);
  disk.failAt(FaultyDisk::Operation::write, FaultyDisk::Failure::broken, 1, FaultyDisk::kForEver);
  EXPECT_FALSE(running.program.startRun());
  EXPECT_LT(requests(), kSites + kMore / 2);
}

TEST_F(RunFaults, AFaultThatOnlyPagesMeetHasThemFetchedMoreAndMoreRarely) {
  RunningProgram running(used);
  running.databases.watch.before = [](std::string_view statement) {
    if (statement.starts_with("update sites set content_runtime")) {
      throw DataAccessError("The test makes this statement fail.", "");
    }
  };
  running.program.startRun();
  running.letPass(minutes(5));
  EXPECT_GE(requests(), 6 * kSites) << "it is tried again";
  EXPECT_LE(requests(), 11 * kSites);
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1));
  running.databases.watch.before = {};
  running.letPass(seconds(62));
  used.expectAllRecordedOnce(running.boxTexts());
}

TEST_F(RunFaults, SitesNeverCheckedAreCheckedOnceTheFaultOfTheFirstPassIsOver) {
  used.folder.execute("update sites set lastChecked = null");
  RunningProgram running(used);
  disk.failAt(FaultyDisk::Operation::write, FaultyDisk::Failure::full, 1, FaultyDisk::kForEver);
  running.program.startRun();
  running.letPass(minutes(2));
  disk.heal();
  running.letPass(seconds(62));
  used.expectAllRecordedOnce(running.boxTexts());
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1));
}

TEST_F(RunFaults, ASiteThatIsNewInAFileExchangedDuringTheRunIsChecked) {
  RunningProgram running(used);
  running.program.startRun();
  used.folder.execute("update sites set lastChecked = null where idSite = 1");
  running.databases.watch.before = [&](std::string_view statement) {
    if (statement.starts_with("SELECT TOP 1")) {
      running.databases.watch.before = {};
      throw DataAccessError("The test says that the file is another one.", "");
    }
  };
  running.letPass(seconds(3));
  EXPECT_EQ(used.recorded(1, true), 2) << running.boxTexts();
  EXPECT_EQ(used.recorded(2, true), 1) << running.boxTexts();
}

TEST_F(RunFaults, AFullCounterKeepsNoOtherSiteFromBeingChecked) {
  used.folder.execute("update sites set success = 32767, lastChecked = null where idSite = 1");
  RunningProgram running(used);
  EXPECT_FALSE(running.program.startRun());
  for (const int id : {1, 2, 3}) {
    EXPECT_EQ(used.recorded(id, true), 1) << "site " << id;
  }
  EXPECT_EQ(used.recorded(4, false), 1);
  EXPECT_THAT(running.boxTexts(), HasSubstr("32767"));
  EXPECT_THAT(running.view.judged, SizeIs(kSites)) << "each is shown";
}

TEST_F(RunFaults, ATimersFaultIsToldAtOnceAndItsBoxDoesNotHoldUpThePass) {
  RunningProgram running(used);
  running.machine.prompts.stayOpen = true;
  std::size_t boxesInThePass = 0;
  used.server.handle("/up", [&](const HttpRequest&) {
    running.program.faults().runRepeated("report", [] { throw DataAccessError("No report could be made.", ""); });
    boxesInThePass = running.boxes();
    return HttpResponse{.body = "a page that stays"};
  });
  EXPECT_TRUE(running.program.startRun());
  EXPECT_EQ(boxesInThePass, 1U);
  used.expectAllRecordedOnce("");
  EXPECT_THAT(running.boxTexts(), HasSubstr("No report could be made."));
}

TEST_F(RunFaults, AResultThatFindsNoMemoryIsToldAndTheOthersAreRecorded) {
  RunningProgram running(used);
  running.databases.watch.before = [](std::string_view statement) {
    if (statement.starts_with("update sites set content_runtime") &&
        statement.size() > UsedFolder::largePage().size()) {
      throw std::bad_alloc();
    }
  };
  EXPECT_FALSE(running.program.startRun());
  EXPECT_THAT(running.boxTexts(), HasSubstr("There is not enough memory for the check of site 2."));
  EXPECT_EQ(used.recorded(1, true), 1);
  EXPECT_EQ(used.recorded(2, true), 0);
  EXPECT_EQ(used.recorded(3, true), 1);
  EXPECT_EQ(used.falseAlarms(), "");
}

TEST_F(RunFaults, AStartAfterAStopTriesAtOnce) {
  RunningProgram running(used);
  disk.failAt(FaultyDisk::Operation::write, FaultyDisk::Failure::broken, 1, FaultyDisk::kForEver);
  running.program.startRun();
  running.letPass(minutes(5));
  disk.heal();
  running.program.stopRun();
  EXPECT_TRUE(running.program.startRun());
  used.expectAllRecordedOnce(running.boxTexts());
}

TEST_F(RunFaults, AnIdThatCannotBeUsedIsToldOnceAndAllOtherSitesAreChecked) {
  for (const char* id : {"-40000", "70000"}) {
    used.folder.execute("insert into sites (idSite,url,method,active,tInterval,lastChecked) values (" +
                        std::string(id) + ",'" + used.server.url("/up") + "','GET',1,10,'2024-05-17 10:00:00')");
  }
  RunningProgram running(used);
  EXPECT_FALSE(running.program.startRun());
  used.expectAllRecordedOnce(running.boxTexts());
  running.letPass(seconds(605));
  for (const int id : {1, 2, 3}) {
    EXPECT_EQ(used.recorded(id, true), 2) << "site " << id;
  }
  EXPECT_EQ(requests(), 2 * kSites);
  EXPECT_THAT(running.machine.prompts.texts(), SizeIs(1)) << running.boxTexts();
  EXPECT_THAT(running.boxTexts(), HasSubstr("-40000"));
}

TEST_F(RunFaults, TwoProgramsOnOneFileLoseNoCount) {
  RunningProgram running(used);
  bool counted = false;
  running.databases.watch.before = [&](std::string_view statement) {
    if (!counted && statement.starts_with("select failure")) {
      counted = true;
      // Finds it locked, instead of slipping in between reading and writing.
      EXPECT_ANY_THROW(
          used.folder.execute("pragma busy_timeout = 0; update sites set failure = failure + 1 where idSite = 4"));
    }
  };
  running.program.data().updateStatusCounter(4, false);
  EXPECT_TRUE(counted);
  EXPECT_EQ(used.text("select failure from sites where idSite = 4"), "1");
}

/// Moves the wall clock alone, as a person, a time server or daylight saving does.
void setClock(RunningProgram& running, std::chrono::seconds by) {
  running.machine.handClock.setLocal(running.machine.handClock.localNow() + by);
}

TEST_F(RunFaults, AClockSetForwardHasDueSitesCheckedOnce) {
  RunningProgram running(used);
  ASSERT_TRUE(running.program.startRun());
  running.letPass(seconds(30));
  setClock(running, hours(24 * 366));
  running.letPass(seconds(30));
  EXPECT_EQ(requests(), 2 * kSites);
  EXPECT_EQ(running.boxes(), 0u);
}

TEST_F(RunFaults, AClockSetBackMakesSitesWaitWithoutHarm) {
  RunningProgram running(used);
  ASSERT_TRUE(running.program.startRun());
  setClock(running, -hours(24));
  running.letPass(hours(2));
  EXPECT_EQ(requests(), kSites);
  EXPECT_TRUE(running.view.status().starts_with("Time Until Next Check: ")) << running.view.status();
  EXPECT_EQ(running.boxes(), 0u);
}

TEST_F(RunFaults, AClockThatIsPutRightAgainLeavesNoLongWaitBehind) {
  RunningProgram running(used);
  ASSERT_TRUE(running.program.startRun());
  running.letPass(seconds(60));
  setClock(running, -hours(24));
  running.letPass(seconds(60));
  setClock(running, hours(24));
  running.letPass(seconds(500));
  EXPECT_EQ(requests(), 2 * kSites);
}

TEST_F(RunFaults, ASleepOfTheMachineIsNotWaitedForOnceMore) {
  RunningProgram running(used);
  ASSERT_TRUE(running.program.startRun());
  running.letPass(seconds(10));
  setClock(running, minutes(30));  // the clock that only goes forward stands still in a sleep
  running.letPass(seconds(2));
  EXPECT_EQ(requests(), 2 * kSites);
}

TEST_F(RunFaults, DaylightSavingBeginsWithOneEarlyCheckAndEndsWithALateOne) {
  RunningProgram running(used);
  ASSERT_TRUE(running.program.startRun());
  running.letPass(seconds(100));
  setClock(running, hours(1));
  running.letPass(seconds(2));
  EXPECT_EQ(requests(), 2 * kSites);
  running.letPass(seconds(605));
  EXPECT_EQ(requests(), 3 * kSites);
  setClock(running, -hours(1));
  running.letPass(minutes(69));
  EXPECT_EQ(requests(), 3 * kSites);
  running.letPass(minutes(2));
  EXPECT_EQ(requests(), 4 * kSites);
  EXPECT_EQ(running.boxes(), 0u);
}

}  // namespace
}  // namespace tarnwick::testing
