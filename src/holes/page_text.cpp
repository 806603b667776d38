// SPDX-License-Identifier: MIT
#include "holes/page_text.h"

#include "base/text.h"
#include "base/utf16_order.h"

namespace tarnwick {
namespace {

/// Marks what was UTF-16: bytes that no UTF-8 has.
constexpr char kBigEndianMark = '\xFE';
constexpr char kLittleEndianMark = '\xFF';

}  // namespace

std::string pageText(std::string_view page) {
  const auto high = utf16HighBytes(page);
  if (!high) {
    return std::string(page);
  }
  const auto unitAt = [&](std::size_t at) {
    return static_cast<char32_t>(static_cast<unsigned char>(page[at + *high]) << 8U |
                                 static_cast<unsigned char>(page[at + 1 - *high]));
  };
  std::string text(1, *high == 0 ? kBigEndianMark : kLittleEndianMark);
  text.reserve(page.size());
  for (std::size_t at = 0; at < page.size(); at += 2) {
    char32_t character = unitAt(at);
    if (character >= 0xD800 && character < 0xE000) {
      const char32_t second = at + 3 < page.size() ? unitAt(at + 2) : 0;
      if (character >= 0xDC00 || second < 0xDC00 || second >= 0xE000) {
        return std::string(page);
      }
      character = 0x10000 + ((character - 0xD800) << 10U) + (second - 0xDC00);
      at += 2;
    }
    appendUtf8(text, character);
  }
  return text;
}

}  // namespace tarnwick
