// SPDX-License-Identifier: MIT
#include "store/alarm_presets.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick {
namespace {

TEST(AlarmPresetsTest, EachIsKnownByItsValues) {
  for (const AlarmPreset preset :
       {AlarmPreset::asDefaults, AlarmPreset::everyCheck, AlarmPreset::confirmed, AlarmPreset::never}) {
    EXPECT_EQ(presetOf(presetValues(preset)), preset);
  }
}

TEST(AlarmPresetsTest, ItsValuesAreInTheFormOfTheTable) {
  for (const AlarmPreset preset : {AlarmPreset::everyCheck, AlarmPreset::confirmed, AlarmPreset::never}) {
    for (const auto& [name, value] : presetValues(preset)) {
      EXPECT_EQ(takenOption(programOptions(), 3, name, value), value) << name;
    }
  }
}

TEST(AlarmPresetsTest, OptionsOfOtherThingsMakeNoDifference) {
  EXPECT_EQ(presetOf({{"quiet", "daily 22:00-6:00"}, {"adopt", "anything"}}), AlarmPreset::asDefaults);
}

TEST(AlarmPresetsTest, WhoeverHasNoAlertsHasNeverWhateverElseIsSet) {
  EXPECT_EQ(presetOf({{"alerts", "off"}, {"confirm", "3"}}), AlarmPreset::never);
}

TEST(AlarmPresetsTest, AnyOtherSetIsAnOwnChoice) {
  EXPECT_EQ(presetOf({{"confirm", "3"}}), AlarmPreset::own);
  OptionValues values = presetValues(AlarmPreset::confirmed);
  values.insert_or_assign("slow", "2000");
  EXPECT_EQ(presetOf(values), AlarmPreset::own);
}

}  // namespace
}  // namespace tarnwick
