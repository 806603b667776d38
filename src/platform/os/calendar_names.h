// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

namespace tarnwick {

/// The full names in the system's language, as UTF-8. REQUIRES: `ok()` of the argument.
std::string weekdayName(std::chrono::weekday day);
std::string monthName(std::chrono::month month);

}  // namespace tarnwick
