// SPDX-License-Identifier: MIT
#include "history/calendar.h"

#include <array>

namespace tarnwick {

using namespace std::chrono;

namespace {

constexpr hours kHour{1};
constexpr int kHoursOfADay = 24;

}  // namespace

Moment hourOf(Moment moment) {
  const LocalTime local = localTimeAt(moment);
  return moment - (local - floor<hours>(local));
}

Moment dayOf(Moment moment) { return dayFrom(moment, 0); }

Moment dayFrom(Moment moment, int number) { return momentAt(floor<days>(localTimeAt(moment)) + days{number}); }

Moment monthOf(Moment moment) {
  const year_month_day date{floor<days>(localTimeAt(moment))};
  return momentAt(local_days{date.year() / date.month() / day{1}});
}

Moment monthAfter(Moment moment) {
  const year_month_day date{floor<days>(localTimeAt(moment))};
  return momentAt(local_days{(date.year() / date.month() + months{1}) / day{1}});
}

std::string monthText(Moment moment) {
  constexpr std::size_t kYearAndMonth = 7;
  return dateText(localTimeAt(moment)).substr(0, kYearAndMonth);
}

std::optional<Moment> readMonth(std::string_view text) {
  const auto first = parseDateTime(std::string(text) + "-01");
  return first && dateText(*first).starts_with(text) ? std::optional(momentAt(*first)) : std::nullopt;
}

std::string monthName(Moment moment) {
  constexpr std::array<const char*, 12> kNames{"January", "February", "March",     "April",   "May",      "June",
                                               "July",    "August",   "September", "October", "November", "December"};
  const year_month_day date{floor<days>(localTimeAt(moment))};
  return std::string(kNames.at(static_cast<unsigned>(date.month()) - 1)) + " " +
         std::to_string(static_cast<int>(date.year()));
}

const std::vector<Period>& periods() {
  static const std::vector<Period> all{
      {.hours = hours{1}, .cells = 24, .length = 1}, {.hours = hours{6}, .cells = 28, .length = 7},
      {.days = 1, .cells = 30, .length = 30},        {.days = 2, .cells = 45, .length = 90},
      {.days = 7, .cells = 53, .length = 365},
  };
  return all;
}

std::vector<Moment> edgesOf(const Period& period, Moment now) {
  std::vector<Moment> edges;
  if (period.length == 1) {
    for (int back = period.cells - 1; back >= 0; --back) {
      edges.push_back(hourOf(now) - back * kHour);
    }
  } else if (period.days > 0) {
    // Counted back from tomorrow, so that the last cell is as long as the others once the day is over.
    for (int back = period.cells; back > 0; --back) {
      edges.push_back(dayFrom(now, std::max(1 - back * period.days, 1 - period.length)));
    }
  } else {
    const int perDay = kHoursOfADay / static_cast<int>(period.hours.count());
    for (int day = 1 - period.length; day <= 0; ++day) {
      for (int part = 0; part < perDay; ++part) {
        const Moment edge = momentAt(floor<days>(localTimeAt(now)) + days{day} + part * period.hours);
        if (edge <= now) {
          edges.push_back(edge);
        }
      }
    }
  }
  edges.push_back(now);
  return edges;
}

}  // namespace tarnwick
