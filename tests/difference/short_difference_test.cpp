// SPDX-License-Identifier: MIT
#include "difference/short_difference.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace tarnwick {
namespace {

TEST(ShortDifference, EqualTextsHaveNone) { EXPECT_EQ(shortDifference("a\nb\n", "a\nb\n", 30), ""); }

TEST(ShortDifference, ShowsTheChangedLineWithThreeLinesAroundIt) {
  EXPECT_EQ(shortDifference("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n", 30),
            " 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(ShortDifference, LeavesOutWhatIsMoreThanItsLines) {
  EXPECT_EQ(shortDifference("a\nb\nc\n", "x\ny\nz\n", 4), "-a\n-b\n-c\n+x\n...\n");
}

TEST(ShortDifference, ShowsBytesThatAreNoUtf8AsWindows1252AndControlsAsEscapes) {
  EXPECT_EQ(shortDifference("caf\xe9\n", "caf\xe9 \x1b[2J\n", 30), "-caf\xc3\xa9\n+caf\xc3\xa9 \\x1b[2J\n");
}

TEST(ShortDifference, ShowsOneLongLineFromTheDifferenceOn) {
  const std::string before = std::string(5'000'000, 'a') + "24.00" + std::string(1'000'000, 'b');
  const std::string after = std::string(5'000'000, 'a') + "29.00" + std::string(1'000'000, 'b');
  const std::string shown = shortDifference(before, after, 30);
  EXPECT_NE(shown.find("24.00"), std::string::npos) << shown;
  EXPECT_NE(shown.find("29.00"), std::string::npos) << shown;
  EXPECT_LT(shown.size(), 1000U);
}

TEST(ShortDifference, IsQuickWhereEveryLineDiffers) {
  std::string before;
  std::string after;
  for (int i = 0; i < 1'000'000; ++i) {
    before += std::to_string(i) + "\n";
    after += std::to_string(i * 7) + "!\n";
  }
  const auto begun = std::chrono::steady_clock::now();
  const std::string shown = shortDifference(before, after, 30);
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(2));
  EXPECT_TRUE(shown.ends_with("...\n"));
}

}  // namespace
}  // namespace tarnwick
