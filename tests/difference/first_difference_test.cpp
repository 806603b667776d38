// SPDX-License-Identifier: MIT
#include "difference/first_difference.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(FirstDifference, NamesTheLineAndWhatStandsThere) {
  const FirstDifference difference = firstDifference("a\nb\nc\n", "a\nB\nc\n");
  EXPECT_EQ(difference.line, 2U);
  EXPECT_EQ(difference.before, "b");
  EXPECT_EQ(difference.after, "B");
}

TEST(FirstDifference, IsLineZeroForEqualTexts) { EXPECT_EQ(firstDifference("a\n", "a\n").line, 0U); }

TEST(FirstDifference, LiesBehindTheEndOfAShorterText) {
  const FirstDifference difference = firstDifference("a\n", "a\nb\n");
  EXPECT_EQ(difference.line, 2U);
  EXPECT_EQ(difference.before, "");
  EXPECT_EQ(difference.after, "b");
}

TEST(FirstDifference, MayBeAMissingLineFeedOnly) {
  const FirstDifference difference = firstDifference("a\nb", "a\nb\n");
  EXPECT_EQ(difference.line, 2U);
  EXPECT_EQ(difference.before, "b");
  EXPECT_EQ(difference.after, "b");
}

}  // namespace
}  // namespace tarnwick
