// SPDX-License-Identifier: MIT
#include "history/history_rule.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

// Midnight UTC; hours begin with whole hours in every zone that the tests run in.
constexpr Moment kStart{seconds(1'795'392'000)};

Moment at(minutes time) { return kStart + time; }

TEST(HistoryRule, ACheckSaysSomethingUntilTheNextOne) {
  const LatestCheck check{at(minutes(50)), true};
  EXPECT_EQ(knownAfter(check, minutes(10), at(minutes(61)))->until, at(minutes(61)));
  EXPECT_EQ(sharesAfter(check, minutes(10), {}, at(minutes(61))),
            (std::vector<HourShare>{{at(minutes(0)), minutes(10), {}}, {at(minutes(60)), minutes(1), {}}}));
  EXPECT_EQ(sharesAfter({at(minutes(50)), false}, minutes(10), {}, at(minutes(55))),
            (std::vector<HourShare>{{at(minutes(0)), {}, minutes(5)}}));
}

TEST(HistoryRule, ItSaysNothingOfTimeInWhichNobodyHasLooked) {
  const LatestCheck check{at(minutes(0)), true};
  EXPECT_EQ(knownAfter(check, minutes(10), at(minutes(20)))->until, at(minutes(20)));
  EXPECT_EQ(knownAfter(check, minutes(10), at(minutes(21)))->until, at(minutes(10)));
  EXPECT_EQ(knownAfter(check, minutes(10), at(hours(1000)))->until, at(minutes(10)));
}

TEST(HistoryRule, ItSaysNothingAfterTheEndOfItsRun) {
  const LatestCheck check{at(minutes(0)), true, at(minutes(3))};
  EXPECT_EQ(knownAfter(check, minutes(10), at(minutes(15)))->until, at(minutes(3)));
  EXPECT_EQ(knownAfter(check, minutes(10), at(minutes(2)))->until, at(minutes(2)));
  EXPECT_FALSE(knownAfter({at(minutes(0)), true, at(minutes(0))}, minutes(10), at(minutes(15))));
}

TEST(HistoryRule, TimeThatWasTakenBackIsNotCountedAgain) {
  EXPECT_FALSE(knownAfter({at(minutes(10)), true}, minutes(10), at(minutes(5))));
  EXPECT_TRUE(sharesAfter({at(minutes(10)), true}, minutes(10), {}, at(minutes(5))).empty());
}

TEST(HistoryRule, WhatWasPlannedCountsForNeither) {
  const std::vector<Stretch> planned{
      {at(minutes(-5)), at(minutes(2))}, {at(minutes(4)), at(minutes(6))}, {at(minutes(9)), at(minutes(99))}};
  EXPECT_EQ(sharesAfter({at(minutes(0)), false}, minutes(10), planned, at(minutes(10))),
            (std::vector<HourShare>{{at(minutes(0)), {}, minutes(5)}}));
}

TEST(HistoryRule, AnOutageGoesFromTheFirstFailureToTheFirstSuccess) {
  using Kind = OutageChange::Kind;
  const auto after = [](std::optional<LatestCheck> before, bool up, minutes now) {
    return outageAfter(before, minutes(10), {at(now), up});
  };
  EXPECT_EQ(after(std::nullopt, true, minutes(0)).kind, Kind::none);
  EXPECT_EQ(after(std::nullopt, false, minutes(0)), (OutageChange{Kind::begins, at(minutes(0))}));
  EXPECT_EQ(after(LatestCheck{at(minutes(0)), true}, false, minutes(10)),
            (OutageChange{Kind::begins, at(minutes(10))}));
  EXPECT_EQ(after(LatestCheck{at(minutes(0)), false}, false, minutes(10)).kind, Kind::goesOn);
  EXPECT_EQ(after(LatestCheck{at(minutes(0)), false}, true, minutes(10)), (OutageChange{Kind::ends, at(minutes(10))}));
  EXPECT_EQ(after(LatestCheck{at(minutes(0)), false}, true, minutes(600)), (OutageChange{Kind::ends, at(minutes(10))}))
      << "where it was last known";
  EXPECT_EQ(after(LatestCheck{at(minutes(0)), false, at(minutes(0))}, true, minutes(5)),
            (OutageChange{Kind::ends, at(minutes(0))}));
}

TEST(HistoryRule, UptimeIsThatOfTheKnownTime) {
  TimeSum sum;
  EXPECT_EQ(sum.uptime(), std::nullopt);
  sum.up = minutes(45);
  sum.down = minutes(15);
  EXPECT_DOUBLE_EQ(*sum.uptime(), 75);
}

}  // namespace
}  // namespace tarnwick::testing
