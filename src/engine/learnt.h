// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "holes/page_rule.h"
#include "platform/clock.h"

namespace tarnwick {

/// What several copies of a site's page say about what varies in it.
struct Learnt {
  /// The places that vary, in the baseline as `pageText` gives it; of a site without one, in the first copy.
  Holes holes;
  /// What varies in the copies at a place that the baseline has not.
  Holes lost;
  /// What nobody can know from the copies, in words for people.
  std::vector<std::string> warnings;
  /// How much of the page stays compared byte for byte, from 0 to 1.
  double watched = 1;
  /// Whether the baseline with these holes is the same as each copy. If not, the page has changed since, in `line` of
  /// the baseline: what varies is then best learnt again from a new baseline.
  bool explains = true;
  std::size_t line = 0;
  /// The first copy, as it was fetched: what becomes the baseline of a site that has none.
  std::string firstCopy{};
};

/// What is learnt from at least two copies of a page as they were fetched, for a site with this baseline, which may be
/// empty. Takes seconds for large pages that have little in common: see `LearningApart`.
Learnt learntFrom(const std::vector<std::string>& copies, const std::string& baseline, LocalTime now);

/// The same where that takes too long: all that varies is one place.
Learnt roughlyLearntFrom(const std::vector<std::string>& copies, const std::string& baseline);

/// The holes that a site had, but for those that touch one of the learnt ones, with these.
Holes united(const Holes& before, const Holes& learnt);

/// For handing it from one process to another, but for the first copy; and back, nothing for what is no such text.
std::string packed(const Learnt& learnt);
std::optional<Learnt> unpackedLearnt(std::string_view bytes);

}  // namespace tarnwick
