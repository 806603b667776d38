// SPDX-License-Identifier: MIT
#pragma once

#include "support/memory_hooks.h"

namespace tarnwick::testing {

/// Memory that is refused. Only a test program that lists failing_memory.cpp among its sources and links
/// tarnwick_memory_hooks has it.
///
/// Refuses the `n`-th allocation from now on (1 is the next) of the given kind, once; nothing with 0.
void refuseAllocation(Allocator allocator, int n);
/// Whether the refusal has happened; ends it if not.
bool allocationWasRefused();

}  // namespace tarnwick::testing
