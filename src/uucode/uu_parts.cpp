// SPDX-License-Identifier: MIT
#include "uucode/uu_parts.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include "base/text.h"
#include "uucode/uu_record.h"

namespace tarnwick {
namespace {

constexpr int kNameLength = 8;
constexpr std::uint64_t kMostParts = 9999;

/// The first `count` characters of a UTF-8 text.
std::string firstCharacters(const std::string& text, int count) {
  std::size_t end = 0;
  for (int taken = 0; end < text.size() && taken < count; ++taken) {
    ++end;
    while (end < text.size() && continuesCharacter(text[end])) {
      ++end;
    }
  }
  return text.substr(0, end);
}

/// The lower case of a letter of two bytes in UTF-8, for those that Windows-1252 has in both cases.
std::pair<char, char> lowerLetter(char lead, char next) {
  const auto first = static_cast<unsigned char>(lead);
  const auto second = static_cast<unsigned char>(next);
  const bool accented = first == 0xC3 && second >= 0x80 && second <= 0x9E && second != 0x97;
  const bool further = first == 0xC5 && (second == 0x92 || second == 0xA0 || second == 0xBD);
  if (accented) {
    return {lead, static_cast<char>(second + 0x20)};
  }
  if (further) {
    return {lead, static_cast<char>(second + 1)};
  }
  if (first == 0xC5 && second == 0xB8) {
    return {static_cast<char>(0xC3), static_cast<char>(0xBF)};
  }
  return {lead, next};
}

}  // namespace

std::string uuLowerCase(std::string text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    text[at] = lowerCase(text[at]);
    if (at + 1 < text.size() && !continuesCharacter(text[at])) {
      std::tie(text[at], text[at + 1]) = lowerLetter(text[at], text[at + 1]);
    }
  }
  return text;
}

std::string uuBaseName(const std::string& name) { return name.substr(0, name.find('.')); }

UuPlan planUuParts(std::uint64_t size, std::int64_t most) {
  if (most < 1 || static_cast<std::uint64_t>(most) >= size) {
    return {size, 1, 0};
  }
  UuPlan plan;
  plan.bytesEach =
      std::max<std::uint64_t>(static_cast<std::uint64_t>(most) / kUuLineBytes * kUuLineBytes, kUuLineBytes);
  plan.count = (size + plan.bytesEach - 1) / plan.bytesEach;
  if (plan.count > kMostParts) {
    const std::uint64_t lines = (size + kMostParts * kUuLineBytes - 1) / (kMostParts * kUuLineBytes);
    throw std::length_error("Parts of this size would be " + std::to_string(plan.count) + ", and " +
                            std::to_string(kMostParts) + " are possible. Choose a size of at least " +
                            std::to_string(lines * kUuLineBytes) + " bytes.");
  }
  plan.digits = static_cast<int>(std::to_string(plan.count).size());
  return plan;
}

std::string uuPartStem(const std::string& base, const UuPlan& plan, std::uint64_t number) {
  if (plan.digits == 0) {
    return base;
  }
  const std::string digits = std::to_string(number);
  const std::string zeros(static_cast<std::size_t>(plan.digits) - digits.size(), '0');
  return firstCharacters(base, kNameLength - plan.digits) + zeros + digits;
}

std::string uuPartName(const std::string& base, const UuPlan& plan, std::uint64_t number) {
  return uuPartStem(base, plan, number) + ".UUE";
}

}  // namespace tarnwick
