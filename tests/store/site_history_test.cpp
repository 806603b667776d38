// SPDX-License-Identifier: MIT
#include "store/site_history.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/deleted_site.h"
#include "store/site_records.h"
#include "support/data_fixture.h"
#include "support/time_zone.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

Moment utc(const char* text) { return Moment(parseDateTime(text)->time_since_epoch()); }

struct SiteHistoryTest : ::testing::Test {
  void SetUp() override {
    if (!TimeZone::canBeSet) {
      GTEST_SKIP() << "There a process has the zone of its system.";
    }
  }

  void check(const char* time, bool up, std::int64_t took = 100, const char* cause = "refused") {
    check(utc(time), up, took, cause);
  }
  void check(Moment time, bool up, std::int64_t took = 100, const char* cause = "refused") {
    Transaction whole(database);
    SiteHistory::Entry entry{.check = {time, up, up ? "" : cause, milliseconds(took)}, .interval = minutes(10)};
    entry.timings.whole = milliseconds(took);
    entry.planned = planned;
    history.take(1, entry);
    whole.commit();
  }
  std::string hours() {
    return folder.queryRows(
        "select datetime(hour, 'unixepoch'), checks, up, unknown, msSum, msMax, hex(buckets) from hours where idSite = "
        "1 order by hour");
  }
  std::string outages() {
    return folder.queryRows(
        "select datetime(began, 'unixepoch'), datetime(ended, 'unixepoch'), checks, cause from outages order by began");
  }

  TimeZone zone{"CET-1CEST,M3.5.0,M10.5.0/3"};
  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
  Database database{folder.path(), databases};
  SiteHistory history{database};
  SiteRecords sites{database};
  std::function<std::vector<Stretch>(Stretch)> planned;
};

TEST_F(SiteHistoryTest, KeepsWhatWasKnownOfEachHour) {
  ASSERT_TRUE(history.canBeKept());
  check("2026-11-23 09:50:00", true, 100);
  EXPECT_EQ(hours(), "2026-11-23 09:00:00|1|0|3600|100|100|3601\n") << "nothing is known yet of the time after it";
  check("2026-11-23 10:00:00", true, 200);
  check("2026-11-23 10:10:00", false, 50);
  check("2026-11-23 10:20:00", true, 100);
  EXPECT_EQ(hours(),
            "2026-11-23 09:00:00|1|600|3000|100|100|3601\n"
            "2026-11-23 10:00:00|3|600|2400|350|200|2E0107010701\n");
  EXPECT_EQ(outages(), "2026-11-23 10:10:00|2026-11-23 10:20:00|1|refused\n");
  EXPECT_EQ(history.timings(1)->whole, milliseconds(100));
  EXPECT_EQ(history.latestCheck(1), (LatestCheck{utc("2026-11-23 10:20:00"), true}));
}

TEST_F(SiteHistoryTest, WhatNobodyHasLookedAtIsUnknown) {
  check("2026-11-23 10:00:00", true);
  history.endKnowledge(utc("2026-11-23 10:05:00"));
  check("2026-11-23 10:10:00", false);
  check("2026-11-23 12:30:00", false);
  check("2026-11-23 12:40:00", true);
  const auto kept = history.keptHours(1, {utc("2026-11-23 00:00:00"), utc("2026-11-24 00:00:00")});
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0].sum.up, minutes(5));
  EXPECT_EQ(kept[0].sum.down, minutes(10));
  EXPECT_EQ(kept[1].sum.down, minutes(10));
  EXPECT_EQ(outages(), "2026-11-23 10:10:00|2026-11-23 12:40:00|2|refused\n");
}

TEST_F(SiteHistoryTest, TheHoursOfManySitesAreThoseOfEach) {
  ASSERT_TRUE(history.canBeKept());
  folder.execute(
      "with recursive n(i) as (select 0 union all select i + 1 from n where i < 999) insert into hours select 1 + i % "
      "10, 1795392000 + 3600 * (i / 10), i, 3600, 0, 0, 0, x'' from n where i % 7; insert into latestChecks (idSite, "
      "at, up) select distinct idSite, 1795392000, 1 from hours");
  const Stretch time{Moment(std::chrono::seconds(1795392000 + 3600 * 11)),
                     Moment(std::chrono::seconds(1795392000 + 3600 * 80))};
  for (const std::vector<std::int64_t>& some :
       {std::vector<std::int64_t>{2, 5}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {3, 77}}) {
    const auto found = history.keptHours(some, time);
    for (const std::int64_t id : some) {
      EXPECT_EQ(found.at(id).size(), id == 77 ? 0U : history.keptHours(id, time).size());
      EXPECT_TRUE(std::ranges::equal(found.at(id), history.keptHours(id, time), {}, &KeptSum::began, &KeptSum::began));
    }
  }
  EXPECT_GT(history.keptHours(2, time).size(), 50U);
}

TEST_F(SiteHistoryTest, WhatWasPlannedIsUnknown) {
  planned = [](Stretch) { return std::vector<Stretch>{{utc("2026-11-23 10:02:00"), utc("2026-11-23 10:05:00")}}; };
  check("2026-11-23 10:00:00", false);
  check("2026-11-23 10:10:00", true);
  EXPECT_EQ(folder.queryText("select 3600 - up - unknown from hours"), "420");
}

TEST_F(SiteHistoryTest, ADayAndAMonthAreTheSumsOfTheirHours) {
  for (const char* day : {"2026-10-24", "2026-10-25", "2026-10-26", "2026-11-01", "2026-11-02"}) {
    for (const char* time : {" 00:00:00", " 00:10:00", " 12:00:00", " 12:10:00", " 12:20:00"}) {
      check((std::string(day) + time).c_str(), std::string_view(time) != " 12:00:00");
    }
  }
  // The clock is set back on the second day.
  EXPECT_EQ(
      folder.queryRows("select datetime(day, 'unixepoch'), seconds, checks, up, seconds - up - unknown from days"),
      "2026-10-23 22:00:00|86400|5|2400|600\n"
      "2026-10-24 22:00:00|90000|5|2400|600\n"
      "2026-10-25 23:00:00|86400|5|2400|600\n"
      "2026-10-31 23:00:00|86400|5|2400|600\n");
  EXPECT_EQ(folder.queryRows("select datetime(month, 'unixepoch'), seconds, checks, up from months"),
            "2026-09-30 22:00:00|2682000|15|7200\n");
  EXPECT_EQ(history.keptDays(1, {utc("2026-10-24 22:00:00"), utc("2026-10-26 22:00:00")}).size(), 2U);
}

TEST_F(SiteHistoryTest, AClockThatIsSetBackLeavesTheSumOfADayWhoseHoursAreGone) {
  for (int minute = 0; minute <= 26 * 60; minute += 10) {
    check(utc("2026-10-30 23:00:00") + minutes(minute), true);
  }
  const auto sums = [&] {
    return folder.queryRows("select datetime(day, 'unixepoch'), checks, up from days order by day limit 1") +
           folder.queryRows("select datetime(month, 'unixepoch'), checks, up from months");
  };
  const std::string before = sums();
  EXPECT_EQ(before, "2026-10-30 23:00:00|144|86400\n2026-09-30 22:00:00|144|86400\n");
  history.thin(std::nullopt, utc("2026-12-01 00:00:00"));
  check("2026-10-31 10:00:00", false);
  check("2026-10-31 10:10:00", true);
  check("2026-11-02 10:00:00", true);
  EXPECT_EQ(sums(), before);
}

TEST_F(SiteHistoryTest, AClockThatIsSetBackNeverFillsAnHourTwice) {
  check("2026-11-23 10:00:00", true);
  for (int again = 0; again < 5; ++again) {
    for (const char* time : {"2026-11-23 10:10:00", "2026-11-23 10:20:00", "2026-11-23 10:30:00"}) {
      check(time, again % 2 == 0);
    }
  }
  EXPECT_EQ(folder.queryText("select unknown >= 0 and up <= 3600 and up + unknown <= 3600 from hours"), "1");
}

TEST_F(SiteHistoryTest, OutagesAreFoundByTheirTime) {
  check("2026-11-23 10:00:00", false);
  check("2026-11-23 10:10:00", true);
  check("2026-11-23 10:20:00", false, 10, "reset");
  const Stretch whole{utc("2026-11-01 00:00:00"), utc("2026-12-01 00:00:00")};
  ASSERT_EQ(history.outages(1, whole).size(), 2U);
  EXPECT_EQ(history.outages(1, whole).front(), (Outage{1, utc("2026-11-23 10:20:00"), std::nullopt, 1, "reset"}));
  EXPECT_EQ(history.outages(std::nullopt, whole).size(), 2U);
  EXPECT_EQ(history.outages(2, whole).size(), 0U);
  EXPECT_EQ(history.outages(1, {utc("2026-11-23 10:15:00"), whole.until}).size(), 1U);
  EXPECT_EQ(history.outages(1, {whole.from, utc("2026-11-23 10:05:00")}).size(), 1U);
}

TEST_F(SiteHistoryTest, GoesWithItsSiteAndComesBackWithIt) {
  const std::int16_t id = sites.addSite();
  check("2026-10-31 10:00:00", false);
  check("2026-11-23 10:00:00", true);
  folder.execute(
      "insert into hours values (2, 1, 1, 1, 1, 1, 1, x''); insert into certificates values (1, 1, 2, '', 3)");
  const auto all = [&] {
    std::string rows;
    for (const char* table : {"hours", "days", "months", "outages", "latestChecks", "certificates"}) {
      rows += folder.queryRows(std::string("select * from ") + table);
    }
    return rows;
  };
  const std::string before = all();
  const DeletedSite gone = takeSiteOut(database, id);
  EXPECT_EQ(all(), "2|1|1|1|1|1|1|\n");
  putSiteBack(database, gone);
  EXPECT_EQ(all(), before);
}

TEST_F(SiteHistoryTest, AListWithoutTheTablesIsEmpty) {
  folder.execute("drop table latestChecks");
  EXPECT_EQ(history.latestCheck(1), std::nullopt);
  EXPECT_EQ(history.timings(1), std::nullopt);
  const Stretch whole{utc("2026-11-01 00:00:00"), utc("2026-12-01 00:00:00")};
  EXPECT_TRUE(history.keptHours(1, whole).empty());
  EXPECT_TRUE(history.keptDays(1, whole).empty());
  EXPECT_TRUE(history.outages(1, whole).empty());
  EXPECT_NO_THROW(history.endKnowledge(whole.until));
  EXPECT_NO_THROW(history.removeHistory(1));
}

struct ReadLog : SiteHistoryTest {
  void layLog() {
    folder.execute(
        "insert into sites (idSite, url, method, active, tInterval) values (1, 'http://a.example/', 'get', 1, 10), (2, "
        "'http://b.example/', 'get', 1, 10);"
        // The clock is set back between the third and the fourth.
        "insert into log (idSite, url, status, errCode, errDescription, dateStamp) values "
        "(1, 'http://a.example/', 1, 0, '', '2026-10-25 02:40:00'), (1, 'http://a.example/', 0, 7, 'refused', "
        "'2026-10-25 02:50:00'), (2, 'http://b.example/', 0, 0, '', '2026-10-25 02:55:00'), "
        "(1, 'http://a.example/', 0, 7, 'refused', '2026-10-25 02:00:00'), (1, 'http://a.example/', 1, 0, '', "
        "'2026-10-25 02:10:00'), (1, 'http://other.example/', 0, 0, '', '2026-10-25 02:15:00'), (9, "
        "'http://gone.example/', 0, 0, '', '2026-10-25 02:15:00'), (1, 'http://a.example/', 1, 0, '', 'never'), (1, "
        "'http://a.example/', null, 0, '', '2026-10-25 02:16:00'), (1, 'http://a.example/', 1, 0, '', '2026-10-26 "
        "12:00:00'), (1, 'http://a.example/', 0, 0, '', '2030-10-26 12:00:00')");
  }
  bool read() {
    return history.takeLog(utc("2026-10-26 12:00:00"), [] { return true; });
  }
};

TEST_F(ReadLog, FillsTheHistoryOnce) {
  layLog();
  EXPECT_FALSE(history.hasTakenLog());
  EXPECT_TRUE(read());
  EXPECT_TRUE(history.hasTakenLog());
  EXPECT_EQ(folder.queryRows("select idSite, datetime(hour, 'unixepoch'), checks, up, 3600 - up - unknown from hours"),
            "1|2026-10-25 00:00:00|2|600|600\n2|2026-10-25 00:00:00|1|0|0\n1|2026-10-25 01:00:00|2|600|600\n"
            "1|2026-10-26 11:00:00|1|0|0\n");
  EXPECT_EQ(folder.queryRows("select idSite, seconds, checks, up from days"), "1|90000|4|1200\n");
  EXPECT_EQ(outages(),
            "2026-10-25 00:50:00|2026-10-25 01:10:00|2|refused\n"
            "2026-10-25 00:55:00|NULL|1|the page differs from the baseline\n");
  EXPECT_EQ(history.latestCheck(1)->at, utc("2026-10-26 11:00:00"));
  const std::string before = hours();
  folder.execute(
      "insert into log (idSite, url, status, dateStamp) values (1, 'http://a.example/', 1, '2026-10-26 12:30:00')");
  EXPECT_TRUE(read());
  EXPECT_EQ(hours(), before);
}

TEST_F(ReadLog, LeavesNothingWhenItIsToEnd) {
  layLog();
  EXPECT_FALSE(history.takeLog(utc("2026-10-26 12:00:00"), [] { return false; }));
  EXPECT_FALSE(history.hasTakenLog());
  EXPECT_EQ(hours(), "");
}

}  // namespace
}  // namespace tarnwick::testing
