// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "store/alarm_values.h"

namespace tarnwick {

/// The next day at 8:00.
LocalTime tomorrowMorning(LocalTime now);

/// How long a pause lasts, to follow "paused": "until tomorrow 8:00", "for good".
QString pauseWords(const Pause& pause, LocalTime now);

/// A moment as people say it today: "14:02", "tomorrow 8:00", "2026-12-01 8:00".
QString momentWords(LocalTime moment, LocalTime now);

/// Hours of the week in the user's words: "daily 22:00-6:00".
QString hoursWords(const WeekHours& hours);

/// The name of a day, from Monday (0) on.
QString dayName(int day);
QString shortDayName(int day);

/// What is done in quiet hours.
QString quietKindWords(QuietKind kind);

}  // namespace tarnwick
