// SPDX-License-Identifier: MIT
#include "page_rules/page_judge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using ::testing::HasSubstr;

RuleSet leavingOut(const std::string& lines) {
  return {{{PageRule::Use::leaveOut, PageRule::Language::lines, lines}}, {}};
}

TEST(APageWithRules, IsJudgedByWhatIsLeft) {
  EXPECT_TRUE(judgePage("a\nb\nc\n", "a\nx\nc\n", leavingOut("2")).same);
  const PageVerdict verdict = judgePage("a\nb\nc\n", "a\nx\nd\n", leavingOut("2"));
  EXPECT_FALSE(verdict.same);
  EXPECT_EQ(verdict.baselineAt, 4U);
  EXPECT_EQ(verdict.pageAt, 4U);
  EXPECT_EQ(verdict.remark, "");
}

TEST(APageThatEqualsItsBaseline, IsTheSameWhateverTheRulesSay) {
  RuleSet set;
  set.holes.push_back({.begin = 10, .length = 3, .kind = HoleClass::digits, .least = 1, .most = 3});
  EXPECT_TRUE(judgePage("<p>count 1024 visits", "<p>count 1024 visits", set).same);
}

TEST(ARuleThatMatchesNothing, IsToldBesideTheVerdict) {
  const PageVerdict verdict = judgePage("a\n", "a\n", leavingOut("7"));
  EXPECT_TRUE(verdict.same);
  EXPECT_EQ(verdict.remark, "Rule 1 (leave out lines 7) matches nothing on the page.");
}

TEST(ARuleThatCannotBeUnderstood, LeavesNothingOut) {
  const PageVerdict verdict = judgePage("a\nb\n", "a\nx\n", leavingOut("two"));
  EXPECT_FALSE(verdict.same);
  EXPECT_THAT(verdict.remark, HasSubstr("lines two"));
}

TEST(APageInUtf16, IsJudgedByItsCharacters) {
  const auto utf16 = [](const std::string& text) {
    std::string page = "\xFF\xFE";
    for (const char c : text) {
      page += c;
      page += '\0';
    }
    return page;
  };
  RuleSet set;
  set.holes.push_back(
      {.begin = 9, .length = 2, .kind = HoleClass::digits, .least = 1, .most = 4});  // behind mark and BOM
  EXPECT_TRUE(judgePage(utf16("seen 12 times"), utf16("seen 1234 times"), set).same);
  EXPECT_FALSE(judgePage(utf16("seen 12 times"), utf16("seen xy times"), set).same);
}

TEST(ShownDifference, HasTheBaselinesPartsWhereRulesLeaveSomethingOut) {
  const RuleSet set{{{PageRule::Use::leaveOut, PageRule::Language::regex, "<i>.*</i>"}}, {}};
  const ShownPages shown =
      shownDifference("a <i>17</i>\nb\nc <i>x</i>\n", "a <i>a longer one</i>\nB\nc <i></i>\n", set);
  EXPECT_EQ(shown.before, "a <i>17</i>\nb\nc <i>x</i>\n");
  EXPECT_EQ(shown.now, "a <i>17</i>\nB\nc <i>x</i>\n");
}

TEST(ShownDifference, HasTheBaselinesPartsBesideWhatIsCompared) {
  const RuleSet set{{{PageRule::Use::compareOnly, PageRule::Language::lines, "2"}}, {}};
  EXPECT_EQ(shownDifference("a\nb\nc\n", "A\nB\nC\n", set).now, "a\nB\nc\n");
}

TEST(ShownDifference, IsWithoutWhatIsLeftOutWhereThatComesOrGoes) {
  const RuleSet set{{{PageRule::Use::leaveOut, PageRule::Language::regex, "ad.*\n"}}, {}};
  const ShownPages shown = shownDifference("a\nb\n", "a\nad 1\nB\nad 2\n", set);
  EXPECT_EQ(shown.before, "a\nb\n");
  EXPECT_EQ(shown.now, "a\nB\n");
}

TEST(ShownDifference, LeavesNothingOutByARuleThatCannotBeUnderstood) {
  const RuleSet set{{{PageRule::Use::leaveOut, PageRule::Language::regex, "("}}, {}};
  EXPECT_EQ(shownDifference("a\n", "b\n", set).now, "b\n");
}

}  // namespace
}  // namespace tarnwick
