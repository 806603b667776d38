#include "base/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

std::optional<DecodedCharacter> decodeUtf8(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) {
    return DecodedCharacter{lead, 1};
  }
  std::size_t length = 0;
  char32_t character = 0;
  char32_t smallest = 0;
  if ((lead & 0xE0U) == 0xC0) {
    length = 2, character = lead & 0x1FU, smallest = 0x80;
  } else if ((lead & 0xF0U) == 0xE0) {
    length = 3, character = lead & 0x0FU, smallest = 0x800;
  } else if ((lead & 0xF8U) == 0xF0) {
    length = 4, character = lead & 0x07U, smallest = 0x10000;
  }
  if (length == 0 || text.size() < length) {
    return std::nullopt;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) {
      return std::nullopt;
    }
    character = (character << 6U) | (byte(i) & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < smallest || character > 0x10FFFF || surrogate) {
    return std::nullopt;
  }
  return DecodedCharacter{character, length};
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
