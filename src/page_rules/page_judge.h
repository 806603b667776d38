// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "holes/page_rule.h"

namespace tarnwick {

/// How a page stands to its baseline by the rules of its site.
struct PageVerdict {
  bool same = false;
  /// The first difference, in the baseline and in the page as `pageText` gives them; of no meaning when they are the
  /// same.
  std::size_t baselineAt = 0;
  std::size_t pageAt = 0;
  /// What must be told beside the verdict, in words for people: a rule that found nothing watches nothing. Empty when
  /// there is nothing to tell.
  std::string remark{};
};

/// Where the holes lie in a baseline, given as `pageText` does: where they are said to lie, as long as what stands
/// around them there is what stood around them when they were made; else where that is found.
PlacedHoles holesOf(std::string_view baseline, const Holes& holes);

/// The page with what the baseline has in those holes that are found in it: what then differs is a difference. Both as
/// `pageText` gives them, the holes as they lie in the baseline.
std::string withoutVariation(std::string_view baseline, const Holes& holes, std::string_view page);

/// A baseline and a page as they differ by a rule set, for people who read the difference.
struct ShownPages {
  std::string before;
  std::string now;
};
/// The page has what the baseline has where rules leave something out and where it may vary. Where so much of it comes
/// or goes that this cannot be told, both are without what is left out. Both as `pageText` gives them; a rule that
/// cannot be understood leaves nothing out.
ShownPages shownDifference(const std::string& baseline, const std::string& page, const RuleSet& set);

/// Judges a page as it was fetched. Without rules it is compared byte for byte; a page that equals its baseline is the
/// same whatever the rules say. A rule that cannot be understood leaves nothing out.
PageVerdict judgePage(std::string_view baseline, std::string_view page, const RuleSet& set);

}  // namespace tarnwick
