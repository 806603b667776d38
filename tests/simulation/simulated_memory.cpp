// SPDX-License-Identifier: MIT
#include "simulation/simulated_memory.h"

#include <sqlite3.h>

#include <cstdlib>
#include <new>

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

namespace {

sqlite3_mem_methods real{};

void* allocate(int size) { return SimulatedMemory::strikes() ? nullptr : real.xMalloc(size); }
void* reallocate(void* memory, int size) { return SimulatedMemory::strikes() ? nullptr : real.xRealloc(memory, size); }

// SQLite takes another allocator only before its first use.
[[maybe_unused]] const bool configured = [] {
  sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real);
  sqlite3_mem_methods failing = real;
  failing.xMalloc = allocate;
  failing.xRealloc = reallocate;
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &failing) == SQLITE_OK;
}();

}  // namespace
}  // namespace tarnwick::simulation

void* operator new(std::size_t size) {
  if (tarnwick::simulation::SimulatedMemory::strikes()) {
    throw std::bad_alloc();
  }
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
