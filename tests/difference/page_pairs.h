// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// Two pages of which it is known what differs.
struct PagePair {
  std::string kind;
  std::string before;
  std::string after;
  /// How many bytes were taken away, and how many were put in.
  std::size_t removed = 0;
  std::size_t added = 0;
};

/// `count` pairs of all kinds of pages there are: lines that end in LF, CR and LF or not at all, with NUL bytes, in
/// UTF-8, Windows-1252 and UTF-16, binary, of one line, of many megabytes. The same for the same seed.
std::vector<PagePair> pagePairs(std::size_t count, unsigned seed);

}  // namespace tarnwick::testing
