// SPDX-License-Identifier: MIT
#include <windows.h>

#include <cstdint>

#include "platform/clock.h"

namespace tarnwick {

using namespace std::chrono;

LocalTime SystemClock::localNow() const {
  SYSTEMTIME fields{};
  GetLocalTime(&fields);
  const year_month_day date{year{fields.wYear}, month{fields.wMonth}, day{fields.wDay}};
  return local_days{date} + hours{fields.wHour} + minutes{fields.wMinute} + seconds{fields.wSecond};
}

milliseconds SystemClock::processorTime() const {
  // In steps of 100 ns.
  using Steps = duration<std::int64_t, std::ratio<1, 10'000'000>>;
  const auto inSteps = [](const FILETIME& time) {
    return Steps((static_cast<std::int64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime);
  };
  FILETIME made{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(GetCurrentProcess(), &made, &ended, &kernel, &user);
  return duration_cast<milliseconds>(inSteps(kernel) + inSteps(user));
}

}  // namespace tarnwick
