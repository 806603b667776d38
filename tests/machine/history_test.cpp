// SPDX-License-Identifier: MIT
// What a run takes into the history of the sites.
#include <gmock/gmock.h>

#include <filesystem>

#include "engine/history_recording.h"
#include "engine/run_controller.h"
#include "support/file_bytes.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

struct HistoryOfARun : ::testing::Test, ProgramFixture {
  HistoryOfARun() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  void set(const std::string& name, const std::string& value) { program.data().setOption(kAllSites, name, value); }
  void go(seconds time) { machine.handTimers.advance(time); }
  std::string sum(const std::string& what) {
    return folder.queryText("select coalesce(sum(" + what + "), 0) from hours");
  }
};

TEST_F(HistoryOfARun, NothingIsWrittenWhenNothingIsSet) {
  addPage("/a", "hello");
  program.startRun();
  go(minutes(25));
  program.stopRun();
  for (const char* table : {"hours", "days", "months", "outages", "latestChecks", "certificates"}) {
    EXPECT_EQ(folder.queryText(std::string("select count(*) from ") + table), "0") << table;
  }
}

TEST_F(HistoryOfARun, EachCheckIsTakenWithItsTime) {
  set("history", "on");
  const std::int16_t id = addPage("/a", "hello");
  program.startRun();
  go(minutes(21));
  server.respond("/a", {.body = "other"});
  go(minutes(10));
  server.respond("/a", {.body = "hello"});
  go(minutes(10));
  EXPECT_EQ(sum("checks"), folder.queryText("select success + failure from sites"));
  EXPECT_EQ(folder.queryRows("select idSite, ended - began, checks, cause from outages"),
            std::to_string(id) + "|600|1|the page differs from the baseline\n");
  EXPECT_EQ(sum("3600 - up - unknown"), "600");
  const CheckTimings took = program.data().timings(id).value_or(CheckTimings{});
  EXPECT_TRUE(took.lookUp && took.connect && took.firstByte && took.whole);
  EXPECT_FALSE(took.tls) << "it is not fetched over TLS";
}

TEST_F(HistoryOfARun, NothingIsKnownWhileNoRunIsOn) {
  set("history", "on");
  addPage("/a", "hello");
  program.startRun();
  go(minutes(4));
  program.stopRun();
  go(minutes(3));
  program.startRun();
  EXPECT_EQ(sum("up"), "240");
  EXPECT_EQ(sum("3600 - up - unknown"), "0");
}

TEST_F(HistoryOfARun, OldHoursAreRemovedWhereThatIsWanted) {
  set("history", "on");
  addPage("/a", "hello");
  program.startRun();
  program.stopRun();
  const Moment today = dayOf(machine.clock().now());
  const auto old = [&](int days) {
    return std::to_string((dayFrom(today, -days) + hours{12}).time_since_epoch().count());
  };
  for (const int days : {9, 10, 12}) {
    folder.execute("insert into hours values (1, " + old(days) + ", 1, 3600, 0, 0, 0, x'')");
  }
  // The latest of them is of a day that has no sum.
  for (const int days : {10, 12}) {
    folder.execute("insert into days values (1, " + old(days) + " - 43200, 86400, 1, 3600, 82800, 0, 0, x'')");
  }
  const auto hoursThere = [&] {
    return folder.queryText("select count(*) from hours where hour < " +
                            std::to_string(today.time_since_epoch().count()));
  };
  program.startRun();
  program.stopRun();
  EXPECT_EQ(hoursThere(), "3");
  set("historyHours", "11");
  program.startRun();
  program.stopRun();
  EXPECT_EQ(hoursThere(), "2");
  set("historyHours", "8");
  program.startRun();
  program.stopRun();
  EXPECT_EQ(hoursThere(), "1");
}

TEST_F(HistoryOfARun, OthersAreToldAfterEachPass) {
  addPage("/a", "hello");
  program.startRun();
  go(seconds(3));
  EXPECT_FALSE(std::filesystem::exists(folder.path() + "/figures.prom"));
  set("metricsFile", "figures.prom");
  set("statusPage", "public");
  go(minutes(10));
  EXPECT_THAT(bytesOfFile(folder.path() + "/figures.prom"), HasSubstr("result=\"passed\"} 2\n"));
  EXPECT_THAT(bytesOfFile(folder.path() + "/public/index.html"), HasSubstr("It is up"));
  server.respond("/a", {.body = "other"});
  go(minutes(10));
  EXPECT_THAT(bytesOfFile(folder.path() + "/figures.prom"), HasSubstr("result=\"failed\"} 1\n"));
  EXPECT_THAT(bytesOfFile(folder.path() + "/public/index.html"), HasSubstr("1 of 1 is down"));
}

TEST_F(HistoryOfARun, APauseCountsForNothing) {
  set("history", "on");
  set("pause", "for good");
  addPage("/a", "hello");
  program.startRun();
  go(minutes(35));
  EXPECT_EQ(sum("up"), "0");
  EXPECT_EQ(sum("checks"), "4");
}

TEST_F(HistoryOfARun, TheLogOfAnExistingListIsReadFirst) {
  addPage("/a", "hello");
  program.startRun();
  go(minutes(15));
  program.stopRun();
  // The log has the time of the machine.
  folder.execute("update log set dateStamp = datetime('2024-05-17 12:00:00', (10 * (rowid - 1)) || ' minutes')");
  set("history", "on");
  EXPECT_EQ(sum("checks"), "0");
  program.startRun();
  EXPECT_EQ(sum("checks"), "3");
  EXPECT_EQ(sum("up"), "900");
}

TEST_F(HistoryOfARun, WhatCannotBeKeptTakesItsResultAlong) {
  set("history", "on");
  addPage("/a", "hello");
  folder.execute("create trigger refuse before insert on hours begin select raise(abort, 'refused'); end");
  program.startRun();
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
  EXPECT_EQ(sum("checks"), "0");
  program.stopRun();
  folder.execute("drop trigger refuse");
  program.startRun();
  EXPECT_EQ(folder.queryText("select count(*) from log"), "1");
  EXPECT_EQ(sum("checks"), "1");
}

TEST(PlannedTime, IsThatOfPausesMaintenanceAndQuietHoursWithoutChecks) {
  const auto local = [](const char* text) { return *parseDateTime(text); };
  const auto at = [&](const char* text) { return momentAt(local(text)); };
  const Stretch night{at("2026-11-23 20:30:00"), at("2026-11-24 07:30:00")};
  const auto lengths = [&](const AlarmPolicy& policy) {
    std::vector<long long> all;
    for (const Stretch& part : plannedWithin(policy, night)) {
      all.push_back(std::chrono::duration_cast<minutes>(part.until - part.from).count());
    }
    return all;
  };
  AlarmPolicy policy;
  EXPECT_TRUE(lengths(policy).empty());
  policy.quiet = *readWeekHours("daily 22-6");
  EXPECT_TRUE(lengths(policy).empty()) << "checks go on then";
  policy.quietKind = QuietKind::noChecks;
  EXPECT_EQ(lengths(policy), (std::vector<long long>{480}));
  policy.maintenance = {{local("2026-11-24 05:00:00"), local("2026-11-24 06:30:00"), std::nullopt, ""},
                        {local("2026-11-24 07:00:00"), local("2026-11-24 09:00:00"), std::nullopt, ""}};
  EXPECT_EQ(lengths(policy), (std::vector<long long>{510, 30}));
  policy.pause = {true, local("2026-11-23 21:00:00")};
  EXPECT_EQ(lengths(policy), (std::vector<long long>{30, 510, 30}));
  policy.pause = {true, std::nullopt};
  EXPECT_EQ(lengths(policy), (std::vector<long long>{660}));
}

}  // namespace
}  // namespace tarnwick::testing
