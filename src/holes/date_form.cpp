// SPDX-License-Identifier: MIT
#include "holes/date_form.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "holes/date_words.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestDate = 96;
constexpr std::size_t kLongestJoint = 14;

struct Number {
  std::size_t length = 0;
  int value = 0;
};

Number numberAt(std::string_view text, std::size_t most = 4) {
  Number number;
  while (number.length < std::min(most + 1, text.size()) && isDigit(text[number.length])) {
    number.value = number.value * 10 + (text[number.length] - '0');
    ++number.length;
  }
  return number.length <= most ? number : Number{};
}

bool isYear(const Number& number) { return number.length == 4 && number.value >= 1900 && number.value < 2200; }
bool isDay(const Number& number) {
  return number.length > 0 && number.length <= 2 && number.value >= 1 && number.value <= 31;
}
bool isMonth(const Number& number) { return isDay(number) && number.value <= 12; }
bool isHour(const Number& number) { return number.length > 0 && number.length <= 2 && number.value <= 24; }
bool isSixtieth(const Number& number) { return number.length == 2 && number.value <= 60; }

/// Reads a date piece by piece, and writes its form meanwhile. Each piece is taken whole, or not at all.
class Scanner {
 public:
  Scanner(std::string_view text, std::size_t begin) : text_(text.substr(begin, kLongestDate)), begin_(begin) {}

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
  struct State {
    std::size_t at = 0;
    std::string form{};
    bool hasDate = false;
    bool hasYear = false;
    bool hasTime = false;
    bool hasWeekday = false;
    bool hasZone = false;
    bool hasHalf = false;
  };

  std::string_view rest() const { return text_.substr(state_.at); }
  void take(std::size_t length, std::string_view form) {
    state_.at += length;
    state_.form += form;
  }
  void takeLiteral(std::size_t length) {
    for (const char c : rest().substr(0, length)) {
      state_.form += c == '%' ? "%%" : std::string(1, c);
    }
    state_.at += length;
  }
  void takeBlanks() {
    if (const std::size_t length = blanksAt(rest())) {
      take(length, " ");
    }
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

  bool piece() {
    const bool taken = whole([&] { return time(); }) || whole([&] { return date(); }) ||
                       whole([&] { return weekday(); }) || whole([&] { return zone(); }) ||
                       whole([&] { return halfDay(); }) || whole([&] { return lateYear(); });
    if (taken && (state_.hasDate || state_.hasTime)) {
      sense_ = state_;
    }
    return taken;
  }

  bool literal(std::string_view wanted) {
    if (!rest().starts_with(wanted)) {
      return false;
    }
    takeLiteral(wanted.size());
    return true;
  }

  bool counter(Counter which) {
    const std::size_t length = counterAt(rest(), which);
    takeLiteral(length);
    return length > 0;
  }

  template <typename Test>
  bool number(Test test, std::string_view form, std::size_t most = 4) {
    const Number found = numberAt(rest(), most);
    if (found.length == 0 || !test(found)) {
      return false;
    }
    take(found.length, form);
    return true;
  }

  bool time() {
    if (state_.hasTime) {
      return false;
    }
    if (!whole([&] { return timeWith(":"); }) && !whole([&] { return timeWith("."); }) &&
        !whole([&] { return timeWith("h"); }) && !whole([&] { return timeOfCounters(); }) &&
        !whole([&] { return compactTime(); })) {
      return false;
    }
    return state_.hasTime = true;
  }

  bool timeWith(std::string_view separator) {
    if (!number(isHour, "%H") || !literal(separator) || !number(isSixtieth, "%M")) {
      return false;
    }
    const bool hasSeconds = whole([&] { return literal(separator) && number(isSixtieth, "%S"); });
    if (hasSeconds) {
      whole([&] { return (literal(".") || literal(",")) && fraction(); });
    }
    if (separator == ".") {  // a number, unless it can be nothing else
      return hasSeconds || rest().starts_with(" Uhr");
    }
    return separator != "h" || !hasSeconds;
  }

  bool fraction() {
    std::size_t length = 0;
    while (length < rest().size() && isDigit(rest()[length])) {
      ++length;
    }
    take(length, "%f");
    return length > 0 && length <= 9;
  }

  bool timeOfCounters() {
    return number(isHour, "%H") && counter(Counter::hour) && number(isSixtieth, "%M") && counter(Counter::minute) &&
           (whole([&] { return number(isSixtieth, "%S") && counter(Counter::second); }) || true);
  }

  // Behind a compact date alone: 20261122T184010Z.
  bool compactTime() {
    if (!state_.form.ends_with("%Y%m%dT")) {
      return false;
    }
    const auto two = [&](auto test, std::string_view form) {
      const Number found = numberAt(rest().substr(0, 2));
      take(found.length, form);
      return found.length == 2 && test(found);
    };
    return two(isHour, "%H") && two(isSixtieth, "%M") && two(isSixtieth, "%S");
  }

  bool date() {
    if (state_.hasDate) {
      return false;
    }
    for (const std::string_view separator : {"-", "/", ".", ":", ". "}) {
      if (whole([&] { return yearFirst(separator); }) || whole([&] { return yearLast(separator); })) {
        return state_.hasDate = state_.hasYear = true;
      }
    }
    if (whole([&] { return dateOfCounters(); }) || whole([&] { return compactDate(); })) {
      return state_.hasDate = state_.hasYear = true;
    }
    if (whole([&] { return yearBeforeName(); }) || whole([&] { return dayBeforeName(); }) ||
        whole([&] { return nameFirst(); })) {
      return state_.hasDate = true;
    }
    return false;
  }

  bool yearFirst(std::string_view separator) {
    return number(isYear, "%Y") && literal(separator) && number(isMonth, "%m") && literal(separator) &&
           number(isDay, "%d");
  }

  bool yearLast(std::string_view separator) {
    if (separator == ":") {
      return false;
    }
    const Number first = numberAt(rest());
    const std::size_t behind = first.length + separator.size();
    const Number second = behind < rest().size() ? numberAt(rest().substr(behind)) : Number{};
    if (!isDay(first) || !isDay(second) || (first.value > 12 && second.value > 12)) {
      return false;
    }
    const bool isKnown = separator.front() == '.' || first.value > 12 || second.value > 12;
    const bool dayFirst = separator.front() == '.' || first.value > 12;
    return number(isDay, !isKnown   ? "%e"
                         : dayFirst ? "%d"
                                    : "%m") &&
           literal(separator) &&
           number(isDay, !isKnown   ? "%e"
                         : dayFirst ? "%m"
                                    : "%d") &&
           literal(separator) && (number(isYear, "%Y") || number([](const Number& n) { return n.length == 2; }, "%y"));
  }

  bool dateOfCounters() {
    return number(isYear, "%Y") && counter(Counter::year) && number(isMonth, "%m") && counter(Counter::month) &&
           number(isDay, "%d") && counter(Counter::day);
  }

  bool compactDate() {
    const Number all = numberAt(rest(), 8);
    const Number year{4, all.value / 10000};
    const Number month{2, all.value / 100 % 100};
    const Number day{2, all.value % 100};
    if (all.length != 8 || !isYear(year) || !isMonth(month) || !isDay(day)) {
      return false;
    }
    take(8, "%Y%m%d");
    return true;
  }

  bool yearBeforeName() {
    return number(isYear, "%Y") && (literal(". ") || literal(" ") || literal("-") || literal("/")) && month(true) &&
           (literal(" ") || literal("-") || literal("/")) && day() && (state_.hasYear = true);
  }

  bool day() {
    if (!number(isDay, "%d")) {
      return false;
    }
    state_.at += ordinalAt(rest());
    return true;
  }

  // "22 November", "22. Nov. 2026", "22 de noviembre de 2026", "22-Nov-2026".
  bool dayBeforeName() {
    if (!day()) {
      return false;
    }
    whole([&] { return literal("."); });
    const std::string_view between = separatorBefore();
    if (between.empty()) {
      return false;
    }
    takeSeparator(between);
    if (!month(true)) {
      return whole([&] { return loosely(); });
    }
    year();
    return true;
  }

  // A word that nobody knows is a month where a year follows it.
  bool loosely() { return month(false) && year(); }

  bool nameFirst() {
    if (!month(true)) {
      return false;
    }
    if (!whole([&] { return blanksOrOne("-/") && day() && !isDigitNext(); })) {
      return whole([&] { return year(); });
    }
    year();
    return true;
  }

  bool isDigitNext() const { return !rest().empty() && isDigit(rest().front()); }

  bool blanksOrOne(std::string_view characters) {
    if (blanksAt(rest()) > 0) {
      takeBlanks();
      return true;
    }
    if (!rest().empty() && characters.find(rest().front()) != std::string_view::npos) {
      takeLiteral(1);
      return true;
    }
    return false;
  }

  std::string_view separatorBefore() const {
    static constexpr std::array<std::string_view, 8> kSeparators = {" de ", " of ", " di ", " d'",
                                                                    " ",    "-",    "/",    "\u00A0"};
    for (const std::string_view separator : kSeparators) {
      if (rest().starts_with(separator)) {
        return separator;
      }
    }
    return blanksAt(rest()) > 0 ? rest().substr(0, blanksAt(rest())) : std::string_view();
  }
  void takeSeparator(std::string_view separator) {
    if (blanksAt(separator) == separator.size()) {
      takeBlanks();
    } else {
      takeLiteral(separator.size());
    }
  }

  bool month(bool isKnown) {
    const DateWord word = dateWordAt(rest());
    const bool named = word.name && word.name->kind == DateName::Kind::month;
    if (word.length < 2 || (isKnown && !named)) {
      return false;
    }
    take(word.length, named ? "%B" : "%L");
    return true;
  }

  bool year() {
    return whole([&] {
      literal(",");
      const std::string_view between = separatorBefore();
      takeSeparator(between);
      const bool taken = !between.empty() && number(isYear, "%Y");
      state_.hasYear = state_.hasYear || taken;
      return taken;
    });
  }

  bool weekday() {
    const DateWord word = dateWordAt(rest());
    if (state_.hasWeekday || !word.name || word.name->kind != DateName::Kind::weekday) {
      return false;
    }
    take(word.length, "%A");
    return state_.hasWeekday = true;
  }

  bool zone() {
    const std::size_t length = zoneAt(rest());
    if (!state_.hasTime || length == 0) {
      return false;
    }
    take(length, "%z");
    const bool isSecond = state_.hasZone;  // +0000 (UTC)
    state_.hasZone = true;
    return !isSecond || state_.form.ends_with("%z %z");
  }

  bool halfDay() {
    const std::size_t length = halfDayAt(rest());
    take(length, "%p");
    return length > 0 && !std::exchange(state_.hasHalf, true);
  }

  // Sun Nov 22 18:40:10 2026
  bool lateYear() {
    return state_.hasDate && state_.hasTime && !state_.hasYear && number(isYear, "%Y") && (state_.hasYear = true);
  }

  // What stands between two pieces: blanks, commas, words such as "at", "um", "à".
  bool joint() {
    std::size_t length = 0;
    while (length < rest().size() && length <= kLongestJoint && isOfJoint(rest()[length]) && !beginsPiece(length)) {
      ++length;
    }
    if (length > kLongestJoint || state_.at + length >= text_.size()) {
      return false;
    }
    for (std::size_t i = 0; i < length;) {
      const std::size_t blanks = blanksAt(rest());
      if (blanks > 0) {
        i += blanks;
        takeBlanks();
      } else {
        ++i;
        takeLiteral(1);
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
    if (there.size() > 1 && there.front() == '-' && zoneAt(there) > 0) {
      return state_.hasTime;
    }
    const bool isNewWord = after == 0 || !isLetter(rest()[after - 1]);
    return isNewWord && ((state_.hasTime && zoneAt(there) > 0) || halfDayAt(there) > 0 || dateWordAt(there).name);
  }

  std::string_view text_;
  std::size_t begin_;
  State state_;
  State sense_;  ///< as far as it is a date or time, and not only the beginning of one
};

bool beginsToken(std::string_view text, std::size_t at) {
  if (at == 0) {
    return true;
  }
  const auto isWordPart = [](char c) { return isLetter(c) || static_cast<unsigned char>(c) >= 0x80; };
  return isDigit(text[at]) ? !isDigit(text[at - 1]) : isWordPart(text[at]) && !isLetter(text[at - 1]);
}

bool mayBegin(char c) { return isDigit(c) || isLetter(c) || static_cast<unsigned char>(c) >= 0x80; }

}  // namespace

std::optional<DateFound> dateAt(std::string_view text, std::size_t begin) { return Scanner(text, begin).scan(); }

std::optional<DateFound> dateOver(std::string_view text, std::size_t begin, std::size_t end) {
  for (std::size_t at = begin > kLongestDate ? begin - kLongestDate : 0; at <= begin && at < text.size(); ++at) {
    if (mayBegin(text[at]) && beginsToken(text, at)) {
      if (const auto found = dateAt(text, at); found && found->end() >= end && found->end() > begin) {
        return found;
      }
    }
  }
  return std::nullopt;
}

std::optional<DateFound> nextDate(std::string_view text, std::size_t from) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (mayBegin(text[at]) && beginsToken(text, at)) {
      if (auto found = dateAt(text, at)) {
        return found;
      }
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
