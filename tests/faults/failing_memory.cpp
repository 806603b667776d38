// SPDX-License-Identifier: MIT
#include "support/failing_memory.h"

#include <atomic>

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

}  // namespace

bool refusesAllocation(Allocator allocator) {
  return strikes(allocator == Allocator::program ? programCountdown : databaseCountdown);
}

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
