// SPDX-License-Identifier: MIT
#include "difference/differing_lines.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace tarnwick {
namespace {

// How many lines the search looks for removed and added ones. What it remembers grows with the square: 32 MB here.
constexpr std::ptrdiff_t kFarthest = 2000;

// Equal lines have equal numbers, which are compared far faster than lines.
class LineNumbers {
 public:
  std::vector<std::size_t> of(const std::vector<std::string_view>& lines) {
    std::vector<std::size_t> numbers;
    numbers.reserve(lines.size());
    for (const std::string_view line : lines) {
      numbers.push_back(known_.try_emplace(line, known_.size()).first->second);
    }
    return numbers;
  }

 private:
  std::unordered_map<std::string_view, std::size_t> known_;
};

// E. Myers, An O(ND) Difference Algorithm and Its Variations, Algorithmica 1 (1986): the greedy form, which remembers
// how far each diagonal was reached with each number of differences.
class Search {
 public:
  Search(const std::vector<std::size_t>& before, const std::vector<std::size_t>& after, LineMarks& marks)
      : before_(before), after_(after), marks_(marks) {}

  void run() {
    trimEqualEnds();
    const std::ptrdiff_t n = lastBefore_ - first_;
    const std::ptrdiff_t m = lastAfter_ - first_;
    if (n == 0 || m == 0 || !findWay(n, m)) {
      std::fill(marks_.removed.begin() + first_, marks_.removed.begin() + lastBefore_, true);
      std::fill(marks_.added.begin() + first_, marks_.added.begin() + lastAfter_, true);
      return;
    }
    walkBack(n, m);
  }

 private:
  void trimEqualEnds() {
    lastBefore_ = static_cast<std::ptrdiff_t>(before_.size());
    lastAfter_ = static_cast<std::ptrdiff_t>(after_.size());
    const auto unequal = std::mismatch(before_.begin(), before_.end(), after_.begin(), after_.end());
    first_ = unequal.first - before_.begin();
    while (lastBefore_ > first_ && lastAfter_ > first_ &&
           beforeAt(lastBefore_ - 1 - first_) == afterAt(lastAfter_ - 1 - first_)) {
      --lastBefore_;
      --lastAfter_;
    }
  }

  std::size_t beforeAt(std::ptrdiff_t i) const { return before_[static_cast<std::size_t>(first_ + i)]; }
  std::size_t afterAt(std::ptrdiff_t i) const { return after_[static_cast<std::size_t>(first_ + i)]; }

  // Whether diagonal `k` is better reached with the `d`-th difference from the one above (a line added) than from the
  // one below (a line removed). `at` tells how far a diagonal came with one difference less.
  static bool comesFromAbove(std::ptrdiff_t d, std::ptrdiff_t k, const auto& at) {
    return k == -d || (k != d && at(k - 1) < at(k + 1));
  }

  bool findWay(std::ptrdiff_t n, std::ptrdiff_t m) {
    const std::ptrdiff_t farthest = std::min(n + m, kFarthest);
    const std::ptrdiff_t middle = farthest + 1;
    std::vector<std::ptrdiff_t> reach(static_cast<std::size_t>(2 * middle + 1), 0);
    const auto at = [&](std::ptrdiff_t diagonal) -> std::ptrdiff_t& {
      return reach[static_cast<std::size_t>(middle + diagonal)];
    };
    for (std::ptrdiff_t d = 0; d <= farthest; ++d) {
      for (std::ptrdiff_t k = -d; k <= d; k += 2) {
        std::ptrdiff_t x = comesFromAbove(d, k, at) ? at(k + 1) : at(k - 1) + 1;
        while (x < n && x - k < m && beforeAt(x) == afterAt(x - k)) {
          ++x;
        }
        at(k) = x;
        if (x >= n && x - k >= m) {
          remember(reach, d, middle);
          return true;
        }
      }
      remember(reach, d, middle);
    }
    return false;
  }

  void remember(const std::vector<std::ptrdiff_t>& reach, std::ptrdiff_t d, std::ptrdiff_t middle) {
    ways_.emplace_back(reach.begin() + (middle - d), reach.begin() + (middle + d + 1));
  }

  void walkBack(std::ptrdiff_t x, std::ptrdiff_t y) {
    for (auto d = static_cast<std::ptrdiff_t>(ways_.size()) - 1; d > 0; --d) {
      const std::vector<std::ptrdiff_t>& reach = ways_[static_cast<std::size_t>(d) - 1];
      const std::ptrdiff_t k = x - y;
      const auto at = [&](std::ptrdiff_t diagonal) { return reach[static_cast<std::size_t>(d - 1 + diagonal)]; };
      const bool added = comesFromAbove(d, k, at);
      const std::ptrdiff_t from = added ? k + 1 : k - 1;
      const std::ptrdiff_t fromX = at(from);
      const std::ptrdiff_t fromY = fromX - from;
      if (added) {
        marks_.added[static_cast<std::size_t>(first_ + fromY)] = true;
      } else {
        marks_.removed[static_cast<std::size_t>(first_ + fromX)] = true;
      }
      x = fromX;
      y = fromY;
    }
  }

  const std::vector<std::size_t>& before_;
  const std::vector<std::size_t>& after_;
  LineMarks& marks_;
  std::ptrdiff_t first_ = 0;
  std::ptrdiff_t lastBefore_ = 0;
  std::ptrdiff_t lastAfter_ = 0;
  std::vector<std::vector<std::ptrdiff_t>> ways_;
};

}  // namespace

LineMarks differingLines(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after) {
  LineNumbers numbers;
  const std::vector<std::size_t> numbersBefore = numbers.of(before);
  const std::vector<std::size_t> numbersAfter = numbers.of(after);
  LineMarks marks{std::vector<bool>(before.size()), std::vector<bool>(after.size())};
  Search(numbersBefore, numbersAfter, marks).run();
  return marks;
}

}  // namespace tarnwick
