// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One line of a unified diff: its mark (' ', '-', '+', '@' for a hunk's head, '\\' for the note that a last line has
/// no line feed) and its text without the mark and the line feed.
struct DiffLine {
  char mark;
  std::string_view text;
};
using DiffSink = std::function<void(const DiffLine&)>;

/// Hands the hunks that turn `before` into `after` to `sink`, with three lines of context; nothing when they are equal.
/// The difference is minimal up to some thousand changed lines; beyond that what differs in the middle is replaced as
/// a whole, and beyond some million lines without context. The texts of the lines last for the call.
void unifiedDiff(std::string_view before, std::string_view after, const DiffSink& sink);

}  // namespace tarnwick
