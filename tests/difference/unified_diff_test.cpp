// SPDX-License-Identifier: MIT
#include "difference/unified_diff.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

std::string diffOf(const std::string& before, const std::string& after) {
  std::string text;
  unifiedDiff(before, after, [&](const DiffLine& line) {
    text += (line.mark == '@' ? "" : std::string(1, line.mark)) + std::string(line.text) + "\n";
  });
  return text;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t feed = text.find('\n', at);
    const std::size_t end = feed == std::string::npos ? text.size() : feed + 1;
    lines.push_back(text.substr(at, end - at));
    at = end;
  }
  return lines;
}

/// Applies a diff as the program patch does, and fails where a line is not what the diff says it is.
std::string patched(const std::string& before, const std::string& after) {
  const std::vector<std::string> lines = linesOf(before);
  std::string result;
  std::size_t at = 0;
  bool lastAdded = false;
  unifiedDiff(before, after, [&](const DiffLine& line) {
    const std::string text(line.text);
    switch (line.mark) {
      case '@': {
        std::size_t first = std::stoul(text.substr(text.find('-') + 1));
        const std::size_t comma = text.find(',');
        const bool empty = comma < text.find('+') && text.substr(comma + 1, 2) == "0 ";
        first -= empty ? 0 : 1;
        for (; at < first; ++at) {
          result += lines.at(at);
        }
        break;
      }
      case ' ':
        EXPECT_EQ(lines.at(at).substr(0, text.size()), text);
        result += lines.at(at++);
        lastAdded = true;
        break;
      case '-':
        EXPECT_EQ(lines.at(at).substr(0, text.size()), text);
        ++at;
        lastAdded = false;
        break;
      case '+':
        result += text + "\n";
        lastAdded = true;
        break;
      default:
        if (lastAdded && result.ends_with('\n')) {
          result.pop_back();
        }
    }
  });
  for (; at < lines.size(); ++at) {
    result += lines.at(at);
  }
  return result;
}

TEST(UnifiedDiff, OfEqualTextsIsEmpty) {
  EXPECT_EQ(diffOf("", ""), "");
  EXPECT_EQ(diffOf("a\nb", "a\nb"), "");
}

TEST(UnifiedDiff, ShowsAChangedLineBetweenThreeLinesOfContext) {
  EXPECT_EQ(diffOf("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n"),
            "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, WritesTwoChangesFarApartAsTwoHunks) {
  const std::string before = "a\n1\n2\n3\n4\n5\n6\n7\nb\n";
  EXPECT_EQ(diffOf(before, "A\n1\n2\n3\n4\n5\n6\n7\nB\n"),
            "@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

TEST(UnifiedDiff, WritesTwoChangesCloseToEachOtherAsOneHunk) {
  EXPECT_EQ(diffOf("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
            "@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
}

TEST(UnifiedDiff, SaysWhichTextHasNoLineFeedAtItsEnd) {
  EXPECT_EQ(diffOf("a\n", "a"), "@@ -1 +1 @@\n-a\n+a\n\\ No newline at end of file\n");
  EXPECT_EQ(diffOf("a", "b"), "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+b\n\\ No newline at end of file\n");
}

TEST(UnifiedDiff, NamesAnEmptyTextAsLineZero) {
  EXPECT_EQ(diffOf("", "a\n"), "@@ -0,0 +1 @@\n+a\n");
  EXPECT_EQ(diffOf("a\nb\n", ""), "@@ -1,2 +0,0 @@\n-a\n-b\n");
}

TEST(UnifiedDiff, KeepsCarriageReturnsAndOddBytes) {
  const std::string odd("x\xff\0y\r\n", 6);
  EXPECT_EQ(diffOf(odd, "z\n"), std::string("@@ -1 +1 @@\n-x\xff\0y\r\n+z\n", 22));
}

TEST(UnifiedDiff, IsMinimal) {
  EXPECT_EQ(diffOf("a\nb\nc\na\nb\nb\na\n", "c\nb\na\nb\na\nc\n"),
            "@@ -1,7 +1,6 @@\n-a\n-b\n c\n+b\n a\n b\n-b\n a\n+c\n");
}

TEST(UnifiedDiff, TurnsTheOneTextIntoTheOtherWhateverTheyHold) {
  std::mt19937 random(20261121);  // NOLINT: the same texts every time
  for (int round = 0; round < 2000; ++round) {
    const auto text = [&] {
      std::string made;
      for (std::size_t i = random() % 30; i > 0; --i) {
        made += std::string(1, static_cast<char>('a' + random() % 4)) + "\n";
      }
      if (random() % 3 == 0) {
        made += "end";
      }
      return made;
    };
    const std::string before = text();
    const std::string after = text();
    ASSERT_EQ(patched(before, after), after) << "before:\n" << before << "diff:\n" << diffOf(before, after);
  }
}

TEST(UnifiedDiff, OfLargePagesThatHaveNothingInCommonReplacesThemInBoundedTime) {
  std::string before;
  std::string after;
  for (int i = 0; i < 200'000; ++i) {
    before += "old " + std::to_string(i) + "\n";
    after += "new " + std::to_string(i) + "\n";
  }
  std::size_t removed = 0;
  std::size_t added = 0;
  unifiedDiff("head\n" + before + "foot\n", "head\n" + after + "foot\n", [&](const DiffLine& line) {
    removed += line.mark == '-' ? 1U : 0U;
    added += line.mark == '+' ? 1U : 0U;
  });
  EXPECT_EQ(removed, 200'000U);
  EXPECT_EQ(added, 200'000U);
}

TEST(UnifiedDiff, CountsTheLinesBeforeAChangeFarBehindTheBeginning) {
  std::string same;
  for (int line = 1; line <= 1000; ++line) {
    same += std::to_string(line) + "\n";
  }
  EXPECT_EQ(diffOf(same + "a\n" + same, same + "b\n" + same),
            "@@ -998,7 +998,7 @@\n 998\n 999\n 1000\n-a\n+b\n 1\n 2\n 3\n");
  EXPECT_EQ(
      diffOf(same + same, same), "@@ -998,1003 +998,3 @@\n 998\n 999\n 1000\n" + [&] {
        std::string removed;
        for (const std::string& line : linesOf(same)) {
          removed += "-" + line;
        }
        return removed;
      }());
}

TEST(UnifiedDiff, OfMillionsOfLinesThatDifferIsTheWholeOfThemWithoutContext) {
  const std::string feeds(3'000'000, '\n');
  std::size_t lines = 0;
  std::string last;
  const auto summary = [&](const std::string& before, const std::string& after) {
    lines = 0;
    std::string head;
    unifiedDiff(before, after, [&](const DiffLine& line) {
      ++lines;
      head += line.mark == '@' ? std::string(line.text) : "";
      last = line.mark + std::string(line.text);
    });
    return head;
  };
  EXPECT_EQ(summary("same\na" + feeds + "b\nsame\n", "same\nc" + feeds + "d\nsame\n"), "@@ -2,3000001 +2,3000001 @@");
  EXPECT_EQ(lines, 6'000'003U);
  EXPECT_EQ(last, "+d");
  // What is equal counts for nothing.
  EXPECT_EQ(summary("a\n" + feeds, "b\n" + feeds), "@@ -1,4 +1,4 @@");
  EXPECT_EQ(summary(feeds + "a", feeds + "b"), "@@ -2999998,4 +2999998,4 @@");
}

}  // namespace
}  // namespace tarnwick
