// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace tarnwick::testing {

/// Handles events until `condition` holds, sleeping between them; false when it does not hold within `limit`.
bool waitUntil(const std::function<bool()>& condition,
               std::chrono::milliseconds limit = std::chrono::milliseconds{10000});

/// Handles events for `duration`: for what must not happen.
void pumpFor(std::chrono::milliseconds duration);

}  // namespace tarnwick::testing
