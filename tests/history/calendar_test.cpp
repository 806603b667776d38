// SPDX-License-Identifier: MIT
#include "history/calendar.h"

#include <gtest/gtest.h>

#include "support/time_zone.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

Moment utc(const char* text) { return Moment(parseDateTime(text)->time_since_epoch()); }

struct CalendarTest : ::testing::Test {
  void SetUp() override {
    if (!TimeZone::canBeSet) {
      GTEST_SKIP() << "There a process has the zone of its system.";
    }
  }
};

TEST_F(CalendarTest, DaysOnWhichTheClockIsSetHaveTwentyThreeAndTwentyFiveHours) {
  const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  const auto length = [](const char* day) { return dayFrom(utc(day), 1) - dayOf(utc(day)); };
  EXPECT_EQ(length("2026-03-28 12:00:00"), hours(24));
  EXPECT_EQ(length("2026-03-29 12:00:00"), hours(23));
  EXPECT_EQ(length("2026-10-25 12:00:00"), hours(25));
  EXPECT_EQ(dayOf(utc("2026-10-25 00:30:00")), utc("2026-10-24 22:00:00"));
  EXPECT_EQ(dayFrom(utc("2026-10-25 12:00:00"), -1), utc("2026-10-23 22:00:00"));
}

TEST_F(CalendarTest, TheHourThatComesTwiceIsTwoHours) {
  const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  EXPECT_EQ(hourOf(utc("2026-10-25 00:59:59")), utc("2026-10-25 00:00:00"));
  EXPECT_EQ(hourOf(utc("2026-10-25 01:00:00")), utc("2026-10-25 01:00:00"));
  EXPECT_EQ(localTimeAt(utc("2026-10-25 00:30:00")), localTimeAt(utc("2026-10-25 01:30:00")));
}

TEST_F(CalendarTest, HoursOfZonesThatAreHalfAnHourOffBeginWithTheClockOnTheWall) {
  const TimeZone zone("IST-5:30");
  EXPECT_EQ(hourOf(utc("2026-10-25 10:29:00")), utc("2026-10-25 09:30:00"));
  EXPECT_EQ(dayOf(utc("2026-10-25 10:29:00")), utc("2026-10-24 18:30:00"));
}

TEST_F(CalendarTest, MonthsHaveTheirOwnLength) {
  const TimeZone zone("UTC");
  EXPECT_EQ(monthOf(utc("2028-02-29 10:00:00")), utc("2028-02-01 00:00:00"));
  EXPECT_EQ(monthAfter(utc("2026-12-31 23:59:59")), utc("2027-01-01 00:00:00"));
}

TEST_F(CalendarTest, APeriodEndsWithThePresent) {
  const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  const Moment now = utc("2026-10-26 10:15:00");
  for (const Period& period : periods()) {
    const std::vector<Moment> edges = edgesOf(period, now);
    ASSERT_LE(edges.size(), static_cast<std::size_t>(period.cells) + 1) << period.length;
    EXPECT_EQ(edges.back(), now);
    for (std::size_t i = 1; i < edges.size(); ++i) {
      EXPECT_LT(edges[i - 1], edges[i]) << period.length << " " << i;
    }
    EXPECT_EQ(edges.front(), period.length == 1 ? hourOf(now) - hours(23) : dayFrom(now, 1 - period.length))
        << period.length;
  }
  // The quarter of the day in which the clock was set back.
  const std::vector<Moment> week = edgesOf(periods()[1], now);
  EXPECT_EQ(week[21] - week[20], hours(7));
  EXPECT_EQ(week[22] - week[21], hours(6));
}

TEST_F(CalendarTest, MomentsComeBackFromTheClockOnTheWall) {
  for (const char* name : {"CET-1CEST,M3.5.0,M10.5.0/3", "IST-5:30", "EST5EDT,M3.2.0,M11.1.0", "UTC"}) {
    const TimeZone zone(name);
    for (Moment moment = utc("2026-01-01 00:10:00"); moment < utc("2027-01-01 00:00:00"); moment += hours(1)) {
      const Moment back = momentAt(localTimeAt(moment));
      EXPECT_TRUE(back == moment || (back == moment - hours(1) && localTimeAt(back) == localTimeAt(moment)))
          << name << " " << moment.time_since_epoch().count();
    }
  }
  const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  EXPECT_EQ(momentAt(*parseDateTime("2026-10-25 02:30:00")), utc("2026-10-25 00:30:00")) << "the first of the two";
  EXPECT_EQ(momentAt(*parseDateTime("2026-03-29 02:30:00")), utc("2026-03-29 01:30:00")) << "left out";
}

}  // namespace
}  // namespace tarnwick::testing
