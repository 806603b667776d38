// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include "platform/clock.h"

namespace tarnwick {

/// How a moment in the past may be written.
inline constexpr const char* kMomentForms =
    "YYYY-MM-DD, \"YYYY-MM-DD HH:MM:SS\", today, or an age like 90s, 15m, 2h, 7d";

/// The moment that `text` names in one of these forms, seen from `now`. Raises std::runtime_error for anything else.
LocalTime momentOf(const std::string& text, LocalTime now);

/// How a moment to come may be written.
inline constexpr const char* kMomentsToCome =
    "\"YYYY-MM-DD HH:MM\", HH:MM, \"today HH:MM\", \"tomorrow HH:MM\" or tomorrow";

/// The moment that `text` names in one of these forms; a time alone is the next one from `now` on. Raises
/// std::runtime_error for anything else, and for what does not lie ahead.
LocalTime momentToCome(const std::string& text, LocalTime now);

/// A span of at least a second and at most ten years: 90s, 30m, 2h, 1d. Raises std::runtime_error for anything else.
std::chrono::seconds spanOf(const std::string& text);

}  // namespace tarnwick
