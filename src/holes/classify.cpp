// SPDX-License-Identifier: MIT
#include "holes/classify.h"

#include <algorithm>

#include "base/text.h"
#include "holes/hole_values.h"
#include "holes/numbers.h"

namespace tarnwick {
namespace {

using Values = std::span<const std::string_view>;

constexpr std::size_t kFewestHex = 3;
constexpr std::size_t kFewestHexAmongBytes = 16;
/// The most digits that a counter is given before it has shown any.
constexpr std::size_t kDigitsOfCounter = 6;
constexpr std::size_t kDigitsToGrow = 3;
constexpr std::size_t kRoomForLetters = 24;
constexpr std::size_t kRoomForWords = 200;
constexpr std::size_t kRoomForAnything = 4096;

template <typename Test>
bool all(Values values, Test test) {
  return std::ranges::all_of(values, [&](std::string_view value) { return std::ranges::all_of(value, test); });
}

template <typename Test>
bool any(Values values, Test test) {
  return std::ranges::any_of(values, [&](std::string_view value) { return std::ranges::any_of(value, test); });
}

struct Lengths {
  std::size_t least;
  std::size_t most;
};

Lengths lengthsOf(Values values) {
  const auto [least, most] = std::ranges::minmax(values, {}, &std::string_view::size);
  return {least.size(), most.size()};
}

/// What stands between the digits of the values, and the signs before them; nothing when they are no numbers.
std::optional<std::string> separatorsOf(Values values) {
  std::string separators;
  std::string signs;
  for (const std::string_view value : values) {
    if (value.empty() || !isDigit(value.back())) {
      return std::nullopt;
    }
    const bool isSigned = value.front() == '-' || value.front() == '+';
    if (isSigned && signs.find(value.front()) == std::string::npos) {
      signs += value.front();
    }
    for (std::size_t at = isSigned ? 1 : 0; at < value.size();) {
      const std::size_t mark = numberMarkAt(value.substr(at));
      if (mark == 0 && !isDigit(value[at])) {
        return std::nullopt;
      }
      if (mark > 0 && separators.find(value.substr(at, mark)) == std::string::npos) {
        separators += value.substr(at, mark);
      }
      at += std::max<std::size_t>(mark, 1);
    }
  }
  // What is above zero at times is below at others.
  return separators + (signs.find('+') != std::string::npos ? "+-" : signs);
}

std::optional<Hole> asNumber(Values values) {
  const auto separators = separatorsOf(values);
  if (!separators) {
    return std::nullopt;
  }
  std::size_t least = std::string_view::npos;
  std::size_t most = 0;
  bool isPadded = false;
  for (const std::string_view value : values) {
    const NumberFound number = numberAt(value, *separators, nullptr);
    if (number.length != value.size()) {
      return std::nullopt;
    }
    least = std::min(least, number.digits);
    most = std::max(most, number.digits);
    isPadded = isPadded || (value.size() > 1 && value.front() == '0' && isDigit(value[1]));
  }
  Hole hole{.kind = HoleClass::digits, .form = *separators};
  if (isPadded && least == most) {
    hole.least = hole.most = most;
  } else {
    hole.least = 1;
    hole.most = std::max(kDigitsOfCounter, most + kDigitsToGrow);
  }
  return hole;
}

}  // namespace

Hole classified(Values values, bool isBinary) {
  const Lengths lengths = lengthsOf(values);
  const bool sameLength = lengths.least == lengths.most;
  if (auto number = asNumber(values)) {
    return *number;
  }
  const auto isHex = [](char c) { return isOfClass(HoleClass::hex, c); };
  if (isBinary && !(sameLength && lengths.least >= kFewestHexAmongBytes && all(values, isHex))) {
    return sameLength ? Hole{.kind = HoleClass::anything, .least = lengths.most, .most = lengths.most}
                      : Hole{.kind = HoleClass::anything, .most = 2 * lengths.most + kRoomForAnything};
  }
  const bool hasDigits = any(values, isDigit);
  const auto isKey = [](char c) { return isOfClass(HoleClass::base64, c); };
  const auto isWord = [](char c) { return isOfClass(HoleClass::letters, c); };
  const auto isText = [](char c) { return isOfClass(HoleClass::text, c); };
  const auto exact = [&](HoleClass kind) {
    const std::size_t least = std::max<std::size_t>(1, lengths.least / 2);
    return sameLength
               ? Hole{.kind = kind, .least = lengths.most, .most = lengths.most}
               : Hole{.kind = kind, .least = least, .most = lengths.most + std::max<std::size_t>(4, lengths.most)};
  };
  if (lengths.least >= kFewestHex && hasDigits && all(values, isHex)) {
    return exact(HoleClass::hex);
  }
  if (lengths.least > 0 && all(values, isWord)) {
    return {.kind = HoleClass::letters, .least = 1, .most = std::max(kRoomForLetters, 2 * lengths.most)};
  }
  if (lengths.least > 0 && all(values, isKey) &&
      (hasDigits || any(values, [](char c) { return c >= 'A' && c <= 'Z'; }))) {
    return exact(HoleClass::base64);
  }
  if (all(values, isText)) {
    return {.kind = HoleClass::text, .most = std::max(kRoomForWords, 4 * lengths.most)};
  }
  return {.kind = HoleClass::anything, .most = 4 * lengths.most + kRoomForAnything};
}

}  // namespace tarnwick
