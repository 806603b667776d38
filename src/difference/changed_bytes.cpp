// SPDX-License-Identifier: MIT
#include "difference/changed_bytes.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "difference/first_difference.h"

namespace tarnwick {
namespace {

constexpr std::ptrdiff_t kMostDifferingWords = 1000;
/// Of all that has changed, as long as it is not read word by word: among so few the fewest are looked for.
constexpr std::ptrdiff_t kMostBytesAtOnce = 2000;
constexpr std::ptrdiff_t kMostDifferingBytes = 256;
/// Words that differ in more bytes are not searched for equal ones.
constexpr std::size_t kLongestRun = 20'000;
/// More than this is marked as a whole: so much does nobody read word by word.
constexpr std::size_t kMostSearched = std::size_t{16} << 20U;
/// Numbers below are bytes.
constexpr std::uint32_t kBytes = 256;
/// Between two looks at the time.
constexpr std::size_t kWordsAtOnce = 4096;
/// Words are cut here: one that is as long as a page is no word.
constexpr std::size_t kLongestWord = 4096;

bool isOfWord(char byte) {
  return isLetter(byte) || isDigit(byte) || byte == '_' || static_cast<unsigned char>(byte) >= 0x80;
}
bool isBlank(char byte) { return byte == ' ' || byte == '\t'; }

/// The character at `at`, a byte or two: what it is for words.
enum class Kind { word, blank, other };
Kind kindAt(std::string_view text, std::size_t at, std::size_t unit) {
  if (unit == 1) {
    return isOfWord(text[at]) ? Kind::word : isBlank(text[at]) ? Kind::blank : Kind::other;
  }
  if (at + 1 >= text.size()) {
    return Kind::other;
  }
  const char high = text[at] == '\0' ? text[at + 1] : text[at];
  const bool isLatin = text[at] == '\0' || text[at + 1] == '\0';
  return !isLatin || isOfWord(high) ? Kind::word : isBlank(high) ? Kind::blank : Kind::other;
}

std::size_t endOfWord(std::string_view text, std::size_t at, std::size_t end, std::size_t unit) {
  const Kind kind = kindAt(text, at, unit);
  const std::size_t longest = std::min(end, at + kLongestWord);
  at = std::min(at + unit, end);
  while (kind != Kind::other && at < longest && kindAt(text, at, unit) == kind) {
    at = std::min(at + unit, end);
  }
  return at;
}

ByteSpans rangesOf(const std::vector<bool>& marks, std::size_t begin) {
  ByteSpans ranges;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    append(ranges, {begin + i, begin + i + (marks[i] ? 1 : 0)});
  }
  return ranges;
}

std::size_t sizeOf(const ByteSpans& ranges) {
  std::size_t size = 0;
  for (const ByteSpan& range : ranges) {
    size += range.size();
  }
  return size;
}

}  // namespace

ChangedBytes::ChangedBytes(std::string_view pageBefore, std::string_view pageAfter, ByteSpan before, ByteSpan after,
                           std::size_t unit)
    : unit_(unit), before_{pageBefore, before}, after_{pageAfter, after}, known_(kBytes) {
  trimEqualEnds();
  before_.next = before_.range.begin;
  after_.next = after_.range.begin;
  const std::size_t size = before_.range.size() + after_.range.size();
  if (before_.range.empty() || after_.range.empty() || size > kMostSearched) {
    isSearched_ = isSplit_ = hasRuns_ = true;
    runs_.push_back({before_.range, after_.range});
  }
}

// What is left begins and ends with whole words.
void ChangedBytes::trimEqualEnds() {
  const std::string_view before = before_.range.of(before_.page);
  const std::string_view after = after_.range.of(after_.page);
  const std::size_t same = commonBytes(before, after);
  const std::size_t begin = std::min(beginOfWord(before, same), beginOfWord(after, same));
  const std::size_t sameAtEnd = commonBytesAtEnd(before.substr(begin), after.substr(begin));
  std::size_t cut = sameAtEnd - sameAtEnd % unit_;
  // A word of which the end alone is equal has changed as a whole.
  while (cut > 0 && sameAtEnd - cut < kLongestWord && kindAt(before, before.size() - cut, unit_) == Kind::word) {
    cut -= std::min(cut, unit_);
  }
  before_.range = {before_.range.begin + begin, before_.range.end - cut};
  after_.range = {after_.range.begin + begin, after_.range.end - cut};
}

std::size_t ChangedBytes::beginOfWord(std::string_view text, std::size_t at) const {
  at -= at % unit_;
  std::size_t begin = at;
  while (begin >= unit_ && at - begin < kLongestWord && kindAt(text, begin - unit_, unit_) == Kind::word) {
    begin -= unit_;
  }
  return begin;
}

bool ChangedBytes::step(const Enough& enough) {
  if (!isSearched_ && !searchAll(enough)) {
    return false;
  }
  if (!isSplit_) {
    if (!splitWords(before_, enough) || !splitWords(after_, enough)) {
      return false;
    }
    isSplit_ = true;
    words_.emplace(std::move(before_.numbers), std::move(after_.numbers), kMostDifferingWords);
  }
  if (!hasRuns_) {
    if (!words_->step(enough)) {
      return false;
    }
    findRuns();
    words_.reset();
  }
  while (nextRun_ < runs_.size()) {
    if (!stepRun(enough)) {
      return false;
    }
    if (nextRun_ < runs_.size() && enough()) {
      return false;
    }
  }
  if (all_) {
    takeFewest();
  }
  return true;
}

bool ChangedBytes::searchAll(const Enough& enough) {
  if (!all_) {
    all_.emplace(bytesOf(before_.range.of(before_.page)), bytesOf(after_.range.of(after_.page)), kMostBytesAtOnce);
  }
  if (!all_->step(enough)) {
    return false;
  }
  if (!all_->areFewest()) {
    all_.reset();
  }
  isSearched_ = true;
  return true;
}

// What equal words leave need not be the least: words do not know how long they are.
void ChangedBytes::takeFewest() {
  ByteSpans removed = rangesOf(all_->removed(), before_.range.begin);
  all_->removed().clear();
  ByteSpans added = rangesOf(all_->added(), after_.range.begin);
  if (sizeOf(removed) < sizeOf(before_.bytes)) {
    before_.bytes = std::move(removed);
    after_.bytes = std::move(added);
    growWords(before_);
    growWords(after_);
  }
  all_.reset();
}

/// To the words in which the bytes stand.
void ChangedBytes::growWords(Side& side) const {
  side.words.clear();
  std::size_t word = 0;
  for (const ByteSpan& range : side.bytes) {
    while (word + 1 < side.begins.size() && side.begins[word + 1] <= range.begin) {
      ++word;
    }
    std::size_t end = word;
    while (end < side.begins.size() && side.begins[end] < range.end) {
      ++end;
    }
    ByteSpan words = side.wordsFrom(word, end);
    words.begin = std::max(words.begin, side.words.empty() ? 0 : side.words.back().end);
    append(side.words, words);
  }
}

bool ChangedBytes::splitWords(Side& side, const Enough& enough) {
  while (side.next < side.range.end) {
    for (std::size_t i = 0; i < kWordsAtOnce && side.next < side.range.end; ++i) {
      const std::size_t end = endOfWord(side.page, side.next, side.range.end, unit_);
      const std::string_view word = side.page.substr(side.next, end - side.next);
      side.begins.push_back(static_cast<std::uint32_t>(side.next));
      side.numbers.push_back(word.size() == 1 ? static_cast<unsigned char>(word.front()) : known_.of(word));
      side.next = end;
    }
    if (enough()) {
      return false;
    }
  }
  return true;
}

ByteSpan ChangedBytes::Side::wordsFrom(std::size_t first, std::size_t end) const {
  const auto beginOf = [&](std::size_t word) { return word < begins.size() ? begins[word] : range.end; };
  return {beginOf(first), beginOf(end)};
}

void ChangedBytes::findRuns() {
  hasRuns_ = true;
  const std::vector<bool>& removed = words_->removed();
  const std::vector<bool>& added = words_->added();
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
    runs_.push_back({before_.wordsFrom(firstRemoved, i), after_.wordsFrom(firstAdded, j)});
  }
  if (runs_.size() > kMostChanges) {
    const Run all{{runs_.front().before.begin, runs_.back().before.end},
                  {runs_.front().after.begin, runs_.back().after.end}};
    runs_.assign(1, all);
  }
}

bool ChangedBytes::stepRun(const Enough& enough) {
  const Run& run = runs_[nextRun_];
  const std::string_view before = run.before.of(before_.page);
  const std::string_view after = run.after.of(after_.page);
  if (!bytes_) {
    if (std::max(before.size(), after.size()) > kLongestRun) {
      markWhole(run);
      ++nextRun_;
      return true;
    }
    bytes_.emplace(bytesOf(before), bytesOf(after), kMostDifferingBytes);
  }
  if (!bytes_->step(enough)) {
    return false;
  }
  markFound(run);
  bytes_.reset();
  ++nextRun_;
  return true;
}

SequenceSearch::Numbers ChangedBytes::bytesOf(std::string_view text) {
  SequenceSearch::Numbers numbers(text.size());
  std::ranges::transform(text, numbers.begin(), [](char byte) { return static_cast<unsigned char>(byte); });
  return numbers;
}

void ChangedBytes::markWhole(const Run& run) {
  const std::size_t same = commonBytes(run.before.of(before_.page), run.after.of(after_.page));
  const ByteSpan before{run.before.begin + same, run.before.end};
  const ByteSpan after{run.after.begin + same, run.after.end};
  const std::size_t atEnd = commonBytesAtEnd(before.of(before_.page), after.of(after_.page));
  append(before_.bytes, {before.begin, before.end - atEnd});
  append(after_.bytes, {after.begin, after.end - atEnd});
  append(before_.words, run.before);
  append(after_.words, run.after);
}

void ChangedBytes::markFound(const Run& run) {
  const auto add = [](ByteSpans& ranges, const ByteSpans& found) {
    for (const ByteSpan& range : found) {
      append(ranges, range);
    }
  };
  add(before_.bytes, rangesOf(bytes_->removed(), run.before.begin));
  add(after_.bytes, rangesOf(bytes_->added(), run.after.begin));
  append(before_.words, run.before);
  append(after_.words, run.after);
}

void ChangedBytes::takeTo(PageChange& change) {
  change.removed = std::move(before_.bytes);
  change.added = std::move(after_.bytes);
  change.removedWords = std::move(before_.words);
  change.addedWords = std::move(after_.words);
}

}  // namespace tarnwick
