// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "cli/verbs/tool.h"
#include "exchange/json/json_value.h"
#include "holes/page_rule.h"

namespace tarnwick {

/// Two pages of a site and how they are to be compared.
struct PagesOfSite {
  std::int16_t idSite = 0;
  std::string baseline;
  std::string page;
  RuleSet rules;
};

/// Writes what differs by the rules of the site as a unified diff, coloured where colours are wanted.
void printDifference(Console& console, const PagesOfSite& pages);
/// The same as an array of lines.
JsonValue differenceJson(const PagesOfSite& pages);

}  // namespace tarnwick
