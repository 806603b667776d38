// SPDX-License-Identifier: MIT
// Places that vary because numbers do: each number becomes one place, whole.
#include <algorithm>

#include "base/text.h"
#include "holes/classify.h"
#include "holes/numbers.h"
#include "holes/widen.h"

namespace tarnwick {
namespace {

/// More numbers than that in one place are no numbers but something that is always another one.
constexpr std::size_t kMostNumbers = 200;
constexpr std::size_t kLongest = std::size_t{1} << 14U;
/// How many places may be a row of numbers, and the most bytes between two of them.
constexpr std::size_t kLongestRow = 6;
constexpr std::size_t kLongestBetween = 6;

/// Words such as "a3f9" are keys and no letters with numbers between them; "web12", "12ms" and "part_7" are.
bool hasKeys(std::string_view skeleton) {
  bool afterNumber = false;
  bool afterLetters = false;
  for (const char c : skeleton) {
    const bool isNumber = c == '\0';
    if (isNumber && afterLetters) {
      return true;
    }
    const bool isLetters = isLetter(c);
    afterLetters = isLetters && (afterNumber || afterLetters);
    afterNumber = isNumber || (afterNumber && isLetters);
  }
  return false;
}

/// The numbers of each copy there, as long as there is nothing else that varies.
std::vector<NumbersIn> numbersOf(std::span<const std::string_view> values) {
  if (std::ranges::any_of(values, [](std::string_view value) { return value.size() > kLongest; })) {
    return {};
  }
  for (const bool isWhole : {true, false}) {
    std::vector<NumbersIn> all;
    for (const std::string_view value : values) {
      all.push_back(numbersIn(value, isWhole));
    }
    const bool areAlike =
        std::ranges::all_of(all, [&](const NumbersIn& one) { return one.skeleton == all.front().skeleton; });
    if (areAlike && !all.front().numbers.empty() && all.front().numbers.size() <= kMostNumbers &&
        !hasKeys(all.front().skeleton)) {
      return all;
    }
  }
  return {};
}

Region partOf(const Region& whole, std::span<const NumbersIn> numbers, std::size_t index) {
  Region part = whole;
  for (std::size_t copy = 0; copy < numbers.size(); ++copy) {
    const NumbersIn::Part& number = numbers[copy].numbers[index];
    part.from[copy] = whole.from[copy] + number.begin;
    part.to[copy] = whole.from[copy] + number.end;
  }
  return part;
}

/// The region with what of numbers goes on around it in the first copy, and all other places that touch it.
std::optional<Region> wholeNumbers(const Copies& copies, std::size_t index, std::size_t last) {
  std::size_t begin = numberBegin(copies.first(), copies.places()[index].region.from.front());
  const std::size_t to = copies.places()[last].region.to.front();
  std::size_t end = std::max(numberEnd(copies.first(), to), to);
  for (const Place& place : copies.placesWithin(begin, end)) {
    if (place.known) {
      return std::nullopt;
    }
    begin = std::min(begin, place.region.from.front());
    end = std::max(end, place.region.to.front());
  }
  return copies.regionOf(begin, end);
}

bool isBetweenNumbers(std::string_view text) {
  return text.size() <= kLongestBetween && std::ranges::all_of(text, [](char c) {
           return isDigit(c) || std::string_view(" ,.;:|/").find(c) != std::string_view::npos;
         });
}

bool putNumbers(Copies& copies, const Region& whole) {
  const auto numbers = numbersOf(copies.values(whole));
  if (numbers.empty()) {
    return false;
  }
  std::vector<Place> places;
  for (std::size_t i = 0; i < numbers.front().numbers.size(); ++i) {
    Region part = partOf(whole, numbers, i);
    const auto values = copies.values(part);
    if (std::ranges::count(values, values.front()) != static_cast<std::ptrdiff_t>(values.size())) {
      places.push_back({std::move(part), classified(values, false)});
    }
  }
  copies.replace(whole, std::move(places));
  return true;
}

}  // namespace

// Numbers of one row may have been taken for one another: then the row is looked at as a whole.
bool widenToNumbers(Copies& copies, std::size_t index) {
  for (std::size_t last = index; last < copies.places().size() && last <= index + kLongestRow; ++last) {
    if (last > index && !isBetweenNumbers(copies.fixedBefore(last))) {
      return false;
    }
    const auto whole = wholeNumbers(copies, index, last);
    if (whole && putNumbers(copies, *whole)) {
      return true;
    }
  }
  return false;
}

}  // namespace tarnwick
