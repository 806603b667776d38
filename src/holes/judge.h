// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "holes/hole.h"

namespace tarnwick {

/// How a page stands to a baseline with holes.
struct Judgement {
  /// A part of the page.
  struct Part {
    std::size_t begin = 0;
    std::size_t length = 0;
  };

  bool same = false;
  /// What of the page stands in each hole, in their order; when they differ, of those before the difference.
  std::vector<Part> values{};
  /// The first difference, in the baseline and in the page; of no meaning when they are the same.
  std::size_t baselineAt = 0;
  std::size_t pageAt = 0;
};

/// Compares the bytes between the holes one by one and what stands in them by its class and length. Takes time in
/// proportion to the lengths of both, whatever the page holds: a page made to be ambiguous beyond that differs.
/// REQUIRES: ordered holes within the baseline; both as `pageText` gives them.
Judgement judge(std::string_view baseline, const Holes& holes, std::string_view page);

}  // namespace tarnwick
