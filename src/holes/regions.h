// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A place where copies of a page differ: from where to where in each of them.
struct Region {
  std::vector<std::size_t> from;
  std::vector<std::size_t> to;

  std::string_view in(std::span<const std::string> copies, std::size_t copy) const {
    return std::string_view(copies[copy]).substr(from[copy], to[copy] - from[copy]);
  }
};

/// Where copies differ, in their order: between two regions all copies have the same bytes. REQUIRES: at least two.
std::vector<Region> differingRegions(std::span<const std::string> copies);
/// One region for all that lies between what all copies begin with and what all end with, or none where they are the
/// same. Takes time in proportion to their length, whatever they hold.
std::vector<Region> regionBetweenEnds(std::span<const std::string> copies);

/// Whether the page is no text: it has bytes that no text has.
bool isBinary(std::string_view page);

}  // namespace tarnwick
