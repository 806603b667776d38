// SPDX-License-Identifier: MIT
#include "engine/cause.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

CheckResult pageOf(std::string_view page) { return {.idSite = 1, .url = "http://a", .page = page}; }

TEST(CauseOf, IsTheTransfersErrorWhenNoPageCame) {
  const CheckResult failed{
      .idSite = 1, .url = "http://a", .errCode = 7, .errDescription = "Refused.", .page = "11:Refused."};
  EXPECT_EQ(causeOf(failed, "baseline"), "Refused.");
}

TEST(CauseOf, IsTheFirstLineThatDiffers) {
  EXPECT_EQ(causeOf(pageOf("a\nB\nc\n"), "a\nb\nc\n"), R"(line 2: expected "b", found "B")");
}

TEST(CauseOf, ShowsOnlyWhatIsAroundTheDifferenceOfALongLine) {
  const std::string head(1000, 'x');
  const std::string tail(1000, 'y');
  EXPECT_EQ(causeOf(pageOf(head + "new" + tail), head + "old" + tail),
            "line 1: expected \"...xxxxxxxxxxxxxxxxold" + std::string(26, 'y') +
                "...\", found \"...xxxxxxxxxxxxxxxxnew" + std::string(26, 'y') + "...\"");
}

TEST(CauseOf, DoesNotBeginInTheMiddleOfACharacter) {
  std::string head;
  for (int i = 0; i < 20; ++i) {
    head += "日";
  }
  const std::string cause = causeOf(pageOf(head + "B"), head + "b");
  EXPECT_EQ(cause, "line 1: expected \"...日日日日日日b\", found \"...日日日日日日B\"");
}

TEST(CauseOf, SaysWhenOnlyTheEndDiffers) {
  EXPECT_EQ(causeOf(pageOf("a\n"), "a"), "line 1: the page goes on behind this line, the baseline ends with it");
  EXPECT_EQ(causeOf(pageOf("a"), "a\n"), "line 1: the page ends with this line, the baseline goes on");
}

TEST(CauseOf, AWhollyEmptyPage) { EXPECT_EQ(causeOf(pageOf(""), "a\n"), R"(line 1: expected "a", found "")"); }

TEST(CauseOf, LeavesNothingThatActsOnATerminal) {
  EXPECT_EQ(causeOf(pageOf("\x1b[2J"), "a"), R"(line 1: expected "a", found "\x1b[2J")");
}

TEST(NoteOf, TellsABaselineThatIsAFailedFetch) {
  EXPECT_EQ(noteOf(pageOf("a")), "");
  EXPECT_EQ(noteOf({.idSite = 1, .url = "http://a", .passed = true, .errCode = 7, .errDescription = "Refused."}),
            "the fetch fails, and its text is the baseline: Refused.");
}

}  // namespace
}  // namespace tarnwick
