// SPDX-License-Identifier: MIT
// What shows while a run is on that it is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "delivery/delivery.h"
#include "engine/proof_of_life.h"
#include "engine/run_controller.h"
#include "store/channel_table.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::HasSubstr;
using ::testing::Not;

class ProofOfLifeTest : public ::testing::Test, public ProgramFixture {
 protected:
  ProofOfLifeTest() : ProgramFixture(TestServices::Time::byHand) {
    machine.handClock.setLocal(HandClock::at("2026-11-22 07:30:00"));
    program.data().storeChannel({.name = "office",
                                 .kind = std::string(channel_kind::mail),
                                 .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}}});
    program.start();
  }
  void set(const std::string& name, const std::string& value) { program.data().setOption(kAllSites, name, value); }
  void advance(std::chrono::milliseconds time) { machine.handTimers.advance(time); }
  std::string told() { return folder.queryRows("select made, event from outbox order by idAlert"); }
};

TEST_F(ProofOfLifeTest, TheFiguresOfTheDayLeaveOnceADayAtTheirTime) {
  set("allIsWell", "8:00");
  const std::int16_t id = addSite("http://127.0.0.1:1/");
  folder.execute("update sites set lastChecked = '2026-11-22 07:29:00', status = 1, tInterval = 30000 where idSite = " +
                 std::to_string(id));
  addSite("http://127.0.0.1:1/b");
  folder.execute("update sites set active = 0 where idSite <> " + std::to_string(id));
  program.run().startChecking();
  folder.execute("update sites set lastChecked = '2026-11-22 07:30:00', status = 1 where idSite = " +
                 std::to_string(id));
  advance(minutes(29));
  EXPECT_THAT(told(), Not(HasSubstr("all is well")));
  advance(minutes(2));
  EXPECT_THAT(told(), HasSubstr("2026-11-22 08:00:00|all is well"));
  EXPECT_EQ(folder.queryText("select cause from outbox where event = 'all is well'"),
            "1 site is watched: 1 up, 0 down; 1 site is switched off.");
  advance(hours(23));
  EXPECT_EQ(folder.queryText("select count(*) from outbox where event = 'all is well'"), "1");
  advance(hours(2));
  EXPECT_EQ(folder.queryText("select count(*) from outbox where event = 'all is well'"), "2");
}

TEST_F(ProofOfLifeTest, ARunThatIsStartedLaterThatDayTellsItThen) {
  set("testAlert", "6");
  program.run().startChecking();
  advance(seconds(2));
  EXPECT_THAT(told(), HasSubstr("daily test"));
  advance(seconds(2));
  ASSERT_EQ(machine.mails.sent.size(), 1U);
  EXPECT_EQ(machine.mails.sent.front().message.subject, "The daily test alert");
}

TEST_F(ProofOfLifeTest, NothingIsToldWhileNoRunIsOn) {
  set("allIsWell", "7:00");
  advance(hours(3));
  EXPECT_EQ(told(), "");
}

TEST_F(ProofOfLifeTest, TheHeartBeatsOnceAMinuteWhileARunIsOn) {
  server.respond("/alive", {.body = "ok"});
  set("heartbeat", server.url("/alive"));
  program.run().startChecking();
  for (std::size_t beat = 1; beat <= 3; ++beat) {
    advance(seconds(60));
    EXPECT_TRUE(waitUntil([&] { return server.requests().size() == beat; })) << beat;
    pumpFor(std::chrono::milliseconds(20));  // there is no other one before a minute has gone by
  }
  program.run().stopChecking();
  advance(minutes(5));
  EXPECT_EQ(server.requests().size(), 3U);
}

TEST_F(ProofOfLifeTest, AHeartbeatThatIsNotTakenIsShownUntilItIsOrNoneIsWanted) {
  server.respond("/alive", {.status = 503, .body = "no"});
  set("heartbeat", server.url("/alive"));
  program.run().startChecking();
  advance(seconds(60));
  ASSERT_TRUE(waitUntil([&] { return view.heartbeat == "answered with 503"; }));
  EXPECT_EQ(program.run().heartbeatFault(), "answered with 503");
  server.respond("/alive", {.body = "ok"});
  advance(seconds(60));
  EXPECT_TRUE(waitUntil([&] { return view.heartbeat.empty(); }));
  server.respond("/alive", {.status = 503, .body = "no"});
  advance(seconds(60));
  ASSERT_TRUE(waitUntil([&] { return !view.heartbeat.empty(); }));
  program.run().stopChecking();
  EXPECT_EQ(view.heartbeat, "");
}

TEST_F(ProofOfLifeTest, ATestAlertThatStillWaitsAfterItsTimeIsLostUntilOneArrives) {
  Delivery& delivery = program.data().delivery();
  set("testAlert", "8:00");
  for (int tries = 0; tries < 5; ++tries) {
    machine.mails.answer({.delivered = false, .words = "450 later"});
  }
  program.run().startChecking();
  advance(minutes(35));
  EXPECT_THAT(told(), HasSubstr("daily test"));
  EXPECT_FALSE(delivery.lostTrial()) << "it has not had its time";
  advance(minutes(20));
  ASSERT_TRUE(delivery.lostTrial());
  EXPECT_EQ(delivery.lostTrial()->channel, "office");
  EXPECT_EQ(delivery.lostTrial()->answer, "450 later");
  advance(hours(4));
  EXPECT_FALSE(delivery.lostTrial()) << "it has arrived";
}

TEST_F(ProofOfLifeTest, ATestAlertThatWasGivenUpIsLostUntilALaterOneArrives) {
  Delivery& delivery = program.data().delivery();
  const auto keep = [this](const std::string& made, const std::string& state) {
    folder.execute(
        "insert into outbox (idChannel, idSite, pass, made, event, state, tries, nextTry, deadline, answer, url, "
        "cause, downSince, downFor, checks, firstError, difference, page, lastTry) values (1, "
        "0, '" +
        made + "', '" + made + "', 'daily test', '" + state + "', 1, '" + made + "', '" + made +
        "', 'why', '', '', '', '', '', '', '', '', '')");
  };
  keep("2026-11-20 08:00:00", "failed");
  ASSERT_TRUE(delivery.lostTrial());
  keep("2026-11-22 07:29:00", "waiting");
  EXPECT_TRUE(delivery.lostTrial());
  keep("2026-11-22 07:29:30", "sent");
  EXPECT_EQ(delivery.lostTrial().has_value(), false);
  keep("2026-11-22 07:29:40", "failed");
  ASSERT_TRUE(delivery.lostTrial());
  Channel off = program.data().channels().front();
  off.on = false;
  program.data().storeChannel(off);
  EXPECT_FALSE(delivery.lostTrial()) << "it was switched off on purpose";
}

TEST_F(ProofOfLifeTest, DailyMessagesNeedAChannelForAllSites) {
  const auto lacks = [this] {
    return ProofOfLife::lacksChannel(program.data().optionsInForce(), program.data().delivery());
  };
  EXPECT_FALSE(lacks());
  set("allIsWell", "8:00");
  EXPECT_FALSE(lacks());
  program.data().removeChannel(1);
  EXPECT_TRUE(lacks());
}

}  // namespace
}  // namespace tarnwick::testing
