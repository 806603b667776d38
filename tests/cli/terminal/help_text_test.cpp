// SPDX-License-Identifier: MIT
#include "cli/terminal/help_text.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(WrappedHelp, LeavesShortLinesAsTheyAre) { EXPECT_EQ(wrappedHelp("one\n\n  two\n", 20), "one\n\n  two\n"); }

TEST(WrappedHelp, BreaksALongLineBetweenItsWords) {
  EXPECT_EQ(wrappedHelp("one two three four five", 10), "one two\nthree four\nfive\n");
}

TEST(WrappedHelp, GoesOnBelowTheLastColumn) {
  EXPECT_EQ(wrappedHelp("  --x   one two three four five", 20), "  --x   one two\n        three four\n        five\n");
  EXPECT_EQ(wrappedHelp("    one two three four", 14), "    one two\n    three four\n");
}

TEST(WrappedHelp, BreaksNeitherAWordNorAnExample) {
  EXPECT_EQ(wrappedHelp("ab https://example.org/ cd", 10), "ab\nhttps://example.org/\ncd\n");
  EXPECT_EQ(wrappedHelp("  tarnwickctl one two three", 10), "  tarnwickctl one two three\n");
}

}  // namespace
}  // namespace tarnwick
