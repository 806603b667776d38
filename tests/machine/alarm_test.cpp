// SPDX-License-Identifier: MIT
// What is told of a site by its options of the alarm, with real servers and a real list.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "engine/run_controller.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class AlarmTest : public ::testing::Test, public ProgramFixture {
 protected:
  AlarmTest() {
    program.start();
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("tell ~event~ ~idsite~ ~checks~"));
    // A second goes by with each few events, so that no pause is really waited for.
    lapse_ = machine.qtTimers.makeTimer([this] { machine.handClock.advance(seconds(1)); });
    lapse_->setInterval(milliseconds(5));
    lapse_->setEnabled(true);
  }

  void set(const std::string& name, const std::string& value, std::int16_t id = kAllSites) {
    program.data().setOption(id, name, value);
  }
  /// Passes over all active sites as long as the run is on.
  void pass() { program.run().runTestPass(site_choice::active); }
  void fail(const std::string& path) { server.respond(path, {.body = "something else"}); }
  void succeed(const std::string& path, const std::string& body) { server.respond(path, {.body = body}); }
  /// What was told, word by word, since this was asked last.
  std::vector<std::string> told() {
    std::vector<std::string> lines;
    for (const std::vector<std::string>& arguments : machine.programs.started) {
      std::string line;
      for (std::size_t i = 1; i < arguments.size(); ++i) {
        line += (i > 1 ? " " : "") + arguments[i];
      }
      lines.push_back(line);
    }
    machine.programs.started.clear();
    return lines;
  }
  std::string state(const std::string& what) { return folder.queryText("select " + what + " from siteState"); }

 private:
  std::unique_ptr<Timer> lapse_;
};

TEST_F(AlarmTest, AFailureIsRepeatedInThePassAndToldOnlyWhenItIsConfirmed) {
  set("confirm", "3");
  set("confirmAfter", "2 s, 3 s");
  const std::int16_t id = addPage("/a", "good");
  program.run().startChecking();
  fail("/a");
  const std::size_t before = server.requests().size();
  pass();
  EXPECT_EQ(server.requests().size() - before, 3U);
  EXPECT_THAT(told(), ElementsAre("down 1 3"));
  EXPECT_EQ(column(id, "failure"), "3");
  EXPECT_EQ(folder.queryText("select count(*) from log where status = 0"), "3");
}

TEST_F(AlarmTest, AFailureThatIsNotConfirmedIsRecordedAndNotTold) {
  set("confirm", "2");
  set("confirmAfter", "1");
  const std::int16_t id = addPage("/a", "good");
  program.run().startChecking();
  fail("/a");
  view.onJudged = [&](std::int16_t) { succeed("/a", "good"); };
  pass();
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(column(id, "failure"), "1");
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_EQ(state("failures"), "0");
}

TEST_F(AlarmTest, AnOutageIsToldOnceAndItsEndToo) {
  set("remind", "never");
  set("recovery", "on");
  addPage("/a", "good");
  program.run().startChecking();
  fail("/a");
  pass();
  pass();
  pass();
  EXPECT_THAT(told(), ElementsAre("down 1 1"));
  succeed("/a", "good");
  pass();
  pass();
  EXPECT_THAT(told(), ElementsAre("up 1 3"));
}

TEST_F(AlarmTest, WhatWasDecidedBeforeAKillIsToldAfterwardsOnce) {
  set("remind", "never");
  addPage("/a", "good");
  program.run().startChecking();
  fail("/a");
  pass();
  EXPECT_THAT(told(), ElementsAre("down 1 1"));
  EXPECT_EQ(state("owed"), "");
  folder.execute("update siteState set owed = 'down'");  // as a kill between the two leaves it
  machine.handClock.advance(minutes(2));
  program.run().tmrCheckSites().setEnabled(true);
  EXPECT_TRUE(waitUntil([&] { return !machine.programs.started.empty(); }));
  EXPECT_THAT(told(), ElementsAre("down 1 1"));
  EXPECT_TRUE(waitUntil([&] { return state("owed").empty(); }));
}

TEST_F(AlarmTest, WhatIsStillSoWhenQuietHoursEndIsToldThen) {
  machine.handClock.setLocal(HandClock::at("2024-05-17 12:00:00"));
  set("quiet", "daily 12-13");
  set("remind", "never");
  set("recovery", "on");
  addPage("/a", "good");
  addPage("/b", "good");
  program.run().startChecking();
  fail("/a");
  fail("/b");
  pass();
  succeed("/b", "good");
  pass();
  EXPECT_THAT(told(), IsEmpty());
  machine.handClock.setLocal(HandClock::at("2024-05-17 13:00:01"));
  EXPECT_TRUE(waitUntil([&] { return !machine.programs.started.empty(); }));
  EXPECT_THAT(told(), ElementsAre(HasSubstr("down 1 ")));
}

TEST_F(AlarmTest, ASiteThatRestsInItsQuietHoursIsNotCheckedAndThenItIs) {
  machine.handClock.setLocal(HandClock::at("2024-05-17 12:00:00"));
  const std::int16_t resting = addPage("/a", "good");
  const std::int16_t other = addPage("/b", "good");
  set("quiet", "daily 12-13", resting);
  set("quietHow", "do not check", resting);
  program.run().startChecking();
  EXPECT_EQ(column(resting, "lastChecked"), "NULL");
  EXPECT_NE(column(other, "lastChecked"), "NULL");
  machine.handClock.setLocal(HandClock::at("2024-05-17 13:00:00"));
  pass();
  EXPECT_NE(column(resting, "lastChecked"), "");
}

TEST_F(AlarmTest, ASlowPageIsAWarningAndUp) {
  set("slow", "1");
  const std::int16_t id = addPage("/a", "good");
  server.respond("/a", {.body = "good", .delay = milliseconds(60)});
  program.run().startChecking();
  pass();
  EXPECT_THAT(told(), ElementsAre("slow 1 0"));
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_EQ(state("slow"), "1");
}

TEST_F(AlarmTest, NothingIsKeptOfASiteThatFollowsTheOriginalRule) {
  addPage("/a", "good");
  program.run().startChecking();
  fail("/a");
  pass();
  pass();
  EXPECT_THAT(told(), ElementsAre("~event~ 1 ~checks~", "~event~ 1 ~checks~"));
  EXPECT_EQ(folder.queryText("select count(*) from siteState"), "0");
}

/// The transfers of the machine, whose way to the net the test makes and takes.
class Way final : public TransferMaker {
 public:
  explicit Way(TransferMaker& transfers) : transfers_(transfers) {}
  std::unique_ptr<TransferControl> makeTransferControl() override { return transfers_.makeTransferControl(); }
  bool hasWayOut() override {
    ++asked;
    return isThere;
  }

  bool isThere = true;
  int asked = 0;

 private:
  TransferMaker& transfers_;
};

class OwnNetworkTest : public ::testing::Test {
 protected:
  OwnNetworkTest() {
    program.start();
    program.data().setOption(kAllSites, "ownNetwork", "on");
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("tell ~event~"));
    lapse_ = machine.qtTimers.makeTimer([this] { machine.handClock.advance(seconds(1)); });
    lapse_->setInterval(milliseconds(5));
    lapse_->setEnabled(true);
    for (int i = 1; i <= 4; ++i) {
      program.data().addSite();
    }
    serve();
  }
  void serve() {
    server.emplace();
    for (std::int16_t id = 1; id <= 4; ++id) {
      const std::string path = "/" + std::to_string(id);
      server->respond(path, {.body = "good"});
      const std::string url = server->url(path, id % 2 == 0 ? "localhost" : "127.0.0.1");
      program.data().updateSites(id, url, "get", true, 10, false, "", "", "");
    }
  }
  std::string count(const std::string& what) { return folder.queryText("select count(*) from " + what); }

  ProgramFolder folder;
  TestServices machine{TestServices::Time::clockByHand};
  Way way{machine.transfers};
  std::optional<HttpServer> server;
  RecordingView view;
  Program program{folder.path(), machine.services().with({.transfers = &way}), view};

 private:
  std::unique_ptr<Timer> lapse_;
};

TEST_F(OwnNetworkTest, NothingIsCountedAsDownWhileThisMachineIsOfflineAndAllIsCheckedOnItsReturn) {
  program.run().startChecking();
  ASSERT_EQ(count("log where status"), "4");
  server.reset();
  way.isThere = false;
  machine.handClock.advance(minutes(11));
  EXPECT_TRUE(waitUntil([&] { return view.offline.has_value(); }));
  machine.handClock.advance(hours(1));
  EXPECT_TRUE(waitUntil([&] { return way.asked > 3; }));
  EXPECT_EQ(count("log where status = 0"), "0");
  EXPECT_EQ(count("sites where failure > 0"), "0");
  EXPECT_NE(count("siteState where unknownSince is not null"), "0");
  EXPECT_THAT(view.status(), HasSubstr("This machine is offline since "));
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("tell", "offline")));

  serve();
  server->respond("/4", {.body = "changed"});
  way.isThere = true;
  EXPECT_TRUE(waitUntil([&] { return count("log where status = 0") == "1"; }));
  EXPECT_FALSE(view.offline);
  EXPECT_EQ(count("siteState where unknownSince is not null"), "0");
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("tell", "offline"), ElementsAre("tell", "online"),
                                                    ElementsAre("tell", "~event~")));
}

TEST_F(OwnNetworkTest, ServersThatAreReallyGoneAreDown) {
  program.run().startChecking();
  server.reset();
  program.run().runTestPass(site_choice::active);
  EXPECT_EQ(count("log where status = 0"), "4");
  EXPECT_FALSE(view.offline);
}

TEST_F(OwnNetworkTest, OneForeignPageAtManyHostsIsNobodysFailure) {
  program.run().startChecking();
  for (int id = 1; id <= 4; ++id) {
    server->respond("/" + std::to_string(id), {.body = "Please log in to this hotel's network."});
  }
  program.run().runTestPass(site_choice::active);
  EXPECT_TRUE(view.offline);
  EXPECT_EQ(count("log where status = 0"), "0");
  for (int id = 1; id <= 4; ++id) {
    server->respond("/" + std::to_string(id), {.body = "good"});
  }
  EXPECT_TRUE(waitUntil([&] { return count("log where status") == "8"; }));
  EXPECT_FALSE(view.offline);
}

TEST_F(OwnNetworkTest, WhatFailsRightAfterASleepIsTriedAgain) {
  program.run().startChecking();
  server.reset();
  // Asleep, the clock on the wall alone has gone on.
  machine.handClock.setLocal(machine.handClock.localNow() + hours(3));
  pumpFor(milliseconds(100));
  EXPECT_EQ(count("log where status = 0"), "0");
  serve();
  EXPECT_TRUE(waitUntil([&] { return count("log where status") == "8"; }));
  EXPECT_EQ(count("log where status = 0"), "0");
}

TEST_F(OwnNetworkTest, WithoutTheOptionEachIsDown) {
  program.data().removeOption(kAllSites, "ownNetwork");
  program.run().startChecking();
  server.reset();
  way.isThere = false;
  program.run().runTestPass(site_choice::active);
  EXPECT_EQ(count("log where status = 0"), "4");
  EXPECT_EQ(way.asked, 0);
}

}  // namespace
}  // namespace tarnwick::testing
