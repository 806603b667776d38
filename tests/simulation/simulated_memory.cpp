// SPDX-License-Identifier: MIT
#include "simulation/simulated_memory.h"

#include "support/memory_hooks.h"

namespace tarnwick::simulation {

bool SimulatedMemory::programRuns_ = false;
std::uint64_t SimulatedMemory::oneIn_ = 0;
Chance SimulatedMemory::chance_{0};
std::uint64_t SimulatedMemory::refusals_ = 0;

void SimulatedMemory::refuseOneIn(std::uint64_t times, Chance chance) {
  oneIn_ = times;
  chance_ = chance;
}

bool SimulatedMemory::strikes() {
  const bool now = oneIn_ != 0 && programRuns_ && chance_.oneIn(oneIn_);
  refusals_ += now ? 1 : 0;
  return now;
}

}  // namespace tarnwick::simulation

bool tarnwick::testing::refusesAllocation(Allocator) { return simulation::SimulatedMemory::strikes(); }
