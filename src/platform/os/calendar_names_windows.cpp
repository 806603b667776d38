// SPDX-License-Identifier: MIT
#include <windows.h>

#include "platform/os/calendar_names.h"
#include "platform/os/windows_text.h"

namespace tarnwick {
namespace {

std::string userName(LCTYPE first, unsigned index) {
  // Longer than any name of a day or a month, by the system's own word.
  wchar_t name[80]{};
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, first + index, name, 80);
  return utf8Of(name);
}

}  // namespace

std::string weekdayName(std::chrono::weekday day) {
  // The system's week begins on Monday.
  return userName(LOCALE_SDAYNAME1, day.iso_encoding() - 1);
}

std::string monthName(std::chrono::month month) {
  return userName(LOCALE_SMONTHNAME1, static_cast<unsigned>(month) - 1);
}

}  // namespace tarnwick
