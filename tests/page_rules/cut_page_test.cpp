// SPDX-License-Identifier: MIT
#include "page_rules/cut_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

PageRule only(const std::string& lines) { return {PageRule::Use::compareOnly, PageRule::Language::lines, lines}; }
PageRule without(const std::string& lines) { return {PageRule::Use::leaveOut, PageRule::Language::lines, lines}; }

const std::string kPage = "1\n2\n3\n4\n5\n";

TEST(APageWithoutRules, IsKeptWhole) {
  EXPECT_EQ(cut(kPage, {}).text, kPage);
  EXPECT_EQ(cut("", {}).text, "");
}

TEST(WhatIsLeftOut, IsNotThere) {
  const CutPage page = cut(kPage, {without("2"), without("4-")});
  EXPECT_EQ(page.text, "1\n3\n");
  EXPECT_EQ(page.inPage(0), 0U);
  EXPECT_EQ(page.inPage(3), 5U);
  EXPECT_THAT(page.idle, IsEmpty());
}

TEST(WhatIsPickedOut, IsAllThatIsThere) {
  const CutPage page = cut(kPage, {only("2-3"), only("5"), without("3")});
  EXPECT_EQ(page.text, "2\n\x1E\n5\n");
  EXPECT_EQ(page.inPage(4), 8U);
}

TEST(ARuleThatFindsNothing, IsNamed) {
  EXPECT_THAT(cut(kPage, {without("2"), without("9")}).idle, ElementsAre(1U));
  const CutPage page = cut(kPage, {only("9")});
  EXPECT_EQ(page.text, "");
  EXPECT_THAT(page.idle, ElementsAre(0U));
}

TEST(HolesOfAPageThatIsCut, MoveWithWhatIsLeft) {
  const Holes holes = {
      {.begin = 0, .length = 1}, {.begin = 2, .length = 1}, {.begin = 4, .length = 1}, {.begin = 7, .length = 2}};
  const Holes left = holesLeft(cut(kPage, {without("2")}), holes);
  ASSERT_EQ(left.size(), 3U);
  EXPECT_EQ(left[0].begin, 0U);
  EXPECT_EQ(left[1].begin, 2U);
  EXPECT_EQ(left[2].begin, 5U);
}

}  // namespace
}  // namespace tarnwick
