// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

/// How uuencoded text holds bytes: groups of three bytes as four characters of six bits each, on lines that begin with
/// their length in bytes. Six bits are the character with their value + 32, except that 0 is a grave accent.
inline constexpr std::size_t kUuLineBytes = 45;
/// The bytes that are encoded at a time: 40 full lines.
inline constexpr std::size_t kUuBlockBytes = 1800;

/// What stands for six zero bits: a blank would be lost at a line's end.
inline constexpr char kUuZero = '`';

/// The character of a value from 0 to 63; of a line's length too.
constexpr char uuCharacter(std::size_t value) { return value == 0 ? kUuZero : static_cast<char>(value + 32); }

/// The value of a character, or -1 when it is none of the alphabet.
constexpr int uuValue(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code < 32 || code > 96 ? -1 : (code - 32) % 64;
}

/// The characters of `bytes` bytes, in whole groups.
constexpr std::size_t uuLength(std::size_t bytes) { return (bytes + 2) / 3 * 4; }

/// Writes the characters of `bytes` to `text`, which holds `uuLength(bytes.size())`. The size is a multiple of three.
void encodeUuGroups(std::string_view bytes, char* text);

/// What was met on a line.
struct UuMarks {
  bool foreign = false;     ///< a character that is none of the alphabet
  bool blank = false;       ///< zero bits as a blank
  bool grave = false;       ///< zero bits as a grave accent
  bool incomplete = false;  ///< characters missing at the end, read as zero bits: blanks are often stripped there
  bool surplus = false;     ///< characters beyond the last group other than blanks and grave accents
};

/// Decodes `size` bytes (at most 255) from a line's characters, which follow its length and end before the line end.
/// `bytes` has room for whole groups, three bytes each. With a foreign character its content is meaningless.
UuMarks decodeUuLine(std::string_view characters, std::size_t size, char* bytes);

}  // namespace tarnwick
