// SPDX-License-Identifier: MIT
#include "holes/date_words.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestWord = 40;

std::size_t firstOf(std::string_view text, std::span<const std::string_view> words) {
  for (const std::string_view word : words) {
    if (text.size() >= word.size() && equalsIgnoringCase(text.substr(0, word.size()), word)) {
      return word.size();
    }
  }
  return 0;
}

bool endsWord(std::string_view text, std::size_t at) { return at >= text.size() || !isLetter(text[at]); }

// Chinese, Japanese and Korean stand without blanks; a character of theirs takes three bytes.
bool isWithoutBlanks(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  return lead >= 0xE3 && lead <= 0xED;
}

}  // namespace

DateWord dateWordAt(std::string_view text) {
  if (text.empty()) {
    return {};
  }
  if (isWithoutBlanks(text)) {
    for (const std::size_t length : {9U, 6U, 3U}) {
      if (const auto name = dateNameOf(text.substr(0, length)); name && text.size() >= length) {
        return {length, name};
      }
    }
    return {};
  }
  std::size_t length = 0;
  const auto isPart = [&](std::size_t at) {
    const char c = text[at];
    return isLetter(c) || static_cast<unsigned char>(c) >= 0x80 ||
           (c == '-' && at > 0 && at + 1 < text.size() && isLetter(text[at + 1]));  // segunda-feira
  };
  while (length < std::min(text.size(), kLongestWord) && isPart(length) && blanksAt(text.substr(length)) == 0) {
    ++length;
  }
  if (length == 0) {
    return {};
  }
  std::string_view word = text.substr(0, length);
  auto name = dateNameOf(word);
  if (!name && word.find('-') != std::string_view::npos) {  // "22-nov-2026"
    word = word.substr(0, word.find('-'));
    name = dateNameOf(word);
  }
  const std::size_t end = word.size();
  return {end + (name && end < text.size() && text[end] == '.' ? 1 : 0), name};
}

std::size_t halfDayAt(std::string_view text) {
  static constexpr std::array<std::string_view, 12> kWords = {"a.m.", "p.m.", "a. m.", "p. m.", "am",   "pm",
                                                              "午前", "午後", "上午",  "下午",  "오전", "오후"};
  const std::size_t length = firstOf(text, kWords);
  return endsWord(text, length) ? length : 0;
}

std::size_t zoneAt(std::string_view text) {
  static constexpr std::array<std::string_view, 22> kZones = {"UTC", "GMT", "CEST", "CET", "BST", "EEST", "EET", "WEST",
                                                              "WET", "EST", "EDT",  "CST", "CDT", "MST",  "MDT", "PST",
                                                              "PDT", "MEZ", "MESZ", "MSK", "JST", "IST"};
  if (text.empty()) {
    return 0;
  }
  if (text.front() == '(') {
    const std::size_t inner = zoneAt(text.substr(1));
    return inner > 0 && inner + 1 < text.size() && text[inner + 1] == ')' ? inner + 2 : 0;
  }
  const auto hasDigits = [&](std::size_t at, std::size_t count) {
    return at + count <= text.size() && std::ranges::all_of(text.substr(at, count), isDigit);
  };
  if (text.front() == '+' || text.front() == '-') {
    const std::size_t minutes = text.size() > 3 && text[3] == ':' ? 4 : 3;
    return !hasDigits(1, 2) ? 0 : hasDigits(minutes, 2) ? minutes + 2 : 3;
  }
  std::size_t length = text.front() == 'Z' ? 1 : 0;
  for (const std::string_view zone : kZones) {
    if (text.starts_with(zone) && endsWord(text, zone.size())) {
      length = zone.size();
    }
  }
  if (length >= 3 && length < text.size() && (text[length] == '+' || text[length] == '-')) {
    length += zoneAt(text.substr(length));  // GMT+0100
  }
  return endsWord(text, length) ? length : 0;
}

std::size_t blanksAt(std::string_view text) {
  static constexpr std::array<std::string_view, 5> kBlanks = {" ", "\t", "\u00A0", "\u202F", "&nbsp;"};
  std::size_t length = 0;
  while (const std::size_t more = firstOf(text.substr(length), kBlanks)) {
    length += more;
  }
  return length;
}

std::size_t ordinalAt(std::string_view text) {
  static constexpr std::array<std::string_view, 8> kEnds = {"st", "nd", "rd", "th", "er", "ème", "º", "ª"};
  const std::size_t length = firstOf(text, kEnds);
  return endsWord(text, length) ? length : 0;
}

// UTF-8, Shift-JIS, EUC-JP, GBK, Big5.
std::size_t counterAt(std::string_view text, Counter counter) {
  static constexpr std::array<std::array<std::string_view, 8>, 6> kCounters = {{
      {"年", "년", "\x94\x4E", "\xC7\xAF", "\xC4\xEA", "\xA6\x7E", "年", "年"},
      {"月", "월", "\x8C\x8E", "\xB7\xEE", "\xD4\xC2", "\xA4\xEB", "月", "月"},
      {"日", "일", "\x93\xFA", "\xC6\xFC", "\xC8\xD5", "\xA4\xE9", "号", "號"},
      {"時", "시", "\x8E\x9E", "\xBB\xFE", "\xCA\xB1", "\xAE\xC9", "时", "点"},
      {"分", "분", "\x95\xAA", "\xCA\xAC", "\xB7\xD6", "\xA4\xC0", "分", "分"},
      {"秒", "초", "\x95\x62", "\xC9\xC3", "\xC3\xEB", "\xAC\xED", "秒", "秒"},
  }};
  return firstOf(text, kCounters[static_cast<std::size_t>(counter)]);
}

}  // namespace tarnwick
