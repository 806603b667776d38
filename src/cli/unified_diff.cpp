#include "cli/unified_diff.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace tarnwick {
namespace {

constexpr std::size_t kContext = 3;
// How many lines the search looks for removed and added ones. What it remembers grows with the square: 32 MB here.
constexpr std::ptrdiff_t kFarthest = 2000;

// A text without its line feed at the very end differs from one with it, so that belongs to the line.
std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

std::string_view withoutLineFeed(std::string_view line) {
  return !line.empty() && line.back() == '\n' ? line.substr(0, line.size() - 1) : line;
}

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

/// Which lines are removed and which are added.
struct Marks {
  std::vector<bool> removed;
  std::vector<bool> added;
};

// E. Myers, An O(ND) Difference Algorithm and Its Variations, Algorithmica 1 (1986): the greedy form, which remembers
// how far each diagonal was reached with each number of differences.
class Search {
 public:
  Search(const std::vector<std::size_t>& before, const std::vector<std::size_t>& after, Marks& marks)
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
    while (lastBefore_ > first_ && lastAfter_ > first_ && beforeAt(lastBefore_ - 1 - first_) ==
                                                              afterAt(lastAfter_ - 1 - first_)) {
      --lastBefore_;
      --lastAfter_;
    }
  }

  std::size_t beforeAt(std::ptrdiff_t i) const { return before_[static_cast<std::size_t>(first_ + i)]; }
  std::size_t afterAt(std::ptrdiff_t i) const { return after_[static_cast<std::size_t>(first_ + i)]; }

  // Whether diagonal `k` is better reached from the one above (a line added) than from the one below (one removed).
  static bool comesFromAbove(const std::vector<std::ptrdiff_t>& reach, std::ptrdiff_t d, std::ptrdiff_t k,
                             std::ptrdiff_t middle) {
    const auto at = [&](std::ptrdiff_t diagonal) { return reach[static_cast<std::size_t>(middle + diagonal)]; };
    return k == -d || (k != d && at(k - 1) < at(k + 1));
  }

  bool findWay(std::ptrdiff_t n, std::ptrdiff_t m) {
    const std::ptrdiff_t farthest = std::min(n + m, kFarthest);
    const std::ptrdiff_t middle = farthest + 1;
    std::vector<std::ptrdiff_t> reach(static_cast<std::size_t>(2 * middle + 1), 0);
    for (std::ptrdiff_t d = 0; d <= farthest; ++d) {
      for (std::ptrdiff_t k = -d; k <= d; k += 2) {
        const auto at = [&](std::ptrdiff_t diagonal) -> std::ptrdiff_t& {
          return reach[static_cast<std::size_t>(middle + diagonal)];
        };
        std::ptrdiff_t x = comesFromAbove(reach, d, k, middle) ? at(k + 1) : at(k - 1) + 1;
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
      const std::ptrdiff_t reached = d - 1;  // the diagonals of the step before: -reached to reached
      const auto at = [&](std::ptrdiff_t diagonal) { return reach[static_cast<std::size_t>(reached + diagonal)]; };
      const bool added = k == -d || (k != d && k != d - 1 + 1 && k - 1 >= -reached && k + 1 <= reached
                                         ? at(k - 1) < at(k + 1)
                                         : k + 1 <= reached);
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
  Marks& marks_;
  std::ptrdiff_t first_ = 0;
  std::ptrdiff_t lastBefore_ = 0;
  std::ptrdiff_t lastAfter_ = 0;
  std::vector<std::vector<std::ptrdiff_t>> ways_;
};

}  // namespace

}  // namespace tarnwick
