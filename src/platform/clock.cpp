// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace tarnwick {

using namespace std::chrono;

std::string dateText(LocalTime time) {
  const year_month_day day{floor<days>(time)};
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
  return text.data();
}

std::string dateTimeText(LocalTime time) {
  const hh_mm_ss clock{time - floor<days>(time)};
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), " %02d:%02d:%02d", static_cast<int>(clock.hours().count()),
                static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
  return dateText(time) + text.data();
}

std::optional<LocalTime> parseDateTime(std::string_view text) {
  std::tm fields{};
  int used = 0;
  const std::string copy(text);
  const int read = std::sscanf(copy.c_str(), "%4d-%2d-%2d%n %2d:%2d:%2d%n", &fields.tm_year, &fields.tm_mon,
                               &fields.tm_mday, &used, &fields.tm_hour, &fields.tm_min, &fields.tm_sec, &used);
  if ((read != 3 && read != 6) || used != static_cast<int>(copy.size())) {
    return std::nullopt;
  }
  const year_month_day day{year{fields.tm_year}, month{static_cast<unsigned>(fields.tm_mon)},
                           std::chrono::day{static_cast<unsigned>(fields.tm_mday)}};
  const bool inRange = day.ok() && fields.tm_hour >= 0 && fields.tm_hour < 24 && fields.tm_min >= 0 &&
                       fields.tm_min < 60 && fields.tm_sec >= 0 && fields.tm_sec < 60;
  if (!inRange) {
    return std::nullopt;
  }
  return local_days{day} + hours{fields.tm_hour} + minutes{fields.tm_min} + seconds{fields.tm_sec};
}

milliseconds SystemClock::steadyNow() const {
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

}  // namespace tarnwick
