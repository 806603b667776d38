// SPDX-License-Identifier: MIT
#include "engine/alarm_view.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using std::chrono::minutes;

LocalTime at(std::string_view text) { return *parseDateTime(text); }

const LocalTime kNow = at("2024-05-17 12:00:00");

AlarmPolicy ofThree() {
  AlarmPolicy policy;
  policy.confirm = 3;
  return policy;
}

SiteStanding failed(int failures) {
  SiteStanding standing;
  standing.failures = failures;
  standing.downSince = kNow - minutes(failures);
  standing.firstError = "Refused.";
  return standing;
}

TEST(AlarmView, OfFewFailuresIsUnconfirmed) {
  const AlarmView view = alarmViewOf(failed(1), ofThree(), kNow);
  EXPECT_EQ(wordsOf(view), "unconfirmed (1 of 3)");
  EXPECT_EQ(view.since, kNow - minutes(1));
  EXPECT_EQ(view.firstError, "Refused.");
  EXPECT_EQ(wordsOf(alarmViewOf(failed(2), ofThree(), kNow)), "unconfirmed (2 of 3)");
  EXPECT_EQ(wordsOf(alarmViewOf(failed(3), ofThree(), kNow)), "down");
  EXPECT_EQ(wordsOf(alarmViewOf(failed(0), ofThree(), kNow)), "");
}

TEST(AlarmView, OfTheOriginalPolicyIsNothingButUnknown) {
  SiteStanding standing = failed(1);
  standing.unsteady = standing.slow = true;
  EXPECT_EQ(alarmViewOf(standing, {}, kNow).state, AlarmView::State::none);
  standing.unknownSince = kNow - minutes(5);
  EXPECT_EQ(wordsOf(alarmViewOf(standing, {}, kNow)), "unknown");
  EXPECT_EQ(alarmViewOf(standing, {}, kNow).since, kNow - minutes(5));
}

TEST(AlarmView, NamesTheWorstState) {
  AlarmPolicy policy = ofThree();
  policy.slow = std::chrono::milliseconds(100);
  policy.unsteady = UnsteadyLimit{5, minutes(30)};
  SiteStanding standing;
  standing.slow = true;
  EXPECT_EQ(wordsOf(alarmViewOf(standing, policy, kNow)), "slow");
  standing.failures = 3;
  EXPECT_EQ(wordsOf(alarmViewOf(standing, policy, kNow)), "down");
  standing.unsteady = true;
  EXPECT_EQ(wordsOf(alarmViewOf(standing, policy, kNow)), "unsteady");
  standing.unknownSince = kNow;
  EXPECT_EQ(wordsOf(alarmViewOf(standing, policy, kNow)), "unknown");
}

TEST(AlarmView, ACertificateThatEndsSoonComesBeforeSlowAndBehindAFailure) {
  AlarmPolicy policy = ofThree();
  policy.slow = std::chrono::milliseconds(100);
  policy.certificate = readCertificateLimits("21, 7");
  SiteStanding standing;
  standing.slow = true;
  SiteCertificate certificate{momentAt(kNow) - std::chrono::days(60), momentAt(kNow) + std::chrono::days(12), "A", 21};
  const auto view = [&] { return alarmViewOf(standing, policy, kNow, false, &certificate); };
  EXPECT_EQ(wordsOf(view()), "12 days");
  EXPECT_EQ(view().state, AlarmView::State::certificate);
  EXPECT_TRUE(view().slow) << "it is found by that all the same";
  certificate.ends = momentAt(kNow) + std::chrono::hours(30);
  EXPECT_EQ(wordsOf(view()), "1 day");
  standing.failures = 3;
  EXPECT_EQ(wordsOf(view()), "down");
  EXPECT_EQ(view().daysLeft, 1);
  standing.failures = 0;
  certificate.ends = momentAt(kNow) + std::chrono::days(22);
  EXPECT_EQ(wordsOf(view()), "slow");
  EXPECT_EQ(view().daysLeft, std::nullopt);
  policy.certificate.reset();
  certificate.ends = momentAt(kNow) + std::chrono::days(1);
  EXPECT_EQ(view().daysLeft, std::nullopt) << "nobody wants to know";
}

TEST(AlarmView, NamesThePauseThatIsOn) {
  AlarmPolicy policy;
  policy.pause = {true, kNow + minutes(1)};
  EXPECT_TRUE(alarmViewOf({}, policy, kNow).pause);
  EXPECT_EQ(alarmViewOf({}, policy, kNow).quiet, Quiet::keepsAlerts);
  EXPECT_FALSE(alarmViewOf({}, policy, kNow + minutes(1)).pause);
}

TEST(UnwatchedSites, AreThoseOfTwoIntervalsAndThoseNeverChecked) {
  const Watch watched{.active = true, .lastChecked = kNow - minutes(19), .interval = 10, .runIsOn = true};
  EXPECT_EQ(unwatchedOf(watched, Quiet::no, kNow), Unwatched::no);
  EXPECT_EQ(unwatchedOf(watched, Quiet::no, kNow + minutes(1)), Unwatched::overdue);
  EXPECT_EQ(unwatchedOf(watched, Quiet::keepsAlerts, kNow + minutes(1)), Unwatched::overdue);
  EXPECT_EQ(unwatchedOf(watched, Quiet::noChecks, kNow + minutes(1)), Unwatched::quiet);
  Watch alone = watched;
  alone.runIsOn = false;
  EXPECT_EQ(unwatchedOf(alone, Quiet::no, kNow), Unwatched::no) << "who checks from cron does it in time";
  EXPECT_EQ(unwatchedOf(alone, Quiet::no, kNow + minutes(1)), Unwatched::noRun);
  Watch fresh = watched;
  fresh.lastChecked.reset();
  EXPECT_EQ(unwatchedOf(fresh, Quiet::no, kNow), Unwatched::neverChecked);
  fresh.newSitesAtOnce = true;
  EXPECT_EQ(unwatchedOf(fresh, Quiet::no, kNow), Unwatched::no);
  fresh.runIsOn = false;
  EXPECT_EQ(unwatchedOf(fresh, Quiet::no, kNow), Unwatched::noRun);
  fresh.active = false;
  EXPECT_EQ(unwatchedOf(fresh, Quiet::no, kNow), Unwatched::no);
}

TEST(UnwatchedSites, AClockThatWasSetBackMakesNone) {
  EXPECT_EQ(unwatchedOf({.active = true, .lastChecked = kNow + minutes(600), .interval = 10, .runIsOn = true},
                        Quiet::no, kNow),
            Unwatched::no);
}

}  // namespace
}  // namespace tarnwick
