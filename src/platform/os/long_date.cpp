// SPDX-License-Identifier: MIT
#include "platform/long_date.h"

#include "platform/os/calendar_names.h"

namespace tarnwick {

using namespace std::chrono;

std::string longDateText(LocalTime time) {
  const local_days day = floor<days>(time);
  const year_month_day date{day};
  return weekdayName(weekday{day}) + ", " + monthName(date.month()) + " " +
         std::to_string(static_cast<unsigned>(date.day())) + ", " + std::to_string(static_cast<int>(date.year()));
}

std::string timeOfDayText(LocalTime time) { return dateTimeText(time).substr(dateText(time).size() + 1); }

}  // namespace tarnwick
