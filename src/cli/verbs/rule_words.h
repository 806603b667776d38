// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/terminal/console.h"
#include "exchange/json/json_text.h"
#include "holes/page_rule.h"

namespace tarnwick {

/// Where a hole lies in a baseline, given as `pageText` does: "line 8".
std::string placeOf(std::string_view baseline, const Hole& hole);
/// How much of a page is watched, for people, from 0 to 1: "99.2".
std::string percentText(double share);

/// A table of holes: number, place, what, what the baseline has there. The first has the number `first`.
void printHoles(Console& console, std::string_view baseline, const Holes& holes, std::size_t first);
/// The same for programs.
JsonValue holesJson(std::string_view baseline, const Holes& holes);

}  // namespace tarnwick
