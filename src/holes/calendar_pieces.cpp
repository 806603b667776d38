// SPDX-License-Identifier: MIT
// The days that stand in dates: 2026-11-22, 11/22/2026, 22. November 2026, Nov 22, 2026年11月22日, 20261122.
#include <array>

#include "holes/date_cursor.h"

namespace tarnwick {
namespace {

using Number = DateCursor::Number;

bool isYear(const Number& number) { return number.length == 4 && number.value >= 1900 && number.value < 2200; }
bool isShortYear(const Number& number) { return number.length == 2; }
bool isDay(const Number& number) {
  return number.length > 0 && number.length <= 2 && number.value >= 1 && number.value <= 31;
}
bool isMonth(const Number& number) { return isDay(number) && number.value <= 12; }

bool takeYear(DateCursor& cursor) { return cursor.number(isYear, "%Y") && (cursor.state().hasYear = true); }

bool takeDay(DateCursor& cursor) {
  if (!cursor.number(isDay, "%d")) {
    return false;
  }
  cursor.state().at += ordinalAt(cursor.rest());
  return true;
}

bool takeMonth(DateCursor& cursor, bool isKnown) {
  const DateWord word = dateWordAt(cursor.rest());
  const bool named = word.name.month > 0;
  return (named || (!isKnown && word.length >= 2)) && cursor.take(word.length, named ? "%B" : "%L");
}

/// Blanks, with or without a word such as "de" between them, or one of - / . alone.
bool takeBetween(DateCursor& cursor) {
  static constexpr std::array<std::string_view, 6> kWords = {"del ", "de ", "of ", "di ", "do ", "d'"};
  if (cursor.takeBlanks()) {
    for (const std::string_view word : kWords) {
      if (cursor.literal(word)) {
        break;
      }
    }
    return true;
  }
  return cursor.literal("-") || cursor.literal("/") || cursor.literal(".");
}

// "2026", ", 2026", " de 2026", "-2026".
void takeYearBehind(DateCursor& cursor) {
  cursor.whole([&] {
    cursor.literal(",");
    return takeBetween(cursor) && takeYear(cursor);
  });
}

bool takeYearFirst(DateCursor& cursor, std::string_view separator) {
  const bool taken = takeYear(cursor) && cursor.literal(separator) && cursor.number(isMonth, "%m") &&
                     cursor.literal(separator) && cursor.number(isDay, "%d");
  return taken && !(separator == ":" && cursor.rest().starts_with(":"));
}

/// Two numbers that are a day and a month, in the order that their values and the separator tell.
bool takeDayAndMonth(DateCursor& cursor, std::string_view separator) {
  const Number first = cursor.number(0, 2);
  const Number second = cursor.number(first.length + separator.size(), 2);
  if (!isDay(first) || !isDay(second) || (first.value > 12 && second.value > 12)) {
    return false;
  }
  const bool isDotted = separator.front() == '.';
  if (isDotted && second.value > 12) {
    return false;
  }
  const bool isKnown = isDotted || first.value > 12 || second.value > 12;
  const bool dayFirst = isDotted || first.value > 12;
  return cursor.number(isDay, !isKnown   ? "%e"
                              : dayFirst ? "%d"
                                         : "%m") &&
         cursor.literal(separator) &&
         cursor.number(isDay, !isKnown   ? "%e"
                              : dayFirst ? "%m"
                                         : "%d");
}

bool takeYearLast(DateCursor& cursor, std::string_view separator) {
  return takeDayAndMonth(cursor, separator) && cursor.literal(separator) &&
         (takeYear(cursor) || (cursor.number(isShortYear, "%y") && (cursor.state().hasYear = true)));
}

// "22.11.", "22/11": nothing but two numbers, unless a weekday or a time stands beside them.
bool takeWithoutYear(DateCursor& cursor) {
  const bool taken = cursor.whole([&] { return takeDayAndMonth(cursor, ".") && cursor.literal("."); }) ||
                     cursor.whole([&] { return takeDayAndMonth(cursor, "/"); });
  if (taken && !cursor.isDigitNext()) {
    cursor.state().isWeak = !cursor.state().hasWeekday && !cursor.state().hasTime;
    return true;
  }
  return false;
}

bool takeWithCounters(DateCursor& cursor) {
  return takeYear(cursor) && cursor.counter(Counter::year) &&
         (cursor.whole([&] { return cursor.number(isMonth, "%m") && cursor.counter(Counter::month); }) ||
          takeMonth(cursor, true)) &&
         cursor.number(isDay, "%d") && cursor.counter(Counter::day);
}

// 20261122, and what of a time stands behind it.
bool takeCompact(DateCursor& cursor) {
  const std::string_view rest = cursor.rest();
  std::size_t length = 0;
  while (length < rest.size() && isDigit(rest[length])) {
    ++length;
  }
  if (length != 8 && length != 12 && length != 14) {
    return false;
  }
  int all = 0;
  for (const char c : rest.substr(0, 8)) {
    all = all * 10 + (c - '0');
  }
  if (!isYear({4, all / 10000}) || !isMonth({2, all / 100 % 100}) || !isDay({2, all % 100})) {
    return false;
  }
  cursor.take(8, "%Y%m%d");
  if (length > 8) {
    return takeCompactTime(cursor);
  }
  cursor.whole(
      [&] { return (cursor.literal("T") || cursor.literal("-") || cursor.literal("_")) && takeCompactTime(cursor); });
  return cursor.state().hasYear = true;
}

// "2026. november 22", "2026-Nov-22".
bool takeYearBeforeName(DateCursor& cursor) {
  if (!takeYear(cursor)) {
    return false;
  }
  cursor.literal(".");
  return takeBetween(cursor) && takeMonth(cursor, true) && takeBetween(cursor) && takeDay(cursor);
}

// "22 November", "22. Nov. 2026", "22 de noviembre de 2026", "22-Nov-2026".
bool takeDayBeforeName(DateCursor& cursor) {
  if (!takeDay(cursor)) {
    return false;
  }
  cursor.whole([&] { return cursor.literal(". ") && (cursor.state().at -= 1, cursor.state().form.pop_back(), true); });
  if (!takeBetween(cursor)) {
    return false;
  }
  if (takeMonth(cursor, true)) {
    takeYearBehind(cursor);
    return true;
  }
  // A word that nobody knows is a month where a year follows it.
  return takeMonth(cursor, false) && (takeYearBehind(cursor), cursor.state().hasYear);
}

// "November 22nd, 2026", "Nov-22", "November 2026".
bool takeNameFirst(DateCursor& cursor) {
  if (!takeMonth(cursor, true)) {
    return false;
  }
  if (cursor.whole([&] { return takeBetween(cursor) && takeDay(cursor) && !cursor.isDigitNext(); })) {
    takeYearBehind(cursor);
    return true;
  }
  takeYearBehind(cursor);
  return cursor.state().hasYear;
}

bool takeInDigits(DateCursor& cursor) {
  static constexpr std::array<std::string_view, 5> kSeparators = {"-", "/", ".", ":", ". "};
  const std::string_view behind = cursor.rest().substr(cursor.number(0, 4).length);
  for (const std::string_view separator : kSeparators) {
    if (!behind.starts_with(separator)) {
      continue;
    }
    if (cursor.whole([&] { return takeYearFirst(cursor, separator); }) ||
        (separator != ":" && cursor.whole([&] { return takeYearLast(cursor, separator); }))) {
      return true;
    }
  }
  return cursor.isDigitNext() && cursor.whole([&] { return takeCompact(cursor); });
}

}  // namespace

bool takeDate(DateCursor& cursor) {
  const bool taken =
      !cursor.state().hasDate &&
      (takeInDigits(cursor) || cursor.whole([&] { return takeWithCounters(cursor); }) ||
       cursor.whole([&] { return takeYearBeforeName(cursor); }) ||
       cursor.whole([&] { return takeDayBeforeName(cursor); }) || cursor.whole([&] { return takeNameFirst(cursor); }) ||
       cursor.whole([&] { return takeWithoutYear(cursor); }));
  cursor.state().hasDate = cursor.state().hasDate || taken;
  return taken;
}

}  // namespace tarnwick
