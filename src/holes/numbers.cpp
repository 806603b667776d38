// SPDX-License-Identifier: MIT
#include "holes/numbers.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 12> kMarks = {".",      ",",      "'",      "\u2019", " ",        "\u00A0",
                                                     "\u202F", "\u2009", "&nbsp;", "&#160;", "&thinsp;", "\xA0"};
constexpr std::size_t kDigitsInGroup = 3;

std::size_t digitsAt(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::find_if_not(text, isDigit) - text.begin());
}
std::size_t digitsBefore(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && isDigit(text[text.size() - 1 - count])) {
    ++count;
  }
  return count;
}

/// The mark that ends there; 0 for none.
std::size_t markBefore(std::string_view text) {
  for (const std::string_view mark : kMarks) {
    if (text.ends_with(mark)) {
      return mark.size();
    }
  }
  return 0;
}

bool isPoint(std::string_view mark) { return mark == "." || mark == ","; }

/// Whether a mark between those digits belongs to a number: all but points stand between thousands alone.
bool joins(std::string_view mark, std::size_t before, std::size_t behind) {
  return before > 0 && behind > 0 && (isPoint(mark) || (before <= kDigitsInGroup && behind == kDigitsInGroup));
}

bool isSign(std::string_view text, std::size_t at) {
  if (text[at] != '-' && text[at] != '+') {
    return false;
  }
  const char before = at > 0 ? text[at - 1] : ' ';
  return !isDigit(before) && !isLetter(before) && static_cast<unsigned char>(before) < 0x80 &&
         std::string_view(")_-+").find(before) == std::string_view::npos;
}

}  // namespace

std::size_t numberMarkAt(std::string_view text) {
  for (const std::string_view mark : kMarks) {
    if (text.starts_with(mark)) {
      return mark.size();
    }
  }
  return 0;
}

bool isOneNumber(std::string_view digits) {
  std::vector<std::size_t> groups{digitsAt(digits)};
  std::vector<std::string_view> marks;
  for (std::size_t at = groups.front(); at < digits.size();) {
    const std::size_t mark = numberMarkAt(digits.substr(at));
    marks.push_back(digits.substr(at, mark));
    groups.push_back(digitsAt(digits.substr(at + mark)));
    at += mark + groups.back();
    if (mark == 0 || groups.back() == 0) {
      return false;
    }
  }
  const bool hasFraction =
      !marks.empty() && isPoint(marks.back()) && (marks.size() == 1 || marks.back() != marks.front());
  if (hasFraction) {
    marks.pop_back();
    groups.pop_back();
  }
  if (marks.empty()) {
    return true;
  }
  const bool areInGroups = std::all_of(groups.begin() + 1, groups.end(), [](std::size_t group) {
    return group == kDigitsInGroup || group == kDigitsInGroup - 1;
  });
  return areInGroups && groups.front() <= kDigitsInGroup && groups.back() == kDigitsInGroup &&
         std::ranges::count(marks, marks.front()) == static_cast<std::ptrdiff_t>(marks.size());
}

std::size_t numberEnd(std::string_view text, std::size_t at) {
  at += digitsAt(text.substr(at));
  for (;;) {
    const std::size_t mark = numberMarkAt(text.substr(at));
    const std::size_t behind = digitsAt(text.substr(at + mark));
    if (mark == 0 || !joins(text.substr(at, mark), digitsBefore(text.substr(0, at)), behind)) {
      return at;
    }
    at += mark + behind;
  }
}

std::size_t numberBegin(std::string_view text, std::size_t at) {
  at -= digitsBefore(text.substr(0, at));
  for (;;) {
    const std::size_t mark = markBefore(text.substr(0, at));
    const std::size_t before = digitsBefore(text.substr(0, at - mark));
    if (mark == 0 || !joins(text.substr(at - mark, mark), before, digitsAt(text.substr(at)))) {
      break;
    }
    at -= mark + before;
  }
  return at > 0 && at < text.size() && isDigit(text[at]) && isSign(text, at - 1) ? at - 1 : at;
}

NumbersIn numbersIn(std::string_view text, bool isWhole) {
  NumbersIn found;
  const auto add = [&](std::size_t begin, std::size_t end) {
    found.numbers.push_back({begin, end});
    found.skeleton += '\0';
  };
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t begin = at + (isWhole && isSign(text, at) ? 1 : 0);
    if (begin >= text.size() || !isDigit(text[begin])) {
      found.skeleton += text[at++];
      continue;
    }
    const std::size_t end = numberEnd(text, begin);
    if (isWhole && isOneNumber(text.substr(begin, end - begin))) {
      add(at, end);
      at = end;
      continue;
    }
    found.skeleton += text.substr(at, begin - at);
    for (at = begin; at < end;) {
      const std::size_t digits = digitsAt(text.substr(at));
      const std::size_t mark = numberMarkAt(text.substr(at + digits));
      add(at, at + digits);
      found.skeleton += text.substr(at + digits, std::min(mark, end - at - digits));
      at += digits + mark;
    }
    at = std::min(at, end);
  }
  return found;
}

}  // namespace tarnwick
