// SPDX-License-Identifier: MIT
#include "store/alarm_presets.h"

#include <algorithm>
#include <string>

namespace tarnwick {
namespace {

OptionValues::value_type pair(std::string_view name, std::string_view value) {
  return {std::string(name), std::string(value)};
}

}  // namespace

OptionValues presetValues(AlarmPreset preset) {
  switch (preset) {
    case AlarmPreset::everyCheck:
      return {pair(option_name::alerts, option_value::on), pair(option_name::confirm, "1"),
              pair(option_name::recovery, option_value::off), pair(option_name::remind, option_value::everyCheck),
              pair(option_name::flapping, option_value::off)};
    case AlarmPreset::confirmed:
      return {pair(option_name::alerts, option_value::on), pair(option_name::confirm, "3"),
              pair(option_name::confirmAfter, "5 s, 20 s"), pair(option_name::recovery, option_value::on),
              pair(option_name::remind, option_value::never)};
    case AlarmPreset::never:
      return {pair(option_name::alerts, option_value::off)};
    default:
      return {};
  }
}

AlarmPreset presetOf(const OptionValues& values) {
  OptionValues decided;
  for (const std::string_view name : kPresetOptions) {
    if (const auto value = values.find(name); value != values.end()) {
      decided.insert(*value);
    }
  }
  if (const auto alerts = decided.find(option_name::alerts);
      alerts != decided.end() && alerts->second == option_value::off) {
    return AlarmPreset::never;
  }
  for (const AlarmPreset preset : {AlarmPreset::asDefaults, AlarmPreset::everyCheck, AlarmPreset::confirmed}) {
    if (decided == presetValues(preset)) {
      return preset;
    }
  }
  return AlarmPreset::own;
}

}  // namespace tarnwick
