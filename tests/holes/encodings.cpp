// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "holes/generated_page.h"

namespace tarnwick::generated {
namespace {

/// The next character of valid UTF-8, which is taken off.
char32_t taken(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  char32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    character = (character << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  text.remove_prefix(length);
  return character;
}

void addUnit(std::string& bytes, char32_t unit, bool low) {
  const auto lower = static_cast<char>(unit & 0xFFU);
  const auto upper = static_cast<char>((unit >> 8U) & 0xFFU);
  bytes += low ? lower : upper;
  bytes += low ? upper : lower;
}

void addUtf16(std::string& bytes, char32_t character, bool low) {
  if (character >= 0x10000) {
    addUnit(bytes, 0xD800 + ((character - 0x10000) >> 10U), low);
    addUnit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FFU), low);
  } else {
    addUnit(bytes, character, low);
  }
}

[[noreturn]] void missing(char32_t character) {
  throw std::logic_error("no such character in the encoding: " + std::to_string(static_cast<unsigned>(character)));
}

/// What the Japanese pages have beyond kana: characters of their dates and a few words.
unsigned kanji(char32_t character) {
  static const std::map<char32_t, unsigned> codes{
      {U'年', 0x944E}, {U'月', 0x8C8E}, {U'日', 0x93FA}, {U'時', 0x8E9E}, {U'分', 0x95AA}, {U'秒', 0x9562},
      {U'曜', 0x976A}, {U'火', 0x89CE}, {U'水', 0x9085}, {U'木', 0x96D8}, {U'金', 0x8BE0}, {U'土', 0x9379},
      {U'、', 0x8141}, {U'。', 0x8142}, {U'ー', 0x815B}, {U'本', 0x967B}, {U'人', 0x906C}, {U'大', 0x91E5}};
  const auto found = codes.find(character);
  if (found == codes.end()) {
    missing(character);
  }
  return found->second;
}

void addShiftJis(std::string& bytes, char32_t character) {
  unsigned code = 0;
  if (character >= 0x3041 && character <= 0x3093) {  // hiragana
    code = 0x829F + static_cast<unsigned>(character - 0x3041);
  } else if (character >= 0x30A1 && character <= 0x30F6) {  // katakana, with a gap at the byte of DEL
    const auto place = static_cast<unsigned>(character - 0x30A1);
    code = 0x8340 + place + (place >= 0x3F ? 1 : 0);
  } else {
    code = kanji(character);
  }
  addUnit(bytes, code, false);
}

char32_t cyrillic(char32_t character, Encoding encoding) {
  if (character < 0x410 || character > 0x44F) {
    missing(character);
  }
  if (encoding == Encoding::windows1251) {
    return character - 0x410 + 0xC0;
  }
  // KOI8 has the letters in the order of the Latin ones that sound alike, small before large.
  constexpr std::string_view kSmall =
      "\xC1\xC2\xD7\xC7\xC4\xC5\xD6\xDA\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD0\xD2\xD3\xD4\xD5\xC6\xC8\xC3\xDE\xDB\xDD\xDF\xD9"
      "\xD8\xDC\xC0\xD1";
  const bool large = character < 0x430;
  const auto small = static_cast<unsigned char>(kSmall[character - (large ? 0x410 : 0x430)]);
  return large ? small + 0x20U : small;
}

void addByte(std::string& bytes, char32_t character, Encoding encoding) {
  if (encoding == Encoding::windows1252) {
    if (character == U'€') {
      character = 0x80;
    } else if (character == U'–') {
      character = 0x96;
    } else if (character > 0xFF) {
      missing(character);
    }
  } else {
    character = cyrillic(character, encoding);
  }
  bytes += static_cast<char>(character);
}

}  // namespace

std::string encoded(std::string_view utf8, Encoding encoding) {
  if (encoding == Encoding::utf8) {
    return std::string(utf8);
  }
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t character = taken(utf8);
    if (encoding == Encoding::utf16le || encoding == Encoding::utf16be) {
      addUtf16(bytes, character, encoding == Encoding::utf16le);
    } else if (character < 0x80) {
      bytes += static_cast<char>(character);
    } else if (encoding == Encoding::shiftJis) {
      addShiftJis(bytes, character);
    } else {
      addByte(bytes, character, encoding);
    }
  }
  return bytes;
}

}  // namespace tarnwick::generated
