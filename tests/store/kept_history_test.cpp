// SPDX-License-Identifier: MIT
// A history that moves to another list is told there as if it had been kept there.
#include "store/kept_history.h"

#include <gtest/gtest.h>

#include "support/data_fixture.h"
#include "support/time_zone.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

Moment utc(const std::string& text) { return Moment(parseDateTime(text)->time_since_epoch()); }

/// A list that watches a site every 10 minutes.
struct Watcher {
  void check(Moment at, bool up) {
    Transaction whole(database);
    history.take(1, {.check = {at, up, up ? "" : "refused", milliseconds(100)}, .interval = minutes(10)});
    whole.commit();
  }
  /// Checks every 10 minutes, the last one included.
  void watch(const std::string& from, const std::string& until, bool up) {
    for (Moment at = utc(from); at <= utc(until); at += minutes(10)) {
      check(at, up);
    }
  }
  KeptHistory all() { return readHistory(database, 1); }
  /// What it lacked of the other's.
  KeptHistory takeFrom(Watcher& other) {
    const KeptHistory missing = missingIn(all(), other.all(), minutes(10));
    Transaction whole(database);
    storeHistory(database, 1, missing);
    whole.commit();
    return missing;
  }
  std::string outages() const {
    return folder.queryRows(
        "select datetime(began, 'unixepoch'), datetime(ended, 'unixepoch'), checks, cause from outages order by began");
  }
  std::string rows() const {
    return folder.queryRows("select hour, checks, up, unknown, msSum, msMax, hex(buckets) from hours order by hour") +
           folder.queryRows("select * from days order by day") + folder.queryRows("select * from months") + outages() +
           folder.queryRows("select at, up, until from latestChecks where idSite = 1");
  }

  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
  Database database{folder.path(), databases};
  SiteHistory history{database};
};

struct KeptHistoryTest : ::testing::Test {
  void SetUp() override {
    if (!TimeZone::canBeSet) {
      GTEST_SKIP() << "There a process has the zone of its system.";
    }
    ASSERT_TRUE(here.history.canBeKept());
    ASSERT_TRUE(there.history.canBeKept());
  }

  TimeZone zone{"CET-1CEST,M3.5.0,M10.5.0/3"};
  Watcher here;
  Watcher there;
};

TEST_F(KeptHistoryTest, IsTheSameInTheOtherListAndStaysSo) {
  there.watch("2026-10-30 20:00:00", "2026-10-31 09:00:00", true);
  there.watch("2026-10-31 09:10:00", "2026-10-31 11:00:00", false);
  there.watch("2026-10-31 11:10:00", "2026-11-02 03:00:00", true);
  there.watch("2026-11-02 03:10:00", "2026-11-02 04:00:00", false);
  EXPECT_FALSE(here.takeFrom(there).none());
  EXPECT_EQ(here.rows(), there.rows());
  EXPECT_TRUE(here.takeFrom(there).none()) << "nothing is told twice";
}

TEST_F(KeptHistoryTest, GoesOnAsIfItHadBeenKeptHere) {
  there.watch("2026-11-01 20:00:00", "2026-11-02 03:00:00", true);
  there.watch("2026-11-02 03:10:00", "2026-11-02 04:00:00", false);
  here.takeFrom(there);
  for (Watcher* const both : {&here, &there}) {
    both->watch("2026-11-02 04:10:00", "2026-11-02 04:30:00", false);
    both->watch("2026-11-02 04:40:00", "2026-11-03 04:30:00", true);
  }
  EXPECT_EQ(here.rows(), there.rows());
}

TEST_F(KeptHistoryTest, OfTwoThatTellOfAnHourTheOneCountsThatKnowsMore) {
  here.watch("2026-11-02 10:40:00", "2026-11-02 12:20:00", true);
  there.watch("2026-11-02 09:00:00", "2026-11-02 11:30:00", false);
  here.takeFrom(there);
  EXPECT_EQ(here.folder.queryRows("select time(hour, 'unixepoch'), checks, up, unknown from hours order by hour"),
            "09:00:00|6|0|0\n10:00:00|6|0|0\n11:00:00|6|3600|0\n12:00:00|3|1200|2400\n");
}

TEST_F(KeptHistoryTest, SumsUpTheDaysThatHaveBecomeMore) {
  there.watch("2026-11-02 06:00:00", "2026-11-02 12:00:00", true);
  here.watch("2026-11-02 12:00:00", "2026-11-03 00:10:00", true);
  EXPECT_EQ(here.folder.queryText("select up from days"), std::to_string(11 * 3600));
  here.takeFrom(there);
  EXPECT_EQ(here.folder.queryText("select up from days"), std::to_string(17 * 3600));
}

TEST_F(KeptHistoryTest, DaysWhoseHoursHaveGoneAreTaken) {
  there.watch("2026-11-01 20:00:00", "2026-11-03 03:00:00", true);
  there.folder.execute("delete from hours where hour < " +
                       std::to_string(utc("2026-11-01 23:00:00").time_since_epoch().count()));
  here.takeFrom(there);
  EXPECT_EQ(here.rows(), there.rows());
}

TEST_F(KeptHistoryTest, AnOutageThatBothHaveSeenIsOne) {
  there.watch("2026-11-02 09:00:00", "2026-11-02 10:00:00", false);
  there.watch("2026-11-02 10:10:00", "2026-11-02 11:00:00", true);
  here.watch("2026-11-02 09:30:00", "2026-11-02 10:00:00", false);
  here.watch("2026-11-02 10:10:00", "2026-11-02 12:00:00", true);
  here.takeFrom(there);
  EXPECT_EQ(here.outages(), "2026-11-02 09:30:00|2026-11-02 10:10:00|4|refused\n");
}

TEST_F(KeptHistoryTest, AnOutageThatWasOnEndsWhereTheOtherSawItEnd) {
  there.watch("2026-11-02 09:00:00", "2026-11-02 10:00:00", false);
  here.takeFrom(there);
  there.watch("2026-11-02 10:10:00", "2026-11-02 11:00:00", true);
  here.takeFrom(there);
  EXPECT_EQ(here.rows(), there.rows());
}

TEST_F(KeptHistoryTest, AnOutageThatWasOnWhereOneLookedLastIsOverWhereTheOtherHasSeenItUp) {
  there.watch("2026-11-02 09:00:00", "2026-11-02 10:00:00", false);
  here.watch("2026-11-02 12:00:00", "2026-11-02 12:30:00", true);
  here.takeFrom(there);
  EXPECT_EQ(here.outages(), "2026-11-02 09:00:00|2026-11-02 10:10:00|7|refused\n");
  here.watch("2026-11-02 12:40:00", "2026-11-02 12:50:00", false);
  EXPECT_EQ(here.outages(), "2026-11-02 09:00:00|2026-11-02 10:10:00|7|refused\n2026-11-02 12:40:00|NULL|2|refused\n");

  // And the other way about: it was down here when the other has seen it up.
  there.takeFrom(here);
  EXPECT_EQ(there.outages(), here.outages());
}

TEST_F(KeptHistoryTest, DaysOfAnotherZoneGiveWayToTheSumsHere) {
  there.watch("2026-11-01 20:00:00", "2026-11-04 03:00:00", true);
  const TimeZone elsewhere("IST-5:30");
  here.takeFrom(there);
  EXPECT_EQ(here.folder.queryRows("select datetime(day, 'unixepoch'), up from days order by day"),
            "2026-11-01 18:30:00|82800\n2026-11-02 18:30:00|86400\n");
  EXPECT_TRUE(here.takeFrom(there).none());
}

}  // namespace
}  // namespace tarnwick::testing
