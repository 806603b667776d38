// SPDX-License-Identifier: MIT
#include "support/failing_memory.h"

#include <sqlite3.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace tarnwick::testing {
namespace {

std::atomic<int> programCountdown{0};
std::atomic<int> databaseCountdown{0};
std::atomic<bool> refused{false};

bool strikes(std::atomic<int>& countdown) {
  if (countdown.load(std::memory_order_relaxed) <= 0) {
    return false;
  }
  const bool now = countdown.fetch_sub(1) == 1;
  if (now) {
    refused = true;
  }
  return now;
}

sqlite3_mem_methods real{};

void* allocate(int size) { return strikes(databaseCountdown) ? nullptr : real.xMalloc(size); }
void* reallocate(void* memory, int size) { return strikes(databaseCountdown) ? nullptr : real.xRealloc(memory, size); }

// SQLite takes another allocator only before its first use.
[[maybe_unused]] const bool configured = [] {
  sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real);
  sqlite3_mem_methods failing = real;
  failing.xMalloc = allocate;
  failing.xRealloc = reallocate;
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &failing) == SQLITE_OK;
}();

}  // namespace

void refuseAllocation(Allocator allocator, int n) {
  refused = false;
  (allocator == Allocator::program ? programCountdown : databaseCountdown) = n;
}

bool allocationWasRefused() {
  programCountdown = 0;
  databaseCountdown = 0;
  return refused;
}

}  // namespace tarnwick::testing

void* operator new(std::size_t size) {
  if (tarnwick::testing::strikes(tarnwick::testing::programCountdown)) {
    throw std::bad_alloc();
  }
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
