// SPDX-License-Identifier: MIT
#include <windows.h>

#include "platform/clock.h"

namespace tarnwick {

using namespace std::chrono;

LocalTime SystemClock::localNow() const {
  SYSTEMTIME fields{};
  GetLocalTime(&fields);
  const year_month_day date{year{fields.wYear}, month{fields.wMonth}, day{fields.wDay}};
  return local_days{date} + hours{fields.wHour} + minutes{fields.wMinute} + seconds{fields.wSecond};
}

}  // namespace tarnwick
