// SPDX-License-Identifier: MIT
// The times that stand in dates: 18:40:10.25, 18.40 Uhr, 18 h 40 min, 18時40分, 184010.
#include <array>

#include "holes/date_cursor.h"

namespace tarnwick {
namespace {

using Number = DateCursor::Number;

constexpr std::size_t kMostOfFraction = 9;

bool isHour(const Number& number) { return number.length > 0 && number.length <= 2 && number.value <= 24; }
bool isSixtieth(const Number& number) { return number.length == 2 && number.value <= 60; }

bool takeFraction(DateCursor& cursor) {
  const std::string_view rest = cursor.rest();
  std::size_t length = 0;
  while (length < rest.size() && isDigit(rest[length])) {
    ++length;
  }
  return length <= kMostOfFraction && cursor.take(length, "%f");
}

/// Two numbers with a point between them are a time where nothing else can be meant.
bool isClearlyTime(const DateCursor& cursor) {
  const std::string_view rest = cursor.rest();
  const std::size_t word = blanksAt(rest);
  const std::string_view behind = rest.substr(word);
  return cursor.state().hasDate || halfDayAt(behind) > 0 || behind.starts_with("Uhr") || behind.starts_with("uur");
}

bool takeWith(DateCursor& cursor, std::string_view separator) {
  if (!cursor.number(isHour, "%H") || !cursor.literal(separator) || !cursor.number(isSixtieth, "%M")) {
    return false;
  }
  const bool hasSeconds = cursor.whole([&] { return cursor.literal(separator) && cursor.number(isSixtieth, "%S"); });
  if (hasSeconds) {
    cursor.whole([&] { return (cursor.literal(".") || cursor.literal(",")) && takeFraction(cursor); });
  }
  return !cursor.isDigitNext() && (separator != "." || hasSeconds || isClearlyTime(cursor));
}

bool takeUnit(DateCursor& cursor, std::string_view unit) {
  cursor.takeBlanks();
  return cursor.literal(unit);
}

// "18h40", "18 h 40 min 10 s".
bool takeWithUnits(DateCursor& cursor) {
  if (!cursor.number(isHour, "%H") || !takeUnit(cursor, "h")) {
    return false;
  }
  cursor.takeBlanks();
  if (!cursor.number(isSixtieth, "%M")) {
    return false;
  }
  cursor.whole([&] { return takeUnit(cursor, "min") || cursor.literal("m"); });
  cursor.whole([&] {
    cursor.takeBlanks();
    return cursor.number(isSixtieth, "%S") && takeUnit(cursor, "s");
  });
  return !cursor.isDigitNext();
}

bool takeWithCounters(DateCursor& cursor) {
  if (!cursor.number(isHour, "%H") || !cursor.counter(Counter::hour) || !cursor.number(isSixtieth, "%M") ||
      !cursor.counter(Counter::minute)) {
    return false;
  }
  cursor.whole([&] { return cursor.number(isSixtieth, "%S") && cursor.counter(Counter::second); });
  return true;
}

}  // namespace

bool takeTime(DateCursor& cursor) {
  const bool taken =
      !cursor.state().hasTime &&
      (cursor.whole([&] { return takeWith(cursor, ":"); }) || cursor.whole([&] { return takeWith(cursor, "."); }) ||
       cursor.whole([&] { return takeWithUnits(cursor); }) || cursor.whole([&] { return takeWithCounters(cursor); }));
  cursor.state().hasTime = cursor.state().hasTime || taken;
  return taken;
}

// Behind a date without separators alone: 20261122T184010Z, 20261122-184010, 202611221840.
bool takeCompactTime(DateCursor& cursor) {
  const auto two = [&](auto test, std::string_view form) {
    const std::string_view digits = cursor.rest().substr(0, 2);
    if (digits.size() < 2 || !isDigit(digits[0]) || !isDigit(digits[1])) {
      return false;
    }
    const Number found{2, (digits[0] - '0') * 10 + (digits[1] - '0')};
    return test(found) && cursor.take(2, form);
  };
  const bool taken = cursor.whole([&] {
    const bool ends = two(isHour, "%H") && two(isSixtieth, "%M");
    return ends && (!cursor.isDigitNext() || two(isSixtieth, "%S")) && !cursor.isDigitNext();
  });
  cursor.state().hasTime = cursor.state().hasTime || taken;
  return taken;
}

}  // namespace tarnwick
