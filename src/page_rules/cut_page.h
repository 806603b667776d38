// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "holes/page_rule.h"
#include "page_rules/found_ranges.h"

namespace tarnwick {

/// What is left of a page to be compared.
struct CutPage {
  std::string text;
  /// What of the page it is made of; in `text` they follow one another, with `gap` bytes in between.
  std::vector<ByteRange> kept;
  std::size_t gap = 0;
  /// The rules, by their places, that have found nothing.
  std::vector<std::size_t> idle;

  /// The place in the page that a place in `text` comes from.
  std::size_t inPage(std::size_t at) const;
};

/// Cuts a page, given as `pageText` does, by the rules: keeps what one of those finds that say what to compare, or all
/// where there is none, without what one of the others finds. Raises as `foundBy`.
CutPage cut(std::string_view page, const std::vector<PageRule>& rules);

/// The holes that lie in what is left, at their places in `text`.
Holes holesLeft(const CutPage& page, const Holes& holes);

}  // namespace tarnwick
