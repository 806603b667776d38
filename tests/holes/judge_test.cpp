// SPDX-License-Identifier: MIT
#include "holes/judge.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "holes/hole_values.h"
#include "holes/page_text.h"

namespace tarnwick {
namespace {

/// A baseline with its holes between brackets: "a[12]b".
struct Page {
  std::string baseline;
  Holes holes;
};

Page pageWith(const std::string& text, const std::vector<Hole>& kinds) {
  Page page;
  std::size_t kind = 0;
  for (const char c : text) {
    if (c == '[') {
      page.holes.push_back(kinds.at(kind++));
      page.holes.back().begin = page.baseline.size();
    } else if (c == ']') {
      page.holes.back().length = page.baseline.size() - page.holes.back().begin;
    } else {
      page.baseline += c;
    }
  }
  return page;
}

const Hole kNumber{.kind = HoleClass::digits, .least = 1, .most = 6};
const Hole kKey{.kind = HoleClass::hex, .least = 8, .most = 8};
const Hole kAd{.kind = HoleClass::anything, .most = 200};

TEST(APageWithoutHoles, IsComparedByteForByte) {
  EXPECT_TRUE(judge("abc", {}, "abc").same);
  EXPECT_TRUE(judge("", {}, "").same);
  EXPECT_FALSE(judge("abc", {}, "abd").same);
  EXPECT_FALSE(judge("abc", {}, "abcd").same);
  EXPECT_FALSE(judge("abc", {}, "ab").same);
  EXPECT_FALSE(judge("abc", {}, "").same);
  EXPECT_FALSE(judge("", {}, "a").same);
}

TEST(AHole, TakesWhatIsOfItsClassAndLength) {
  const Page page = pageWith("<p>[18,204] visitors, key [0123abcd].</p>", {kNumber, kKey});
  const auto isSame = [&](const std::string& other) { return judge(page.baseline, page.holes, other).same; };
  EXPECT_TRUE(isSame(page.baseline));
  EXPECT_TRUE(isSame("<p>7 visitors, key ffffffff.</p>"));
  EXPECT_TRUE(isSame("<p>999,999 visitors, key ABCDEF01.</p>"));
  EXPECT_FALSE(isSame("<p>1,999,999 visitors, key ffffffff.</p>")) << "seven digits";
  EXPECT_FALSE(isSame("<p>many visitors, key ffffffff.</p>"));
  EXPECT_FALSE(isSame("<p> visitors, key ffffffff.</p>"));
  EXPECT_FALSE(isSame("<p>7 visitors, key fffffff.</p>")) << "one short";
  EXPECT_FALSE(isSame("<p>7 visitors, key fffffffff.</p>")) << "one long";
  EXPECT_FALSE(isSame("<p>7 visitors, key fffffffg.</p>"));
  EXPECT_FALSE(isSame("<p>7 Visitors, key ffffffff.</p>"));
  EXPECT_FALSE(isSame("<p>7 visitors, key ffffffff.</p> "));
}

TEST(AHoleForAnything, EndsWhereTheFixedBytesBehindItBegin) {
  const Page page = pageWith("<div>[ad]</div>\n<p>[12] users</p>", {kAd, kNumber});
  const auto isSame = [&](const std::string& other) { return judge(page.baseline, page.holes, other).same; };
  EXPECT_TRUE(isSame("<div></div>\n<p>3 users</p>"));
  EXPECT_TRUE(isSame("<div><b>x</b></div>\n<p>x</p></div>\n<p>3 users</p>")) << "the first place is not the right one";
  EXPECT_FALSE(isSame("<div><b>x</b></div>\n<p>x users</p>"));
  EXPECT_FALSE(isSame("<div>" + std::string(201, 'x') + "</div>\n<p>3 users</p>"));
  EXPECT_FALSE(isSame("<div></div>\n<p>3 users</p>\n<script>"));
}

TEST(AHoleAtAnEnd, TakesWhatIsThere) {
  const Page page = pageWith("[12] and [ad]", {kNumber, kAd});
  EXPECT_TRUE(judge(page.baseline, page.holes, "3 and ").same);
  EXPECT_TRUE(judge(page.baseline, page.holes, "3 and anything else").same);
  EXPECT_FALSE(judge(page.baseline, page.holes, "and anything else").same);
}

TEST(AHoleWithAList, TakesOneOfItsChoices) {
  const Page page = pageWith("by [web1].", {{.kind = HoleClass::list, .choices = {"web", "web1", "web22"}}});
  for (const char* choice : {"web", "web1", "web22"}) {
    EXPECT_TRUE(judge(page.baseline, page.holes, "by " + std::string(choice) + ".").same) << choice;
  }
  EXPECT_FALSE(judge(page.baseline, page.holes, "by web2.").same);
}

TEST(AHoleWhoseBytesAreAlsoThoseBehindIt, EndsAtTheRightOnes) {
  const Hole key{.kind = HoleClass::base64, .least = 4, .most = 20};
  const Page page = pageWith("/[ab12]/page", {key});
  EXPECT_TRUE(judge(page.baseline, page.holes, "/abcd/efgh/page").same);
  EXPECT_FALSE(judge(page.baseline, page.holes, "/ab/page").same);
}

TEST(AJudgement, SaysWhereThePageDiffersAndWhatStandsInTheHoles) {
  const Page page = pageWith("one [12] two [34] three", {kNumber, kNumber});
  const Judgement same = judge(page.baseline, page.holes, "one 7 two 89 three");
  ASSERT_TRUE(same.same);
  ASSERT_EQ(same.values.size(), 2U);
  EXPECT_EQ(same.values[1].begin, 10U);
  EXPECT_EQ(same.values[1].length, 2U);
  const Judgement other = judge(page.baseline, page.holes, "one 7 twx 89 three");
  EXPECT_FALSE(other.same);
  EXPECT_EQ(other.baselineAt, 9U);
  EXPECT_EQ(other.pageAt, 8U);
  EXPECT_EQ(other.values.size(), 1U);
}

TEST(APageMadeToBeAmbiguous, IsJudgedInTimeInProportionToItsLength) {
  // Each place where the fixed bytes might begin is looked at, and most of what follows fits, too.
  const std::string many(200'000, 'a');
  Page page;
  page.baseline = "x";
  for (int i = 0; i < 200; ++i) {
    page.holes.push_back({.begin = page.baseline.size(), .kind = HoleClass::anything, .most = 1U << 30U});
    page.baseline += std::string(400, 'a') + "b";
  }
  const auto begun = std::chrono::steady_clock::now();
  EXPECT_FALSE(judge(page.baseline, page.holes, "x" + many + many).same);
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(1));
}

TEST(APageInUtf16, IsReadAsCharactersThatTellItsOrder) {
  const std::string little(
      "\xFF\xFE"
      "a\0b\0",
      6);
  const std::string big("\xFE\xFF\0a\0b", 6);
  EXPECT_EQ(pageText(little),
            "\xFF\xEF\xBB\xBF"
            "ab");
  EXPECT_EQ(pageText(big),
            "\xFE\xEF\xBB\xBF"
            "ab");
  EXPECT_EQ(pageText("ab"), "ab");
  const std::string broken(
      "\xFF\xFE"
      "a\0\0\xD8",
      6);
  EXPECT_EQ(pageText(broken), broken) << "half of a pair is no character";
}

TEST(ANumber, MayBeDividedAsPagesDo) {
  EXPECT_EQ(numberAt("1,234,567 x", "", nullptr).digits, 7U);
  EXPECT_EQ(numberAt("12.5 x", "", nullptr).length, 2U);
  EXPECT_EQ(numberAt("12.5 x", ".", nullptr).length, 4U);
  EXPECT_EQ(numberAt("-5", "", nullptr).length, 0U);
  EXPECT_EQ(numberAt("-5", "-", nullptr).length, 2U);
  EXPECT_EQ(numberAt("12.345", "", ".").length, 2U) << "the dot is what follows";
  EXPECT_EQ(numberAt("5, 6", ",", nullptr).length, 1U);
}

}  // namespace
}  // namespace tarnwick
