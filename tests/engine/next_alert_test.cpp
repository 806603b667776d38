// SPDX-License-Identifier: MIT
// When somebody is told of a site the next time: what is foretold is what is decided then.
#include "engine/next_alert.h"

#include <gtest/gtest.h>

#include "engine/alarm_rule.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using When = NextAlert::When;

class NextAlertTest : public ::testing::Test {
 protected:
  std::vector<AlertKind> check(bool passed) {
    AlarmStep step = decideAlarm(standing, CheckOutcome{.passed = passed, .error = "refused", .took = {}}, policy, now);
    standing = std::move(step.standing);
    standing.owed.clear();
    return step.alerts;
  }
  bool tellsOfFailure() { return !check(false).empty(); }
  NextAlert next(bool isKnown = false) const { return nextAlertOf(standing, policy, now, isKnown); }

  LocalTime now = std::chrono::local_days(std::chrono::year(2026) / 11 / 23) + hours(12);
  AlarmPolicy policy;
  SiteStanding standing;
};

TEST_F(NextAlertTest, UnsetEachFailureIsTold) { EXPECT_EQ(next(), NextAlert{.when = When::eachFailure}); }

TEST_F(NextAlertTest, CountsTheFailuresThatAreMissing) {
  policy.confirm = 3;
  for (const int missing : {3, 2, 1}) {
    EXPECT_EQ(next(), (NextAlert{.when = When::failures, .failures = missing}));
    EXPECT_EQ(tellsOfFailure(), missing == 1);
  }
}

TEST_F(NextAlertTest, AReminderComesWithTheFirstFailureFromThenOn) {
  for (const Reminders::Kind kind : {Reminders::Kind::regular, Reminders::Kind::growing}) {
    policy.remind = {.kind = kind, .every = minutes(40)};
    standing = {};
    ASSERT_TRUE(tellsOfFailure());
    for (int reminder = 0; reminder < 5; ++reminder) {
      ASSERT_EQ(next().when, When::reminder);
      const LocalTime at = next().at.value();
      now = at - minutes(1);
      EXPECT_FALSE(tellsOfFailure());
      now = at;
      EXPECT_TRUE(tellsOfFailure());
    }
  }
}

TEST_F(NextAlertTest, OfAnOutageWithoutRemindersItsEndIsTold) {
  policy.remind.kind = Reminders::Kind::never;
  policy.recovery = true;
  tellsOfFailure();
  EXPECT_EQ(next(), (NextAlert{.when = When::back, .tellsBack = true}));
  EXPECT_FALSE(tellsOfFailure());
  EXPECT_FALSE(check(true).empty());
  EXPECT_EQ(next(), (NextAlert{.when = When::failures, .failures = 1}));
}

TEST_F(NextAlertTest, OrNothingBeforeTheNextOne) {
  policy.remind.kind = Reminders::Kind::never;
  tellsOfFailure();
  EXPECT_EQ(next().when, When::nextOutage);
  EXPECT_FALSE(tellsOfFailure());
  EXPECT_TRUE(check(true).empty());
  EXPECT_TRUE(tellsOfFailure());
}

TEST_F(NextAlertTest, WhatComesInAPauseIsToldAfterIt) {
  policy.confirm = 2;
  policy.pause = {true, now + hours(1)};
  EXPECT_FALSE(tellsOfFailure());
  EXPECT_EQ(next().when, When::failures);
  EXPECT_FALSE(tellsOfFailure());
  EXPECT_EQ(next().when, When::quietTimeEnds);
  now += hours(2);
  EXPECT_TRUE(tellsOfFailure());
}

TEST_F(NextAlertTest, AnUnsteadySiteIsToldOfWhenItIsSteady) {
  policy.remind.kind = Reminders::Kind::never;
  policy.unsteady = UnsteadyLimit{.changes = 2, .within = minutes(30)};
  for (const bool passed : {false, true, false}) {
    check(passed);
  }
  EXPECT_EQ(next().when, When::steady);
}

TEST_F(NextAlertTest, OfAKnownPageOnlyAnotherOneIsTold) {
  tellsOfFailure();
  EXPECT_EQ(next(true).when, When::otherPage);
}

TEST_F(NextAlertTest, WithAlertsOffNothingIs) {
  policy.alerts = false;
  EXPECT_EQ(next().when, When::never);
}

}  // namespace
}  // namespace tarnwick::testing
