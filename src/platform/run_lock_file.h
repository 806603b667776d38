// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// The file of a program folder that is there while a run is on in it, and perhaps after one that was killed.
inline constexpr const char* kRunLockFile = "tarnwick.lock";

}  // namespace tarnwick
