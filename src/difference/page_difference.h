// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "difference/byte_span.h"
#include "platform/clock.h"

namespace tarnwick {

/// Where the lines of a page begin. Each has its line feed with it; an empty page has none.
class PageLines {
 public:
  std::size_t count() const { return begins_.size(); }
  /// Line `number`, from 0 on, with its line feed.
  ByteSpan line(std::size_t number) const {
    return {begins_[number], number + 1 < begins_.size() ? begins_[number + 1] : size_};
  }
  /// The bytes of `count` lines from `first` on; those of none lie where they would begin.
  ByteSpan lines(std::size_t first, std::size_t count) const;
  /// The line in which a byte stands; `count()` for the end of the page.
  std::size_t lineOf(std::size_t byte) const;

 private:
  friend class PageComparison;
  std::vector<std::uint32_t> begins_;
  std::size_t size_ = 0;
};

/// Whole lines of the one page in the place of whole lines of the other, which may be none.
struct PageChange {
  std::size_t firstBefore = 0;  ///< lines, from 0 on
  std::size_t linesBefore = 0;
  std::size_t firstAfter = 0;
  std::size_t linesAfter = 0;
  /// Exactly the bytes that are taken away and that have come: without them the lines of both are the same.
  ByteSpans removed;
  ByteSpans added;
  /// The same for people: the whole words that these bytes belong to.
  ByteSpans removedWords;
  ByteSpans addedWords;
};

/// How two pages differ.
struct PageDifference {
  PageLines before;
  PageLines after;
  /// From the first to the last; none for equal pages. What lies between them is equal, line by line.
  std::vector<PageChange> changes;
  /// There were more than `kMostChanges`: they are one, which has all lines from the first to the last of them.
  bool shownAsOne = false;
};
inline constexpr std::size_t kMostChanges = 5000;

/// Compares two pages a piece at a time, so that whoever waits for it can go on with something else.
///
///     PageComparison comparison(before, after);
///     while (!comparison.step(clock, 8ms)) { ... }
///     show(comparison.difference());
class PageComparison {
 public:
  /// Both outlive this object, and have less than 4 GiB.
  PageComparison(std::string_view before, std::string_view after);
  ~PageComparison();
  PageComparison(PageComparison&&) noexcept;
  PageComparison& operator=(PageComparison&&) = delete;

  /// Goes on for about so long; true when all is done.
  bool step(const Clock& clock, std::chrono::milliseconds most);
  /// The same until all is done.
  void finish();

  /// REQUIRES: all is done.
  PageDifference& difference();

 private:
  class Work;
  std::unique_ptr<Work> work_;
};

/// All at once.
PageDifference differenceOf(std::string_view before, std::string_view after);

}  // namespace tarnwick
