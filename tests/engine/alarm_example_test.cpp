// SPDX-License-Identifier: MIT
#include "engine/alarm_example.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "store/alarm_presets.h"

namespace tarnwick {
namespace {

using std::chrono::minutes;

AlarmPolicy policyOf(AlarmPreset preset) {
  return alarmPolicyOf(OptionsInForce({{kAllSites, presetValues(preset)}}), kAllSites);
}

TEST(AlarmExampleTest, EveryFailedCheckIsToldOriginally) {
  EXPECT_EQ(alarmExampleOf(AlarmPolicy(), minutes(10)).told, 7);
  EXPECT_EQ(alarmExampleOf(AlarmPolicy(), minutes(1)).told, 70);
  EXPECT_EQ(alarmExampleOf(AlarmPolicy(), minutes(120)).told, 1);
  EXPECT_EQ(alarmExampleOf(policyOf(AlarmPreset::everyCheck), minutes(10)).told, 7);
}

TEST(AlarmExampleTest, DownForRealAndBackIsTwoAlertsAtAnyInterval) {
  for (const int interval : {1, 5, 10, 60}) {
    SCOPED_TRACE(interval);
    const AlarmExample example = alarmExampleOf(policyOf(AlarmPreset::confirmed), minutes(interval));
    EXPECT_EQ(example.told, 2);
    EXPECT_EQ(std::ranges::count(example.checks, true, &ExampleCheck::isRepeat), 2);
    EXPECT_TRUE(example.checks.front().passed);
    EXPECT_TRUE(example.checks.back().passed);
    EXPECT_EQ(example.checks.back().told, 1);
  }
}

TEST(AlarmExampleTest, NothingIsToldNever) {
  EXPECT_EQ(alarmExampleOf(policyOf(AlarmPreset::never), minutes(10)).told, 0);
}

TEST(AlarmExampleTest, ItIsNeitherAPauseNorQuiet) {
  AlarmPolicy policy;
  policy.pause = {true, std::nullopt};
  policy.quiet.set();
  EXPECT_EQ(alarmExampleOf(policy, minutes(10)).told, 7);
}

TEST(AlarmExampleTest, AnIntervalThatIsNoneIsAMinute) { EXPECT_EQ(alarmExampleOf(AlarmPolicy(), minutes(0)).told, 70); }

}  // namespace
}  // namespace tarnwick
