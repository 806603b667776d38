// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_functions.h"

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

#include "base/text.h"
#include "platform/clock.h"

namespace tarnwick {
namespace {

using namespace std::chrono;

std::string_view bytesOf(sqlite3_value* value) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return bytes == nullptr ? std::string_view()
                          : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

/// The full form, read without detours: the due query reads a date from every row.
std::optional<LocalTime> readFullForm(std::string_view text) {
  static constexpr std::string_view kForm = "0000-00-00 00:00:00";
  std::array<unsigned, 6> parts{};
  std::size_t part = 0;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] == '0' ? !isDigit(text[i]) : text[i] != kForm[i]) {
      return std::nullopt;
    }
    if (kForm[i] == '0') {
      parts[part] = parts[part] * 10 + static_cast<unsigned>(text[i] - '0');
    } else {
      ++part;
    }
  }
  const auto [year, month, day, hour, minute, second] = parts;
  const year_month_day date{std::chrono::year{static_cast<int>(year)}, std::chrono::month{month},
                            std::chrono::day{day}};
  if (!date.ok() || hour > 23 || minute > 59 || second > 59) {
    return std::nullopt;
  }
  return local_days{date} + hours{hour} + minutes{minute} + seconds{second};
}

std::optional<LocalTime> dateOf(sqlite3_value* value) {
  constexpr std::size_t kDateTimeLength = 19;
  const std::string_view text = sqlite3_value_type(value) == SQLITE_TEXT ? bytesOf(value) : std::string_view();
  const std::optional<LocalTime> time = text.size() == kDateTimeLength ? readFullForm(text) : std::nullopt;
  return time ? time : parseStamp(text);
}

template <typename Unit>
void returnBoundaries(sqlite3_context* context, LocalTime from, LocalTime to) {
  sqlite3_result_int64(context, (floor<Unit>(to) - floor<Unit>(from)).count());
}

void dateDiff(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string_view unit = bytesOf(arguments[0]);
  const auto from = dateOf(arguments[1]);
  const auto to = dateOf(arguments[2]);
  if (!from || !to) {
    sqlite3_result_null(context);
  } else if (equalsIgnoringCase(unit, "n")) {
    returnBoundaries<minutes>(context, *from, *to);
  } else if (equalsIgnoringCase(unit, "s")) {
    returnBoundaries<seconds>(context, *from, *to);
  } else {
    sqlite3_result_error(context, "datediff knows the units n and s", -1);
  }
}

/// storedBytes(table, column, rowid): how long a stored text is, told without reading it: a page may have 64 MiB.
void storedBytes(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto name = [](sqlite3_value* value) { return reinterpret_cast<const char*>(sqlite3_value_text(value)); };
  sqlite3_blob* text = nullptr;
  const int result = sqlite3_blob_open(sqlite3_context_db_handle(context), "main", name(arguments[0]),
                                       name(arguments[1]), sqlite3_value_int64(arguments[2]), 0, &text);
  const int bytes = result == SQLITE_OK ? sqlite3_blob_bytes(text) : 0;
  sqlite3_blob_close(text);
  if (result == SQLITE_OK || result == SQLITE_ERROR) {  // which is what a number and a Null are
    sqlite3_result_int(context, bytes);
  } else {
    sqlite3_result_error_code(context, result);
  }
}

}  // namespace

int registerFunctions(sqlite3* database) {
  const int result =
      sqlite3_create_function(database, "datediff", 3, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                              &dateDiff, nullptr, nullptr);
  return result != SQLITE_OK ? result
                             : sqlite3_create_function(database, "storedBytes", 3, SQLITE_UTF8 | SQLITE_DIRECTONLY,
                                                       nullptr, &storedBytes, nullptr, nullptr);
}

}  // namespace tarnwick
