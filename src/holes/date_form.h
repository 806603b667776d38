// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// The form of a date or time is its text with these in place of what changes; all else stands for itself, a blank for
// one blank or more:
//   %Y year, four digits   %y year, two digits   %m month   %d day of the month   %e one of the two: nobody can know
//   %B month by name       %A weekday by name    %L a word in its place that is no name known here
//   %H hour                %M minute             %S second                        %f a fraction of it
//   %N number of days, with the word for them, before a time
//   %p AM or PM            %z zone: Z, UTC, +01:00, CET                           %% percent sign

/// A date, a time or both, as it stands in a text.
struct DateFound {
  std::size_t begin = 0;
  std::size_t length = 0;
  std::string form{};
  bool hasDate = false;
  bool hasTime = false;

  std::size_t end() const { return begin + length; }
};

/// The longest one that begins at this place of the text; nothing where none does.
std::optional<DateFound> dateAt(std::string_view text, std::size_t begin);

/// The longest one that has the part from `begin` to `end` in it, which may be empty; nothing when there is none.
std::optional<DateFound> dateOver(std::string_view text, std::size_t begin, std::size_t end);

/// The first one that begins at this place or after it, and not within a word or a number.
std::optional<DateFound> nextDate(std::string_view text, std::size_t from);

/// What a date says, as far as its form has it.
struct DateRead {
  std::size_t length = 0;  ///< of the text that was read
  std::optional<int> year{};
  std::optional<int> month{};
  std::optional<int> day{};
  std::optional<int> hour{};
  std::optional<int> minute{};
  std::array<std::optional<int>, 2> either{};  ///< a month and a day, in an order that nobody can know

  bool mayBeOn(std::chrono::year_month_day other) const;
};

/// Reads a date of that form at the beginning of the text; nothing when there is none, or none that can be: no month
/// has 32 days, no day 25 hours.
std::optional<DateRead> readDate(std::string_view text, std::string_view form);

}  // namespace tarnwick
