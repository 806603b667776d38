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
  Marks& marks_;
  std::ptrdiff_t first_ = 0;
  std::ptrdiff_t lastBefore_ = 0;
  std::ptrdiff_t lastAfter_ = 0;
  std::vector<std::vector<std::ptrdiff_t>> ways_;
};

/// Walks through both texts and writes what has changed, with the lines around it.
class HunkWriter {
 public:
  HunkWriter(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after,
             const Marks& marks, const std::function<void(const DiffLine&)>& sink)
      : before_(before), after_(after), marks_(marks), sink_(sink) {}

  void run() {
    std::size_t i = 0;
    std::size_t j = 0;
    while (skipEqual(i, j)) {
      const std::size_t context = std::min(kContext, i);
      i -= context;
      j -= context;
      const auto [endI, endJ] = endOfHunk(i + context, j + context);
      const std::string head = "-" + rangeOf(i, endI - i) + " +" + rangeOf(j, endJ - j);
      sink_({'@', "@@ " + head + " @@"});
      writeLines(i, j, endI, endJ);
      i = endI;
      j = endJ;
    }
  }

 private:
  bool changed(std::size_t i, std::size_t j) const {
    return (i < before_.size() && marks_.removed[i]) || (j < after_.size() && marks_.added[j]);
  }
  bool atEnd(std::size_t i, std::size_t j) const { return i >= before_.size() && j >= after_.size(); }

  // Goes to the next change; false when there is none.
  bool skipEqual(std::size_t& i, std::size_t& j) const {
    while (!atEnd(i, j) && !changed(i, j)) {
      ++i;
      ++j;
    }
    return !atEnd(i, j);
  }

  // Behind the context of the last change that is no further from the one before it than their two contexts.
  std::pair<std::size_t, std::size_t> endOfHunk(std::size_t i, std::size_t j) const {
    while (true) {
      while (changed(i, j)) {
        (i < before_.size() && marks_.removed[i] ? i : j)++;
      }
      std::size_t equal = 0;
      while (equal <= 2 * kContext && !atEnd(i + equal, j + equal) && !changed(i + equal, j + equal)) {
        ++equal;
      }
      if (equal > 2 * kContext || atEnd(i + equal, j + equal)) {
        const std::size_t context = std::min(equal, kContext);
        return {i + context, j + context};
      }
      i += equal;
      j += equal;
    }
  }

  void writeLines(std::size_t i, std::size_t j, std::size_t endI, std::size_t endJ) const {
    while (i < endI || j < endJ) {
      if (i < endI && marks_.removed[i]) {
        write('-', before_[i++]);
      } else if (j < endJ && marks_.added[j]) {
        write('+', after_[j++]);
      } else {
        write(' ', before_[i++]);
        ++j;
      }
    }
  }

  void write(char mark, std::string_view line) const {
    sink_({mark, withoutLineFeed(line)});
    if (line.back() != '\n') {
      sink_({'\\', " No newline at end of file"});
    }
  }

  // POSIX, diff -u: the number of lines is left out when it is 1; an empty range stands behind the line it names.
  static std::string rangeOf(std::size_t first, std::size_t count) {
    if (count == 1) {
      return std::to_string(first + 1);
    }
    return std::to_string(count == 0 ? first : first + 1) + "," + std::to_string(count);
  }

  const std::vector<std::string_view>& before_;
  const std::vector<std::string_view>& after_;
  const Marks& marks_;
  const std::function<void(const DiffLine&)>& sink_;
};

}  // namespace

FirstDifference firstDifference(std::string_view before, std::string_view after) {
  if (before == after) {
    return {};
  }
  const auto place = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto equal = static_cast<std::size_t>(place.first - before.begin());
  const std::string_view same = before.substr(0, equal);
  const std::size_t feed = same.rfind('\n');
  const std::size_t begin = feed == std::string_view::npos ? 0 : feed + 1;
  const auto lineAt = [&](std::string_view text) {
    text.remove_prefix(std::min(begin, text.size()));
    return text.substr(0, text.find('\n'));
  };
  return {static_cast<std::size_t>(std::count(same.begin(), same.end(), '\n')) + 1, lineAt(before), lineAt(after)};
}

void unifiedDiff(std::string_view before, std::string_view after, const std::function<void(const DiffLine&)>& sink) {
  if (before == after) {
    return;
  }
  const std::vector<std::string_view> linesBefore = linesOf(before);
  const std::vector<std::string_view> linesAfter = linesOf(after);
  LineNumbers numbers;
  const std::vector<std::size_t> numbersBefore = numbers.of(linesBefore);
  const std::vector<std::size_t> numbersAfter = numbers.of(linesAfter);
  Marks marks{std::vector<bool>(linesBefore.size()), std::vector<bool>(linesAfter.size())};
  Search(numbersBefore, numbersAfter, marks).run();
  HunkWriter(linesBefore, linesAfter, marks, sink).run();
}

}  // namespace tarnwick
