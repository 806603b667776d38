// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// What a word in a date means.
struct DateName {
  enum class Kind { month, weekday };

  Kind kind;
  int number;  ///< from 1: January, Monday
};

/// The month or the weekday of that name, whole or shortened, in upper or lower case, in any of the languages that are
/// known; nothing for another word. `word` is UTF-8.
std::optional<DateName> dateNameOf(std::string_view word);

}  // namespace tarnwick
