// SPDX-License-Identifier: MIT
#include "base/windows_1252.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace tarnwick {
namespace {

// The characters of the codes 0x80 to 0x9F; all other codes are those of Unicode.
constexpr std::array<char32_t, 32> kHighCodes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

char32_t characterOfWindows1252(unsigned char code) {
  return code >= 0x80 && code <= 0x9F ? kHighCodes[code - 0x80U] : char32_t{code};
}

std::optional<char> windows1252CodeOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(static_cast<unsigned char>(character));
  }
  const auto* const found = std::find(kHighCodes.begin(), kHighCodes.end(), character);
  if (found == kHighCodes.end()) {
    return std::nullopt;
  }
  return static_cast<char>(static_cast<unsigned char>(0x80 + (found - kHighCodes.begin())));
}

std::string toWindows1252(std::string_view text) {
  std::string codes;
  codes.reserve(text.size());
  for (std::string_view rest = text; !rest.empty();) {
    const std::optional<DecodedCharacter> decoded = decodeUtf8(rest);
    if (!decoded) {
      return std::string(text);
    }
    codes.push_back(windows1252CodeOf(decoded->character).value_or('?'));
    rest.remove_prefix(decoded->length);
  }
  return codes;
}

}  // namespace tarnwick
