// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace tarnwick {

/// A moment as it is kept: the same wherever the clock on the wall may stand.
using Moment = std::chrono::sys_seconds;

// Hours, days and months as the clock on the wall of this machine has them: a day on which it is set has 23 or 25
// hours.

/// The beginning of the hour that the moment is in; of the day; of the month.
Moment hourOf(Moment moment);
Moment dayOf(Moment moment);
Moment monthOf(Moment moment);
/// The beginning of the day so many days after, or before, that of the moment; of the month after it.
Moment dayFrom(Moment moment, int days);
Moment monthAfter(Moment moment);

/// The month that the moment is in, as it is written: "2026-11".
std::string monthText(Moment moment);
/// The beginning of the month of such a text; nothing for any other.
std::optional<Moment> readMonth(std::string_view text);
/// The same for people: "November 2026".
std::string monthName(Moment moment);

/// A stretch of time that is looked at: so many cells that end with the present one, each of so many hours or days.
struct Period {
  std::chrono::hours hours{};  ///< of a cell; none where it is of days
  int days = 0;
  int cells = 0;
  int length = 0;  ///< in days, for people; 1 is 24 hours
};

/// The five that are shown: 24 hours by the hour, 7 days by six hours, 30 by the day, 90 by two, 365 by seven days.
const std::vector<Period>& periods();

/// Where its cells begin, and as the last one the present.
std::vector<Moment> edgesOf(const Period& period, Moment now);

}  // namespace tarnwick
