// SPDX-License-Identifier: MIT
#include "cli/terminal/moment.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

std::string momentText(const std::string& text) {
  return dateTimeText(momentOf(text, HandClock::at("2024-03-01 12:00:30")));
}

TEST(Moment, IsADateWithOrWithoutItsTime) {
  EXPECT_EQ(momentText("2024-02-29"), "2024-02-29 00:00:00");
  EXPECT_EQ(momentText("2024-02-29 23:59:58"), "2024-02-29 23:59:58");
}

TEST(Moment, IsTheBeginningOfToday) { EXPECT_EQ(momentText("today"), "2024-03-01 00:00:00"); }

TEST(Moment, IsAnAge) {
  EXPECT_EQ(momentText("0s"), "2024-03-01 12:00:30");
  EXPECT_EQ(momentText("90s"), "2024-03-01 11:59:00");
  EXPECT_EQ(momentText("15m"), "2024-03-01 11:45:30");
  EXPECT_EQ(momentText("13h"), "2024-02-29 23:00:30");
  EXPECT_EQ(momentText("7d"), "2024-02-23 12:00:30");
}

TEST(Moment, IsNotBeforeTheYearsOfFourDigits) { EXPECT_EQ(momentText("4294967295d"), "1000-01-01 00:00:00"); }

TEST(Moment, IsNothingElse) {
  for (const char* text : {"", "yesterday", "Today", "5", "m", "5 m", "5w", "-5m", "1.5h", "5mm", "2024-02-30",
                           "2024-02-29 24:00:00", "4294967296d", "5m ago"}) {
    EXPECT_THROW(momentOf(text, HandClock::at("2024-03-01 12:00:30")), std::runtime_error) << text;
  }
}

}  // namespace
}  // namespace tarnwick::testing
