// SPDX-License-Identifier: MIT
#include "support/memory_hooks.h"

#include <sqlite3.h>

#include <cstdlib>
#include <new>

namespace tarnwick::testing {
namespace {

sqlite3_mem_methods real{};

void* allocate(int size) { return refusesAllocation(Allocator::database) ? nullptr : real.xMalloc(size); }
void* reallocate(void* memory, int size) {
  return refusesAllocation(Allocator::database) ? nullptr : real.xRealloc(memory, size);
}

// SQLite takes another allocator only before its first use.
[[maybe_unused]] const bool configured = [] {
  sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real);
  sqlite3_mem_methods failing = real;
  failing.xMalloc = allocate;
  failing.xRealloc = reallocate;
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &failing) == SQLITE_OK;
}();

}  // namespace
}  // namespace tarnwick::testing

void* operator new(std::size_t size) {
  using namespace tarnwick::testing;
  if (refusesAllocation(Allocator::program)) {
    throw std::bad_alloc();
  }
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
