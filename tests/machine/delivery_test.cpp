// SPDX-License-Identifier: MIT
// How alerts leave by the outbox, on a real list and a clock moved by hand.
#include "delivery/delivery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>

#include "store/channel_table.h"
#include "support/program_folder.h"
#include "support/test_services.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A program that delivers: several may work on one list.
struct Deliverer {
  Deliverer(const std::string& folder, const Services& services)
      : database(folder, services.databases), delivery(database, channels, outbox, services) {}

  Database database;
  Channels channels{database};
  Outbox outbox{database};
  Delivery delivery;
};

class DeliveryTest : public ::testing::Test {
 protected:
  DeliveryTest() { machine.handClock.setLocal(HandClock::at("2026-11-22 14:00:00")); }

  std::int64_t addMail(const std::string& name, OptionValues settings = {}) {
    settings.emplace("to", name + "@example.org");
    settings.emplace("server", "smtp.example.org");
    return one.channels.storeChannel(
        {.name = name, .kind = std::string(channel_kind::mail), .settings = std::move(settings)});
  }
  void happen(const std::string& host, const std::string& event = "down",
              const std::optional<std::string>& channels = std::nullopt) {
    Transaction whole(one.database);
    one.delivery.add({.idSite = 1,
                      .made = machine.handClock.localNow(),
                      .pass = one.delivery.passBegan(),
                      .event = event,
                      .url = "http://" + host + "/"},
                     channels);
    whole.commit();
    one.delivery.deliver();
  }
  void advance(std::chrono::milliseconds time) { machine.handTimers.advance(time); }
  /// What has been begun to send, as "to: subject", since this was asked last.
  std::vector<std::string> sent() {
    std::vector<std::string> lines;
    for (const RecordingMails::Sent& mail : machine.mails.sent) {
      lines.push_back(mail.message.to.front() + ": " + mail.message.subject);
    }
    machine.mails.sent.clear();
    return lines;
  }
  void refuse(int times, const std::string& words = "RCPT TO: 550 5.1.1 User unknown") {
    for (; times > 0; --times) {
      machine.mails.answer({.delivered = false, .words = words});
    }
  }
  std::string state() { return folder.queryRows("select state, tries, answer from outbox order by idAlert"); }

  ProgramFolder folder;
  TestServices machine{TestServices::Time::byHand};
  Deliverer one{folder.path(), machine.services()};
};

TEST_F(DeliveryTest, AnAlertLeavesThroughEveryChannelThatIsThereForAllSites) {
  addMail("office");
  addMail("home");
  happen("a.example.org");
  advance(seconds(1));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer",
                                  "home@example.org: a.example.org does not answer"));
  EXPECT_EQ(folder.queryText("select count(*) from outbox where state = 'sent'"), "2");
}

TEST_F(DeliveryTest, ASiteWithChannelsOfItsOwnIsToldThroughThoseAlone) {
  addMail("office");
  addMail("home");
  happen("a.example.org", "down", "HOME");
  happen("b.example.org", "down", "none");
  advance(seconds(1));
  EXPECT_THAT(sent(), ElementsAre("home@example.org: a.example.org does not answer"));
}

TEST_F(DeliveryTest, ASiteWhoseChannelsAreGoneIsToldAsIfItNamedNone) {
  addMail("office");
  happen("a.example.org", "down", "the old name, another");
  advance(seconds(1));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer"));
}

TEST_F(DeliveryTest, OfASiteTheLatestAlertOfEachChannelIsKnown) {
  const std::int64_t office = addMail("office");
  const std::int64_t phone = addMail("phone");
  happen("a.test");
  happen("a.test", "up", "phone");
  std::vector<std::pair<std::int64_t, std::string>> latest;
  for (const OutboxRow& row : one.outbox.latestAlertsOf(1)) {
    latest.emplace_back(row.idChannel, row.alert.event);
  }
  EXPECT_THAT(latest, ElementsAre(std::pair(office, "down"), std::pair(phone, "up")));
  EXPECT_THAT(one.outbox.latestAlertsOf(2), IsEmpty());
}

TEST_F(DeliveryTest, WithoutAChannelNothingIsKeptAndNothingWakesUp) {
  EXPECT_FALSE(one.delivery.tellsOf(std::nullopt));
  happen("a.example.org");
  advance(hours(1));
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

TEST_F(DeliveryTest, ATryThatFailsIsRepeatedLaterAndLaterForADayAndThenToldAsLost) {
  addMail("office");
  refuse(1000);
  happen("a.example.org");
  std::vector<std::string> at;
  for (int minute = 0; minute <= 26 * 60; ++minute) {
    advance(minutes(1));
    if (!sent().empty()) {
      at.push_back(dateTimeText(machine.handClock.localNow()).substr(11, 5));
    }
  }
  ASSERT_GE(at.size(), 6U);
  EXPECT_THAT(std::vector<std::string>(at.begin(), at.begin() + 5),
              ElementsAre("14:01", "14:02", "14:07", "14:22", "15:22"));
  EXPECT_LE(at.size(), 30U);
  EXPECT_THAT(state(), HasSubstr("failed"));
  EXPECT_EQ(one.outbox.outboxSummary().failed, 1);
  EXPECT_EQ(one.outbox.outboxSummary().failedBy, "RCPT TO: 550 5.1.1 User unknown");
}

TEST_F(DeliveryTest, WhatWaitsIsToldWithTheServersOwnWords) {
  addMail("office");
  refuse(1);
  happen("a.example.org");
  advance(seconds(2));
  EXPECT_EQ(one.outbox.outboxSummary().delayed, 1);
  EXPECT_EQ(one.outbox.outboxSummary().delayedBy, "RCPT TO: 550 5.1.1 User unknown");
  advance(minutes(2));
  EXPECT_EQ(one.outbox.outboxSummary(), OutboxSummary{});
}

TEST_F(DeliveryTest, TheOrderIsKeptInEachChannel) {
  addMail("office");
  refuse(1);
  happen("a.example.org");
  advance(seconds(1));
  happen("b.example.org");
  advance(seconds(30));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer"));
  advance(minutes(2));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer",
                                  "office@example.org: b.example.org does not answer"));
}

TEST_F(DeliveryTest, ManyOfOnePassLeaveAsOne) {
  addMail("office", {{"bundle", "3"}});
  one.delivery.beginPass();
  for (const char* host : {"a.example.org", "b.example.org", "c.example.org"}) {
    happen(host);
    advance(seconds(2));
  }
  EXPECT_THAT(sent(), IsEmpty());
  one.delivery.endPass();
  advance(seconds(1));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: 3 sites: down"));
  EXPECT_EQ(folder.queryText("select count(*) from outbox where state = 'sent'"), "3");
}

TEST_F(DeliveryTest, FewerThanThatLeaveOneByOne) {
  addMail("office", {{"bundle", "3"}});
  one.delivery.beginPass();
  happen("a.example.org");
  happen("b.example.org");
  one.delivery.endPass();
  advance(seconds(3));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer",
                                  "office@example.org: b.example.org does not answer"));
}

TEST_F(DeliveryTest, ALongPassHoldsNothingBackForLong) {
  addMail("office", {{"bundle", "3"}});
  one.delivery.beginPass();
  happen("a.example.org");
  advance(seconds(25));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer"));
}

TEST_F(DeliveryTest, OfTwoProgramsOneSends) {
  addMail("office");
  Deliverer other(folder.path(), machine.services());
  happen("a.example.org");
  other.delivery.deliver();
  advance(minutes(5));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer"));
}

TEST_F(DeliveryTest, WhatAProgramLeavesBehindAnotherOneDelivers) {
  addMail("office");
  machine.mails.silent = true;
  auto killed = std::make_unique<Deliverer>(folder.path(), machine.services());
  {
    Transaction whole(one.database);
    one.delivery.add(
        {.idSite = 1, .made = machine.handClock.localNow(), .event = "down", .url = "http://a.example.org/"},
        std::nullopt);
    whole.commit();
  }
  killed->delivery.deliver();
  advance(seconds(1));
  EXPECT_EQ(sent().size(), 1U);
  killed.reset();
  machine.mails.silent = false;
  one.delivery.deliver();
  advance(seconds(30));
  EXPECT_THAT(sent(), IsEmpty());  // it may still be under way there
  advance(minutes(2));
  EXPECT_THAT(sent(), ElementsAre("office@example.org: a.example.org does not answer"));
  EXPECT_THAT(state(), HasSubstr("sent"));
}

TEST_F(DeliveryTest, ASilentServerHoldsUpItsOwnChannelAlone) {
  addMail("office");
  one.channels.storeChannel(
      {.name = "bell", .kind = std::string(channel_kind::sound), .settings = {{"file", "/sounds/alarm.wav"}}});
  machine.mails.silent = true;
  happen("a.example.org");
  advance(seconds(59));
  EXPECT_EQ(machine.sound.played.size(), 1U);
  advance(seconds(2));
  EXPECT_EQ(one.outbox.outboxSummary().delayedBy, "Nothing was answered within 58 seconds.");
}

TEST_F(DeliveryTest, TheSecretOfAChannelIsAskedForAndItsLackIsTold) {
  const std::int64_t id = addMail("office", {{"user", "me"}});
  happen("a.example.org");
  advance(seconds(2));
  EXPECT_THAT(sent(), IsEmpty());
  EXPECT_THAT(one.outbox.outboxSummary().delayedBy, HasSubstr("has no password or token."));
  machine.secrets.kept[{folder.path(), secretName(id)}] = "word";
  advance(minutes(2));
  ASSERT_EQ(machine.mails.sent.size(), 1U);
  EXPECT_EQ(machine.mails.sent.front().server.secret, "word");
}

TEST_F(DeliveryTest, AProgramIsRunAndItsExitStatusTold) {
  one.channels.storeChannel({.name = "script",
                             .kind = std::string(channel_kind::program),
                             .settings = {{"command", "/bin/tell ~event~ ~url~ ~idsite~"}}});
  machine.runner.answer({.started = true, .status = 3, .lastError = "no line"});
  happen("a.example.org");
  advance(seconds(2));
  EXPECT_THAT(machine.runner.ran, ElementsAre(ElementsAre("/bin/tell", "down", "http://a.example.org/", "1")));
  EXPECT_EQ(one.outbox.outboxSummary().delayedBy, "exit status 3: no line");
}

TEST_F(DeliveryTest, ANoticeWaitsForAProgramWithADesktop) {
  one.channels.storeChannel({.name = "desk", .kind = std::string(channel_kind::notice)});
  machine.notifier.there = false;
  happen("a.example.org");
  advance(minutes(5));
  EXPECT_EQ(folder.queryText("select tries from outbox"), "0");
  machine.notifier.there = true;
  advance(minutes(2));
  ASSERT_EQ(machine.notifier.shown.size(), 1U);
  EXPECT_EQ(machine.notifier.shown.front().title, "a.example.org does not answer");
}

TEST_F(DeliveryTest, WhatAUserDoesAboutANoticeIsPassedOn) {
  one.channels.storeChannel({.name = "desk", .kind = std::string(channel_kind::notice)});
  std::vector<std::string> acted;
  one.delivery.onNoticeActed(
      [&](std::int16_t id, const std::string& key) { acted.push_back(std::to_string(id) + " " + key); });
  happen("a.example.org");
  advance(seconds(1));
  machine.notifier.act(0, "mute");
  EXPECT_THAT(acted, ElementsAre("1 mute"));
}

TEST_F(DeliveryTest, WhatCannotBeKeptLeavesAllTheSame) {
  addMail("office");
  refuse(1);
  one.delivery.addUnkept({.idSite = 1, .made = machine.handClock.localNow(), .event = "down", .url = "http://a.b/"},
                         std::nullopt);
  advance(minutes(2));
  EXPECT_EQ(sent().size(), 2U);
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

TEST_F(DeliveryTest, RetriedItIsTriedAtOnceAndDroppedItIsGone) {
  addMail("office");
  refuse(3);
  happen("a.example.org");
  advance(minutes(3));
  sent();
  EXPECT_EQ(one.outbox.retryAlerts({}, machine.handClock.localNow()), 1);
  one.delivery.deliver();
  advance(seconds(1));
  EXPECT_EQ(sent().size(), 1U);
  EXPECT_EQ(one.outbox.dropAlerts({}), 1);
  advance(hours(2));
  EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(DeliveryTest, RetriedInVainItIsTriedAgainAsSoonAsANewOne) {
  addMail("office");
  refuse(5);
  happen("a.example.org");
  advance(minutes(30));
  sent();
  one.outbox.retryAlerts({}, machine.handClock.localNow());
  one.delivery.deliver();
  advance(seconds(1));
  ASSERT_EQ(sent().size(), 1U);
  EXPECT_EQ(one.outbox.outboxSummary().delayed, 1);
  advance(minutes(1));
  EXPECT_EQ(sent().size(), 1U) << "a press puts nothing off";
}

TEST_F(DeliveryTest, ATestTellsTheAnswerAndKeepsNothing) {
  Channel channel{.name = "new", .kind = std::string(channel_kind::mail)};
  channel.settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}, {"user", "me"}};
  refuse(1, "AUTH: 535 5.7.8 Authentication failed");
  std::vector<std::string> told;
  one.delivery.test(channel, "word", [&](const SendReply& reply) { told.push_back(reply.words); });
  advance(seconds(1));
  EXPECT_THAT(told, ElementsAre("AUTH: 535 5.7.8 Authentication failed"));
  EXPECT_EQ(machine.mails.sent.front().server.secret, "word");
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "0");
}

TEST_F(DeliveryTest, TheLastTryOfEachChannelIsTold) {
  const std::int64_t office = addMail("office");
  machine.mails.silent = true;
  happen("a.example.org");
  advance(seconds(1));
  EXPECT_THAT(one.outbox.lastTries(), IsEmpty()) << "what is under way has come to nothing yet";
  advance(seconds(58));
  const LastTry failed = one.outbox.lastTries().at(office);
  EXPECT_FALSE(failed.isSent);
  EXPECT_LT(machine.handClock.localNow() - failed.at, seconds(2));
  machine.mails.silent = false;
  const std::int64_t home = addMail("home");
  happen("b.example.org");
  advance(minutes(2));
  EXPECT_TRUE(one.outbox.lastTries().at(office).isSent);
  EXPECT_TRUE(one.outbox.lastTries().at(home).isSent);
  EXPECT_GT(one.outbox.lastTries().at(office).at, failed.at);
  // Of two of one moment the later alert counts.
  const std::string asOf = "update outbox set lastTry = '2026-11-22 15:00:00', state = iif(idAlert = ";
  folder.execute(asOf + "(select min(idAlert) from outbox), 'failed', 'sent')");
  EXPECT_TRUE(one.outbox.lastTries().at(office).isSent);
  folder.execute(asOf + "(select min(idAlert) from outbox), 'sent', 'failed')");
  EXPECT_FALSE(one.outbox.lastTries().at(office).isSent);
}

TEST_F(DeliveryTest, ALockedFileHoldsUpNobodyAndLosesNothing) {
  addMail("office");
  Deliverer other(folder.path(), machine.services());
  happen("a.example.org");
  {
    const Transaction busy(other.database);
    advance(seconds(10));
    EXPECT_TRUE(one.delivery.isUnderWay());
  }
  advance(seconds(5));
  EXPECT_FALSE(one.delivery.isUnderWay());
  EXPECT_EQ(folder.queryText("select state from outbox"), "sent");
}

TEST_F(DeliveryTest, ASiteThatIsDeletedTakesItsAlertsAlong) {
  addMail("office");
  refuse(1);
  happen("a.example.org");
  advance(seconds(1));
  one.outbox.removeAlertsOf(1);
  advance(hours(1));
  EXPECT_EQ(sent().size(), 1U);
}

TEST_F(DeliveryTest, AClockThatIsSetBackHoldsNothingUp) {
  addMail("office");
  refuse(1);
  happen("a.example.org");
  advance(seconds(1));
  machine.handClock.setLocal(HandClock::at("2026-11-21 09:00:00"));
  advance(minutes(2));
  EXPECT_EQ(sent().size(), 2U);
}

// The server keeps silent, refuses and hangs up for a day in which the program is killed again and again, often in the
// middle of a try; then it takes what it is given, but the program goes on being killed for a while.
TEST_F(DeliveryTest, ADayWithoutServersAndFiftyKillsLoseNothingAndDoubleNoMoreThanWhatWasUnderWay) {
  addMail("office");
  addMail("home");
  std::mt19937 random(25);  // NOLINT: the same day each time
  auto program = std::make_unique<Deliverer>(folder.path(), machine.services());
  const LocalTime begin = machine.handClock.localNow();
  const auto hour = [&] { return std::chrono::floor<hours>(machine.handClock.localNow() - begin).count(); };
  int alerts = 0;
  int kills = 0;
  int killedInATry = 0;
  for (int round = 0; hour() < 28; ++round) {
    const bool isDown = hour() < 24;
    machine.mails.silent = isDown && random() % 2 == 0;
    machine.mails.forgetAnswers();
    refuse(isDown ? 9 : 0, "421 Come back later");
    if (isDown && round % 10 == 0) {
      happen("site" + std::to_string(++alerts) + ".example.org");
      one.delivery.stop();  // the other one delivers
    }
    program->delivery.deliver();
    advance(std::chrono::milliseconds(random() % 60'000));
    if (round % 20 == 19) {
      killedInATry += program->delivery.isUnderWay() && !machine.mails.silent ? 1 : 0;
      ++kills;
      program = std::make_unique<Deliverer>(folder.path(), machine.services());
    }
    advance(minutes(1));
  }
  EXPECT_GE(kills, 50);
  std::map<std::string, int> arrived;
  for (const RecordingMails::Sent& mail : machine.mails.taken) {
    ++arrived[mail.message.to.front() + mail.message.subject];
  }
  EXPECT_EQ(folder.queryText("select count(*) from outbox where state <> 'sent'"), "0");
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), std::to_string(2 * alerts));
  EXPECT_EQ(arrived.size(), static_cast<std::size_t>(2 * alerts));
  const auto twice = std::ranges::count_if(arrived, [](const auto& mail) { return mail.second > 1; });
  EXPECT_LE(twice, killedInATry);
}

}  // namespace
}  // namespace tarnwick::testing
