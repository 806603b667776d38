// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <vector>

#include "engine/alarm_policy.h"

namespace tarnwick {

/// A check in a made-up outage, and what would be told after it.
struct ExampleCheck {
  LocalTime at;
  bool passed = false;
  bool isRepeat = false;  ///< one that may confirm the failure before it
  int told = 0;
};

/// What a policy would do in an outage of 70 minutes that begins, and ends, with a check.
struct AlarmExample {
  static constexpr std::chrono::minutes kOutage{70};

  /// From the last check before it to the first one that passes again.
  std::vector<ExampleCheck> checks;
  int told = 0;  ///< in all
};

/// Of a site that is checked each `interval`, 1 minute or more. It is no pause and no quiet time.
AlarmExample alarmExampleOf(AlarmPolicy policy, std::chrono::minutes interval);

}  // namespace tarnwick
