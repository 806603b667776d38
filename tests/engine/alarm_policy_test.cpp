// SPDX-License-Identifier: MIT
#include "engine/alarm_policy.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <random>
#include <string>

namespace tarnwick {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_seconds;

LocalTime at(std::string_view text) { return *parseDateTime(text); }
/// A moment by its UTC.
sys_seconds utc(std::string_view text) { return sys_seconds(at(text).time_since_epoch()); }

AlarmPolicy quietIn(const std::string& week, QuietKind kind = QuietKind::keepAlerts) {
  AlarmPolicy policy;
  policy.quiet = *readWeekHours(week);
  policy.quietKind = kind;
  return policy;
}

OptionsInForce optionsOf(std::map<std::int64_t, OptionValues> values) { return OptionsInForce(std::move(values)); }

TEST(AlarmPolicy, IsTheOriginalOneWhereNothingIsSet) {
  const AlarmPolicy policy = alarmPolicyOf(OptionsInForce(), 1);
  EXPECT_TRUE(policy.isOriginal());
  EXPECT_TRUE(policy.alerts);
  EXPECT_EQ(policy.confirm, 1);
  EXPECT_EQ(policy.remind.kind, Reminders::Kind::everyCheck);
  EXPECT_EQ(quietAt(policy, at("2026-11-22 03:00:00")), Quiet::no);
}

TEST(AlarmPolicy, IsTheOriginalOneWhereTheOriginalIsSet) {
  EXPECT_TRUE(alarmPolicyOf(optionsOf({{0,
                                        {{"alerts", "on"},
                                         {"confirm", "1"},
                                         {"confirmAfter", "1 s"},
                                         {"recovery", "off"},
                                         {"remind", "every check"},
                                         {"flapping", "off"},
                                         {"slow", "off"},
                                         {"certificate", "off"},
                                         {"quiet", "none"},
                                         {"quietHow", "do not check"},
                                         {"maintenance", "none"},
                                         {"pause", "no"}}}}),
                            1)
                  .isOriginal());
}

TEST(AlarmPolicy, AnyOptionMakesItAnother) {
  const std::pair<const char*, const char*> others[] = {{"alerts", "off"},
                                                        {"confirm", "2"},
                                                        {"recovery", "on"},
                                                        {"remind", "never"},
                                                        {"remind", "5"},
                                                        {"remind", "growing"},
                                                        {"flapping", "5 in 30 min"},
                                                        {"slow", "2000"},
                                                        {"certificate", "third"},
                                                        {"quiet", "daily 1-2"},
                                                        {"maintenance", "2026-12-01 08:00 to 2026-12-01 12:00"},
                                                        {"pause", "for good"}};
  for (const auto& [name, value] : others) {
    EXPECT_FALSE(alarmPolicyOf(optionsOf({{0, {{name, value}}}}), 1).isOriginal()) << name << ' ' << value;
  }
}

TEST(AlarmPolicy, TheSitesOwnValueComesFirst) {
  const OptionsInForce options = optionsOf(
      {{0, {{"confirm", "3"}, {"remind", "60"}, {"slow", "2000"}}}, {7, {{"confirm", "5"}, {"slow", "off"}}}});
  const AlarmPolicy own = alarmPolicyOf(options, 7);
  EXPECT_EQ(own.confirm, 5);
  EXPECT_EQ(own.remind.every, minutes(60));
  EXPECT_FALSE(own.slow);
  EXPECT_EQ(alarmPolicyOf(options, 8).confirm, 3);
  EXPECT_EQ(alarmPolicyOf(options, 8).slow, std::chrono::milliseconds(2000));
}

TEST(AlarmPolicy, TheLastPauseHoldsForAllFurtherRepeats) {
  AlarmPolicy policy;
  EXPECT_EQ(policy.repeatAfter(1), seconds(5));
  EXPECT_EQ(policy.repeatAfter(2), seconds(20));
  EXPECT_EQ(policy.repeatAfter(19), seconds(20));
  policy.confirmAfter = {seconds(1), seconds(2), seconds(3)};
  EXPECT_EQ(policy.repeatAfter(1), seconds(1));
  EXPECT_EQ(policy.repeatAfter(3), seconds(3));
  EXPECT_EQ(policy.repeatAfter(4), seconds(3));
}

TEST(QuietAt, IsTheStrongestOfWeekMaintenanceAndPause) {
  const LocalTime time = at("2026-11-22 03:00:00");  // a Sunday
  EXPECT_EQ(quietAt(quietIn("Sun 3-4"), time), Quiet::keepsAlerts);
  EXPECT_EQ(quietAt(quietIn("Sun 3-4", QuietKind::noChecks), time), Quiet::noChecks);
  EXPECT_EQ(quietAt(quietIn("Sun 4-5"), time), Quiet::no);
  AlarmPolicy policy = quietIn("Sun 3-4");
  policy.maintenance = *readDatedWindows("2026-11-22 03:00 to 2026-11-22 03:01, do not check");
  EXPECT_EQ(quietAt(policy, time), Quiet::noChecks);
  EXPECT_EQ(quietAt(policy, time + minutes(1)), Quiet::keepsAlerts);
  AlarmPolicy paused;
  paused.pause = {true, time};
  EXPECT_EQ(quietAt(paused, time - seconds(1)), Quiet::keepsAlerts);
  EXPECT_EQ(quietAt(paused, time), Quiet::no);
}

TEST(QuietAt, MaintenanceWithoutAKindIsAsTheQuietHoursAre) {
  AlarmPolicy policy;
  policy.maintenance = *readDatedWindows(
      "2026-11-22 03:00 to 2026-11-22 04:00; 2026-11-22 03:30 to 2026-11-22 04:00, "
      "keep alerts");
  EXPECT_EQ(quietAt(policy, at("2026-11-22 03:59:59")), Quiet::keepsAlerts);
  policy.quietKind = QuietKind::noChecks;
  EXPECT_EQ(quietAt(policy, at("2026-11-22 03:59:59")), Quiet::noChecks);
  EXPECT_EQ(quietAt(policy, at("2026-11-22 04:00:00")), Quiet::no);
  EXPECT_EQ(quietAt(policy, at("2026-11-22 02:59:59")), Quiet::no);
}

/// A change of the clock of a zone: when, and how far the zone is ahead of UTC before and afterwards.
struct ClockChange {
  const char* name;
  /// By a rule of its own, so that no table of zones is needed.
  const char* zone;
  const char* when;  ///< UTC
  minutes before;
  minutes after;
};

const ClockChange kClockChanges[] = {
    {"BerlinInSpring", "CET-1CEST,M3.5.0,M10.5.0/3", "2026-03-29 01:00:00", minutes(60), minutes(120)},
    {"BerlinInAutumn", "CET-1CEST,M3.5.0,M10.5.0/3", "2026-10-25 01:00:00", minutes(120), minutes(60)},
    {"LondonInSpring", "GMT0BST,M3.5.0/1,M10.5.0", "2026-03-29 01:00:00", minutes(0), minutes(60)},
    {"LondonInAutumn", "GMT0BST,M3.5.0/1,M10.5.0", "2026-10-25 01:00:00", minutes(60), minutes(0)},
    {"NewYorkInSpring", "EST5EDT,M3.2.0,M11.1.0", "2026-03-08 07:00:00", minutes(-300), minutes(-240)},
    {"NewYorkInAutumn", "EST5EDT,M3.2.0,M11.1.0", "2026-11-01 06:00:00", minutes(-240), minutes(-300)},
    // Half an hour, and in the other half of the year.
    {"LordHoweInSpring", "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", "2026-10-03 15:30:00", minutes(630), minutes(660)},
    {"LordHoweInAutumn", "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", "2026-04-04 15:00:00", minutes(660), minutes(630)},
    // At midnight, so that another day begins twice, or later.
    {"SantiagoInSpring", "<-04>4<-03>,M9.1.6/24,M4.1.6/24", "2026-09-06 04:00:00", minutes(-240), minutes(-180)},
    {"SantiagoInAutumn", "<-04>4<-03>,M9.1.6/24,M4.1.6/24", "2026-04-05 03:00:00", minutes(-180), minutes(-240)},
};

class ClockChanges : public ::testing::TestWithParam<ClockChange> {
 protected:
  void SetUp() override {
#ifdef _WIN32
    GTEST_SKIP() << "There a process has the zone of its system.";
#else
    if (const char* const zone = std::getenv("TZ")) {
      before_ = zone;
    }
    setenv("TZ", GetParam().zone, 1);
    tzset();
#endif
  }
  void TearDown() override {
#ifndef _WIN32
    before_ ? setenv("TZ", before_->c_str(), 1) : unsetenv("TZ");
    tzset();
#endif
  }

  /// What a clock on the wall shows there.
  static LocalTime onTheWall(sys_seconds moment) {
    return LocalTime(moment.time_since_epoch() +
                     (moment < utc(GetParam().when) ? GetParam().before : GetParam().after));
  }
  /// The minutes of the three days about the change that are quiet.
  static int quietMinutes(const AlarmPolicy& policy) {
    int count = 0;
    for (sys_seconds moment = utc(GetParam().when) - hours(36); moment < utc(GetParam().when) + hours(36);
         moment += minutes(1)) {
      count += quietAt(policy, localTimeAt(moment)) == Quiet::no ? 0 : 1;
    }
    return count;
  }

 private:
  std::optional<std::string> before_;
};

TEST_P(ClockChanges, QuietIsWhatTheClockOnTheWallSays) {
  std::mt19937 random(5);
  AlarmPolicy policy;
  for (std::size_t hour = 0; hour < policy.quiet.size(); ++hour) {
    policy.quiet.set(hour, random() % 2 == 0);
  }
  for (sys_seconds moment = utc(GetParam().when) - hours(36); moment < utc(GetParam().when) + hours(36);
       moment += seconds(61)) {
    const LocalTime wall = onTheWall(moment);
    const auto day = std::chrono::floor<std::chrono::days>(wall);
    const std::size_t hour = (std::chrono::weekday(day).iso_encoding() - 1) * 24 +
                             static_cast<std::size_t>(std::chrono::floor<hours>(wall - day).count());
    ASSERT_EQ(quietAt(policy, localTimeAt(moment)) != Quiet::no, policy.quiet.test(hour)) << dateTimeText(wall);
  }
}

TEST_P(ClockChanges, WhatComesTwiceIsQuietTwiceAndWhatIsLeftOutIsNot) {
  const LocalTime change = onTheWall(utc(GetParam().when));
  const minutes ahead = GetParam().after - GetParam().before;
  // What is left out begins where the clock was set forward; what comes twice ends where it was set back.
  const LocalTime hour = std::chrono::floor<hours>(ahead > minutes(0) ? change - ahead : change);
  AlarmPolicy policy;
  policy.quiet.set(hourOfWeek(hour));
  EXPECT_EQ(quietMinutes(policy), 60 - ahead.count()) << dateTimeText(hour);
  // Dated, it is the same.
  AlarmPolicy dated;
  dated.maintenance = {{hour, hour + hours(1), QuietKind::keepAlerts, ""}};
  EXPECT_EQ(quietMinutes(dated), 60 - ahead.count()) << dateTimeText(hour);
}

TEST_P(ClockChanges, ANightIsQuietFromItsBeginningToItsEnd) {
  const minutes ahead = GetParam().after - GetParam().before;
  AlarmPolicy night;
  const LocalTime evening =
      std::chrono::floor<std::chrono::days>(onTheWall(utc(GetParam().when) - hours(12))) + hours(18);
  for (int hour = 0; hour < 14; ++hour) {
    night.quiet.set(hourOfWeek(evening + hours(hour)));
  }
  EXPECT_EQ(quietMinutes(night), 14 * 60 - ahead.count());
}

INSTANTIATE_TEST_SUITE_P(Of, ClockChanges, ::testing::ValuesIn(kClockChanges),
                         [](const auto& change) { return std::string(change.param.name); });

}  // namespace
}  // namespace tarnwick
