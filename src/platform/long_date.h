// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/clock.h"

namespace tarnwick {

/// The day of `time` written out, as UTF-8: "Saturday, November 21, 2026". The names are those of the process's
/// locale for times (`LC_TIME`), whatever its character set; before a locale is chosen they are English.
std::string longDateText(LocalTime time);

/// The time of day of `time`: "14:03:09".
std::string timeOfDayText(LocalTime time);

}  // namespace tarnwick
