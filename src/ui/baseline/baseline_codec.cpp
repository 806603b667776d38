// SPDX-License-Identifier: MIT
#include "ui/baseline/baseline_codec.h"

#include "base/text.h"
#include "base/windows_1252.h"

namespace tarnwick {
namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr char16_t kNewlineSign = 0x2424;
constexpr char16_t kDeleteSign = 0x2421;

bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xD800; }
bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xDC00; }

// The text box keeps U+FDD0, U+FDD1, U+2028, U+2029 and U+FFFC for itself, and the others leave no mark on the screen.
char32_t standInFor(char32_t character) {
  if (character < 0x20 && character != U'\t') {
    return 0x2400 + character;
  }
  if (character == 0x7F) {
    return kDeleteSign;
  }
  if (character == 0x85 || character == 0x2028 || character == 0x2029) {
    return kNewlineSign;
  }
  const bool c1Control = character >= 0x80 && character <= 0x9F;
  const bool special = (character >= 0xFFF9 && character <= 0xFFFC) || (character & 0xFFFEU) == 0xFFFE;
  const bool frame = character >= 0xFDD0 && character <= 0xFDEF;
  return c1Control || special || frame || character == 0xFEFF ? kReplacement : character;
}

ShownUnit shownAs(char32_t character, std::size_t bytes) {
  if (character < 0x10000) {
    return {bytes, {static_cast<char16_t>(character)}, 1, false};
  }
  const char32_t above = character - 0x10000;
  return {bytes,
          {static_cast<char16_t>(0xD800 + (above >> 10U)), static_cast<char16_t>(0xDC00 + (above & 0x3FFU))},
          2,
          false};
}

struct Character {
  char32_t code;
  std::size_t units;
};

Character characterAt(std::u16string_view text, std::size_t offset) {
  const char16_t first = text[offset];
  if (isHighSurrogate(first) && offset + 1 < text.size() && isLowSurrogate(text[offset + 1])) {
    return {0x10000 + ((static_cast<char32_t>(first) & 0x3FFU) << 10U) + (text[offset + 1] & 0x3FFU), 2};
  }
  return {isHighSurrogate(first) || isLowSurrogate(first) ? kReplacement : first, 1};
}

}  // namespace

PageCharset charsetOf(std::string_view page) { return isUtf8(page) ? PageCharset::utf8 : PageCharset::windows1252; }

ShownUnit unitAt(std::string_view bytes, std::size_t offset, PageCharset charset) {
  const char byte = bytes[offset];
  if (byte >= 0x20 && byte < 0x7F) {
    return {1, {static_cast<char16_t>(byte)}, 1, false};
  }
  if (byte == '\n') {
    return {1, {u'\n'}, 1, true};
  }
  if (byte == '\r') {
    const bool lineFeedFollows = offset + 1 < bytes.size() && bytes[offset + 1] == '\n';
    return {lineFeedFollows ? std::size_t{2} : std::size_t{1}, {u'\n'}, 1, true};
  }
  if (charset == PageCharset::windows1252) {
    return shownAs(standInFor(characterOfWindows1252(static_cast<unsigned char>(byte))), 1);
  }
  const DecodedCharacter decoded = decodeUtf8(bytes.substr(offset)).value_or(DecodedCharacter{kReplacement, 1});
  return shownAs(standInFor(decoded.character), decoded.length);
}

std::vector<EncodedRun> encodeText(std::u16string_view text, PageCharset charset, std::string_view lineEnd) {
  std::vector<EncodedRun> runs;
  const auto runOf = [&](PageCharset wanted) -> std::string& {
    if (runs.empty() || runs.back().charset != wanted) {
      runs.push_back({{}, wanted});
    }
    return runs.back().bytes;
  };
  for (std::size_t offset = 0; offset < text.size();) {
    const Character character = characterAt(text, offset);
    offset += character.units;
    if (character.code == U'\n') {
      runOf(charset).append(lineEnd);
      continue;
    }
    const auto code = charset == PageCharset::windows1252 ? windows1252CodeOf(character.code) : std::nullopt;
    if (code) {
      runOf(charset).push_back(*code);
    } else {
      appendUtf8(runOf(PageCharset::utf8), character.code);
    }
  }
  return runs;
}

}  // namespace tarnwick
