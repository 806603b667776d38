// SPDX-License-Identifier: MIT
#include "holes/hole_values.h"

#include <algorithm>

#include "base/text.h"
#include "holes/date_form.h"
#include "holes/numbers.h"

namespace tarnwick {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool isHex(char c) { return isDigit(c) || (lowerCase(c) >= 'a' && lowerCase(c) <= 'f'); }
bool isBase64(char c) { return isDigit(c) || isLetter(c) || std::string_view("+/=-_").find(c) != kNone; }
bool isHigh(char c) { return static_cast<unsigned char>(c) >= 0x80; }
bool isWords(char c) {
  return (static_cast<unsigned char>(c) >= 0x20 || c == '\t') && std::string_view("<>\"\x7F").find(c) == kNone;
}

bool dividesThousands(std::string_view text, std::size_t at, std::size_t digitsBefore) {
  if (digitsBefore == 0 || digitsBefore > 3 || std::string_view(",.'").find(text[at]) == kNone) {
    return false;
  }
  const std::string_view group = text.substr(at + 1, 4);
  return group.size() >= 3 && std::ranges::all_of(group.substr(0, 3), isDigit) &&
         (group.size() == 3 || !isDigit(group[3]));
}

std::size_t findNumber(const Hole& hole, std::string_view text, const char* next,
                       const std::function<bool(std::size_t)>& isRight) {
  std::size_t tried = kNone;
  for (const char* const stop : {next, static_cast<const char*>(nullptr)}) {
    const NumberFound number = numberAt(text, hole.form, stop);
    if (number.length != tried && number.digits >= hole.least && number.digits <= hole.most && isRight(number.length)) {
      return number.length;
    }
    tried = number.length;
  }
  return kNone;
}

std::size_t findChoice(const Hole& hole, std::string_view text, const std::function<bool(std::size_t)>& isRight) {
  for (const std::string& choice : hole.choices) {
    if (text.starts_with(choice) && isRight(choice.size())) {
      return choice.size();
    }
  }
  return kNone;
}

}  // namespace

bool isOfClass(HoleClass kind, char byte) {
  switch (kind) {
    case HoleClass::hex:
      return isHex(byte);
    case HoleClass::base64:
      return isBase64(byte);
    case HoleClass::letters:
      return isLetter(byte) || isHigh(byte);
    default:
      return isWords(byte);
  }
}

NumberFound numberAt(std::string_view text, std::string_view separators, const char* stop) {
  const auto isAmong = [&](std::string_view mark) { return separators.find(mark) != kNone; };
  const bool isSigned = !text.empty() && (text.front() == '-' || text.front() == '+') && isAmong(text.substr(0, 1));
  std::size_t at = isSigned ? 1 : 0;
  NumberFound found;
  std::size_t inGroup = 0;
  while (at < text.size()) {
    if (isDigit(text[at])) {
      ++found.digits;
      ++inGroup;
      found.length = ++at;
      continue;
    }
    const std::size_t mark = numberMarkAt(text.substr(at));
    if (mark == 0 || found.digits == 0 || (stop != nullptr && *stop == text[at])) {
      break;
    }
    const bool isSeparator = isAmong(text.substr(at, mark)) && at + mark < text.size() && isDigit(text[at + mark]);
    if (!isSeparator && !dividesThousands(text, at, inGroup)) {
      break;
    }
    inGroup = 0;
    at += mark;
  }
  return found;
}

bool fits(const Hole& hole, std::string_view value) {
  switch (hole.kind) {
    case HoleClass::anything:
      return value.size() >= hole.least && value.size() <= hole.most;
    case HoleClass::list:
      return std::ranges::find(hole.choices, value) != hole.choices.end();
    case HoleClass::date: {
      const auto read = readDate(value, hole.form);
      return read && read->length == value.size();
    }
    case HoleClass::digits: {
      const NumberFound number = numberAt(value, hole.form, nullptr);
      return number.length == value.size() && number.digits >= hole.least && number.digits <= hole.most;
    }
    default:
      return value.size() >= hole.least && value.size() <= hole.most &&
             std::ranges::all_of(value, [&](char c) { return isOfClass(hole.kind, c); });
  }
}

std::size_t findLength(const Hole& hole, std::string_view text, const char* next,
                       const std::function<bool(std::size_t)>& isRight) {
  switch (hole.kind) {
    case HoleClass::digits:
      return findNumber(hole, text, next, isRight);
    case HoleClass::list:
      return findChoice(hole, text, isRight);
    case HoleClass::date: {
      const auto read = readDate(text, hole.form);
      return read && isRight(read->length) ? read->length : kNone;
    }
    default:
      break;
  }
  const std::size_t most = std::min(hole.most, text.size());
  std::size_t run = 0;
  while (run < most && isOfClass(hole.kind, text[run])) {
    ++run;
  }
  if (run < hole.least) {
    return kNone;
  }
  const bool isClear = next == nullptr || !isOfClass(hole.kind, *next) || hole.least == hole.most;
  if (isClear) {
    return isRight(run) ? run : kNone;
  }
  for (std::size_t length = hole.least; length <= run; ++length) {
    if (text.size() > length && text[length] == *next && isRight(length)) {
      return length;
    }
  }
  return kNone;
}

}  // namespace tarnwick
