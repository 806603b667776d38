// SPDX-License-Identifier: MIT
#include "holes/page_text.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace tarnwick {
namespace {

/// Marks what was UTF-16: bytes that no UTF-8 has.
constexpr char kBigEndianMark = '\xFE';
constexpr char kLittleEndianMark = '\xFF';
constexpr std::size_t kLooked = 1024;
constexpr std::size_t kFewest = 16;

// The place of the high bytes: 0 in big endian, 1 in little endian.
std::optional<std::size_t> highBytes(std::string_view page) {
  if (page.size() < 2 || page.size() % 2 != 0) {
    return std::nullopt;
  }
  if (page.starts_with("\xFE\xFF")) {
    return 0;
  }
  if (page.starts_with("\xFF\xFE")) {
    return 1;
  }
  const std::string_view begin = page.substr(0, std::min(page.size(), kLooked));
  for (const std::size_t high : {0U, 1U}) {
    std::size_t zeros = 0;
    bool otherZeros = false;
    for (std::size_t i = 0; i + 1 < begin.size(); i += 2) {
      zeros += begin[i + high] == '\0' ? 1U : 0U;
      otherZeros = otherZeros || begin[i + 1 - high] == '\0';
    }
    if (begin.size() >= kFewest && !otherZeros && zeros * 4 > begin.size()) {  // half of all characters
      return high;
    }
  }
  return std::nullopt;
}

}  // namespace

std::string pageText(std::string_view page) {
  const auto high = highBytes(page);
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
