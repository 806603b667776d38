// SPDX-License-Identifier: MIT
#include "engine/alarm_rule.h"

#include <gtest/gtest.h>

#include "engine/alert_words.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr hours kYear(365 * 24);

/// A site that is checked by hand, beginning on a Monday at noon.
class AlarmRuleTest : public ::testing::Test {
 protected:
  /// Each gives what is told.
  std::string fails(const std::string& error = "refused") {
    return step(CheckOutcome{.passed = false, .error = error, .took = {}});
  }
  std::string passes(milliseconds took = milliseconds(100)) {
    return step(CheckOutcome{.passed = true, .error = "", .took = took});
  }
  std::string timeGoesBy(seconds time = seconds(0)) {
    now += time;
    return step(std::nullopt);
  }
  std::string failsAfter(seconds time) {
    now += time;
    return fails();
  }
  std::string passesAfter(seconds time) {
    now += time;
    return passes();
  }
  /// The same, but the program dies before it knows that it has told it.
  std::string dyingWith(const std::optional<CheckOutcome>& outcome) {
    const AlarmStep step = decideAlarm(standing, outcome, policy, now);
    standing = step.standing;
    return wordsOf(step.alerts);
  }
  std::string step(const std::optional<CheckOutcome>& outcome) {
    const AlarmStep step = decideAlarm(standing, outcome, policy, now);
    standing = step.standing;
    repeatAfter = step.repeatAfter;
    if (!step.alerts.empty()) {
      standing.owed.clear();
    }
    return wordsOf(step.alerts);
  }

  static std::string inOrder(std::initializer_list<std::string> told) {
    std::string all;
    for (const std::string& words : told) {
      all.append(all.empty() || words.empty() ? "" : " ").append(words);
    }
    return all;
  }

  LocalTime now = std::chrono::local_days(std::chrono::year(2026) / 11 / 23) + hours(12);
  AlarmPolicy policy;
  SiteStanding standing;
  std::optional<seconds> repeatAfter;
};

const CheckOutcome kFailed{.passed = false, .error = "refused", .took = {}};
const CheckOutcome kPassed{.passed = true, .error = "", .took = {}};

const CheckOutcome kKnown{.passed = false, .error = "refused", .took = {}, .known = true};
const CheckOutcome kOther{.passed = false, .error = "refused", .took = {}, .other = true};

TEST_F(AlarmRuleTest, OfAPageThatIsKnownNothingIsToldUntilAnotherComesOrTheSiteIsUp) {
  policy.confirm = 2;
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(10)};
  policy.recovery = true;
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(fails(), "down");
  now += hours(2);
  EXPECT_EQ(step(kKnown), "");
  EXPECT_EQ(repeatAfter, std::nullopt);
  now += hours(2);
  EXPECT_EQ(step(kKnown), "");
  EXPECT_EQ(standing.failures, 4);
  EXPECT_EQ(step(kOther), "down");
  EXPECT_EQ(step(kKnown), "");
  EXPECT_EQ(passes(), "up");
}

TEST_F(AlarmRuleTest, WhatWasOwedOfAPageThatIsKnownIsForgotten) {
  standing.owed = {AlertKind::down};
  standing.failures = 3;
  standing.told = SiteStanding::Told::down;
  EXPECT_EQ(step(kKnown), "");
  EXPECT_TRUE(standing.owed.empty());
}

TEST_F(AlarmRuleTest, AnotherPageInAQuietTimeIsToldWhenItEnds) {
  policy.remind = {.kind = Reminders::Kind::never, .every = {}};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(step(kKnown), "");
  policy.alerts = false;
  EXPECT_EQ(step(kOther), "");
  policy.alerts = true;
  EXPECT_EQ(timeGoesBy(), "down");
}

TEST_F(AlarmRuleTest, UnsetEachFailedCheckIsToldAndNothingElse) {
  EXPECT_EQ(passes(), "");
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(repeatAfter, std::nullopt);
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(timeGoesBy(hours(5)), "");
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(passes(hours(1)), "");
  EXPECT_EQ(timeGoesBy(hours(5)), "");
}

TEST_F(AlarmRuleTest, AnOutageIsRealWithTheLastOfTheFailuresThatAreToConfirmIt) {
  policy.confirm = 3;
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(passes(), "");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(fails(), "down");
}

TEST_F(AlarmRuleTest, AFailureIsConfirmedSoonAndLaterAndLater) {
  policy.confirm = 4;
  const auto pauses = [this] {
    std::vector<int> all;
    for (fails(); repeatAfter; fails()) {
      all.push_back(static_cast<int>(repeatAfter->count()));
    }
    passes();
    EXPECT_EQ(repeatAfter, std::nullopt);
    return all;
  };
  EXPECT_EQ(pauses(), (std::vector{5, 20, 20}));
  policy.confirmAfter = {seconds(7)};
  EXPECT_EQ(pauses(), (std::vector{7, 7, 7}));
  policy.confirmAfter = {seconds(1), seconds(2), seconds(3), seconds(4)};
  EXPECT_EQ(pauses(), (std::vector{1, 2, 3}));
}

TEST_F(AlarmRuleTest, AnOutageIsToldOnceWhereNobodyWantsReminders) {
  policy.remind = {.kind = Reminders::Kind::never, .every = {}};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(failsAfter(hours(1)), "");
  EXPECT_EQ(failsAfter(kYear), "");
}

TEST_F(AlarmRuleTest, AReminderComesWithTheNextFailedCheckWhenItsTimeHasGoneBy) {
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(10)};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(failsAfter(minutes(10) - seconds(1)), "");
  EXPECT_EQ(timeGoesBy(seconds(1)), "");
  EXPECT_EQ(failsAfter(minutes(2)), "stillDown");
  EXPECT_EQ(failsAfter(minutes(7)), "") << "12 minutes and 7, while the next one is due at 20";
  EXPECT_EQ(failsAfter(minutes(1)), "stillDown");
}

TEST_F(AlarmRuleTest, OfManyRemindersThatWereMissedOneComes) {
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(10)};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(failsAfter(minutes(95)), "stillDown");
  EXPECT_EQ(failsAfter(minutes(4)), "");
  EXPECT_EQ(failsAfter(minutes(1)), "stillDown");
}

TEST_F(AlarmRuleTest, RemindersMayBecomeRarer) {
  policy.remind = {.kind = Reminders::Kind::growing, .every = {}};
  EXPECT_EQ(fails(), "down");
  std::vector<int> told;
  for (int hour = 1; hour <= 365 * 24; ++hour) {
    if (failsAfter(hours(1)) == "stillDown") {
      told.push_back(hour);
    }
  }
  EXPECT_EQ(told, (std::vector{1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096, 8192}));
}

TEST_F(AlarmRuleTest, WhoWantsOtherRemindersDuringAnOutageGetsThem) {
  EXPECT_EQ(fails(), "down");
  for (int minute = 1; minute < 60; ++minute) {
    EXPECT_EQ(failsAfter(minutes(1)), "down");
  }
  policy.remind = {.kind = Reminders::Kind::growing, .every = {}};
  EXPECT_EQ(failsAfter(minutes(1)), "stillDown");
  EXPECT_EQ(failsAfter(minutes(59)), "");
  EXPECT_EQ(failsAfter(minutes(1)), "stillDown");
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(90)};
  EXPECT_EQ(failsAfter(minutes(60)), "stillDown");
}

TEST_F(AlarmRuleTest, TheEndOfAnOutageThatWasToldIsToldOnce) {
  policy.recovery = true;
  policy.confirm = 2;
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(passes(), "") << "nobody knew of it";
  EXPECT_EQ(inOrder({fails(), fails()}), "down");
  EXPECT_EQ(timeGoesBy(hours(1)), "");
  EXPECT_EQ(passes(), "up");
  EXPECT_EQ(passes(), "");
}

TEST_F(AlarmRuleTest, TheAlertOfTheEndKnowsTheOutage) {
  policy.recovery = true;
  policy.confirm = 2;
  const LocalTime begin = now;
  fails("refused");
  now += minutes(1);
  EXPECT_EQ(fails("cut"), "down");
  EXPECT_EQ(failsAfter(minutes(1)), "down");
  EXPECT_EQ(passesAfter(minutes(1)), "up");
  EXPECT_EQ(standing.outageSince, begin);
  EXPECT_EQ(standing.outageChecks, 3);
  EXPECT_EQ(standing.outageError, "refused");
}

TEST_F(AlarmRuleTest, WhatIsStillSoAfterAQuietTimeIsToldThen) {
  policy.recovery = true;
  policy.remind.kind = Reminders::Kind::never;
  policy.quiet = *readWeekHours("daily 22-6");
  now += hours(10);
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(failsAfter(hours(8) - seconds(1)), "");
  EXPECT_TRUE(waitsForTime(standing, policy));
  EXPECT_EQ(timeGoesBy(seconds(1)), "down");
  EXPECT_EQ(failsAfter(minutes(1)), "");
  EXPECT_EQ(passesAfter(hours(16)), "");
  EXPECT_EQ(passesAfter(hours(8)), "up");
  EXPECT_EQ(failsAfter(hours(16)), "");
  EXPECT_EQ(passes(), "");
  EXPECT_EQ(passesAfter(hours(8)), "") << "an outage that nobody was told of";
}

TEST_F(AlarmRuleTest, OneWhoKnowsThatItIsDownIsNotToldAgainAfterAQuietTime) {
  policy.recovery = true;
  policy.remind = {.kind = Reminders::Kind::regular, .every = hours(4)};
  policy.quiet = *readWeekHours("daily 22-6");
  now += hours(9);
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(passesAfter(hours(2)), "");
  EXPECT_EQ(failsAfter(hours(2)), "");
  EXPECT_EQ(timeGoesBy(hours(5)), "");
  EXPECT_EQ(fails(), "stillDown");
  EXPECT_EQ(passesAfter(hours(1)), "up");
}

TEST_F(AlarmRuleTest, AFailureThatIsNotConfirmedEndsNoOutageAfterAQuietTime) {
  policy.recovery = true;
  policy.confirm = 2;
  policy.remind.kind = Reminders::Kind::never;
  EXPECT_EQ(inOrder({fails(), fails()}), "down");
  policy.pause = {.isOn = true, .until = now + hours(1)};
  EXPECT_EQ(inOrder({passes(), fails()}), "");
  EXPECT_EQ(timeGoesBy(hours(1)), "");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(passes(), "up");
}

TEST_F(AlarmRuleTest, EachKindOfQuietKeepsTheAlerts) {
  policy.recovery = true;
  const AlarmPolicy loud = policy;
  const auto expectQuiet = [&](const AlarmPolicy& quiet) {
    policy = quiet;
    EXPECT_EQ(inOrder({fails(), fails(), timeGoesBy()}), "");
    policy = loud;
    EXPECT_EQ(timeGoesBy(), "down");
    policy = quiet;
    EXPECT_EQ(inOrder({passes(), timeGoesBy()}), "");
    policy = loud;
    EXPECT_EQ(timeGoesBy(), "up");
  };
  AlarmPolicy quiet = loud;
  quiet.alerts = false;
  expectQuiet(quiet);
  quiet = loud;
  quiet.pause = {.isOn = true, .until = std::nullopt};
  expectQuiet(quiet);
  quiet = loud;
  quiet.maintenance = {{.from = now, .until = now + seconds(1), .kind = QuietKind::noChecks, .note = ""}};
  expectQuiet(quiet);
  quiet = loud;
  quiet.quiet.set();
  quiet.quietKind = QuietKind::noChecks;
  expectQuiet(quiet);
}

TEST_F(AlarmRuleTest, MoreChangesThanAreBorneAreOneAlertUntilItHoldsStill) {
  policy.recovery = true;
  policy.unsteady = UnsteadyLimit{.changes = 3, .within = minutes(30)};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(passesAfter(minutes(5)), "up");
  EXPECT_EQ(failsAfter(minutes(5)), "down");
  EXPECT_EQ(passesAfter(minutes(5)), "unsteady");
  EXPECT_EQ(inOrder({failsAfter(minutes(5)), failsAfter(minutes(5)), passesAfter(minutes(5))}), "");
  EXPECT_EQ(timeGoesBy(minutes(30) - seconds(1)), "");
  EXPECT_TRUE(waitsForTime(standing, policy));
  EXPECT_EQ(timeGoesBy(seconds(1)), "up");
  EXPECT_EQ(fails(), "down") << "the changes of before are forgotten";
}

TEST_F(AlarmRuleTest, AnUnsteadySiteThatHoldsStillWhileItIsDownIsDown) {
  policy.unsteady = UnsteadyLimit{.changes = 1, .within = minutes(30)};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(passes(), "unsteady");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(failsAfter(minutes(30)), "down");
}

TEST_F(AlarmRuleTest, ChangesThatAreFarApartAreBorne) {
  policy.unsteady = UnsteadyLimit{.changes = 1, .within = minutes(30)};
  for (int day = 0; day < 3; ++day) {
    EXPECT_EQ(failsAfter(minutes(30)), "down");
    EXPECT_EQ(passesAfter(minutes(30)), "");
  }
}

TEST_F(AlarmRuleTest, FailuresThatAreNotConfirmedMakeNoSiteUnsteady) {
  policy.confirm = 2;
  policy.unsteady = UnsteadyLimit{.changes = 1, .within = minutes(30)};
  for (int time = 0; time < 5; ++time) {
    EXPECT_EQ(inOrder({fails(), passes()}), "");
  }
  EXPECT_EQ(inOrder({fails(), fails()}), "down");
  EXPECT_EQ(passes(), "unsteady");
}

TEST_F(AlarmRuleTest, APageThatComesLateIsToldOnceUntilOneComesInTime) {
  policy.slow = milliseconds(2000);
  EXPECT_EQ(passes(milliseconds(2000)), "");
  EXPECT_EQ(passes(milliseconds(2001)), "slow");
  EXPECT_EQ(passes(milliseconds(9999)), "");
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(passes(milliseconds(2001)), "") << "a failure comes neither late nor in time";
  EXPECT_EQ(passes(milliseconds(2000)), "");
  EXPECT_EQ(passes(milliseconds(2001)), "slow");
}

TEST_F(AlarmRuleTest, ASiteThatIsStillSlowAfterAQuietTimeIsToldThen) {
  policy.slow = milliseconds(2000);
  policy.pause = {.isOn = true, .until = now + hours(1)};
  EXPECT_EQ(passes(milliseconds(2001)), "");
  EXPECT_EQ(timeGoesBy(hours(1)), "slow");
  policy.pause.until = now + hours(1);
  EXPECT_EQ(inOrder({passes(milliseconds(1)), passes(milliseconds(2001))}), "");
  policy.slow.reset();
  EXPECT_EQ(timeGoesBy(hours(1)), "") << "nobody wants to know any more";
  EXPECT_FALSE(waitsForTime(standing, policy));
}

TEST_F(AlarmRuleTest, WhatIsOwedIsToldOnceMoreAndFirst) {
  policy.recovery = true;
  EXPECT_EQ(dyingWith(kFailed), "down");
  EXPECT_TRUE(waitsForTime(standing, policy));
  EXPECT_EQ(dyingWith(kPassed), "down up");
  EXPECT_EQ(timeGoesBy(), "down up");
  EXPECT_EQ(timeGoesBy(), "");
}

TEST_F(AlarmRuleTest, WhatIsOwedLastIsNotAddedASecondTime) {
  EXPECT_EQ(dyingWith(kFailed), "down");
  EXPECT_EQ(dyingWith(kFailed), "down");
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(10)};
  EXPECT_EQ(failsAfter(minutes(10)), "down") << "that is reminder enough";
  EXPECT_EQ(failsAfter(minutes(9)), "");
  EXPECT_EQ(failsAfter(minutes(1)), "stillDown");
}

TEST_F(AlarmRuleTest, WhatIsOwedWaitsForTheEndOfAQuietTime) {
  policy.recovery = true;
  EXPECT_EQ(dyingWith(kFailed), "down");
  policy.pause = {.isOn = true, .until = now + hours(1)};
  EXPECT_EQ(inOrder({fails(), passes(), timeGoesBy()}), "");
  EXPECT_EQ(timeGoesBy(hours(1)), "down up");
}

TEST_F(AlarmRuleTest, RemindersCountFromTheNewTimeWhenTheClockWasSetBack) {
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(60)};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(failsAfter(-kYear), "") << "set back beyond the first alert";
  EXPECT_EQ(failsAfter(minutes(60)), "stillDown");
  EXPECT_EQ(failsAfter(hours(1000)), "stillDown");
  EXPECT_EQ(failsAfter(-hours(990)), "") << "set back to ten hours behind it";
  EXPECT_EQ(failsAfter(minutes(60)), "stillDown");
}

TEST_F(AlarmRuleTest, AClockThatIsSetForwardBringsOneReminder) {
  policy.remind = {.kind = Reminders::Kind::growing, .every = {}};
  EXPECT_EQ(fails(), "down");
  EXPECT_EQ(failsAfter(kYear), "stillDown");
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(failsAfter(kYear), "stillDown");
  EXPECT_EQ(failsAfter(hours(1)), "");
}

TEST_F(AlarmRuleTest, AnUnsteadySiteHoldsStillByTheNewTimeWhenTheClockWasSetBack) {
  policy.recovery = true;
  policy.unsteady = UnsteadyLimit{.changes = 1, .within = minutes(30)};
  EXPECT_EQ(inOrder({fails(), passes()}), "down unsteady");
  EXPECT_EQ(timeGoesBy(-hours(1)), "");
  EXPECT_EQ(timeGoesBy(minutes(30) - seconds(1)), "");
  EXPECT_EQ(timeGoesBy(seconds(1)), "up");
}

TEST_F(AlarmRuleTest, AnOutageOfWhichNobodyKnowsWhenItWasToldWasToldNow) {
  policy.remind = {.kind = Reminders::Kind::regular, .every = minutes(10)};
  standing.told = SiteStanding::Told::down;
  standing.failures = 1;
  EXPECT_EQ(fails(), "");
  EXPECT_EQ(failsAfter(minutes(10)), "stillDown");
}

}  // namespace
}  // namespace tarnwick::testing
