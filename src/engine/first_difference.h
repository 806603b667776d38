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

/// How many bytes two texts have in common at their beginning.
std::size_t commonBytes(std::string_view one, std::string_view other);

}  // namespace tarnwick
