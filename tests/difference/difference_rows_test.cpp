// SPDX-License-Identifier: MIT
#include "difference/difference_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "difference/page_pairs.h"

namespace tarnwick::testing {
namespace {

using Kind = DifferenceRow::Kind;

constexpr std::array kLayouts{DifferenceLayout::sideBySide, DifferenceLayout::unified, DifferenceLayout::hex};

struct Rows {
  Rows(std::string one, std::string other, DifferenceLayout layout = DifferenceLayout::sideBySide)
      : before(std::move(one)),
        after(std::move(other)),
        difference(differenceOf(before, after)),
        rows(before, after, difference, layout) {}

  /// The rows as lines: "1 a | 1 b", "4 equal lines".
  std::string text() const {
    std::string text;
    for (std::size_t i = 0; i < rows.count(); ++i) {
      const DifferenceRow& row = rows.at(i);
      if (row.isFold()) {
        text += std::to_string(row.hidden) + (row.kind == Kind::lines ? " lines\n" : " bytes\n");
        continue;
      }
      const auto side = [](std::string_view page, const std::optional<ByteSpan>& span, std::size_t number) {
        std::string words = number > 0 ? std::to_string(number) + " " : "";
        words += span ? std::string(span->of(page)) : "-";
        std::erase(words, '\n');
        return words;
      };
      text += (row.kind == Kind::changed ? "*" : "") + side(before, row.before, row.numberBefore) + " | " +
              side(after, row.after, row.numberAfter) + "\n";
    }
    return text;
  }
  void openAll() {
    for (std::size_t i = 0; i < rows.count();) {
      if (rows.at(i).isFold()) {
        rows.open(i);
      } else {
        ++i;
      }
    }
  }

  std::string before;
  std::string after;
  PageDifference difference;
  DifferenceRows rows;
};

std::string lines(int from, int to) {
  std::string text;
  for (int line = from; line <= to; ++line) {
    text += "l" + std::to_string(line) + "\n";
  }
  return text;
}

TEST(DifferenceRowsTest, WhatDiffersStandsSideBySideAndLongEqualPartsAreFolded) {
  const Rows rows(lines(1, 9) + "old\n" + lines(11, 30), lines(1, 9) + "new\nmore\n" + lines(11, 30));
  EXPECT_EQ(rows.text(),
            "6 lines\n7 l7 | 7 l7\n8 l8 | 8 l8\n9 l9 | 9 l9\n*10 old | 10 new\n*- | 11 more\n11 l11 | 12 l11\n"
            "12 l12 | 13 l12\n13 l13 | 14 l13\n17 lines\n");
  EXPECT_EQ(rows.rows.rowOf(0), 4U);
}

TEST(DifferenceRowsTest, UnifiedWhatWasStandsAboveWhatIs) {
  const Rows rows("a\nold\nb\n", "a\nnew\nb\n", DifferenceLayout::unified);
  EXPECT_EQ(rows.text(), "1 a | 1 a\n*2 old | -\n*- | 2 new\n3 b | 3 b\n");
}

TEST(DifferenceRowsTest, AFoldIsOpened) {
  Rows rows(lines(1, 20) + "old\n", lines(1, 20) + "new\n");
  ASSERT_EQ(rows.rows.at(0).kind, Kind::lines);
  rows.rows.open(0);
  EXPECT_EQ(rows.rows.count(), 21U);
  EXPECT_EQ(rows.rows.rowOf(0), 20U);
}

TEST(DifferenceRowsTest, OfALongLineThatIsShownWhichDiffers) {
  const std::string head(10'000, 'h');
  const Rows rows(head + "old" + std::string(10'000, 't'), head + "new" + std::string(10'000, 't'));
  EXPECT_LT(rows.rows.count(), 12U);
  EXPECT_LE(rows.rows.widest(), 400U);
  EXPECT_THAT(rows.text(), ::testing::HasSubstr("old"));
  EXPECT_THAT(rows.text(), ::testing::HasSubstr(" bytes\n"));
}

TEST(DifferenceRowsTest, APieceDoesNotEndWithinACharacter) {
  std::string page = "x";
  for (int i = 0; i < 1000; ++i) {
    page += "\xe2\x82\xac";
  }
  Rows rows(page + "1", page + "2");
  rows.openAll();
  for (std::size_t i = 0; i < rows.rows.count(); ++i) {
    EXPECT_EQ(rows.rows.at(i).before->of(rows.before).front() & 0xC0, i == 0 ? 0x40 : 0xC0) << i;
  }
}

TEST(DifferenceRowsTest, HexRowsBeginAtMultiplesOfSixteenOfTheirOwnPage) {
  const std::string before(100, 'a');
  std::string after = before;
  after.insert(50, "xyz");
  const Rows rows(before, after, DifferenceLayout::hex);
  bool differs = false;
  for (std::size_t i = 0; i < rows.rows.count(); ++i) {
    const DifferenceRow& row = rows.rows.at(i);
    EXPECT_TRUE(row.isFold() || !row.after || row.after->begin % 16 == 0);
    differs |= row.kind == Kind::changed && row.after && row.after->begin == 48;
  }
  EXPECT_TRUE(differs) << rows.text();
}

TEST(DifferenceRowsTest, EqualPagesAreShownWhole) {
  for (const DifferenceLayout layout : kLayouts) {
    EXPECT_EQ(Rows(lines(1, 50), lines(1, 50), layout).rows.at(0).kind, Kind::equal);
    EXPECT_EQ(Rows("", "", layout).rows.count(), 0U);
  }
}

// Whatever the pages: nothing of them is left out, and each byte that differs stands in a row of a change.
TEST(DifferenceRowsTest, HoldEveryByteAndEveryChangedOneInAChange) {
  for (const PagePair& pair : pagePairs(200, 7)) {
    if (pair.before.size() + pair.after.size() > 200'000) {
      continue;
    }
    for (const DifferenceLayout layout : kLayouts) {
      Rows shown(pair.before, pair.after, layout);
      const auto isMarkedRow = [&](const ByteSpans& marks, std::size_t mark, auto side) {
        for (std::size_t i = 0; i < shown.rows.count(); ++i) {
          const DifferenceRow& row = shown.rows.at(i);
          const auto& span = row.*side;
          if (row.kind == Kind::changed && span && span->begin <= marks[mark].begin && marks[mark].begin < span->end) {
            return true;
          }
        }
        return false;
      };
      for (const PageChange& change : shown.difference.changes) {
        for (std::size_t mark = 0; mark < std::min<std::size_t>(change.removed.size(), 5); ++mark) {
          EXPECT_TRUE(isMarkedRow(change.removed, mark, &DifferenceRow::before)) << pair.kind;
        }
        for (std::size_t mark = 0; mark < std::min<std::size_t>(change.added.size(), 5); ++mark) {
          EXPECT_TRUE(isMarkedRow(change.added, mark, &DifferenceRow::after)) << pair.kind;
        }
      }
      shown.openAll();
      std::string before;
      std::string after;
      for (std::size_t i = 0; i < shown.rows.count(); ++i) {
        before += shown.rows.at(i).before.value_or(ByteSpan{}).of(pair.before);
        after += shown.rows.at(i).after.value_or(ByteSpan{}).of(pair.after);
      }
      EXPECT_EQ(before == pair.before, true) << pair.kind << " " << static_cast<int>(layout);
      EXPECT_EQ(after == pair.after, true) << pair.kind << " " << static_cast<int>(layout);
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
