// SPDX-License-Identifier: MIT
#include "alerts/event_texts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tarnwick {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

TEST(EventTexts, TellASpanByItsTwoLargestUnits) {
  EXPECT_EQ(spanText(seconds(0)), "0 s");
  EXPECT_EQ(spanText(seconds(59)), "59 s");
  EXPECT_EQ(spanText(minutes(1)), "1 min");
  EXPECT_EQ(spanText(minutes(1) + seconds(5)), "1 min 5 s");
  EXPECT_EQ(spanText(hours(1)), "1 h");
  EXPECT_EQ(spanText(hours(1) + seconds(59)), "1 h");
  EXPECT_EQ(spanText(hours(1) + minutes(12) + seconds(30)), "1 h 12 min");
  EXPECT_EQ(spanText(days(3) + hours(4) + minutes(59)), "3 d 4 h");
  EXPECT_EQ(spanText(days(400)), "400 d");
}

TEST(EventTexts, ASpanThatAClockWasSetBackInIsNone) { EXPECT_EQ(spanText(seconds(-5)), "0 s"); }

TEST(EventTexts, TheFreshTemplateIsTheTextThatIsBuiltIn) {
  std::ifstream file(TARNWICK_ASSETS "/recovered.txt", std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), textsOf(AlertKind::up).text);
}

}  // namespace
}  // namespace tarnwick
