// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "holes/page_rule.h"

namespace tarnwick {

/// A part of a page.
struct ByteRange {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const ByteRange&) const = default;
};

/// What a rule finds in a page, given as `pageText` does: ordered, none empty, none touching another. Raises
/// std::runtime_error for a rule that cannot be understood. Takes time nearly in proportion to the page's length; on a
/// page for which it would take longer, or more memory, the rule finds nothing.
std::vector<ByteRange> foundBy(const PageRule& rule, std::string_view page);

/// Raises std::runtime_error, which names the rule, what is wrong with it and the remedy, for one that cannot be
/// understood, or not by this program, which may have been built without a library.
void checkRule(const PageRule& rule);

}  // namespace tarnwick
