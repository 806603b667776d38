// SPDX-License-Identifier: MIT
#include "engine/test_pass.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/program_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;

// With timers moved by hand the supervisor of the pool never ticks: what passes here does not wait for its second.
class TestPassTest : public ::testing::Test, public ProgramFixture {
 protected:
  TestPassTest() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  RunController& run() { return program.run(); }
  std::unique_ptr<Timer> stopper;
  void startProgramAlert() {
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("alarm ~idsite~"));
  }
};

TEST_F(TestPassTest, TheFirstCheckAdoptsThePageAndIsUp) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  EXPECT_EQ(column(id, "content_compare"), "hello");
  EXPECT_EQ(column(id, "content_runtime"), "hello");
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_EQ(column(id, "success"), "1");
  EXPECT_EQ(column(id, "lastChecked"), dateTimeText(machine.handClock.localNow()));
  EXPECT_THAT(view.judged, ElementsAre(Pair(id, true)));
  EXPECT_THAT(view.results, ElementsAre(Pair(id, true)));
}

TEST_F(TestPassTest, AChangedPageIsDown) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  server.respond("/a", {.body = "Hello"});
  run().runTestPass(1);
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_EQ(column(id, "failure"), "1");
  EXPECT_EQ(column(id, "content_compare"), "hello");
  EXPECT_EQ(column(id, "content_runtime"), "Hello");
  EXPECT_EQ(folder.queryText("select content from log where status = 0"), "Hello");
}

TEST_F(TestPassTest, TwoSitesHaveTwoSlots) {
  server.respond("/a", {.body = "a", .delay = milliseconds(30)});
  server.respond("/b", {.body = "b", .delay = milliseconds(30)});
  addSite(server.url("/a"));
  addSite(server.url("/b"));
  std::int16_t slots = 0;
  view.onJudged = [&](std::int16_t) { slots = program.pool().poolSize(); };
  run().startChecking();
  EXPECT_EQ(slots, 2);
  EXPECT_EQ(server.greatestInFlight(), 2);
}

TEST_F(TestPassTest, FiveAreInFlightAndTheSixthWaitsForTheFirstFreeSlot) {
  for (int i = 0; i < 12; ++i) {
    const std::string path = "/" + std::to_string(i);
    server.respond(path, {.body = path, .delay = milliseconds(30)});
    addSite(server.url(path));
  }
  run().startChecking();
  EXPECT_EQ(server.greatestInFlight(), 5);
  EXPECT_THAT(server.requests(), SizeIs(12));
  EXPECT_THAT(view.judged, SizeIs(12));
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "12");
}

TEST_F(TestPassTest, EverySiteGetsItsOwnPage) {
  std::vector<std::int16_t> ids;
  for (int i = 0; i < 30; ++i) {
    const std::string path = "/" + std::to_string(i);
    server.respond(path, {.body = "page " + path, .delay = milliseconds(i % 7)});
    ids.push_back(addSite(server.url(path)));
  }
  run().startChecking();
  for (int i = 0; i < 30; ++i) {
    EXPECT_EQ(column(ids.at(static_cast<std::size_t>(i)), "content_compare"), "page /" + std::to_string(i));
  }
}

TEST_F(TestPassTest, SaysWhatItTestsAndMarksTheRow) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  EXPECT_TRUE(view.showed("Testing: " + server.url("/a")));
  ASSERT_THAT(view.brightened, SizeIs(1));
  EXPECT_EQ(view.brightened[0].first, id);
  EXPECT_GT(view.brightened[0].second, 0);
  EXPECT_THAT(view.unbrightened, IsEmpty());
}

TEST_F(TestPassTest, ProgressGrowsByWholeStepsPerDispatchedRow) {
  for (const char* path : {"/a", "/b", "/c"}) {
    addPage(path, path);
  }
  view.progressWidth = 100;
  run().startChecking();
  EXPECT_THAT(view.progress, ElementsAre(33, 66, 99));
}

TEST_F(TestPassTest, AFailedRequestIsJudgedByItsTextLikeAnyPage) {
  const std::int16_t id = addPage("/a", "hello");
  run().startChecking();
  server.respond("/a", {.drop = true});
  run().runTestPass(1);
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_THAT(column(id, "content_runtime"), ::testing::StartsWith("11:"));
  EXPECT_NE(folder.queryText("select errCode from log where status = 0"), "0");
  EXPECT_EQ("11:" + folder.queryText("select errDescription from log where status = 0"), column(id, "content_runtime"));
}

TEST_F(TestPassTest, TheErrorOfARequestIsForgottenByTheSlotsNextOne) {
  const std::int16_t bad = addPage("/bad", "x");
  const std::int16_t good = addPage("/good", "y");
  server.respond("/bad", {.drop = true});
  run().startChecking();
  EXPECT_EQ(folder.queryText("select errCode from log where idSite = " + std::to_string(good)), "0");
  EXPECT_EQ(folder.queryText("select errDescription from log where idSite = " + std::to_string(good)), "");
  EXPECT_NE(folder.queryText("select errCode from log where idSite = " + std::to_string(bad)), "0");
}

TEST_F(TestPassTest, ASiteThatFailsThreeTimesRaisesThreeAlerts) {
  const std::int16_t id = addPage("/a", "hello");
  startProgramAlert();
  run().startChecking();
  server.respond("/a", {.body = "changed"});
  for (int pass = 0; pass < 3; ++pass) {
    run().runTestPass(1);
  }
  EXPECT_THAT(machine.programs.started, SizeIs(3));
  EXPECT_THAT(machine.programs.started, Each(ElementsAre("alarm", std::to_string(id))));
  EXPECT_EQ(column(id, "failure"), "3");
  EXPECT_EQ(column(id, "success"), "1");
}

TEST_F(TestPassTest, PostSendsTheEncodedVariablesInWhateverCaseTheMethodIs) {
  server.respond("/form", {.body = "thanks"});
  const std::int16_t id = addSite(server.url("/form"));
  program.data().updateSites(id, server.url("/form"), "post", true, 10, false, "", "", "");
  program.data().addPostVars(id, "a b", "x&y");
  program.data().addPostVars(id, "n", "");
  run().startChecking();
  ASSERT_THAT(server.requests(), SizeIs(1));
  EXPECT_EQ(server.requests()[0].method, "POST");
  EXPECT_EQ(server.requests()[0].body, "a%20b=x%26y&n=");
  EXPECT_EQ(server.requests()[0].header("Content-Type"), "application/x-www-form-urlencoded");
}

TEST_F(TestPassTest, NullCredentialsAnswerNoChallengeHereNorInASingleFetch) {
  server.requireBasic("/a", "NULL", "NULL", {.body = "secret"});
  const std::int16_t id = program.data().addSite();
  folder.execute("update sites set url = '" + server.url("/a") + "'");
  ASSERT_EQ(column(id, "sUserName"), "NULL");
  run().startChecking();
  EXPECT_EQ(column(id, "content_compare"), "credentials, please");
  EXPECT_EQ(program.data().getHtmlFromSite(id), "credentials, please");
  EXPECT_THAT(server.requests(), SizeIs(2));
}

TEST_F(TestPassTest, TheLettersOfANullAreCredentialsWhereTheyWereTyped) {
  server.requireBasic("/a", "NULL", "NULL", {.body = "secret"});
  const std::int16_t id = addSite(server.url("/a"));
  program.data().updateSites(id, server.url("/a"), "get", true, 10, false, "", "NULL", "NULL");
  run().startChecking();
  EXPECT_EQ(column(id, "content_compare"), "secret");
  EXPECT_EQ(program.data().getHtmlFromSite(id), "secret");
}

TEST_F(TestPassTest, StopInMidPassLosesTheUnrecordedAndALaterStartTestsAllAgain) {
  const std::int16_t first = addPage("/a", "hello");
  server.respond("/silent", {.hold = true});
  const std::int16_t silent = addSite(server.url("/silent"));
  for (int i = 0; i < 6; ++i) {
    addSite(server.url("/silent"));
  }
  view.onJudged = [&](std::int16_t id) {
    if (id == first) {
      run().stopChecking();
    }
  };
  run().startChecking();
  EXPECT_EQ(view.lamps.back(), RunState::stop);
  EXPECT_FALSE(run().busy());
  EXPECT_EQ(view.status(), "Stopped.");
  EXPECT_EQ(column(silent, "lastChecked"), "NULL");
  EXPECT_THAT(view.unbrightened, Contains(silent));
  EXPECT_EQ(program.pool().poolSize(), 0);

  view.onJudged = nullptr;
  server.respond("/silent", {.body = "now it speaks"});
  server.clearRecords();
  run().startChecking();
  EXPECT_THAT(server.requests(), SizeIs(8));
  EXPECT_EQ(column(silent, "content_compare"), "now it speaks");
}

TEST_F(TestPassTest, StopWhileOnlyAnswersAreAwaitedEndsTheWaitAtOnce) {
  server.handle("/silent", [&](const HttpRequest&) {
    QtTimers timers;
    // Once the request is there, the pass has nothing left but to wait for its answer.
    stopper = timers.makeTimer([this] {
      stopper->setEnabled(false);
      run().stopChecking();
    });
    stopper->setInterval(milliseconds(20));
    stopper->setEnabled(true);
    return HttpResponse{.hold = true};
  });
  const std::int16_t id = addSite(server.url("/silent"));
  run().startChecking();
  EXPECT_FALSE(run().busy());
  EXPECT_EQ(view.lamps.back(), RunState::stop);
  EXPECT_EQ(column(id, "lastChecked"), "NULL");
}

TEST_F(TestPassTest, StopAndStartInsideOnePumpLetThePassGoOn) {
  const std::int16_t first = addPage("/a", "a");
  for (int i = 0; i < 9; ++i) {
    addPage("/" + std::to_string(i), "page");
  }
  view.onJudged = [&](std::int16_t id) {
    if (id == first) {
      run().stopChecking();
      run().startChecking();
    }
  };
  run().startChecking();
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "10");
  EXPECT_EQ(view.lamps.back(), RunState::pause);
  EXPECT_THAT(server.requests(), SizeIs(10));
}

TEST_F(TestPassTest, ASecondPassCannotStartInsideTheFirst) {
  addPage("/a", "a");
  view.onJudged = [&](std::int16_t) {
    view.lamps.clear();
    run().runTestPass(1);
    EXPECT_THAT(view.lamps, IsEmpty());
    machine.handTimers.advance(seconds(3));
  };
  run().startChecking();
  EXPECT_THAT(server.requests(), SizeIs(1));
}

TEST_F(TestPassTest, TheCountdownIsNotShownDuringAPass) {
  addPage("/a", "a");
  addPage("/b", "b");
  view.onJudged = [&](std::int16_t) { machine.handTimers.advance(seconds(2)); };
  run().startChecking();
  for (const std::string& status : view.statuses) {
    EXPECT_THAT(status, ::testing::Not(HasSubstr("Time Until")));
  }
}

TEST_F(TestPassTest, ARowWithoutAnAddressFailsAndTheOthersKeepTheirPages) {
  const std::int16_t first = addPage("/a", "a");
  const std::int16_t empty = addSite("");
  const std::int16_t last = addPage("/b", "b");
  program.data().updateContentCompare(empty, "something");
  run().startChecking();
  EXPECT_EQ(column(first, "content_compare"), "a");
  EXPECT_EQ(column(last, "content_compare"), "b");
  EXPECT_EQ(column(empty, "status"), "0");
  EXPECT_EQ(column(empty, "failure"), "1");
  EXPECT_EQ(column(empty, "content_runtime"), "11:The address of the site is empty.") << "nothing was requested";
  EXPECT_TRUE(view.showed("Testing: "));
}

TEST_F(TestPassTest, APassOfNothingButRowsWithoutAddressEnds) {
  const std::int16_t id = addSite("");
  addSite("");
  run().startChecking();
  EXPECT_FALSE(run().busy());
  EXPECT_NE(column(id, "lastChecked"), "NULL");
}

TEST_F(TestPassTest, ASiteDeletedWhileItIsFetchedChangesNothing) {
  server.handle("/a", [&](const HttpRequest&) {
    program.data().deleteSite(1);
    return HttpResponse{.body = "too late"};
  });
  ASSERT_EQ(addSite(server.url("/a")), 1);
  const std::int16_t other = addPage("/b", "b");
  run().startChecking();
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "1");
  EXPECT_EQ(folder.queryText("select count(*) from log"), "1");
  EXPECT_EQ(column(other, "success"), "1");
}

TEST_F(TestPassTest, APageIsNotRecordedForANewSiteThatGotTheIdOfADeletedOne) {
  addPage("/other", "other");
  std::int16_t fresh = 0;
  server.handle("/a", [&](const HttpRequest&) {
    program.data().deleteSite(2);
    fresh = program.data().addSite();
    return HttpResponse{.body = "page of the deleted site"};
  });
  ASSERT_EQ(addSite(server.url("/a")), 2);
  run().startChecking();
  ASSERT_EQ(fresh, 2);
  EXPECT_EQ(column(fresh, "content_compare"), "NULL");
  EXPECT_EQ(column(fresh, "success"), "NULL");
}

TEST_F(TestPassTest, APageIsNotRecordedForASiteWhoseAddressWasChangedMeanwhile) {
  server.handle("/a", [&](const HttpRequest&) {
    program.data().updateSites(1, server.url("/b"), "get", true, 10, false, "", "", "");
    return HttpResponse{.body = "page of the old address"};
  });
  server.respond("/b", {.body = "page of the new address"});
  const std::int16_t id = addSite(server.url("/a"));
  run().startChecking();
  EXPECT_EQ(column(id, "content_compare"), "NULL");
  EXPECT_THAT(view.unbrightened, Contains(id));
  run().runTestPass(1);
  EXPECT_EQ(column(id, "content_compare"), "page of the new address");
}

TEST_F(TestPassTest, ASiteWithoutAnAddressInTheDatabaseIsAFailedRequest) {
  const std::int16_t id = program.data().addSite();
  folder.execute("update sites set url = null, content_compare = 'something'");
  run().startChecking();
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_EQ(column(id, "failure"), "1");
}

TEST_F(TestPassTest, AnErrorEndsThePassWithLampsPoolAndGuardInOrder) {
  const std::int16_t id = addPage("/a", "a");
  folder.execute("update sites set success = 32767");
  EXPECT_FALSE(program.startRun());
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("32767")));
  EXPECT_FALSE(run().busy());
  EXPECT_TRUE(run().running());
  EXPECT_EQ(view.lamps.back(), RunState::pause);
  EXPECT_EQ(program.pool().poolSize(), 0);
  EXPECT_FALSE(program.pool().tmrInet().enabled());
  EXPECT_EQ(column(id, "success"), "32767");
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_NE(column(id, "lastChecked"), "NULL") << "the site would be fetched again every second";

  program.data().clearCounters(-1);
  run().runTestPass(1);
  EXPECT_EQ(column(id, "success"), "1");
}

TEST_F(TestPassTest, AResultThatCannotBeRecordedIsToldAfterTheOthersHaveBeen) {
  const std::int16_t good = addPage("/a", "a");
  const std::int16_t refused = addPage("/b", "b");
  std::vector<std::int16_t> after;
  for (const char* path : {"/c", "/d", "/e", "/f", "/g", "/h"}) {
    after.push_back(addPage(path, path));
  }
  folder.execute("create trigger no_room before update on siteRows when new.idSite = " + std::to_string(refused) +
                 " and new.runtimePage > 0 begin select raise(abort, 'no room for this page'); end");
  EXPECT_FALSE(program.startRun());
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("no room for this page")));
  EXPECT_EQ(column(good, "status"), "1");
  for (const std::int16_t id : after) {
    EXPECT_NE(column(id, "lastChecked"), "NULL") << "site " << id;
  }
  EXPECT_EQ(column(refused, "lastChecked"), "NULL");
  EXPECT_EQ(folder.queryText("select count(*) from log where idSite = " + std::to_string(refused)), "0");
  EXPECT_FALSE(run().busy());
  EXPECT_EQ(view.lamps.back(), RunState::pause);
}

TEST_F(TestPassTest, AnIdOutsideSixteenBitsIsAnErrorThatNamesIt) {
  folder.execute("insert into sites (idSite,url,method,active,tInterval) values (70000,'" + server.url("/a") +
                 "','GET',1,10)");
  EXPECT_FALSE(program.startRun());
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("70000")));
  EXPECT_THAT(server.requests(), IsEmpty());
}

TEST_F(TestPassTest, AnIdOutsideSixteenBitsDoesNotKeepTheOthersFromBeingTested) {
  const std::int16_t good = addPage("/a", "a");
  folder.execute("insert into sites (idSite,url,method,active,tInterval) values (-40000,'" + server.url("/b") +
                 "','GET',1,10)");
  EXPECT_FALSE(program.startRun());
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("-40000")));
  EXPECT_EQ(column(good, "content_compare"), "a");
}

TEST_F(TestPassTest, WaitingForASilentServerUsesNoProcessorTime) {
  server.respond("/slow", {.body = "at last", .delay = milliseconds(1500)});
  addSite(server.url("/slow"));
  const double before = processorSeconds();
  run().startChecking();
  const double used = processorSeconds() - before;
  EXPECT_LT(used, 0.2);
}

TEST_F(TestPassTest, WaitingForAFreeSlotUsesNoProcessorTime) {
  for (int i = 0; i < 6; ++i) {
    const std::string path = "/slow" + std::to_string(i);
    server.respond(path, {.body = "at last", .delay = milliseconds(i < 5 ? 1500 : 0)});
    addSite(server.url(path));
  }
  const double before = processorSeconds();
  run().startChecking();
  EXPECT_LT(processorSeconds() - before, 0.3);
  EXPECT_THAT(view.judged, SizeIs(6));
}

TEST_F(TestPassTest, AStartAfterClosingEndsAtOnce) {
  addPage("/a", "a");
  program.close();
  run().startChecking();
  EXPECT_FALSE(run().busy());
  EXPECT_THAT(server.requests(), IsEmpty());
}

// A view that reads the record of the row it repaints, which fails with the database.
class FailingView final : public SilentView {
 public:
  void brighten(std::int16_t, int) override { onBrighten(); }
  void unbrighten(std::int16_t) override { throw DataAccessError("the record cannot be read", ""); }
  void indicators(RunState state) override { lamp = state; }

  std::function<void()> onBrighten;
  RunState lamp = RunState::start;
};

TEST_F(TestPassTest, ARowThatCannotBeRepaintedDoesNotKeepThePassFromEndingInOrder) {
  server.respond("/silent", {.hold = true});
  addSite(server.url("/silent"));
  FailingView failing;
  Program other(folder.path(), machine.services(), failing);
  other.start();
  failing.onBrighten = [&] { other.stopRun(); };
  EXPECT_TRUE(other.startRun());
  EXPECT_FALSE(other.run().busy());
  EXPECT_EQ(failing.lamp, RunState::stop);
}

TEST_F(TestPassTest, ClosingInMidPassEndsIt) {
  server.respond("/silent", {.hold = true});
  const std::int16_t id = addPage("/a", "a");
  for (int i = 0; i < 5; ++i) {
    addSite(server.url("/silent"));
  }
  view.onJudged = [&](std::int16_t) { program.close(); };
  run().startChecking();
  EXPECT_FALSE(run().busy());
  EXPECT_FALSE(run().running());
  EXPECT_EQ(column(id, "success"), "1");
}

}  // namespace
}  // namespace tarnwick::testing
