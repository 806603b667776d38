// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tarnwick {

/// Asked between two pieces of work: whether that is enough for now.
using Enough = std::function<bool()>;

/// Finds what makes one sequence of another: lines, words or bytes, each by a number that equal ones have in common.
/// The fewest, up to `farthest`; where there are more, those between the elements that each sequence has once, and
/// where there are no such ones all of a part. Works a piece at a time.
class SequenceSearch {
 public:
  using Numbers = std::vector<std::uint32_t>;

  /// The numbers are those of a dense numbering: what is kept grows with the highest of them.
  SequenceSearch(Numbers before, Numbers after, std::ptrdiff_t farthest);

  /// Does a piece, and further ones until it is enough; true when all is done.
  bool step(const Enough& enough);

  /// Whether there are no fewer. REQUIRES: all is done.
  bool areFewest() const { return vainTries_ == 0; }
  /// Which elements are removed and which are added. REQUIRES: all is done.
  std::vector<bool>& removed() { return removed_; }
  std::vector<bool>& added() { return added_; }

 private:
  struct Part {
    std::ptrdiff_t before, beforeEnd, after, afterEnd;
  };

  /// How often a number stands in each part of a sequence, and where in the second.
  struct Places {
    std::int32_t inBefore = 0;
    std::int32_t inAfter = 0;
    std::ptrdiff_t after = 0;
  };

  bool takePart();
  void begin(const Part& part);
  bool reachWith(std::ptrdiff_t d);
  void walkBack(std::ptrdiff_t x, std::ptrdiff_t y);
  void giveUp();
  std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> anchorsOf(const Part& part);
  Places& placesOf(std::uint32_t number);
  void markAll(const Part& part);

  std::uint32_t beforeAt(std::ptrdiff_t i) const { return before_[static_cast<std::size_t>(i)]; }
  std::uint32_t afterAt(std::ptrdiff_t i) const { return after_[static_cast<std::size_t>(i)]; }

  Numbers before_;
  Numbers after_;
  std::ptrdiff_t farthest_;
  std::vector<bool> removed_;
  std::vector<bool> added_;
  /// What is still to be done; the last one comes next.
  std::vector<Part> parts_;
  /// What is being done.
  std::optional<Part> part_;
  std::ptrdiff_t d_ = 0;
  std::vector<std::int32_t> reach_;
  std::vector<std::vector<std::int32_t>> ways_;
  std::vector<Places> places_;
  int vainTries_ = 0;
};

}  // namespace tarnwick
