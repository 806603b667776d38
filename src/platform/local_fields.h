// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <optional>

namespace tarnwick {

/// What the clock on the wall shows at `time`, by the zone that the system's clock was asked for last: looking each
/// time whether this machine has been given another zone costs more than all else. Nothing for a year that it has no
/// number for.
std::optional<std::tm> localFields(std::time_t time);

}  // namespace tarnwick
