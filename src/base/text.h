// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// What stands around a line of a file or of a protocol without meaning anything.
inline constexpr std::string_view kWhiteSpace = " \t\r\n";

// Letters and digits are those of ASCII, whatever the locale; all other bytes stay as they are.

constexpr char lowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
std::string lowerCase(std::string text);
std::string upperCase(std::string text);
constexpr bool isLetter(char c) { return lowerCase(c) >= 'a' && lowerCase(c) <= 'z'; }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool equalsIgnoringCase(std::string_view one, std::string_view other);

/// The text without the given characters at its two ends.
std::string_view trimmed(std::string_view text, std::string_view characters = kWhiteSpace);

/// Adds a byte as the percent sign and two digits that addresses and forms have for it.
void appendPercentEncoded(std::string& text, char byte);

/// A character and the number of bytes that it takes up, from 1 to 4.
struct DecodedCharacter {
  char32_t character;
  std::size_t length;
};

/// The character at the start of `text`; nothing when the text is empty or does not begin with a well-formed character
/// of UTF-8 (the Unicode Standard, table 3-7).
std::optional<DecodedCharacter> decodeUtf8(std::string_view text);

/// Adds a character, which is none of the surrogates, as UTF-8.
void appendUtf8(std::string& text, char32_t character);

/// Whether the whole text is well-formed UTF-8.
bool isUtf8(std::string_view text);

/// Whether the byte is in UTF-8 the second, third or fourth one of a character.
constexpr bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

}  // namespace tarnwick
