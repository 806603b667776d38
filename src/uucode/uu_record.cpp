// SPDX-License-Identifier: MIT
#include "uucode/uu_record.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::size_t kMostLineBytes = 255;

/// Half a group, twelve bits, is looked up at once.
using Pair = std::array<char, 2>;

constexpr std::array<Pair, 4096> makePairs() {
  std::array<Pair, 4096> pairs{};
  for (std::size_t value = 0; value < pairs.size(); ++value) {
    pairs[value] = {uuCharacter(value >> 6), uuCharacter(value & 63)};
  }
  return pairs;
}

constexpr auto kPairs = makePairs();

// A character's six bits, and above the 24 bits of a group what is remarkable about it.
constexpr std::uint32_t kForeign = 1U << 31;
constexpr std::uint32_t kBlank = 1U << 30;
constexpr std::uint32_t kGrave = 1U << 29;

constexpr std::array<std::uint32_t, 256> makeValues(unsigned shift) {
  std::array<std::uint32_t, 256> values{};
  for (std::size_t code = 0; code < values.size(); ++code) {
    const int value = uuValue(static_cast<char>(code));
    values[code] = value < 0 ? kForeign : static_cast<std::uint32_t>(value) << shift;
  }
  values[' '] |= kBlank;
  values[static_cast<unsigned char>(kUuZero)] |= kGrave;
  return values;
}

constexpr auto kFirst = makeValues(18);
constexpr auto kSecond = makeValues(12);
constexpr auto kThird = makeValues(6);
constexpr auto kFourth = makeValues(0);

unsigned char codeOf(char character) { return static_cast<unsigned char>(character); }

/// Decodes whole groups; what was remarkable about any of their characters.
std::uint32_t decodeGroups(std::string_view characters, char* bytes) {
  std::uint32_t seen = 0;
  for (std::size_t at = 0; at + 4 <= characters.size(); at += 4) {
    const std::uint32_t group = kFirst[codeOf(characters[at])] | kSecond[codeOf(characters[at + 1])] |
                                kThird[codeOf(characters[at + 2])] | kFourth[codeOf(characters[at + 3])];
    seen |= group;
    *bytes++ = static_cast<char>(group >> 16 & 0xFF);
    *bytes++ = static_cast<char>(group >> 8 & 0xFF);
    *bytes++ = static_cast<char>(group & 0xFF);
  }
  return seen;
}

/// The characters without which bytes would be missing: the last group of some encoders ends with these.
std::size_t neededCharacters(std::size_t bytes) { return (bytes * 8 + 5) / 6; }

}  // namespace

void encodeUuGroups(std::string_view bytes, char* text) {
  for (std::size_t at = 0; at + 3 <= bytes.size(); at += 3) {
    const std::size_t group = static_cast<std::size_t>(codeOf(bytes[at])) << 16 |
                              static_cast<std::size_t>(codeOf(bytes[at + 1])) << 8 | codeOf(bytes[at + 2]);
    const Pair& high = kPairs[group >> 12];
    const Pair& low = kPairs[group & 0xFFF];
    *text++ = high[0];
    *text++ = high[1];
    *text++ = low[0];
    *text++ = low[1];
  }
}

UuMarks decodeUuLine(std::string_view characters, std::size_t size, char* bytes) {
  const std::size_t length = uuLength(size);
  std::uint32_t seen = 0;
  UuMarks marks;
  if (characters.size() >= length) {
    seen = decodeGroups(characters.substr(0, length), bytes);
    marks.surplus = characters.find_first_not_of(" `", length) != std::string_view::npos;
  } else {
    std::array<char, uuLength(kMostLineBytes)> completed{};
    std::fill(std::copy(characters.begin(), characters.end(), completed.begin()), completed.end(), ' ');
    seen = decodeGroups({completed.data(), length}, bytes) & ~kBlank;
    marks.blank = characters.find(' ') != std::string_view::npos;
    marks.incomplete = characters.size() < neededCharacters(size);
  }
  marks.foreign = (seen & kForeign) != 0;
  marks.blank = marks.blank || (seen & kBlank) != 0;
  marks.grave = (seen & kGrave) != 0;
  return marks;
}

}  // namespace tarnwick
