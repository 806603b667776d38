// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "holes/date_words.h"

namespace tarnwick {

/// A text that is read as a date from its beginning, and the form that comes of it.
class DateCursor {
 public:
  struct Number {
    std::size_t length = 0;
    int value = 0;
  };
  struct State {
    std::size_t at = 0;
    std::string form{};
    bool hasDate = false;
    bool hasYear = false;
    bool hasTime = false;
    bool hasWeekday = false;
    bool hasZone = false;
    bool hasHalf = false;
    bool isWeak = false;  ///< numbers that are a date only beside a weekday or a time
  };

  explicit DateCursor(std::string_view text) : text_(text) {}

  State& state() { return state_; }
  const State& state() const { return state_; }
  std::string_view rest() const { return text_.substr(state_.at); }
  bool isAtEnd() const { return state_.at >= text_.size(); }
  bool isDigitNext() const { return !isAtEnd() && isDigit(rest().front()); }

  /// A number of at most so many digits, up to 9; length 0 for none, and for a longer one.
  Number number(std::size_t from, std::size_t most) const {
    const std::string_view text = rest().substr(std::min(from, rest().size()));
    Number number;
    while (number.length < std::min(most + 1, text.size()) && isDigit(text[number.length])) {
      number.value = number.value * 10 + (text[number.length] - '0');
      ++number.length;
    }
    return number.length <= most ? number : Number{};
  }

  /// False where there is nothing to take.
  bool take(std::size_t length, std::string_view form) {
    state_.at += length;
    state_.form += length > 0 ? form : std::string_view();
    return length > 0;
  }
  void takeLiteral(std::size_t length) {
    for (const char c : rest().substr(0, length)) {
      state_.form += c == '%' ? "%%" : std::string(1, c);
    }
    state_.at += length;
  }
  bool takeBlanks() {
    const std::size_t length = blanksAt(rest());
    return length > 0 && take(length, " ");
  }
  bool literal(std::string_view wanted) {
    const bool isThere = rest().starts_with(wanted);
    takeLiteral(isThere ? wanted.size() : 0);
    return isThere;
  }
  bool counter(Counter which) {
    const std::size_t length = counterAt(rest(), which);
    takeLiteral(length);
    return length > 0;
  }
  template <typename Test>
  bool number(Test test, std::string_view form, std::size_t most = 4) {
    const Number found = number(0, most);
    return found.length > 0 && test(found) && take(found.length, form);
  }

  /// Does it whole, or leaves everything as it was.
  template <typename Step>
  bool whole(Step step) {
    State before = state_;
    if (step()) {
      return true;
    }
    state_ = std::move(before);
    return false;
  }

 private:
  std::string_view text_;
  State state_;
};

/// Each takes what it is named after, or leaves the cursor as it was and says false.
bool takeDate(DateCursor& cursor);
bool takeTime(DateCursor& cursor);
bool takeCompactTime(DateCursor& cursor);

}  // namespace tarnwick
