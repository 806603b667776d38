// SPDX-License-Identifier: MIT
#include "difference/page_difference.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/utf16_order.h"
#include "difference/changed_bytes.h"
#include "difference/first_difference.h"
#include "difference/numbering.h"
#include "difference/sequence_search.h"

namespace tarnwick {
namespace {

/// More lines than this in what differs are not searched: what is kept of each is larger than most lines.
constexpr std::size_t kMostLines = 2'000'000;
/// Between two looks at the time.
constexpr std::size_t kLinesAtOnce = 1024;
constexpr std::size_t kBytesAtOnce = std::size_t{1} << 18U;

}  // namespace

ByteSpan PageLines::lines(std::size_t first, std::size_t count) const {
  const auto beginOf = [&](std::size_t line) { return line < begins_.size() ? begins_[line] : size_; };
  return {beginOf(first), beginOf(first + count)};
}

std::size_t PageLines::lineOf(std::size_t byte) const {
  if (byte >= size_) {
    return begins_.size();
  }
  return static_cast<std::size_t>(std::ranges::upper_bound(begins_, byte) - begins_.begin()) - 1;
}

class PageComparison::Work {
 public:
  Work(std::string_view before, std::string_view after) : before_{before}, after_{after} {
    const auto high = utf16HighBytes(before);
    if (high && high == utf16HighBytes(after)) {
      unit_ = 2;
      lineFeedAt_ = 1 - *high;
    }
  }

  bool step(const Enough& enough) {
    while (stage_ != Stage::done) {
      if (!stepStage(enough)) {
        return false;
      }
      stage_ = static_cast<Stage>(static_cast<int>(stage_) + 1);
    }
    return true;
  }

  PageDifference& difference() { return difference_; }

 private:
  enum class Stage { compare, splitBefore, splitAfter, trim, numberBefore, numberAfter, search, words, done };

  struct Side {
    std::string_view page;
    std::size_t next = 0;
    std::size_t firstLine = 0;  ///< of those that may differ
    std::size_t endLine = 0;
    SequenceSearch::Numbers numbers{};
  };

  /// Whether the stage is through.
  bool stepStage(const Enough& enough) {
    switch (stage_) {
      case Stage::compare:
        same_ = commonBytes(before_.page, after_.page);
        return true;
      case Stage::splitBefore:
        return split(before_, difference_.before, enough);
      case Stage::splitAfter:
        return split(after_, difference_.after, enough);
      case Stage::trim:
        trimEqualLines();
        known_.expect(linesToSearch() > kMostLines ? 0 : linesToSearch());
        return true;
      case Stage::numberBefore:
        return number(before_, difference_.before, enough);
      case Stage::numberAfter:
        return number(after_, difference_.after, enough);
      case Stage::search:
        return search(enough);
      case Stage::words:
        return lookIntoLines(enough);
      case Stage::done:
        break;
    }
    return true;
  }

  bool split(Side& side, PageLines& lines, const Enough& enough) const {
    const std::string_view page = side.page;
    lines.size_ = page.size();
    if (side.next == 0 && !page.empty()) {
      lines.begins_.push_back(0);
    }
    while (side.next < page.size()) {
      const std::string_view piece = page.substr(0, std::min(page.size(), side.next + kBytesAtOnce));
      for (std::size_t at = piece.find('\n', side.next); at != std::string_view::npos; at = piece.find('\n', at + 1)) {
        const std::size_t begin = at - lineFeedAt_ + unit_;
        if (isLineFeed(page, at) && begin < page.size()) {
          lines.begins_.push_back(static_cast<std::uint32_t>(begin));
        }
      }
      side.next = piece.size();
      if (enough()) {
        break;
      }
    }
    return side.next == page.size();
  }

  bool isLineFeed(std::string_view page, std::size_t at) const {
    if (unit_ == 1) {
      return true;
    }
    const std::size_t other = lineFeedAt_ == 1 ? at - 1 : at + 1;
    return at % 2 == lineFeedAt_ && other < page.size() && page[other] == '\0';
  }

  void trimEqualLines() {
    const std::size_t linesBefore = difference_.before.count();
    const std::size_t linesAfter = difference_.after.count();
    if (same_ == before_.page.size() && same_ == after_.page.size()) {
      before_.firstLine = before_.endLine = linesBefore;
      after_.firstLine = after_.endLine = linesAfter;
      return;
    }
    // The line in which the equal beginning ends may go on differently.
    const auto lineAt = [&](const PageLines& lines, std::size_t size) {
      return same_ < size ? lines.lineOf(same_) : lines.count() - (lines.count() > 0 && !endsWithFeed(lines) ? 1 : 0);
    };
    const std::size_t first =
        std::min(lineAt(difference_.before, before_.page.size()), lineAt(difference_.after, after_.page.size()));
    before_.firstLine = after_.firstLine = first;
    const std::size_t sameAtEnd = commonBytesAtEnd(before_.page.substr(difference_.before.lines(first, 0).begin),
                                                   after_.page.substr(difference_.after.lines(first, 0).begin));
    // A line is equal with the line feed before it.
    const std::size_t from = before_.page.size() - sameAtEnd;
    const auto& begins = difference_.before.begins_;
    const auto equal = static_cast<std::size_t>(begins.end() - std::ranges::upper_bound(begins, from + unit_ - 1));
    before_.endLine = linesBefore - equal;
    after_.endLine = linesAfter - equal;
  }

  bool endsWithFeed(const PageLines& lines) const {
    const std::string_view page = &lines == &difference_.before ? before_.page : after_.page;
    const std::size_t last = page.size() - unit_ + lineFeedAt_;
    return page.size() >= unit_ && page[last] == '\n' && isLineFeed(page, last);
  }

  std::size_t linesToSearch() const { return before_.endLine - before_.firstLine + after_.endLine - after_.firstLine; }

  bool number(Side& side, const PageLines& lines, const Enough& enough) {
    if (linesToSearch() > kMostLines) {
      return true;
    }
    while (side.firstLine + side.numbers.size() < side.endLine) {
      side.numbers.push_back(known_.of(lines.line(side.firstLine + side.numbers.size()).of(side.page)));
      if (side.numbers.size() % kLinesAtOnce == 0 && enough()) {
        return false;
      }
    }
    return true;
  }

  bool search(const Enough& enough) {
    if (linesToSearch() > kMostLines) {
      addChange(before_.firstLine, before_.endLine, after_.firstLine, after_.endLine);
      difference_.shownAsOne = true;
      return true;
    }
    if (!search_) {
      search_.emplace(std::move(before_.numbers), std::move(after_.numbers), kMostDifferingLines);
    }
    if (!search_->step(enough)) {
      return false;
    }
    collectChanges(search_->removed(), search_->added());
    search_.reset();
    return true;
  }

  void collectChanges(const std::vector<bool>& removed, const std::vector<bool>& added) {
    const auto isSet = [](const std::vector<bool>& marks, std::size_t i) { return i < marks.size() && marks[i]; };
    for (std::size_t i = 0, j = 0; i < removed.size() || j < added.size();) {
      if (!isSet(removed, i) && !isSet(added, j)) {
        ++i;
        ++j;
        continue;
      }
      const std::size_t firstRemoved = i;
      const std::size_t firstAdded = j;
      while (isSet(removed, i) || isSet(added, j)) {
        (isSet(removed, i) ? i : j)++;
      }
      addChange(before_.firstLine + firstRemoved, before_.firstLine + i, after_.firstLine + firstAdded,
                after_.firstLine + j);
    }
    if (difference_.changes.size() > kMostChanges) {
      const PageChange first = difference_.changes.front();
      const PageChange last = difference_.changes.back();
      difference_.changes.clear();
      addChange(first.firstBefore, last.firstBefore + last.linesBefore, first.firstAfter,
                last.firstAfter + last.linesAfter);
      difference_.shownAsOne = true;
    }
  }

  void addChange(std::size_t firstBefore, std::size_t endBefore, std::size_t firstAfter, std::size_t endAfter) {
    PageChange& change = difference_.changes.emplace_back();
    change.firstBefore = firstBefore;
    change.linesBefore = endBefore - firstBefore;
    change.firstAfter = firstAfter;
    change.linesAfter = endAfter - firstAfter;
  }

  bool lookIntoLines(const Enough& enough) {
    for (; nextChange_ < difference_.changes.size(); ++nextChange_) {
      PageChange& change = difference_.changes[nextChange_];
      const ByteSpan before = difference_.before.lines(change.firstBefore, change.linesBefore);
      const ByteSpan after = difference_.after.lines(change.firstAfter, change.linesAfter);
      if (difference_.shownAsOne) {
        markWhole(change, before, after);
        return true;
      }
      if (!bytes_) {
        bytes_.emplace(before_.page, after_.page, before, after, unit_);
      }
      if (!bytes_->step(enough)) {
        return false;
      }
      bytes_->takeTo(change);
      bytes_.reset();
      if (enough()) {
        ++nextChange_;
        return nextChange_ == difference_.changes.size();
      }
    }
    return true;
  }

  void markWhole(PageChange& change, ByteSpan before, ByteSpan after) const {
    const std::size_t same = commonBytes(before.of(before_.page), after.of(after_.page));
    before.begin += same;
    after.begin += same;
    const std::size_t atEnd = commonBytesAtEnd(before.of(before_.page), after.of(after_.page));
    append(change.removed, {before.begin, before.end - atEnd});
    append(change.added, {after.begin, after.end - atEnd});
    change.removedWords = change.removed;
    change.addedWords = change.added;
  }

  Side before_;
  Side after_;
  std::size_t unit_ = 1;
  /// Where in its unit the byte of a line feed stands.
  std::size_t lineFeedAt_ = 0;
  Stage stage_ = Stage::compare;
  std::size_t same_ = 0;
  Numbering known_;
  std::optional<SequenceSearch> search_;
  std::optional<ChangedBytes> bytes_;
  std::size_t nextChange_ = 0;
  PageDifference difference_;
};

PageComparison::PageComparison(std::string_view before, std::string_view after)
    : work_(std::make_unique<Work>(before, after)) {}
PageComparison::~PageComparison() = default;
PageComparison::PageComparison(PageComparison&&) noexcept = default;

bool PageComparison::step(const Clock& clock, std::chrono::milliseconds most) {
  const auto begun = clock.steadyNow();
  return work_->step([&] { return clock.steadyNow() - begun >= most; });
}

void PageComparison::finish() {
  work_->step([] { return false; });
}

PageDifference& PageComparison::difference() { return work_->difference(); }

PageDifference differenceOf(std::string_view before, std::string_view after) {
  PageComparison comparison(before, after);
  comparison.finish();
  return std::move(comparison.difference());
}

}  // namespace tarnwick
