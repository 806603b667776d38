// SPDX-License-Identifier: MIT
#include "difference/unified_diff.h"

#include <algorithm>
#include <string>
#include <utility>

#include "difference/differing_lines.h"

namespace tarnwick {
namespace {

constexpr std::size_t kContext = 3;
// More lines than this in what differs are not searched at all: what is kept of each is larger than most lines.
constexpr std::size_t kMostLines = 2'000'000;

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

/// What differs of two texts, with the lines of context around it, and how many equal lines stand before that.
struct Middle {
  std::size_t linesBefore;
  std::string_view before;
  std::string_view after;
};

std::size_t linesIn(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) +
         (text.empty() || text.back() == '\n' ? 0 : 1);
}

// The last `count` lines of `text`, which ends with a line feed or is empty, are left; where they begin.
std::size_t beginOfLast(std::size_t count, std::string_view text) {
  std::size_t begin = text.size();
  for (; count > 0 && begin > 0; --count) {
    const std::size_t feed = begin < 2 ? std::string_view::npos : text.rfind('\n', begin - 2);
    begin = feed == std::string_view::npos ? 0 : feed + 1;
  }
  return begin;
}

std::size_t endOfFirst(std::size_t count, std::string_view text) {
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) {
    const std::size_t feed = text.find('\n', end);
    end = feed == std::string_view::npos ? text.size() : feed + 1;
  }
  return end;
}

// Byte by byte: lines of the parts that are equal would take many times the memory of the pages.
Middle middleOf(std::string_view before, std::string_view after, std::size_t context) {
  const auto unequal = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const std::string_view same = before.substr(0, static_cast<std::size_t>(unequal.first - before.begin()));
  const std::size_t lineFeed = same.rfind('\n');
  const std::size_t first = lineFeed == std::string_view::npos ? 0 : lineFeed + 1;
  const std::string_view restBefore = before.substr(first);
  const std::string_view restAfter = after.substr(first);
  const auto unequalAtEnd = std::mismatch(restBefore.rbegin(), restBefore.rend(), restAfter.rbegin(), restAfter.rend());
  const std::string_view sameAtEnd =
      restBefore.substr(static_cast<std::size_t>(unequalAtEnd.first.base() - restBefore.begin()));
  // The line in which the equal end begins may differ before it.
  const std::string_view equalLines = sameAtEnd.substr(endOfFirst(1, sameAtEnd));
  const std::size_t cut = equalLines.size() - endOfFirst(context, equalLines);
  const std::size_t begin = beginOfLast(context, before.substr(0, first));
  return {linesIn(before.substr(0, begin)), before.substr(begin, before.size() - cut - begin),
          after.substr(begin, after.size() - cut - begin)};
}

void writeLine(char mark, std::string_view line, const DiffSink& sink) {
  sink({mark, withoutLineFeed(line)});
  if (line.back() != '\n') {
    sink({'\\', " No newline at end of file"});
  }
}

// POSIX, diff -u: the number of lines is left out when it is 1; an empty range stands behind the line it names.
std::string rangeOf(std::size_t first, std::size_t count) {
  if (count == 1) {
    return std::to_string(first + 1);
  }
  return std::to_string(count == 0 ? first : first + 1) + "," + std::to_string(count);
}

void writeHead(std::size_t firstBefore, std::size_t countBefore, std::size_t firstAfter, std::size_t countAfter,
               const DiffSink& sink) {
  sink({'@', "@@ -" + rangeOf(firstBefore, countBefore) + " +" + rangeOf(firstAfter, countAfter) + " @@"});
}

void writeAll(char mark, std::string_view text, const DiffSink& sink) {
  while (!text.empty()) {
    const std::size_t length = endOfFirst(1, text);
    writeLine(mark, text.substr(0, length), sink);
    text.remove_prefix(length);
  }
}

/// Walks through both texts and writes what has changed, with the lines around it.
class HunkWriter {
 public:
  HunkWriter(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after, LineMarks marks,
             std::size_t linesBefore, const DiffSink& sink)
      : before_(before), after_(after), marks_(std::move(marks)), linesBefore_(linesBefore), sink_(sink) {}

  void run() {
    std::size_t i = 0;
    std::size_t j = 0;
    while (skipEqual(i, j)) {
      const std::size_t context = std::min(kContext, i);
      i -= context;
      j -= context;
      const auto [endI, endJ] = endOfHunk(i + context, j + context);
      writeHead(linesBefore_ + i, endI - i, linesBefore_ + j, endJ - j, sink_);
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
        writeLine('-', before_[i++], sink_);
      } else if (j < endJ && marks_.added[j]) {
        writeLine('+', after_[j++], sink_);
      } else {
        writeLine(' ', before_[i++], sink_);
        ++j;
      }
    }
  }

  const std::vector<std::string_view>& before_;
  const std::vector<std::string_view>& after_;
  LineMarks marks_;
  std::size_t linesBefore_;
  const DiffSink& sink_;
};

}  // namespace

void unifiedDiff(std::string_view before, std::string_view after, const DiffSink& sink) {
  if (before == after) {
    return;
  }
  const Middle middle = middleOf(before, after, kContext);
  if (linesIn(middle.before) + linesIn(middle.after) > kMostLines) {
    const Middle bare = middleOf(before, after, 0);
    writeHead(bare.linesBefore, linesIn(bare.before), bare.linesBefore, linesIn(bare.after), sink);
    writeAll('-', bare.before, sink);
    writeAll('+', bare.after, sink);
    return;
  }
  const std::vector<std::string_view> linesBefore = linesOf(middle.before);
  const std::vector<std::string_view> linesAfter = linesOf(middle.after);
  HunkWriter(linesBefore, linesAfter, differingLines(linesBefore, linesAfter), middle.linesBefore, sink).run();
}

}  // namespace tarnwick
