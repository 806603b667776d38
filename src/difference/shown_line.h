// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "difference/byte_span.h"
#include "difference/page_form.h"

namespace tarnwick {

/// How a piece of a line is marked.
enum class ShownMark {
  none,
  word,  ///< of a word that has changed, but not itself
  byte,  ///< changed
};

/// Characters of a line that are marked alike, as UTF-8 for people.
struct ShownRun {
  std::string text;
  ShownMark mark = ShownMark::none;
  bool operator==(const ShownRun&) const = default;
};

/// A part of a page, at most a line, as it is shown: what would break the line or reorder it is written as an escape,
/// as in `visibleText`. A character of which some bytes are marked is marked. `words` and `bytes` are marks of the
/// whole page. With `invisible` blanks, tabs and line ends are shown, too; otherwise the line end is left out.
std::vector<ShownRun> shownLine(std::string_view page, ByteSpan line, PageForm form, const ByteSpans& words,
                                const ByteSpans& bytes, bool invisible);

/// The bytes that lie in both.
ByteSpans within(const ByteSpans& ranges, ByteSpan range);

/// Sixteen bytes of a page from `offset` on, fewer at its end, as the row of a hex dump: the offset, the bytes, and
/// what is ASCII of them. The bytes begin at column `kHexColumn`, three columns each.
std::string hexRow(std::string_view page, std::size_t offset);
inline constexpr std::size_t kHexColumn = 10;
inline constexpr std::size_t kHexBytes = 16;

}  // namespace tarnwick
