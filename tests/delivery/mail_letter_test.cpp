// SPDX-License-Identifier: MIT
#include "delivery/mail_letter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/channel_table.h"
#include "support/whole_match.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

Channel mailChannel(OptionValues settings = {}) {
  settings.emplace(channel_field::to, "me@example.org, team@example.org");
  settings.emplace(channel_field::server, "smtp.example.org");
  return {.name = "office mail", .kind = std::string(channel_kind::mail), .settings = std::move(settings)};
}

OutboxRow changedSite() {
  OutboxRow row;
  row.id = 7;
  row.alert = {.idSite = 3,
               .made = parseDateTime("2026-11-22 14:02:11").value(),
               .event = "down",
               .url = "https://shop.example.org/",
               .cause = "line 6: expected \"24.00\", found \"<b>29.00\"",
               .difference = "-24.00\n+<b>29.00\n",
               .page = "the whole page"};
  return row;
}

MailMessage letterOf(const Channel& channel, const OutboxRow& row) {
  return mailLetter(channel, {&row, 1}, alertTextOf({&row, 1}));
}

TEST(MailServerOf, TheUsualPortIsThatOfItsSafety) {
  EXPECT_EQ(mailServer(mailChannel(), "").port, 587);
  EXPECT_EQ(mailServer(mailChannel({{"safety", "tls"}}), "").port, 465);
  EXPECT_EQ(mailServer(mailChannel({{"safety", "none"}}), "").port, 25);
  EXPECT_EQ(mailServer(mailChannel({{"safety", "tls"}, {"port", "2465"}}), "").port, 2465);
}

TEST(MailServerOf, EncryptionIsRequiredWhereNothingIsSaid) {
  EXPECT_EQ(mailServer(mailChannel(), "").safety, MailSafety::startTls);
}

TEST(MailLetter, TellsWhatHasChangedInTextAndInHtml) {
  const MailMessage mail = letterOf(mailChannel(), changedSite());
  EXPECT_EQ(mail.subject, "shop.example.org changed");
  EXPECT_THAT(mail.to, ElementsAre("me@example.org", "team@example.org"));
  EXPECT_EQ(mail.from, "me@example.org");
  EXPECT_THAT(mail.text, HasSubstr("\n-24.00\n+<b>29.00\n"));
  EXPECT_THAT(mail.html, HasSubstr("+&lt;b&gt;29.00"));
  EXPECT_THAT(mail.html, Not(HasSubstr("<b>29.00")));
  EXPECT_FALSE(mail.attachment);
}

TEST(MailLetter, IsFromTheAccountWhereNothingIsSaidAndTheUserIsAnAddress) {
  EXPECT_EQ(letterOf(mailChannel({{"user", "account@example.org"}}), changedSite()).from, "account@example.org");
  EXPECT_EQ(letterOf(mailChannel({{"user", "account"}}), changedSite()).from, "me@example.org");
  EXPECT_EQ(letterOf(mailChannel({{"user", "account@example.org"}, {"from", "other@example.org"}}), changedSite()).from,
            "other@example.org");
}

TEST(MailLetter, IsTheSameOneWhenItIsTriedAgain) {
  const MailMessage first = letterOf(mailChannel(), changedSite());
  OutboxRow later = changedSite();
  later.tries = 3;
  EXPECT_EQ(letterOf(mailChannel(), later).messageId, first.messageId);
  EXPECT_EQ(letterOf(mailChannel(), later).date, first.date);
  later.id = 8;
  EXPECT_NE(letterOf(mailChannel(), later).messageId, first.messageId);
}

TEST(MailLetter, AttachesThePageOnWish) {
  const MailMessage mail = letterOf(mailChannel({{"attach", "on"}}), changedSite());
  ASSERT_TRUE(mail.attachment);
  EXPECT_EQ(mail.attachment->bytes, "the whole page");
}

TEST(MailLetter, TheDateIsThatOfTheAlertWithItsDistanceFromUtc) {
  const std::string date = mailDate(parseDateTime("2026-11-22 14:02:11").value());
  EXPECT_THAT(date, WholeMatch("Sun, 22 Nov 2026 14:02:11 [+-][0-9]{4}"));
}

}  // namespace
}  // namespace tarnwick::testing
