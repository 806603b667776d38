// SPDX-License-Identifier: MIT
#include "holes/date_words.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>

#include "base/text.h"
#include "holes/code_pages.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestWord = 40;

std::size_t firstOf(std::string_view text, std::span<const std::string_view> words) {
  for (const std::string_view word : words) {
    if (text.size() >= word.size() && lowerCase(text.front()) == lowerCase(word.front()) &&
        equalsIgnoringCase(text.substr(0, word.size()), word)) {
      return word.size();
    }
  }
  return 0;
}

bool endsWord(std::string_view text, std::size_t at) { return at >= text.size() || !isLetter(text[at]); }

constexpr std::size_t kLongestWithoutBlanks = 3;  // characters

/// A character of East Asia, in any code that is usual there.
struct EastAsianCharacter {
  char32_t character;
  std::size_t length;
};

std::optional<EastAsianCharacter> inCode(std::string_view text, std::size_t code) {
  if (code < kEastAsianCodes) {
    const auto character = eastAsianAt(text, code);
    return character ? std::optional(EastAsianCharacter{*character, 2}) : std::nullopt;
  }
  const auto decoded = decodeUtf8(text);
  return decoded && decoded->character >= 0x3000
             ? std::optional(EastAsianCharacter{decoded->character, decoded->length})
             : std::nullopt;
}

// Chinese, Japanese and Korean stand without blanks.
DateWord nameWithoutBlanks(std::string_view text) {
  for (std::size_t code = kEastAsianCodes + 1; code-- > 0;) {  // UTF-8 first
    DateWord longest;
    std::string characters;
    std::size_t length = 0;
    for (std::size_t count = 0; count < kLongestWithoutBlanks; ++count) {
      const auto next = inCode(text.substr(length), code);
      if (!next) {
        break;
      }
      appendUtf8(characters, next->character);
      length += next->length;
      if (const DateName name = dateNameOf(characters)) {
        longest = {length, name};
      }
    }
    if (longest.length > 0) {
      return longest;
    }
  }
  return {};
}

DateWord wordOfLetters(std::string_view text) {
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
  DateName name = dateNameOf(word);
  if (!name && word.find('-') != std::string_view::npos) {  // "22-nov-2026"
    word = word.substr(0, word.find('-'));
    name = dateNameOf(word);
  }
  const std::size_t end = word.size();
  return {end + (name && end < text.size() && text[end] == '.' ? 1 : 0), name};
}

}  // namespace

DateWord dateWordAt(std::string_view text) {
  if (text.empty()) {
    return {};
  }
  if (static_cast<unsigned char>(text.front()) < 0x80) {
    return wordOfLetters(text);
  }
  const DateWord without = nameWithoutBlanks(text);
  if (inCode(text, kEastAsianCodes)) {
    return without;
  }
  const DateWord letters = wordOfLetters(text);
  return without.length > 0 && (!letters.name || letters.length <= without.length) ? without : letters;
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

std::size_t dayCountAt(std::string_view text) {
  static constexpr std::array<std::string_view, 14> kUnits = {
      "days", "day", "tage", "tag", "jours", "jour", "dagen", "dag", "giorni", "giorno", "días", "día", "dias", "dia"};
  std::size_t length = 0;
  while (length < text.size() && isDigit(text[length])) {
    ++length;
  }
  if (length == 0 || length > 6) {
    return 0;
  }
  length += blanksAt(text.substr(length));
  const std::size_t unit = firstOf(text.substr(length), kUnits);
  return unit > 0 && endsWord(text, length + unit) ? length + unit : 0;
}

std::size_t ordinalAt(std::string_view text) {
  static constexpr std::array<std::string_view, 8> kEnds = {"st", "nd", "rd", "th", "er", "ème", "º", "ª"};
  const std::size_t length = firstOf(text, kEnds);
  return endsWord(text, length) ? length : 0;
}

std::size_t counterAt(std::string_view text, Counter counter) {
  static constexpr std::array<std::u32string_view, 6> kCounters = {U"年년",     U"月월", U"日일号號",
                                                                   U"時시时点", U"分분", U"秒초"};
  if (text.empty() || static_cast<unsigned char>(text.front()) < 0x80) {
    return 0;
  }
  for (std::size_t code = kEastAsianCodes + 1; code-- > 0;) {
    const auto next = inCode(text, code);
    if (next && kCounters[static_cast<std::size_t>(counter)].find(next->character) != std::u32string_view::npos) {
      return next->length;
    }
  }
  return 0;
}

}  // namespace tarnwick
