// SPDX-License-Identifier: MIT
#include <array>
#include <ctime>
#include <cwchar>
#include <string_view>

#include "base/text.h"
#include "platform/os/calendar_names.h"

namespace tarnwick {
namespace {

/// UTF-8 of the characters of wide text, each of which is one of its own here.
std::string utf8(std::wstring_view wide) {
  std::string bytes;
  for (const wchar_t character : wide) {
    appendUtf8(bytes, static_cast<char32_t>(character));
  }
  return bytes;
}

/// The wide form knows the names as characters, where the narrow one gives bytes of the locale's character set.
std::string localName(const wchar_t* format, const std::tm& fields) {
  std::array<wchar_t, 128> name{};
  const std::size_t length = std::wcsftime(name.data(), name.size(), format, &fields);
  return utf8({name.data(), length});
}

}  // namespace

std::string weekdayName(std::chrono::weekday day) {
  std::tm fields{};
  fields.tm_wday = static_cast<int>(day.c_encoding());
  return localName(L"%A", fields);
}

std::string monthName(std::chrono::month month) {
  std::tm fields{};
  fields.tm_mon = static_cast<int>(static_cast<unsigned>(month)) - 1;
  return localName(L"%B", fields);
}

}  // namespace tarnwick
