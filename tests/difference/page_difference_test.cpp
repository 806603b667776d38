// SPDX-License-Identifier: MIT
#include "difference/page_difference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <utility>

#include "difference/page_pairs.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;

std::string without(std::string_view page, const PageDifference& difference, ByteSpans PageChange::*marks) {
  std::string rest;
  std::size_t from = 0;
  for (const PageChange& change : difference.changes) {
    for (const ByteSpan& range : change.*marks) {
      EXPECT_LE(from, range.begin);
      EXPECT_LT(range.begin, range.end);
      rest.append(page.substr(from, range.begin - from));
      from = range.end;
    }
  }
  return rest.append(page.substr(from));
}

std::size_t marked(const PageDifference& difference, ByteSpans PageChange::*marks) {
  std::size_t bytes = 0;
  for (const PageChange& change : difference.changes) {
    for (const ByteSpan& range : change.*marks) {
      bytes += range.size();
    }
  }
  return bytes;
}

/// That what is marked, and nothing else, makes the one page of the other.
void expectExact(std::string_view before, std::string_view after, const PageDifference& difference) {
  EXPECT_TRUE(without(before, difference, &PageChange::removed) == without(after, difference, &PageChange::added));
  for (const PageChange& change : difference.changes) {
    for (const auto& [bytes, words] :
         {std::pair(&change.removed, &change.removedWords), std::pair(&change.added, &change.addedWords)}) {
      for (const ByteSpan& range : *bytes) {
        EXPECT_TRUE(std::ranges::any_of(
            *words, [&](const ByteSpan& word) { return word.begin <= range.begin && range.end <= word.end; }));
      }
    }
  }
  std::size_t equalBefore = 0;
  std::size_t equalAfter = 0;
  for (const PageChange& change : difference.changes) {
    const ByteSpan one = difference.before.lines(equalBefore, change.firstBefore - equalBefore);
    const ByteSpan other = difference.after.lines(equalAfter, change.firstAfter - equalAfter);
    EXPECT_TRUE(one.of(before) == other.of(after)) << "lines before the change at " << change.firstBefore;
    equalBefore = change.firstBefore + change.linesBefore;
    equalAfter = change.firstAfter + change.linesAfter;
  }
  EXPECT_TRUE(difference.before.lines(equalBefore, difference.before.count() - equalBefore).of(before) ==
              difference.after.lines(equalAfter, difference.after.count() - equalAfter).of(after));
}

TEST(PageDifference, OfEqualPagesIsNone) {
  EXPECT_TRUE(differenceOf("", "").changes.empty());
  EXPECT_TRUE(differenceOf("a\nb", "a\nb").changes.empty());
  EXPECT_EQ(differenceOf("a\nb", "a\nb").before.count(), 2U);
}

TEST(PageDifference, MarksLinesWordsAndBytes) {
  const std::string before = "<h1>\n<p>Kettle: 24.00</p>\n<p>Cup</p>\n";
  const std::string after = "<h1>\n<p>Kettle: 29.00</p>\n<p>Cup</p>\n<p>Pot</p>\n";
  const PageDifference difference = differenceOf(before, after);
  ASSERT_EQ(difference.changes.size(), 2U);
  const PageChange& price = difference.changes[0];
  EXPECT_EQ(price.firstBefore, 1U);
  EXPECT_EQ(price.linesBefore, 1U);
  EXPECT_EQ(price.linesAfter, 1U);
  ASSERT_EQ(price.removedWords.size(), 1U);
  EXPECT_EQ(price.removedWords[0].of(before), "24");
  EXPECT_EQ(price.removed[0].of(before), "4");
  EXPECT_EQ(price.addedWords[0].of(after), "29");
  EXPECT_EQ(price.added[0].of(after), "9");
  const PageChange& pot = difference.changes[1];
  EXPECT_EQ(pot.linesBefore, 0U);
  EXPECT_EQ(pot.firstAfter, 3U);
  EXPECT_EQ(pot.added[0].of(after), "<p>Pot</p>\n");
}

TEST(PageDifference, MarksALineEndThatHasChanged) {
  const PageDifference ends = differenceOf("a\nb\n", "a\r\nb\n");
  ASSERT_EQ(ends.changes.size(), 1U);
  EXPECT_EQ(ends.changes[0].removed, ByteSpans());
  EXPECT_EQ(ends.changes[0].added, (ByteSpans{{1, 2}}));
  const PageDifference last = differenceOf("a\nb\n", "a\nb");
  ASSERT_EQ(last.changes.size(), 1U);
  EXPECT_EQ(last.changes[0].removed, (ByteSpans{{3, 4}}));
}

TEST(PageDifference, KnowsTheLinesOfUtf16) {
  const std::string before(
      "\xFF\xFE"
      "a\0\n\0b\0\n\0",
      10);
  const std::string after(
      "\xFF\xFE"
      "a\0\n\0c\0\n\0",
      10);
  const PageDifference difference = differenceOf(before, after);
  EXPECT_EQ(difference.before.count(), 2U);
  ASSERT_EQ(difference.changes.size(), 1U);
  EXPECT_EQ(difference.before.line(1), (ByteSpan{6, 10}));
  EXPECT_EQ(difference.changes[0].removed, (ByteSpans{{6, 7}}));
  EXPECT_EQ(difference.changes[0].removedWords, (ByteSpans{{6, 8}}));
}

TEST(PageDifference, MarksEveryChangedByteAndNoOther) {
  for (const testing::PagePair& pair : testing::pagePairs(200, 20261123)) {
    SCOPED_TRACE(pair.kind + ", " + std::to_string(pair.before.size()) + " bytes");
    const auto begun = std::chrono::steady_clock::now();
    const PageDifference difference = differenceOf(pair.before, pair.after);
    const auto took = std::chrono::steady_clock::now() - begun;
    expectExact(pair.before, pair.after, difference);
    // Equal letters may stand on both sides of what was put in, but there is no shorter way than the one that was gone.
    EXPECT_LE(marked(difference, &PageChange::removed), pair.removed);
    EXPECT_LE(marked(difference, &PageChange::added), pair.added);
    EXPECT_EQ(marked(difference, &PageChange::removed) + pair.added,
              marked(difference, &PageChange::added) + pair.removed);
    if (pair.before.size() > 1'000'000) {
      RecordProperty(pair.kind, std::to_string(took / milliseconds(1)) + " ms");
    }
    EXPECT_LT(took, std::chrono::seconds(5));
  }
}

TEST(PageDifference, OfAnyTwoTextsIsExact) {
  std::mt19937 random(20261124);  // NOLINT: the same texts every time
  for (int round = 0; round < 3000; ++round) {
    const auto text = [&] {
      std::string made;
      for (std::size_t i = random() % 60; i > 0; --i) {
        made += std::string_view("ab \n\r\0~", 7)[random() % 7];
      }
      return made;
    };
    const std::string before = text();
    const std::string after = text();
    expectExact(before, after, differenceOf(before, after));
    ASSERT_FALSE(::testing::Test::HasFailure()) << ::testing::PrintToString(before) << ::testing::PrintToString(after);
  }
}

TEST(PageDifference, OfPagesWithoutAnythingInCommonTakesBoundedTime) {
  std::string before;
  std::string after;
  for (int i = 0; before.size() < 10'000'000; ++i) {
    before += "old " + std::to_string(i * 7) + " line\n";
    after += "new " + std::to_string(i * 5) + " row\n";
  }
  const auto begun = std::chrono::steady_clock::now();
  expectExact(before, after, differenceOf(before, after));
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
}

TEST(PageDifference, ShowsMoreChangesThanAnybodyReadsAsOne) {
  const auto page = [](const char* word, int every) {
    std::string text;
    for (int i = 0; i < 40'000; ++i) {
      text += std::to_string(i) + (i % every == 0 ? word : "") + "\n";
    }
    return text;
  };
  const PageDifference many = differenceOf(page("", 4), page(" changed", 4));
  EXPECT_TRUE(many.shownAsOne);
  ASSERT_EQ(many.changes.size(), 1U);
  EXPECT_EQ(many.changes[0].linesBefore, 39'997U);
  const PageDifference fewer = differenceOf(page("", 10), page(" changed", 10));
  EXPECT_FALSE(fewer.shownAsOne);
  EXPECT_EQ(fewer.changes.size(), 4000U);
  expectExact(page("", 10), page(" changed", 10), fewer);
}

TEST(PageDifference, IsMadeInShortPieces) {
  std::string before;
  for (int i = 0; before.size() < 10'000'000; ++i) {
    before += "<p>" + std::to_string(i) + "</p>\n";
  }
  std::string after = before;
  for (std::size_t at = 1000; at < after.size(); at += 10'007) {
    after[at] = '~';
  }
  const SystemClock clock;
  PageComparison comparison(before, after);
  const auto begun = clock.steadyNow();
  milliseconds longest{0};
  int pieces = 0;
  for (bool isDone = false; !isDone; ++pieces) {
    const auto from = clock.steadyNow();
    isDone = comparison.step(clock, milliseconds(8));
    longest = std::max(longest, clock.steadyNow() - from);
  }
  RecordProperty("pieces", pieces);
  RecordProperty("longest", std::to_string(longest.count()) + " ms");
  RecordProperty("whole", std::to_string((clock.steadyNow() - begun).count()) + " ms");
  EXPECT_GT(pieces, 1);
  EXPECT_LT(longest, milliseconds(500));
  EXPECT_EQ(comparison.difference().changes.size(), differenceOf(before, after).changes.size());
  expectExact(before, after, comparison.difference());
}

}  // namespace
}  // namespace tarnwick
