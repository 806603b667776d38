#include "platform/sqlite/sqlite_functions.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "platform/sqlite/sql_table_definition.h"

namespace tarnwick {
namespace {

using namespace std::chrono;

constexpr std::size_t kDateTimeLength = 19;

std::string_view bytesOf(sqlite3_value* value) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return bytes == nullptr ? std::string_view()
                          : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

/// The decimal digits of `text` from `begin` on; -1 when one of them is no digit.
int digits(std::string_view text, std::size_t begin, std::size_t count) {
  int number = 0;
  for (const char c : text.substr(begin, count)) {
    if (c < '0' || c > '9') {
      return -1;
    }
    number = number * 10 + (c - '0');
  }
  return number;
}

/// The full form, read without detours: a report or a due query reads one date or two from every row.
std::optional<LocalTime> readFullForm(std::string_view text) {
  const bool whole = text.size() == kDateTimeLength && text[4] == '-' && text[7] == '-' && text[10] == ' ' &&
                     text[13] == ':' && text[16] == ':';
  if (!whole) {
    return std::nullopt;
  }
  const int year = digits(text, 0, 4);
  const int month = digits(text, 5, 2);
  const int dayOfMonth = digits(text, 8, 2);
  const int hour = digits(text, 11, 2);
  const int minute = digits(text, 14, 2);
  const int second = digits(text, 17, 2);
  if (year < 0 || month < 0 || dayOfMonth < 0 || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 ||
      second > 59) {
    return std::nullopt;
  }
  const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                            day{static_cast<unsigned>(dayOfMonth)}};
  if (!date.ok()) {
    return std::nullopt;
  }
  return local_days{date} + hours{hour} + minutes{minute} + seconds{second};
}

std::optional<LocalTime> dateOf(sqlite3_value* value) {
  if (sqlite3_value_type(value) != SQLITE_TEXT) {
    return std::nullopt;
  }
  const std::string_view text = bytesOf(value);
  if (text.size() > kDateTimeLength) {
    return std::nullopt;
  }
  const std::optional<LocalTime> time = readFullForm(text);
  return time ? time : parseDateTime(text);
}

year_month_day calendarDay(LocalTime time) { return year_month_day{floor<days>(time)}; }

std::int64_t monthsSinceYearZero(LocalTime time) {
  const year_month_day date = calendarDay(time);
  return static_cast<int>(date.year()) * std::int64_t{12} + static_cast<unsigned>(date.month()) - 1;
}

template <typename Unit>
std::int64_t boundaries(LocalTime from, LocalTime to) {
  return floor<Unit>(to).time_since_epoch().count() - floor<Unit>(from).time_since_epoch().count();
}

std::optional<std::int64_t> difference(std::string_view unit, LocalTime from, LocalTime to) {
  if (sameName(unit, "n")) {
    return boundaries<minutes>(from, to);
  }
  if (sameName(unit, "s")) {
    return boundaries<seconds>(from, to);
  }
  if (sameName(unit, "h")) {
    return boundaries<hours>(from, to);
  }
  if (sameName(unit, "d")) {
    return boundaries<days>(from, to);
  }
  if (sameName(unit, "m")) {
    return monthsSinceYearZero(to) - monthsSinceYearZero(from);
  }
  if (sameName(unit, "q")) {
    return monthsSinceYearZero(to) / 3 - monthsSinceYearZero(from) / 3;
  }
  if (sameName(unit, "yyyy")) {
    return monthsSinceYearZero(to) / 12 - monthsSinceYearZero(from) / 12;
  }
  return std::nullopt;
}

void returnText(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void dateDiff(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto from = dateOf(arguments[1]);
  const auto to = dateOf(arguments[2]);
  if (!from || !to) {
    return sqlite3_result_null(context);
  }
  if (const auto count = difference(bytesOf(arguments[0]), *from, *to)) {
    return sqlite3_result_int64(context, *count);
  }
  sqlite3_result_error(context, "datediff knows the units yyyy, q, m, d, h, n and s", -1);
}

void dateValue(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (const auto time = dateOf(arguments[0])) {
    return returnText(context, dateText(*time));
  }
  sqlite3_result_null(context);
}

void now(sqlite3_context* context, int, sqlite3_value**) {
  returnText(context, dateTimeText(static_cast<const Clock*>(sqlite3_user_data(context))->localNow()));
}

}  // namespace

int registerDateFunctions(sqlite3* database, const Clock& clock) {
  // Deterministic functions may stand in an index; the clock's time may not.
  constexpr int kPure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  constexpr int kChanging = SQLITE_UTF8 | SQLITE_INNOCUOUS;
  void* const time = const_cast<Clock*>(&clock);
  const int results[] = {
      sqlite3_create_function(database, "datediff", 3, kPure, nullptr, &dateDiff, nullptr, nullptr),
      sqlite3_create_function(database, "datevalue", 1, kPure, nullptr, &dateValue, nullptr, nullptr),
      sqlite3_create_function(database, "now", 0, kChanging, time, &now, nullptr, nullptr),
  };
  for (const int result : results) {
    if (result != SQLITE_OK) {
      return result;
    }
  }
  return SQLITE_OK;
}

}  // namespace tarnwick
