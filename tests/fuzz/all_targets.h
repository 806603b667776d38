#pragma once

#include <vector>

#include "fuzz/core_targets.h"
#include "fuzz/page_entries.h"
#include "fuzz/site_list_entries.h"
#include "fuzz/text_entries.h"

namespace tarnwick::testing {

/// Beside the core's the targets of the terminal's front end and of what fetches pages.
inline std::vector<FuzzTarget> furtherFuzzTargets() {
  std::vector<FuzzTarget> targets;
  const auto add = [&targets](const auto& some) { targets.insert(targets.end(), some.begin(), some.end()); };
  add(kPageFuzzTargets);
  add(kSiteListFuzzTargets);
  add(kTextFuzzTargets);
  return targets;
}

inline std::vector<FuzzTarget> allFuzzTargets() {
  std::vector<FuzzTarget> targets = coreFuzzTargets();
  const std::vector<FuzzTarget> further = furtherFuzzTargets();
  targets.insert(targets.end(), further.begin(), further.end());
  return targets;
}

}  // namespace tarnwick::testing
