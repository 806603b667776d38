// SPDX-License-Identifier: MIT
#include <windows.h>

#include "support/system.h"

namespace tarnwick::testing {

double processorSeconds() {
  constexpr double kTicks = 1e7;
  const auto ticks = [](const FILETIME& time) { return static_cast<double>(time.dwLowDateTime); };
  FILETIME start{};
  FILETIME end{};
  FILETIME kernel{};
  FILETIME user{};
  // The C library's clock() tells the time on the wall here. The upper half counts spans of seven minutes.
  GetProcessTimes(GetCurrentProcess(), &start, &end, &kernel, &user);
  return (ticks(kernel) + ticks(user)) / kTicks;
}

}  // namespace tarnwick::testing
