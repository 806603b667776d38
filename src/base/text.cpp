// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>

namespace tarnwick {

std::string lowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](char c) { return lowerCase(c); });
  return text;
}

std::string upperCase(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return text;
}

bool equalsIgnoringCase(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

std::string_view trimmed(std::string_view text, std::string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
  return text.substr(0, text.find_last_not_of(characters) + 1);
}

void appendPercentEncoded(std::string& text, char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(byte);
  text += {'%', kDigits[code >> 4U], kDigits[code & 0xFU]};
}

std::optional<DecodedCharacter> decodeUtf8(std::string_view text) {
  if (text.empty()) {
    return std::nullopt;
  }
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) {
    return DecodedCharacter{lead, 1};
  }
  DecodedCharacter decoded{};
  char32_t smallest = 0;
  if ((lead & 0xE0U) == 0xC0) {
    decoded = {lead & 0x1FU, 2}, smallest = 0x80;
  } else if ((lead & 0xF0U) == 0xE0) {
    decoded = {lead & 0x0FU, 3}, smallest = 0x800;
  } else if ((lead & 0xF8U) == 0xF0) {
    decoded = {lead & 0x07U, 4}, smallest = 0x10000;
  }
  if (decoded.length == 0 || text.size() < decoded.length) {
    return std::nullopt;
  }
  for (const char byte : text.substr(1, decoded.length - 1)) {
    if (!continuesCharacter(byte)) {
      return std::nullopt;
    }
    decoded.character = (decoded.character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  const bool surrogate = decoded.character >= 0xD800 && decoded.character <= 0xDFFF;
  if (decoded.character < smallest || decoded.character > 0x10FFFF || surrogate) {
    return std::nullopt;
  }
  return decoded;
}

void appendUtf8(std::string& text, char32_t character) {
  const auto append = [&](char32_t byte) { text.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
  if (character < 0x80) {
    append(character);
    return;
  }
  if (character < 0x800) {
    append(0xC0U | (character >> 6U));
  } else {
    if (character < 0x10000) {
      append(0xE0U | (character >> 12U));
    } else {
      append(0xF0U | (character >> 18U));
      append(0x80U | ((character >> 12U) & 0x3FU));
    }
    append(0x80U | ((character >> 6U) & 0x3FU));
  }
  append(0x80U | (character & 0x3FU));
}

bool isUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (static_cast<unsigned char>(text[at]) < 0x80) {
      ++at;  // most of a page, which may have many megabytes
      continue;
    }
    const auto decoded = decodeUtf8(text.substr(at));
    if (!decoded) {
      return false;
    }
    at += decoded->length;
  }
  return true;
}

}  // namespace tarnwick
