// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// What the arguments of the window's program ask for instead of a window.
struct WindowAnswer {
  std::string text;
  /// The text complains of an argument.
  bool isComplaint = false;
};

/// What is to be said for these arguments (without the program's name); nothing when the window is to be opened.
/// The options of the toolkit are none of ours, and left to it.
std::optional<WindowAnswer> answerTo(const std::vector<std::string>& arguments);

}  // namespace tarnwick
