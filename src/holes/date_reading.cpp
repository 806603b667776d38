// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>

#include "base/text.h"
#include "holes/date_form.h"
#include "holes/date_words.h"

namespace tarnwick {
namespace {

/// Reads by a form.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::optional<DateRead> read(std::string_view form) {
    for (std::size_t i = 0; i < form.size(); ++i) {
      const bool isField = form[i] == '%' && i + 1 < form.size() && form[i + 1] != '%';
      if (form[i] == '%' && i + 1 < form.size()) {
        ++i;
      }
      if (!(isField ? field(form[i]) : literal(form[i]))) {
        return std::nullopt;
      }
    }
    return canBe() ? std::optional(result_) : std::nullopt;
  }

 private:
  std::string_view rest() const { return text_.substr(result_.length); }
  bool take(std::size_t length) {
    result_.length += length;
    return length > 0;
  }
  bool literal(char c) {
    if (c == ' ') {
      return take(blanksAt(rest()));
    }
    return !rest().empty() && rest().front() == c && take(1);
  }
  std::optional<int> number(std::size_t least, std::size_t most, int from, int to) {
    std::size_t length = 0;
    int value = 0;
    while (length < std::min(most, rest().size()) && isDigit(rest()[length])) {
      value = value * 10 + (rest()[length++] - '0');
    }
    if (length < least || value < from || value > to) {
      return std::nullopt;
    }
    take(length);
    return value;
  }
  static bool keep(std::optional<int>& place, std::optional<int> value) {
    if (value) {
      place = value;
    }
    return value.has_value();
  }

  bool field(char which) {
    switch (which) {
      case 'Y':
        return keep(result_.year, number(4, 4, 1900, 2199));
      case 'y':
        return keepShortYear();
      case 'm':
        return keep(result_.month, number(1, 2, 1, 12));
      case 'd':
        if (!keep(result_.day, number(1, 2, 1, 31))) {
          return false;
        }
        take(ordinalAt(rest()));
        return true;
      case 'e':
        return keep(result_.either[0] ? result_.either[1] : result_.either[0], number(1, 2, 1, 31));
      case 'H':
        return keep(result_.hour, number(1, 2, 0, 24));
      case 'M':
        return keep(result_.minute, number(2, 2, 0, 59));
      case 'S':
        return number(2, 2, 0, 60).has_value();
      case 'f':
        return number(1, 9, 0, 999'999'999).has_value();
      case 'N':
        return take(dayCountAt(rest()));
      case 'p':
        return take(halfDayAt(rest()));
      case 'z':
        return take(zoneAt(rest()));
      default:
        return word(which);
    }
  }

  bool word(char which) {
    const DateWord found = dateWordAt(rest());
    if (which == 'L') {
      return take(found.length);
    }
    if (which == 'B' && found.name.month > 0) {
      result_.month = found.name.month;
      return take(found.length);
    }
    return which == 'A' && found.name.weekday > 0 && take(found.length);
  }

  bool keepShortYear() {
    const auto year = number(2, 2, 0, 99);
    return keep(result_.year, year ? std::optional(2000 + *year) : std::nullopt);
  }

  /// No February has 30 days, and of two numbers one is a month.
  bool canBe() const {
    if (result_.either[0] && result_.either[1] && *result_.either[0] > 12 && *result_.either[1] > 12) {
      return false;
    }
    const std::chrono::month_day day(std::chrono::month(static_cast<unsigned>(result_.month.value_or(1))),
                                     std::chrono::day(static_cast<unsigned>(result_.day.value_or(1))));
    return day.ok() && (!result_.year || (std::chrono::year(*result_.year) / day.month() / day.day()).ok());
  }

  std::string_view text_;
  DateRead result_;
};

}  // namespace

bool DateRead::mayBeOn(std::chrono::year_month_day other) const {
  const auto itsMonth = static_cast<int>(static_cast<unsigned>(other.month()));
  const auto itsDay = static_cast<int>(static_cast<unsigned>(other.day()));
  const bool isIt = (month == itsMonth && day == itsDay) || (either[0] == itsMonth && either[1] == itsDay) ||
                    (either[0] == itsDay && either[1] == itsMonth);
  return isIt && (!year || *year == static_cast<int>(other.year()));
}

std::optional<DateRead> readDate(std::string_view text, std::string_view form) { return Reader(text).read(form); }

}  // namespace tarnwick
