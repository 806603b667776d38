// SPDX-License-Identifier: MIT
#include "base/visible_text.h"

#include <array>
#include <cstdio>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kCut = "...";

std::string escapeOf(unsigned char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      break;
  }
  std::array<char, 5> escape{};
  std::snprintf(escape.data(), escape.size(), "\\x%02x", byte);
  return escape.data();
}

}  // namespace

bool movesTheCursor(char32_t character) {
  const auto within = [&](char32_t from, char32_t to) { return character >= from && character <= to; };
  return character < 0x20 || within(0x7f, 0x9f) || character == 0x61c || within(0x200e, 0x200f) ||
         within(0x2028, 0x202e) || within(0x2066, 0x2069);
}

std::string visibleText(std::string_view bytes, std::size_t longest) {
  std::string shown;
  std::size_t count = 0;
  std::size_t cutAt = 0;  // where the text is cut should it turn out to be too long
  while (!bytes.empty()) {
    const auto decoded = decodeUtf8(bytes);
    const std::string_view character = bytes.substr(0, decoded ? decoded->length : 1);
    std::string piece;
    if (!decoded || movesTheCursor(decoded->character)) {
      for (const char byte : character) {
        piece += escapeOf(static_cast<unsigned char>(byte));
      }
    } else {
      piece = character;
    }
    const std::size_t width = decoded && piece.size() == character.size() ? 1 : piece.size();
    if (count + width > longest) {
      return shown.substr(0, cutAt) + std::string(kCut.substr(0, longest));
    }
    shown += piece;
    count += width;
    if (count + kCut.size() <= longest) {
      cutAt = shown.size();
    }
    bytes.remove_prefix(character.size());
  }
  return shown;
}

}  // namespace tarnwick
