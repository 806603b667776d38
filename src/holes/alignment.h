// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A stretch of bytes that two texts have in common.
struct EqualStretch {
  std::size_t one = 0;
  std::size_t other = 0;
  std::size_t length = 0;
};

/// What two texts have in common, in the order of both: whole lines, and whole words and marks within the lines that
/// differ. What stands at another place in the second text is no part of it. Takes time nearly in proportion to the
/// texts' length; where they have too little in common, the rest counts as different.
std::vector<EqualStretch> alignTexts(std::string_view one, std::string_view other);

}  // namespace tarnwick
