// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

#include "fuzz/core_targets.h"
#include "fuzz/entries/delivery_entries.h"
#include "fuzz/entries/page_entries.h"
#include "fuzz/entries/site_list_entries.h"
#include "fuzz/entries/text_entries.h"

namespace tarnwick::testing {

/// Beside the core's the targets of the terminal's front end and of what fetches pages.
inline std::vector<FuzzTarget> furtherFuzzTargets() {
  std::vector<FuzzTarget> targets;
  const auto add = [&targets](const auto& some) { std::copy(some.begin(), some.end(), std::back_inserter(targets)); };
  add(kHookJsonFuzzTargets);
  add(kPageFuzzTargets);
  add(kSiteListFuzzTargets);
  add(kTextFuzzTargets);
  return targets;
}

inline std::vector<FuzzTarget> allFuzzTargets() {
  std::vector<FuzzTarget> targets = coreFuzzTargets();
  const std::vector<FuzzTarget> further = furtherFuzzTargets();
  std::copy(further.begin(), further.end(), std::back_inserter(targets));
  return targets;
}

}  // namespace tarnwick::testing
