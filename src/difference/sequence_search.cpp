// SPDX-License-Identifier: MIT
#include "difference/sequence_search.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

/// So many parts may turn out to differ in too much; those behind them are not searched so far any more.
constexpr int kMostVainTries = 24;

// Whether diagonal `k` is better reached with the `d`-th difference from the one above (an element added) than from the
// one below (one removed). `at` tells how far a diagonal came with one difference less.
bool comesFromAbove(std::ptrdiff_t d, std::ptrdiff_t k, const auto& at) {
  return k == -d || (k != d && at(k - 1) < at(k + 1));
}

/// The longest row of pairs, given in the order of their first numbers, in which the second ones rise, too.
std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> rising(
    const std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>>& pairs) {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::vector<std::size_t> lasts;
  std::vector<std::size_t> previous(pairs.size(), kNone);
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    // Most of what has stayed is in its order.
    const bool isLast = lasts.empty() || pairs[lasts.back()].second < pairs[i].second;
    const auto place = isLast ? lasts.end()
                              : std::ranges::lower_bound(lasts, pairs[i].second, {},
                                                         [&](std::size_t last) { return pairs[last].second; });
    previous[i] = place == lasts.begin() ? kNone : *(place - 1);
    if (place == lasts.end()) {
      lasts.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> row;
  for (std::size_t i = lasts.empty() ? kNone : lasts.back(); i != kNone; i = previous[i]) {
    row.push_back(pairs[i]);
  }
  std::ranges::reverse(row);
  return row;
}

}  // namespace

SequenceSearch::SequenceSearch(Numbers before, Numbers after, std::ptrdiff_t farthest)
    : before_(std::move(before)),
      after_(std::move(after)),
      farthest_(farthest),
      removed_(before_.size()),
      added_(after_.size()) {
  parts_.push_back({0, static_cast<std::ptrdiff_t>(before_.size()), 0, static_cast<std::ptrdiff_t>(after_.size())});
}

bool SequenceSearch::step(const Enough& enough) {
  while (part_ || takePart()) {
    if (d_ > farthest_) {
      giveUp();
    } else if (reachWith(d_++)) {
      part_.reset();
    }
    if (enough()) {
      return !part_ && parts_.empty();
    }
  }
  return true;
}

/// False when there is none left that needs a search.
bool SequenceSearch::takePart() {
  while (!parts_.empty()) {
    Part part = parts_.back();
    parts_.pop_back();
    while (part.before < part.beforeEnd && part.after < part.afterEnd && beforeAt(part.before) == afterAt(part.after)) {
      ++part.before;
      ++part.after;
    }
    while (part.beforeEnd > part.before && part.afterEnd > part.after &&
           beforeAt(part.beforeEnd - 1) == afterAt(part.afterEnd - 1)) {
      --part.beforeEnd;
      --part.afterEnd;
    }
    if (part.before < part.beforeEnd && part.after < part.afterEnd) {
      begin(part);
      return true;
    }
    markAll(part);
  }
  return false;
}

void SequenceSearch::begin(const Part& part) {
  part_ = part;
  const std::ptrdiff_t n = part.beforeEnd - part.before;
  const std::ptrdiff_t m = part.afterEnd - part.after;
  const bool isTooFar = std::max(n - m, m - n) > farthest_ || (vainTries_ >= kMostVainTries && n + m > farthest_);
  d_ = isTooFar ? farthest_ + 1 : 0;
  ways_.clear();
  reach_.assign(static_cast<std::size_t>(2 * (std::min(n + m, farthest_) + 1) + 1), 0);
}

// E. Myers, An O(ND) Difference Algorithm and Its Variations, Algorithmica 1 (1986): the greedy form, which remembers
// how far each diagonal was reached with each number of differences. True when the end is.
bool SequenceSearch::reachWith(std::ptrdiff_t d) {
  const std::ptrdiff_t n = part_->beforeEnd - part_->before;
  const std::ptrdiff_t m = part_->afterEnd - part_->after;
  const auto middle = static_cast<std::ptrdiff_t>(reach_.size() / 2);
  const auto at = [&](std::ptrdiff_t k) -> std::int32_t& { return reach_[static_cast<std::size_t>(middle + k)]; };
  const std::uint32_t* const before = before_.data() + part_->before;
  const std::uint32_t* const after = after_.data() + part_->after;
  bool isEnd = false;
  for (std::ptrdiff_t k = -d; k <= d && !isEnd; k += 2) {
    std::ptrdiff_t x = comesFromAbove(d, k, at) ? at(k + 1) : at(k - 1) + 1;
    while (x < n && x - k < m && before[x] == after[x - k]) {
      ++x;
    }
    at(k) = static_cast<std::int32_t>(x);
    isEnd = x >= n && x - k >= m;
  }
  ways_.emplace_back(reach_.begin() + (middle - d), reach_.begin() + (middle + d + 1));
  if (isEnd) {
    walkBack(n, m);
  }
  return isEnd;
}

void SequenceSearch::walkBack(std::ptrdiff_t x, std::ptrdiff_t y) {
  for (auto d = static_cast<std::ptrdiff_t>(ways_.size()) - 1; d > 0; --d) {
    const std::vector<std::int32_t>& reach = ways_[static_cast<std::size_t>(d) - 1];
    const std::ptrdiff_t k = x - y;
    const auto at = [&](std::ptrdiff_t diagonal) { return reach[static_cast<std::size_t>(d - 1 + diagonal)]; };
    const bool added = comesFromAbove(d, k, at);
    const std::ptrdiff_t from = added ? k + 1 : k - 1;
    x = at(from);
    y = x - from;
    if (added) {
      added_[static_cast<std::size_t>(part_->after + y)] = true;
    } else {
      removed_[static_cast<std::size_t>(part_->before + x)] = true;
    }
  }
}

void SequenceSearch::giveUp() {
  const Part part = *std::exchange(part_, std::nullopt);
  ++vainTries_;
  const auto anchors = anchorsOf(part);
  if (anchors.empty()) {
    markAll(part);
    return;
  }
  Part rest = part;
  for (const auto& [before, after] : anchors) {
    if (rest.before < before || rest.after < after) {
      parts_.push_back({rest.before, before, rest.after, after});
    }
    rest.before = before + 1;
    rest.after = after + 1;
  }
  parts_.push_back(rest);
}

// What stands in each of the two exactly once: that is where people see what has stayed.
std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> SequenceSearch::anchorsOf(const Part& part) {
  for (std::ptrdiff_t i = part.before; i < part.beforeEnd; ++i) {
    Places& found = placesOf(beforeAt(i));
    ++found.inBefore;
  }
  for (std::ptrdiff_t i = part.after; i < part.afterEnd; ++i) {
    Places& found = placesOf(afterAt(i));
    ++found.inAfter;
    found.after = i;
  }
  std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> once;
  for (std::ptrdiff_t i = part.before; i < part.beforeEnd; ++i) {
    const Places& found = placesOf(beforeAt(i));
    if (found.inBefore == 1 && found.inAfter == 1) {
      once.emplace_back(i, found.after);
    }
  }
  // What is kept is as large as all numbers are many, and the parts are many, too.
  for (std::ptrdiff_t i = part.before; i < part.beforeEnd; ++i) {
    placesOf(beforeAt(i)) = {};
  }
  for (std::ptrdiff_t i = part.after; i < part.afterEnd; ++i) {
    placesOf(afterAt(i)) = {};
  }
  return rising(once);
}

SequenceSearch::Places& SequenceSearch::placesOf(std::uint32_t number) {
  if (number >= places_.size()) {
    places_.resize(std::max<std::size_t>(std::size_t{number} + 1, places_.size() * 2));
  }
  return places_[number];
}

void SequenceSearch::markAll(const Part& part) {
  std::fill(removed_.begin() + part.before, removed_.begin() + part.beforeEnd, true);
  std::fill(added_.begin() + part.after, added_.begin() + part.afterEnd, true);
}

}  // namespace tarnwick
