// SPDX-License-Identifier: MIT
#include "engine/run_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Timers and clock are moved by hand here, so that every tick is one that the test made.
class RunControllerTest : public ::testing::Test, public ProgramFixture {
 protected:
  RunControllerTest() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  RunController& run() { return program.run(); }
  void tick() { machine.handTimers.advance(seconds(1)); }
};

TEST(FormatSecondsTest, WritesHoursMinutesAndSecondsOfTwoDigits) {
  EXPECT_EQ(RunController::formatSeconds(0), "00:00:00");
  EXPECT_EQ(RunController::formatSeconds(59), "00:00:59");
  EXPECT_EQ(RunController::formatSeconds(3725), "01:02:05");
}

TEST(FormatSecondsTest, KeepsOnlyTheLastTwoDigitsOfTheHours) {
  EXPECT_EQ(RunController::formatSeconds(100 * 3600), "00:00:00");
  EXPECT_EQ(RunController::formatSeconds(123 * 3600 + 61), "23:01:01");
}

TEST(ClockTextTest, PadsTheHoursToThreeDigits) {
  EXPECT_EQ(RunController::clockText(seconds(3909)), "Run Time: 001:05:09");
  EXPECT_EQ(RunController::clockText(seconds(0)), "Run Time: 000:00:00");
  EXPECT_EQ(RunController::clockText(seconds(1000 * 3600)), "Run Time: 1000:00:00");
}

TEST_F(RunControllerTest, IsStoppedAfterTheStart) {
  EXPECT_FALSE(run().running());
  EXPECT_FALSE(run().busy());
  EXPECT_EQ(view.lamps.back(), RunState::stop);
  EXPECT_EQ(view.status(), "Ready ...");
  EXPECT_EQ(view.caption, "Tarnwick");
  EXPECT_FALSE(run().tmrCheckSites().enabled());
  EXPECT_EQ(run().tmrCheckSites().interval(), milliseconds(1000));
  EXPECT_TRUE(run().Timer2().enabled());
  EXPECT_EQ(run().Timer2().interval(), milliseconds(500));
  EXPECT_FALSE(program.pool().tmrInet().enabled());
}

TEST_F(RunControllerTest, NoRunStartsByItself) {
  addPage("/a", "hello");
  machine.handTimers.advance(seconds(10));
  EXPECT_THAT(server.requests(), IsEmpty());
}

TEST_F(RunControllerTest, StartWithoutAnActiveSiteReturnsAtOnceAndTriesAgainEverySecond) {
  view.lamps.clear();
  run().startChecking();
  EXPECT_THAT(view.lamps, ElementsAre(RunState::start, RunState::pause));
  EXPECT_TRUE(run().running());
  EXPECT_FALSE(run().busy());
  view.lamps.clear();
  tick();
  EXPECT_THAT(view.lamps, ElementsAre(RunState::start, RunState::pause));
  tick();
  EXPECT_THAT(view.lamps, ElementsAre(RunState::start, RunState::pause, RunState::start, RunState::pause));
}

TEST_F(RunControllerTest, StartWhileRunningDoesNothing) {
  run().startChecking();
  view.statuses.clear();
  view.lamps.clear();
  run().startChecking();
  EXPECT_THAT(view.statuses, IsEmpty());
  EXPECT_THAT(view.lamps, IsEmpty());
}

TEST_F(RunControllerTest, StopShowsPauseThenStop) {
  run().startChecking();
  view.lamps.clear();
  run().stopChecking();
  EXPECT_THAT(view.lamps, ElementsAre(RunState::pause, RunState::stop));
  EXPECT_EQ(view.status(), "Stopped.");
  EXPECT_FALSE(run().running());
  EXPECT_FALSE(run().tmrCheckSites().enabled());
}

TEST_F(RunControllerTest, CountsDownToTheNextDueSite) {
  addPage("/a", "hello");
  run().startChecking();
  tick();
  EXPECT_EQ(view.status(), "Time Until Next Check: 00:09:59");
  tick();
  EXPECT_EQ(view.status(), "Time Until Next Check: 00:09:58");
  EXPECT_EQ(run().secondsToNext(), 598);
}

TEST_F(RunControllerTest, ASiteIsTestedByStartAtOnceAndByTheCountdownOnlyWhenDue) {
  addPage("/a", "hello");
  run().startChecking();
  EXPECT_EQ(server.requests().size(), 1U);
  machine.handTimers.advance(seconds(598));
  EXPECT_EQ(server.requests().size(), 1U);
  machine.handTimers.advance(seconds(4));
  EXPECT_EQ(server.requests().size(), 2U);
}

TEST_F(RunControllerTest, AfterAPassTheCountdownStartsAfreshFromTheDatabase) {
  addPage("/a", "hello");
  run().startChecking();
  machine.handTimers.advance(seconds(602));
  ASSERT_EQ(server.requests().size(), 2U);
  EXPECT_EQ(view.status().substr(0, 30), "Time Until Next Check: 00:09:5");
}

TEST_F(RunControllerTest, AStartForgetsTheOldCountdown) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  tick();
  run().stopChecking();
  program.data().updateSites(id, server.url("/a"), "get", true, 1, false, "", "", "");
  run().startChecking();
  tick();
  EXPECT_EQ(view.status(), "Time Until Next Check: 00:00:59");
}

TEST_F(RunControllerTest, AnEditMakesTheCountdownAskAgain) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  tick();
  program.data().updateSites(id, server.url("/a"), "get", true, 1, false, "", "", "");
  run().init();
  tick();
  EXPECT_EQ(view.status(), "Time Until Next Check: 00:00:58");
}

TEST_F(RunControllerTest, AClockSetBackMakesTheSiteWaitAndNothingElse) {
  addPage("/a", "hello");
  run().startChecking();
  machine.handClock.setLocal(HandClock::at("2020-01-01 00:00:00"));
  machine.handTimers.advance(seconds(30));
  EXPECT_EQ(server.requests().size(), 1U);
  EXPECT_TRUE(run().running());
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
}

TEST_F(RunControllerTest, ADateThatNobodyMeantIsNoError) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  folder.execute("update sites set lastChecked = '1900-01-01 00:00:00'");
  machine.handTimers.advance(seconds(2));
  EXPECT_EQ(column(id, "success"), "2");
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
}

TEST_F(RunControllerTest, TheClockIsEmptyBeforeTheFirstStartTicksInARunAndKeepsItsLastValue) {
  machine.handTimers.advance(seconds(5));
  EXPECT_THAT(view.clocks, IsEmpty());
  run().startChecking();
  machine.handTimers.advance(seconds(65));
  EXPECT_EQ(view.clocks.back(), "Run Time: 000:01:05");
  run().stopChecking();
  const std::size_t shown = view.clocks.size();
  machine.handTimers.advance(seconds(5));
  EXPECT_EQ(view.clocks.size(), shown);
}

TEST_F(RunControllerTest, LampsBlinkDuringARunOnly) {
  machine.handTimers.advance(seconds(2));
  EXPECT_EQ(view.blinks, 0);
  run().startChecking();
  machine.handTimers.advance(seconds(2));
  EXPECT_EQ(view.blinks, 4);
  run().stopChecking();
  machine.handTimers.advance(seconds(2));
  EXPECT_EQ(view.blinks, 4);
}

TEST_F(RunControllerTest, UpdateLastCheckedWritesTheTimeAsDateText) {
  const std::int16_t id = addPage("/a", "hello");
  run().UpdateLastChecked(id);
  run().startChecking();
  run().UpdateLastChecked(id);
  EXPECT_THAT(view.lastChecked,
              ElementsAre(std::pair(id, std::string()), std::pair(id, dateTimeText(machine.handClock.localNow()))));
}

TEST_F(RunControllerTest, AnInactiveSiteIsNeverTested) {
  const std::int16_t id = addPage("/a", "hello");
  program.data().setActive(id, false);
  run().startChecking();
  machine.handTimers.advance(std::chrono::minutes(11));
  EXPECT_THAT(server.requests(), IsEmpty());
}

/// A run with a site that is up, and another one that was added while it was on.
class NewSiteInARun : public RunControllerTest {
 protected:
  void SetUp() override {
    known = addPage("/a", "hello");
    program.startRun();
    tick();
    fresh = addPage("/new", "new");
  }
  std::size_t passes() const { return static_cast<std::size_t>(std::ranges::count(view.lamps, RunState::start)); }

  std::int16_t known = 0;
  std::int16_t fresh = 0;
};

TEST_F(NewSiteInARun, StopsTheCountdownAndTheStatusSaysWhy) {
  run().init();
  view.lamps.clear();
  tick();
  tick();
  EXPECT_EQ(view.status(),
            "No countdown: site " + std::to_string(fresh) + ", never checked, waits for the next Start.");
  addPage("/newer", "newer");
  tick();
  tick();
  EXPECT_EQ(view.status(), "No countdown: 2 sites, never checked, wait for the next Start.");
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
}

TEST_F(NewSiteInARun, HasNoPassBegunEverySecond) {
  run().init();
  tick();
  view.lamps.clear();
  machine.handTimers.advance(seconds(120));
  EXPECT_LE(passes(), 3U);
}

TEST_F(NewSiteInARun, KeepsNoOtherSiteWaiting) {
  run().init();
  machine.handTimers.advance(seconds(599));
  EXPECT_EQ(column(known, "success"), "2");
  folder.execute("update sites set lastChecked = '2001-01-01 00:00:00' where idSite = " + std::to_string(known));
  tick();
  EXPECT_EQ(column(known, "success"), "3") << "what another program changes counts at once";
  program.data().updateSites(known, server.url("/a"), "get", true, 0, false, "", "", "");
  tick();
  EXPECT_EQ(column(known, "success"), "4") << "and what this one changes";
}

TEST_F(NewSiteInARun, IsTakenOnByTheNextStart) {
  run().init();
  machine.handTimers.advance(seconds(3));
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(fresh, "success"), "1");
  tick();
  EXPECT_THAT(view.status(), ::testing::HasSubstr("Time Until Next Check: "));
}

TEST_F(NewSiteInARun, IsUnwatchedUntilTheNextStartUnlessNewSitesAreTakenAtOnce) {
  EXPECT_EQ(run().unwatched().count, 1);
  EXPECT_EQ(run().unwatched().first, fresh);
  program.data().setOption(kAllSites, "newSites", "at once");
  EXPECT_EQ(run().unwatched().count, 0);
  program.data().setOption(kAllSites, "newSites", "at the next start");
  program.stopRun();
  EXPECT_EQ(run().unwatched().count, 2) << "while no run is on nobody watches any site";
  program.startRun();
  EXPECT_EQ(run().unwatched().count, 0);
}

TEST_F(NewSiteInARun, IsWatchedWhenItsCheckIsOwed) {
  program.stopRun();
  server.handle("/fresh", [&](const HttpRequest&) {
    program.data().updateSites(fresh, server.url("/elsewhere"), "get", true, 10, false, "", "", "");
    return HttpResponse{.body = "old"};
  });
  program.data().updateSites(fresh, server.url("/fresh"), "get", true, 10, false, "", "", "");
  program.startRun();
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
  EXPECT_EQ(run().unwatched().count, 0);
}

/// As above, while the new site is still being typed.
class SiteBeingTyped : public NewSiteInARun {
 protected:
  void SetUp() override {
    NewSiteInARun::SetUp();
    run().beingTyped(fresh);
  }
  void takeNewSitesAtOnce() { program.data().setOption(kAllSites, "newSites", "at once"); }
};

TEST_F(SiteBeingTyped, IsNotTakenByAPassOfNewSitesAndIsDueWhenItIsComplete) {
  takeNewSitesAtOnce();
  machine.handTimers.advance(seconds(700));
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
  EXPECT_EQ(column(known, "success"), "2");
  run().beingTyped(std::nullopt);
  tick();
  EXPECT_EQ(column(fresh, "success"), "1");
}

TEST_F(SiteBeingTyped, IsNotTakenByStartAndIsDueWhenItIsComplete) {
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
  EXPECT_EQ(column(known, "success"), "2");
  run().beingTyped(std::nullopt);
  tick();
  EXPECT_EQ(column(fresh, "success"), "1");
}

TEST_F(SiteBeingTyped, IsNotTakenByThePassThatFollowsAFault) {
  folder.execute("update sites set lastChecked = '2001-01-01 00:00:00' where idSite = " + std::to_string(known));
  folder.execute("create trigger no before update on siteRows begin select raise(abort, 'not now'); end");
  tick();
  tick();
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(::testing::HasSubstr("not now")));
  folder.execute("drop trigger no");
  machine.handTimers.advance(seconds(30));
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
  run().beingTyped(std::nullopt);
  tick();
  EXPECT_EQ(column(fresh, "success"), "1") << "that pass would have taken it";
}

TEST_F(SiteBeingTyped, WaitsForTheNextStartAsOriginallyWhenNoPassHasLeftItOut) {
  machine.handTimers.advance(seconds(3));
  EXPECT_EQ(view.status(), "No countdown: site " + std::to_string(fresh) + " is still being entered.");
  run().beingTyped(std::nullopt);
  machine.handTimers.advance(seconds(3));
  EXPECT_EQ(column(fresh, "lastChecked"), "NULL");
  EXPECT_THAT(view.status(), ::testing::HasSubstr(", never checked, waits"));
}

TEST_F(SiteBeingTyped, IsForgottenWhenItIsGivenUp) {
  program.stopRun();
  program.startRun();
  program.data().deleteSite(fresh);
  run().beingTyped(std::nullopt);
  server.clearRecords();
  machine.handTimers.advance(seconds(5));
  EXPECT_THAT(server.requests(), IsEmpty());
  EXPECT_THAT(view.status(), ::testing::HasSubstr("Time Until Next Check: "));
}

TEST_F(RunControllerTest, AStartBeforeTheStoppedPassHasEndedShowsThatItGoesOn) {
  const std::int16_t first = addPage("/a", "hello");
  addPage("/b", "hello");
  view.onJudged = [&](std::int16_t id) {
    if (id == first) {
      run().stopChecking();
      run().startChecking();
      EXPECT_EQ(view.lamps.back(), RunState::start);
      EXPECT_EQ(view.status(), "Running.");
    }
  };
  run().startChecking();
  EXPECT_EQ(view.lamps.back(), RunState::pause);
}

TEST_F(RunControllerTest, AStartBeforeTheStoppedPassHasEndedTakesNewSitesOn) {
  const std::int16_t first = addPage("/a", "hello");
  std::int16_t fresh = 0;
  view.onJudged = [&](std::int16_t id) {
    if (id == first && fresh == 0) {
      run().stopChecking();
      fresh = addPage("/new", "new");
      run().startChecking();
    }
  };
  run().startChecking();
  tick();
  EXPECT_EQ(column(fresh, "success"), "1");
}

}  // namespace
}  // namespace tarnwick::testing
