// SPDX-License-Identifier: MIT
#include "holes/date_form.h"

#include "base/text.h"
#include "holes/date_cursor.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestDate = 96;
constexpr std::size_t kLongestJoint = 14;

/// What is tried first where a piece can be two things: "mar. 14" is a day in March or a Tuesday, 10.11.12 a time or a
/// day.
enum class First { time, day, weekday };

/// Reads a date piece by piece, and writes its form meanwhile. Each piece is taken whole, or not at all.
class Scanner {
 public:
  Scanner(std::string_view text, std::size_t begin, First first)
      : cursor_(text.substr(begin, kLongestDate)), begin_(begin), first_(first) {}

  std::optional<DateFound> scan() {
    if (!piece()) {
      return std::nullopt;
    }
    while (joint() && piece()) {
    }
    if (!sense_.hasDate && !sense_.hasTime) {
      return std::nullopt;
    }
    return DateFound{begin_, sense_.at, sense_.form, sense_.hasDate, sense_.hasTime};
  }

 private:
  DateCursor::State& state() { return cursor_.state(); }
  std::string_view rest() const { return cursor_.rest(); }

  bool piece() {
    const bool taken = likelyPiece() || takeTime(cursor_) || takeDate(cursor_) || weekday() || days() ||
                       cursor_.whole([&] { return zone(); }) ||
                       cursor_.whole([&] { return !cursor_.isAtEnd() && halfDay(); }) || lateYear();
    state().isWeak = state().isWeak && !state().hasTime && !state().hasWeekday;
    if (taken && (state().hasDate || state().hasTime) && !state().isWeak) {
      sense_ = state();
    }
    return taken;
  }
  bool likelyPiece() { return first_ == First::day ? takeDate(cursor_) : first_ == First::weekday && weekday(); }

  bool weekday() {
    const DateWord word = dateWordAt(rest());
    if (state().hasWeekday || word.name.weekday == 0) {
      return false;
    }
    cursor_.take(word.length, "%A");
    return state().hasWeekday = true;
  }

  // "215 days, 04:10:58".
  bool days() { return state().form.empty() && cursor_.take(dayCountAt(rest()), "%N"); }

  bool zone() {
    const std::size_t length = zoneAt(rest());
    if (!state().hasTime || !cursor_.take(length, "%z")) {
      return false;
    }
    const bool isSecond = state().hasZone;  // +0000 (UTC)
    state().hasZone = true;
    return !isSecond || state().form.ends_with("%z %z");
  }

  bool halfDay() { return cursor_.take(halfDayAt(rest()), "%p") && !std::exchange(state().hasHalf, true); }

  // Sun Nov 22 18:40:10 2026
  bool lateYear() {
    const auto isYear = [](const DateCursor::Number& number) {
      return number.length == 4 && number.value >= 1900 && number.value < 2200;
    };
    return state().hasDate && state().hasTime && !state().hasYear && cursor_.number(isYear, "%Y") &&
           (state().hasYear = true);
  }

  // What stands between two pieces: blanks, commas, words such as "at", "um", "à", the colon of 22/Nov/2026:18:40.
  bool joint() {
    if (state().form.ends_with("%Y") && !state().hasTime && rest().size() > 1 && rest()[0] == ':' &&
        isDigit(rest()[1])) {
      return cursor_.literal(":");
    }
    std::size_t length = 0;
    while (length < rest().size() && length <= kLongestJoint && isOfJoint(rest()[length]) && !beginsPiece(length)) {
      ++length;
    }
    if (length > kLongestJoint || length >= rest().size()) {
      return false;
    }
    const std::size_t end = state().at + length;
    while (state().at < end) {
      if (!cursor_.takeBlanks()) {
        cursor_.takeLiteral(1);
      }
    }
    return true;
  }

  static bool isOfJoint(char c) {
    return isLetter(c) || static_cast<unsigned char>(c) >= 0x80 ||
           std::string_view(" \t,.;|-_()/&@").find(c) != std::string_view::npos;
  }

  bool beginsPiece(std::size_t after) const {
    const std::string_view there = rest().substr(after);
    const bool hasTime = cursor_.state().hasTime;
    if (there.size() > 1 && there.front() == '-' && zoneAt(there) > 0) {
      return hasTime;
    }
    const bool isHigh = static_cast<unsigned char>(there.front()) >= 0x80;
    const bool isNewWord = after == 0 || isHigh || !isLetter(rest()[after - 1]);
    return isNewWord && ((hasTime && zoneAt(there) > 0) || halfDayAt(there) > 0 || dateWordAt(there).name);
  }

  DateCursor cursor_;
  std::size_t begin_;
  First first_;
  DateCursor::State sense_;  ///< as far as it is a date or time, and not only the beginning of one
};

bool isHigh(char c) { return static_cast<unsigned char>(c) >= 0x80; }

bool beginsToken(std::string_view text, std::size_t at) {
  if (isDigit(text[at])) {
    return at == 0 || !isDigit(text[at - 1]);
  }
  if (at > 0 && isHigh(text[at - 1]) && isHigh(text[at])) {  // within a word, but where words stand without blanks
    const auto character = decodeUtf8(text.substr(at));
    return character && character->character >= 0x3000;
  }
  return (isLetter(text[at]) || isHigh(text[at])) && (at == 0 || !isLetter(text[at - 1]));
}

/// A quick look at whether a date can begin there at all, since most of a page is none.
bool mayBegin(std::string_view text, std::size_t at) {
  if (!beginsToken(text, at)) {
    return false;
  }
  const std::string_view there = text.substr(at, kLongestDate);
  if (!isDigit(text[at])) {
    return dateWordAt(there).name || (isHigh(text[at]) && halfDayAt(there) > 0);
  }
  constexpr std::size_t kLongestNumber = 14;  // a date and time without separators
  const std::size_t digits = std::min(there.find_first_not_of("0123456789"), there.size());
  if (digits > kLongestNumber) {
    return false;
  }
  constexpr std::string_view kBehind = " \t:./-,h&";
  return digits >= 8 || (digits < there.size() && (isHigh(there[digits]) || ordinalAt(there.substr(digits)) > 0 ||
                                                   kBehind.find(there[digits]) != std::string_view::npos));
}

}  // namespace

std::optional<DateFound> dateAt(std::string_view text, std::size_t begin) {
  if (begin >= text.size()) {
    return std::nullopt;
  }
  auto longest = Scanner(text, begin, First::time).scan();
  const First other = isDigit(text[begin]) ? First::day : First::weekday;
  auto second = Scanner(text, begin, other).scan();
  return second && (!longest || second->length > longest->length) ? second : longest;
}

std::optional<DateFound> dateOver(std::string_view text, std::size_t begin, std::size_t end) {
  for (std::size_t at = begin > kLongestDate ? begin - kLongestDate : 0; at <= begin && at < text.size(); ++at) {
    if (mayBegin(text, at)) {
      if (auto found = dateAt(text, at); found && found->end() >= end && found->end() > begin) {
        return found;
      }
    }
  }
  return std::nullopt;
}

std::optional<DateFound> nextDate(std::string_view text, std::size_t from) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (mayBegin(text, at)) {
      if (auto found = dateAt(text, at)) {
        return found;
      }
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
