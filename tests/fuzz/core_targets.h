// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

#include "fuzz/entries/command_entries.h"
#include "fuzz/entries/delivery_entries.h"
#include "fuzz/entries/hole_entries.h"
#include "fuzz/entries/mail_entries.h"
#include "fuzz/entries/rule_entries.h"
#include "fuzz/entries/sql_entries.h"
#include "fuzz/entries/uu_entries.h"

namespace tarnwick::testing {

/// The targets of what needs neither Qt nor libcurl nor the libraries of the terminal's front end.
inline std::vector<FuzzTarget> coreFuzzTargets() {
  std::vector<FuzzTarget> targets;
  const auto add = [&targets](const auto& some) { std::copy(some.begin(), some.end(), std::back_inserter(targets)); };
  add(kCommandFuzzTargets);
  add(kDeliveryFuzzTargets);
  add(kHoleFuzzTargets);
  add(kMailFuzzTargets);
  add(kRuleFuzzTargets);
  add(kSqlFuzzTargets);
  add(kUuFuzzTargets);
  return targets;
}

}  // namespace tarnwick::testing
