// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/clock.h"

namespace tarnwick {

/// How a moment in the past may be written.
inline constexpr const char* kMomentForms =
    "YYYY-MM-DD, \"YYYY-MM-DD HH:MM:SS\", today, or an age like 90s, 15m, 2h, 7d";

/// The moment that `text` names in one of these forms, seen from `now`. Raises std::runtime_error for anything else.
LocalTime momentOf(const std::string& text, LocalTime now);

}  // namespace tarnwick
