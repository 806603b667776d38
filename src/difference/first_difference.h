// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick {

/// The first place where two texts differ, line by line.
struct FirstDifference {
  std::size_t line = 0;  ///< counted from 1; 0 when the texts are equal
  std::string_view before;
  std::string_view after;  ///< the line of each text without its line feed; empty past the end of a text
};
FirstDifference firstDifference(std::string_view before, std::string_view after);

/// A line of a text.
struct LineOfText {
  std::size_t number = 0;  ///< counted from 1
  std::string_view text;   ///< without its line feed
  std::size_t column = 0;  ///< of the byte that it was asked for, in bytes from its beginning
};
/// The line in which the byte `at` of the text stands, which may be its end.
LineOfText lineAt(std::string_view text, std::size_t at);

/// How many bytes two texts have in common at their beginning.
std::size_t commonBytes(std::string_view one, std::string_view other);

}  // namespace tarnwick
