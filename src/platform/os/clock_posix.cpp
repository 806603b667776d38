// SPDX-License-Identifier: MIT
#include <ctime>

#include "platform/clock.h"

namespace tarnwick {

using namespace std::chrono;

LocalTime SystemClock::localNow() const {
  const std::time_t now = system_clock::to_time_t(system_clock::now());
  tzset();  // a zone that this machine has been given meanwhile counts from here on
  std::tm fields{};
  localtime_r(&now, &fields);
  const year_month_day date{year{fields.tm_year + 1900}, month{static_cast<unsigned>(fields.tm_mon + 1)},
                            day{static_cast<unsigned>(fields.tm_mday)}};
  return local_days{date} + hours{fields.tm_hour} + minutes{fields.tm_min} + seconds{fields.tm_sec};
}

milliseconds SystemClock::processorTime() const {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return duration_cast<milliseconds>(seconds(used.tv_sec) + nanoseconds(used.tv_nsec));
}

}  // namespace tarnwick
