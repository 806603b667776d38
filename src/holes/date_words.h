// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "holes/date_names.h"

namespace tarnwick {

/// A word of a date, at the beginning of a text.
struct DateWord {
  std::size_t length = 0;  ///< with the dot behind a shortened name
  DateName name{};
};

/// The letters at the beginning of the text, with those of other alphabets; none where it begins with none. Where words
/// stand without blanks between them it is the longest name that is known.
DateWord dateWordAt(std::string_view text);

/// How many bytes "AM", "p.m." or their like take there; 0 where there is none.
std::size_t halfDayAt(std::string_view text);
/// How many bytes a time zone takes there: Z, UTC, CET, +01:00, (CET).
std::size_t zoneAt(std::string_view text);
/// How many bytes of blanks stand there, also those that do not break.
std::size_t blanksAt(std::string_view text);
/// How many bytes a count of days takes there: "215 days", "1 day".
std::size_t dayCountAt(std::string_view text);
/// "st", "nd", "er" and so on behind a day of the month; 0 where there is none.
std::size_t ordinalAt(std::string_view text);

/// What stands behind the numbers of a date in the languages of East Asia, in any of the codes that are usual there.
enum class Counter { year, month, day, hour, minute, second };
/// How many bytes it takes there; 0 where there is none.
std::size_t counterAt(std::string_view text, Counter counter);

}  // namespace tarnwick
