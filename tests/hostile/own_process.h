// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// What the files, connections and other descriptors are that this process has open, sorted.
std::vector<std::string> openDescriptors();

/// The memory in bytes that this process has in use now, and the most that it had since `forgetPeakMemory`.
std::size_t residentMemory();
std::size_t peakMemory();
/// Starts the measuring of the peak anew; false when it cannot be measured here, or means nothing.
bool forgetPeakMemory();

}  // namespace tarnwick::testing
