// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace tarnwick {

/// Which lines are removed and which are added.
struct LineMarks {
  std::vector<bool> removed;
  std::vector<bool> added;
};

/// The fewest lines that make `after` of `before`, up to some thousand; when there are more, what lies between the
/// lines that both have once.
LineMarks differingLines(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after);

}  // namespace tarnwick
