// SPDX-License-Identifier: MIT
// What a run hands over to the channels, with real servers and a real list.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/run_controller.h"
#include "store/channel_table.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using ::testing::HasSubstr;

class ChannelAlertsTest : public ::testing::Test, public ProgramFixture {
 protected:
  ChannelAlertsTest() {
    program.start();
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("tell ~idsite~"));
  }

  std::int64_t addMail(const std::string& name = "office", OptionValues settings = {}) {
    settings.emplace("to", name + "@example.org");
    settings.emplace("server", "smtp.example.org");
    return program.data().storeChannel(
        {.name = name, .kind = std::string(channel_kind::mail), .settings = std::move(settings)});
  }
  void run() { program.run().startChecking(); }
  void pass() { program.run().runTestPass(site_choice::active); }
  void fail(const std::string& path) { server.respond(path, {.body = "one\nTWO\nthree\n"}); }
  std::string outbox(const std::string& columns) {
    return folder.queryRows("select " + columns + " from outbox order by idAlert");
  }
  void awaitSent(std::size_t count) {
    EXPECT_TRUE(waitUntil(
        [&] { return folder.queryText("select count(*) from outbox where state = 'sent'") == std::to_string(count); }));
  }
};

TEST_F(ChannelAlertsTest, AFailureIsKeptWithItsCauseAndItsDifferenceAndLeaves) {
  addMail();
  const std::int16_t id = addPage("/a", "one\ntwo\nthree\n");
  run();
  fail("/a");
  pass();
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "1");
  EXPECT_EQ(folder.queryText("select idSite from outbox"), std::to_string(id));
  EXPECT_EQ(folder.queryText("select event from outbox"), "down");
  EXPECT_THAT(folder.queryText("select cause from outbox"), HasSubstr("line 2: expected \"two\", found \"TWO\""));
  EXPECT_EQ(folder.queryText("select difference from outbox"), " one\n-two\n+TWO\n three\n");
  awaitSent(1);
  ASSERT_EQ(machine.mails.sent.size(), 1U);
  EXPECT_EQ(machine.mails.sent.front().message.subject, "127.0.0.1 changed");
  EXPECT_EQ(machine.programs.started.size(), 1U);  // as it was
}

TEST_F(ChannelAlertsTest, AFailedFetchIsKeptWithItsCause) {
  addMail();
  addSite("http://127.0.0.1:1/");
  program.data().setOption(kAllSites, "adopt", "pages only");
  run();
  EXPECT_THAT(folder.queryText("select cause from outbox"), HasSubstr("refused"));
  EXPECT_EQ(folder.queryText("select difference from outbox"), "");
}

TEST_F(ChannelAlertsTest, AChannelOfTheKindMailTakesThePlaceOfTheOriginalMail) {
  program.data().setControl("cemail", true);
  program.data().setControl("smtp", std::string("127.0.0.1"));
  addMail();
  const std::int16_t id = addPage("/a", "good");
  program.data().updateSites(id, server.url("/a"), "get", true, 10, true, "you@example.org", "", "");
  run();
  fail("/a");
  pass();
  EXPECT_TRUE(view.lostMails.empty());  // there is no server on port 25
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "1");
}

TEST_F(ChannelAlertsTest, WithoutAMailChannelTheOriginalMailStays) {
  program.data().setControl("cemail", true);
  program.data().storeChannel(
      {.name = "bell", .kind = std::string(channel_kind::sound), .settings = {{"file", "/a.wav"}}});
  const std::int16_t id = addPage("/a", "good");
  program.data().updateSites(id, server.url("/a"), "get", true, 10, true, "you@example.org", "", "");
  run();
  fail("/a");
  pass();
  EXPECT_EQ(view.lostMails.size(), 1U);  // no server is set
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "1");
}

TEST_F(ChannelAlertsTest, WhatTheOptionsOfTheAlarmDecideIsKeptOnceEach) {
  addMail();
  program.data().setOption(kAllSites, "remind", "60");
  program.data().setOption(kAllSites, "recovery", "on");
  addPage("/a", "good");
  run();
  fail("/a");
  for (int i = 0; i < 4; ++i) {
    pass();
    machine.handClock.advance(minutes(20));
  }
  server.respond("/a", {.body = "good"});
  pass();
  EXPECT_EQ(outbox("event"), "down\nstill down\nup\n");
}

TEST_F(ChannelAlertsTest, TheWholePageIsKeptWhereItIsToBeAttached) {
  addMail("office", {{"attach", "on"}});
  addMail("home");
  addPage("/a", "good");
  run();
  machine.mails.silent = true;
  fail("/a");
  pass();
  EXPECT_EQ(outbox("idChannel, length(page)"), "1|14\n2|0\n");
}

TEST_F(ChannelAlertsTest, ASiteThatIsDeletedLeavesNoAlertBehind) {
  addMail();
  const std::int16_t id = addPage("/a", "good");
  run();
  machine.mails.silent = true;
  fail("/a");
  pass();
  program.data().deleteSite(id);
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

TEST_F(ChannelAlertsTest, AChannelThatIsRemovedTakesWhatWaitsForItAlong) {
  const std::int64_t office = addMail();
  addPage("/a", "good");
  run();
  machine.mails.silent = true;
  fail("/a");
  pass();
  program.data().removeChannel(office);
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

}  // namespace
}  // namespace tarnwick::testing
