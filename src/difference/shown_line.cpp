// SPDX-License-Identifier: MIT
#include "difference/shown_line.h"

#include <algorithm>

#include "base/text.h"
#include "base/visible_text.h"
#include "base/windows_1252.h"

namespace tarnwick {
namespace {

struct Character {
  char32_t code = 0;
  std::size_t length = 1;
  bool isByte = false;  ///< none of the form, but a byte that has to be escaped
};

Character utf8At(std::string_view text) {
  const auto decoded = decodeUtf8(text);
  return decoded ? Character{decoded->character, decoded->length}
                 : Character{static_cast<unsigned char>(text.front()), 1, true};
}

Character utf16At(std::string_view text, std::size_t high) {
  const auto unitAt = [&](std::size_t at) {
    return static_cast<char32_t>(static_cast<unsigned char>(text[at + high]) << 8U |
                                 static_cast<unsigned char>(text[at + 1 - high]));
  };
  if (text.size() < 2) {
    return {static_cast<unsigned char>(text.front()), 1, true};
  }
  const char32_t first = unitAt(0);
  if (first < 0xD800 || first >= 0xE000) {
    return {first, 2};
  }
  const char32_t second = first < 0xDC00 && text.size() >= 4 ? unitAt(2) : 0;
  if (second < 0xDC00 || second >= 0xE000) {
    return {static_cast<unsigned char>(text.front()), 1, true};
  }
  return {0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00), 4};
}

Character characterAt(std::string_view text, PageForm form) {
  switch (form) {
    case PageForm::utf8:
      return utf8At(text);
    case PageForm::utf16Big:
      return utf16At(text, 0);
    case PageForm::utf16Little:
      return utf16At(text, 1);
    case PageForm::windows1252:
    case PageForm::binary:
      break;
  }
  return {characterOfWindows1252(static_cast<unsigned char>(text.front())), 1};
}

std::string escaped(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    text.append("\\x").append(1, kDigits[value >> 4U]).append(1, kDigits[value & 0xFU]);
  }
  return text;
}

std::string shown(const Character& character, std::string_view bytes, bool invisible) {
  switch (character.code) {
    case '\n':
      return invisible ? "\u00b6" : "";
    case '\r':
      return invisible ? "\u240d" : "";
    case '\t':
      return invisible ? "\u2192\t" : "\t";
    case ' ':
      return invisible ? "\u00b7" : " ";
    default:
      break;
  }
  if (character.isByte) {
    return escaped(bytes);
  }
  std::string text;
  appendUtf8(text, character.code);
  return movesTheCursor(character.code) ? visibleText(text) : text;
}

/// Walks along marks, from one character to the next.
class Marks {
 public:
  explicit Marks(const ByteSpans& ranges, std::size_t from)
      : next_(std::ranges::upper_bound(ranges, from, {}, &ByteSpan::end)), end_(ranges.end()) {}

  bool touch(ByteSpan range) {
    while (next_ != end_ && next_->end <= range.begin) {
      ++next_;
    }
    return next_ != end_ && next_->begin < range.end;
  }

 private:
  ByteSpans::const_iterator next_;
  ByteSpans::const_iterator end_;
};

}  // namespace

std::vector<ShownRun> shownLine(std::string_view page, ByteSpan line, PageForm form, const ByteSpans& words,
                                const ByteSpans& bytes, bool invisible) {
  std::vector<ShownRun> runs;
  Marks inWords(words, line.begin);
  Marks inBytes(bytes, line.begin);
  for (std::size_t at = line.begin; at < line.end;) {
    const std::string_view rest = page.substr(at, line.end - at);
    Character character = characterAt(rest, form);
    // A line feed of the line's own ends it, and a carriage return before it belongs to that.
    const bool isLoneReturn = character.code == '\r' && at + 2 * character.length < line.end;
    const ByteSpan range{at, at + character.length};
    const ShownMark mark = inBytes.touch(range)   ? ShownMark::byte
                           : inWords.touch(range) ? ShownMark::word
                                                  : ShownMark::none;
    std::string text = isLoneReturn && !invisible ? "\\r" : shown(character, range.of(page), invisible);
    if (runs.empty() || runs.back().mark != mark) {
      runs.push_back({"", mark});
    }
    runs.back().text += text;
    at = range.end;
  }
  std::erase_if(runs, [](const ShownRun& run) { return run.text.empty(); });
  return runs;
}

ByteSpans within(const ByteSpans& ranges, ByteSpan range) {
  ByteSpans cut;
  for (auto next = std::ranges::upper_bound(ranges, range.begin, {}, &ByteSpan::end);
       next != ranges.end() && next->begin < range.end; ++next) {
    append(cut, {std::max(next->begin, range.begin), std::min(next->end, range.end)});
  }
  return cut;
}

std::string hexRow(std::string_view page, std::size_t offset) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const std::string_view bytes = page.substr(std::min(offset, page.size()), kHexBytes);
  std::string row(kHexColumn + 3 * kHexBytes + 1, ' ');
  for (std::size_t i = 0; i < 8; ++i) {
    row[7 - i] = kDigits[(offset >> (4 * i)) & 0xFU];
  }
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto value = static_cast<unsigned char>(bytes[i]);
    row[kHexColumn + 3 * i] = kDigits[value >> 4U];
    row[kHexColumn + 3 * i + 1] = kDigits[value & 0xFU];
    row += value >= ' ' && value < 0x7F ? bytes[i] : '.';
  }
  return row;
}

}  // namespace tarnwick
