// SPDX-License-Identifier: MIT
#include "transcript/transcript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "transcript/golden.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

TEST(Transcript, ShowsEveryByteInPlainLines) {
  Transcript transcript;
  transcript.add("page", std::string("a\r\nb\\\0\xff", 7));
  EXPECT_EQ(transcript.text(), "page     a\\r\\n\n         b\\\\\\x00\\xff\n");
}

TEST(Transcript, NamesWhatIsAnotherOnEveryDay) {
  Transcript transcript;
  transcript.rename("port 47", "port <web>");
  transcript.add("sql", "port 47, port 471, port 47");
  EXPECT_EQ(transcript.text(), "sql      port <web>, port 471, port <web>\n");
}

std::string ticked(int changed) {
  Transcript transcript;
  for (int i = 0; i < 20; ++i) {
    transcript.addTick("view", i == changed ? "tack" : "tick " + std::to_string(i));
  }
  transcript.add("sql", "select");
  return transcript.text();
}

TEST(Transcript, FoldsManyTicksAndSeesAChangeInEachOfThem) {
  EXPECT_THAT(ticked(-1), HasSubstr("view     tick 2\n   ...   14 more"));
  EXPECT_THAT(ticked(-1), HasSubstr("view     tick 17\nview     tick 18\nview     tick 19\nsql      select\n"));
  for (int i = 0; i < 20; ++i) {
    EXPECT_NE(ticked(i), ticked(-1)) << i;
  }
}

TEST(Golden, FindsNoDifferenceInEqualTexts) { EXPECT_EQ(firstDifference("a\nb\n", "a\nb\n"), ""); }

TEST(Golden, ShowsBothSidesFromTheFirstDifferingLineOnWithTheLinesBefore) {
  EXPECT_EQ(firstDifference("a\nb\nc\n", "a\nB\nc\n"), "They differ from line 2 on:\n  a\n- b\n- c\n+ B\n+ c\n");
}

TEST(Golden, ShowsWhichTextIsShorter) {
  EXPECT_EQ(firstDifference("a\n", "a\nb\n"), "They differ from line 2 on:\n  a\n- (the text ends)\n+ b\n");
}

}  // namespace
}  // namespace tarnwick::testing
