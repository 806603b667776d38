// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "store/site_options.h"

namespace tarnwick {

/// Usual answers to "When shall I be told?", each a set of values of the options of the alarm.
enum class AlarmPreset {
  asDefaults,  ///< nothing is set: as for all sites; for all sites as originally, at every failed check
  everyCheck,  ///< at every failed check, whatever holds for all sites
  confirmed,   ///< when it is down for real, and when it is back
  never,
  own,  ///< none of these
};

/// The options that a preset decides about.
inline constexpr std::array kPresetOptions{option_name::alerts,   option_name::confirm, option_name::confirmAfter,
                                           option_name::recovery, option_name::remind,  option_name::flapping,
                                           option_name::slow};

/// What a preset sets; all others of `kPresetOptions` it leaves unset. Nothing for `own`.
OptionValues presetValues(AlarmPreset preset);

/// The preset that `values` of a site, or of all, are.
AlarmPreset presetOf(const OptionValues& values);

}  // namespace tarnwick
