// SPDX-License-Identifier: MIT
#include "store/history_view.h"

#include <gtest/gtest.h>

#include "store/site_records.h"
#include "support/data_fixture.h"
#include "support/time_zone.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

Moment utc(const char* text) { return Moment(parseDateTime(text)->time_since_epoch()); }

/// Sites that were looked at every six hours for more than a year, and have answered now and then.
struct HistoryViewTest : ::testing::Test {
  void SetUp() override {
    if (!TimeZone::canBeSet) {
      GTEST_SKIP() << "There a process has the zone of its system.";
    }
    ASSERT_TRUE(history.canBeKept());
  }

  void check(std::int16_t idSite, Moment from, Moment until) {
    Transaction whole(database);
    int number = 0;
    for (Moment at = from; at <= until; at += hours{6}) {
      ++number;
      history.take(idSite, {.check = {at, number % (idSite + 4) != 0, "refused", milliseconds(number % 700)},
                            .interval = hours{6}});
    }
    whole.commit();
    intervals.emplace(idSite, hours{6});
  }

  void expectSumsOfViews(Moment now) {
    const auto sums = sumsOfPeriods(history, intervals, now);
    for (const auto& [id, interval] : intervals) {
      const std::vector<PeriodView> views = periodsOf(history, id, interval, now);
      const PeriodSums& own = sums.at(id);
      ASSERT_EQ(own.size(), views.size());
      for (std::size_t i = 0; i < own.size(); ++i) {
        const TimeSum whole = views[i].whole();
        const auto where = "site " + std::to_string(id) + ", " + std::to_string(views[i].period.length) + " d";
        EXPECT_EQ(own[i].up, whole.up) << where;
        EXPECT_EQ(own[i].down, whole.down) << where;
        EXPECT_EQ(own[i].checks, whole.checks) << where;
        EXPECT_EQ(own[i].tookInAll, whole.tookInAll) << where;
        EXPECT_EQ(own[i].slowest, whole.slowest) << where;
      }
      EXPECT_EQ(own[1].latency, views[1].whole().latency) << "site " << id;
    }
  }

  TimeZone zone{"CET-1CEST,M3.5.0,M10.5.0/3"};
  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
  Database database{folder.path(), databases};
  SiteHistory history{database};
  std::map<std::int64_t, seconds> intervals;
};

TEST_F(HistoryViewTest, TheSumsOfManySitesAreThoseOfTheirStripes) {
  const Moment begin = utc("2025-09-03 01:10:00");
  check(1, begin, utc("2026-11-23 10:00:00"));
  check(2, utc("2026-11-23 09:00:00"), utc("2026-11-23 09:30:00"));
  check(3, begin, utc("2026-11-22 23:30:00"));
  check(4, begin, utc("2026-11-18 11:00:00"));
  check(5, begin, utc("2026-10-31 22:59:00"));
  check(6, begin, utc("2026-03-29 03:00:00"));
  check(7, begin, utc("2025-11-25 12:00:00"));
  check(8, begin, utc("2025-10-01 12:00:00"));
  intervals.emplace(9, hours{1});
  const auto sums = sumsOfPeriods(history, intervals, utc("2026-11-23 12:34:56"));
  EXPECT_FALSE(sums.contains(9)) << "nothing is known of it";
  intervals.erase(9);
  EXPECT_GT(sums.at(7).back().known(), hours{6});
  EXPECT_EQ(sums.at(8).back().known(), seconds{0}) << "more than a year ago";
  for (const char* const now : {"2026-11-23 12:34:56", "2026-11-23 22:59:59", "2026-11-24 05:00:00",
                                "2026-12-01 00:30:00", "2026-12-31 23:30:00"}) {
    SCOPED_TRACE(now);
    expectSumsOfViews(utc(now));
  }
}

TEST_F(HistoryViewTest, WithoutTheHoursOfFormerDaysAllIsAsItWas) {
  const Moment begin = utc("2026-08-03 01:10:00");
  check(1, begin, utc("2026-11-23 10:00:00"));
  check(2, begin, utc("2026-10-05 11:00:00"));
  check(3, begin, utc("2026-09-30 23:30:00"));
  const Moment now = utc("2026-11-23 12:34:56");
  const auto figures = [&] {
    std::vector<TimeSum> all;
    for (const auto& [id, interval] : intervals) {
      for (const PeriodView& view : periodsOf(history, id, interval, now)) {
        all.insert(all.end(), view.cells.begin(), view.cells.end());
      }
    }
    return all;
  };
  const std::vector<TimeSum> before = figures();
  const std::string lastHours =
      "select idSite, count(*) from hours where hour >= (select max(day) + 86400 from days d where d.idSite = "
      "hours.idSite) group by idSite";
  const std::string rest = folder.queryRows(lastHours);
  std::optional<SiteHistory::HourPlace> at;
  int steps = 0;
  do {
    Transaction whole(database);
    at = history.thin(at, dayFrom(now, -8));
    whole.commit();
    ++steps;
  } while (at);
  EXPECT_GT(steps, 2) << "a little at a time";
  EXPECT_EQ(figures(), before);
  expectSumsOfViews(now);
  EXPECT_EQ(folder.queryRows(lastHours), rest) << "their day has no sum yet";
  EXPECT_EQ(folder.queryText("select count(*) from hours where idSite <> 1 and hour < (select max(day) from days d "
                             "where d.idSite = hours.idSite)"),
            "0");
  EXPECT_EQ(folder.queryText("select datetime(min(hour), 'unixepoch') from hours where idSite = 1"),
            "2026-11-14 23:00:00");
}

}  // namespace
}  // namespace tarnwick::testing
