// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tarnwick {

/// What a word in a date means: a month, a day of the week, or either, as "mar" does in French.
struct DateName {
  int month = 0;    ///< from 1 on, January; 0 for none
  int weekday = 0;  ///< from 1 on, Monday; 0 for none

  explicit operator bool() const { return month > 0 || weekday > 0; }
};

/// The month or the weekday of that name, whole or shortened, in upper or lower case, in any of the languages that are
/// known; none for another word. `word` is in UTF-8 or in one of the codes with a byte for each letter.
DateName dateNameOf(std::string_view word);

}  // namespace tarnwick
