// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tarnwick {

/// How many lines are searched for that are removed and added. What is remembered meanwhile grows with the square:
/// 16 MB here.
inline constexpr std::ptrdiff_t kMostDifferingLines = 2000;

/// Gives equal texts equal numbers, which are compared far faster. One table without nodes: pages have millions of
/// words.
class Numbering {
 public:
  /// The first number that is given.
  explicit Numbering(std::uint32_t first = 0) : first_(first) {}

  /// So many texts will come at most.
  void expect(std::size_t texts);
  /// The text outlives this object.
  std::uint32_t of(std::string_view text);

 private:
  struct Known {
    std::string_view text;
    std::size_t hash;
  };

  std::size_t slotOf(std::string_view text, std::size_t hash) const;
  void resize(std::size_t slots);

  std::uint32_t first_;
  std::vector<Known> known_;
  /// Places in `known_`, counted from 1; 0 for none. Their number is a power of 2.
  std::vector<std::uint32_t> slots_;
};

}  // namespace tarnwick
