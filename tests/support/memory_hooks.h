// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tarnwick::testing {

/// Who asks for memory.
enum class Allocator : std::uint8_t {
  program,  ///< operator new
  database  ///< SQLite's own
};

/// Whether the next allocation of that kind is refused. A program that links tarnwick_memory_hooks
/// defines it.
bool refusesAllocation(Allocator allocator);

}  // namespace tarnwick::testing
