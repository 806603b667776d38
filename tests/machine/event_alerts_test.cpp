// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "base/errors.h"
#include "machine/alerts_fixture.h"

namespace tarnwick {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using testing::HandClock;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using testing::SmtpStage;

/// The placeholders of an event, and how the fixture's outage fills them in behind the word.
const std::string kPlaceholders = "~event~|~downSince~|~downFor~|~checks~|~firstError~";
const std::string kFilled = "|2024-05-17 10:48:00|1 h 12 min|4|The connection was refused.";

struct KindCase {
  AlertKind kind;
  std::string word;
  std::string subject;
  std::string file;
  bool makesSound;
  std::string filled = kFilled;
};

const KindCase kKinds[] = {
    {AlertKind::down, "down", "A WEB SITE ERROR HAS OCCURED - message from tarnwick", "email.txt", true},
    {AlertKind::stillDown, "still down", "A WEB SITE IS STILL DOWN - message from tarnwick", "email.txt", true},
    {AlertKind::up, "up", "A WEB SITE IS UP AGAIN - message from tarnwick", "recovered.txt", false},
    {AlertKind::unsteady, "unsteady", "A WEB SITE IS UNSTEADY - message from tarnwick", "unsteady.txt", true},
    {AlertKind::slow, "slow", "A WEB SITE IS SLOW - message from tarnwick", "slow.txt", false, "|||0|"},
    {AlertKind::certificate, "certificate", "A CERTIFICATE ENDS SOON - message from tarnwick", "certificate.txt", false,
     "|||0|"},
    {AlertKind::issuer, "issuer", "A CERTIFICATE IS FROM ANOTHER AUTHORITY - message from tarnwick", "issuer.txt",
     false, "|||0|"},
};

class EventAlerts : public testing::AlertsFixture {
 protected:
  EventAlerts() { settings.setControl("program", "/bin/alert \"~event~\" ~idsite~"); }

  const OutageFacts outage{.since = HandClock::at("2024-05-17 10:48:00"),
                           .checks = 4,
                           .firstError = "The connection was refused.",
                           .now = HandClock::at("2024-05-17 12:00:30")};
  const std::int16_t site = addSite("http://example.com/");
};

class EveryKind : public EventAlerts, public ::testing::WithParamInterface<KindCase> {};

TEST_P(EveryKind, HasASubjectAndATextOfItsOwn) {
  switchOn(true, false, false);
  writeTemplate("~url~ ~date~ " + kPlaceholders + "\r\n", GetParam().file);

  alerts.sendAlerts(site, GetParam().kind, outage);

  EXPECT_THAT(server.received(SmtpStage::message), ::testing::StartsWith("Subject:" + GetParam().subject + "\r\n"));
  EXPECT_EQ(server.received(SmtpStage::rcptTo), "RCPT TO:<you@example.com>\r\n");
  EXPECT_EQ(mailBody(), "http://example.com/ 2024-05-17 12:00:30 " + GetParam().word + GetParam().filled + "\r\n");
  EXPECT_FALSE(alerts.mailOutcome().lost);
  EXPECT_FALSE(alerts.mailOutcome().otherWay);
}

TEST_P(EveryKind, HasATextWithoutAFile) {
  switchOn(true, false, false);
  alerts.sendAlerts(site, GetParam().kind, outage);
  if (GetParam().file == "email.txt") {
    EXPECT_EQ(mailBody(), "");
  } else {
    EXPECT_THAT(mailBody(), AllOf(HasSubstr("http://example.com/\r\n"), ::testing::Not(HasSubstr("~")),
                                  HasSubstr(GetParam().file)));
  }
}

TEST_P(EveryKind, MakesASoundForWhatIsBad) {
  switchOn(false, true, false);
  alerts.sendAlerts(site, GetParam().kind, outage);
  EXPECT_THAT(machine.sound.played, SizeIs(GetParam().makesSound ? 1 : 0));
  EXPECT_EQ(alerts.mailOutcome().otherWay, GetParam().makesSound);
}

TEST_P(EveryKind, IsToldToAProgramThatNamesTheEvent) {
  switchOn(false, false, true);
  settings.setControl("program", "/bin/alert \"" + kPlaceholders + "\"");
  alerts.sendAlerts(site, GetParam().kind, outage);
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", GetParam().word + GetParam().filled)));
  EXPECT_TRUE(alerts.mailOutcome().otherWay);
}

TEST_P(EveryKind, StartsAProgramThatDoesNotNameTheEventOnlyForAnOutage) {
  switchOn(false, false, true);
  settings.setControl("program", "/bin/restart ~idsite~");
  alerts.sendAlerts(site, GetParam().kind, outage);
  EXPECT_THAT(machine.programs.started, SizeIs(GetParam().kind == AlertKind::down ? 1 : 0));
  EXPECT_EQ(alerts.mailOutcome().otherWay, GetParam().kind == AlertKind::down);
}

TEST_P(EveryKind, SendsNoMailForASiteThatWantsNone) {
  switchOn(true, false, false);
  alerts.sendAlerts(addSite("http://example.com/", false), GetParam().kind, outage);
  alerts.sendAlerts(4711, GetParam().kind, outage);
  EXPECT_EQ(server.connections(), 0);
  EXPECT_FALSE(alerts.mailOutcome().lost);
}

TEST_P(EveryKind, TellsOfAMailThatWasLost) {
  switchOn(true, true, false);
  settings.setControl("smtp", "no such name");
  alerts.sendAlerts(site, GetParam().kind, outage);
  EXPECT_TRUE(alerts.mailOutcome().lost);
  EXPECT_EQ(alerts.mailOutcome().otherWay, GetParam().makesSound);
}

TEST_P(EveryKind, AFailedStatementTravels) {
  switchOn(true, true, true);
  folder.execute("drop view sites");
  EXPECT_THROW(alerts.sendAlerts(site, GetParam().kind, outage), DataAccessError);
  EXPECT_THAT(machine.sound.played, IsEmpty());
  EXPECT_THAT(machine.programs.started, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Of, EveryKind, ::testing::ValuesIn(kKinds), [](const auto& one) {
  std::string name = one.param.word;
  std::erase(name, ' ');
  return name;
});

TEST_F(EventAlerts, TheOriginalAlertLeavesTheirPlaceholdersAsTheyAre) {
  switchOn(true, false, true);
  writeTemplate(kPlaceholders);
  settings.setControl("program", "/bin/alert ~event~ ~downFor~");
  alerts.sendAlerts(site);
  EXPECT_EQ(mailBody(), kPlaceholders);
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "~event~", "~downFor~")));
  EXPECT_TRUE(alerts.mailOutcome().otherWay);
}

TEST_F(EventAlerts, WhatIsNotKnownIsEmpty) {
  switchOn(true, false, false);
  writeTemplate(kPlaceholders);
  alerts.sendAlerts(site, AlertKind::down, {.now = HandClock::at("2024-05-17 12:00:30")});
  EXPECT_EQ(mailBody(), "down|||0|");
}

TEST_F(EventAlerts, AnErrorEndsNeitherLineNorArgument) {
  using namespace std::string_literals;
  switchOn(true, false, true);
  writeTemplate("~firstError~\r\n", "recovered.txt");
  settings.setControl("program", "/bin/alert \"~event~\" \"~firstError~\" end");
  OutageFacts odd = outage;
  odd.firstError = "a\r\n.\r\nQUIT\0 \" --delete \" ~event~"s;
  alerts.sendAlerts(site, AlertKind::up, odd);
  EXPECT_EQ(mailBody(), "a.QUIT \" --delete \" ~event~\r\n");
  EXPECT_THAT(machine.programs.started,
              ElementsAre(ElementsAre("/bin/alert", "up", "a\r\n.\r\nQUIT \" --delete \" ~event~", "end")));
}

TEST_F(EventAlerts, TheTestOfAProgramFillsThemIn) {
  alerts.testShellExecuteAlert("/bin/alert ~event~ \"~downSince~\" \"~downFor~\" ~checks~ \"~firstError~\"");
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "down", "2024-05-17 11:58:30", "2 min",
                                                                "3", "The connection was refused.")));
}

TEST_F(EventAlerts, ThatThisMachineIsOfflineIsToldByAProgramThatNamesTheEvent) {
  switchOn(true, true, true);
  alerts.sendOfflineNotice(HandClock::at("2024-05-17 12:00:00"));
  EXPECT_EQ(server.connections(), 0);
  EXPECT_THAT(machine.sound.played, IsEmpty());
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "offline")));
  EXPECT_TRUE(alerts.mailOutcome().otherWay);
  settings.setControl("program", "/bin/restart");
  alerts.sendOfflineNotice(HandClock::at("2024-05-17 12:00:00"));
  EXPECT_THAT(machine.programs.started, SizeIs(1));
  EXPECT_FALSE(alerts.mailOutcome().otherWay);
}

TEST_F(EventAlerts, ThatItIsOnlineAgainIsMailedToTheAddressOfTheSettings) {
  switchOn(true, true, true);
  alerts.sendOnlineNotice(HandClock::at("2024-05-17 10:30:00"), HandClock::at("2024-05-17 12:00:00"));
  EXPECT_EQ(server.received(SmtpStage::rcptTo), "RCPT TO:<me@example.com>\r\n");
  EXPECT_THAT(server.received(SmtpStage::message),
              AllOf(::testing::StartsWith("Subject:THIS MACHINE WAS OFFLINE - message from tarnwick\r\n"),
                    HasSubstr("\r\nThis machine was offline from 2024-05-17 10:30:00 to 2024-05-17 12:00:30 "
                              "(1 h 30 min).\r\n")));
  EXPECT_THAT(machine.sound.played, IsEmpty());
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/alert", "online")));
}

TEST_F(EventAlerts, ThatItIsOnlineAgainIsNotMailedWhereMailsAreOffOrNobodyIsNamed) {
  switchOn(false, false, false);
  alerts.sendOnlineNotice(HandClock::at("2024-05-17 10:30:00"), HandClock::at("2024-05-17 12:00:00"));
  switchOn(true, false, false);
  settings.setControl("email", " ");
  alerts.sendOnlineNotice(HandClock::at("2024-05-17 10:30:00"), HandClock::at("2024-05-17 12:00:00"));
  EXPECT_EQ(server.connections(), 0);
  EXPECT_FALSE(alerts.mailOutcome().lost);
}

}  // namespace
}  // namespace tarnwick
