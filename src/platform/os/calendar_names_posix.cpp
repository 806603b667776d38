#include <array>
#include <cstdint>
#include <ctime>
#include <cwchar>
#include <string_view>

#include "platform/os/calendar_names.h"

namespace tarnwick {
namespace {

/// UTF-8 of wide text that holds no surrogates: the names of days and months of all languages are in the first plane.
std::string utf8(std::wstring_view wide) {
  std::string bytes;
  const auto put = [&bytes](std::uint32_t byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
  for (const wchar_t character : wide) {
    const auto code = static_cast<std::uint32_t>(character);
    if (code < 0x80) {
      put(code);
    } else if (code < 0x800) {
      put(0xC0 | (code >> 6));
      put(0x80 | (code & 0x3F));
    } else {
      put(0xE0 | ((code >> 12) & 0x0F));
      put(0x80 | ((code >> 6) & 0x3F));
      put(0x80 | (code & 0x3F));
    }
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
