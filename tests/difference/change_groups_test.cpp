// SPDX-License-Identifier: MIT
#include "difference/change_groups.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick {
namespace {

ChangePhrases phrases(const std::string& before, const std::string& after) {
  return phrasesOf(before, after, differenceOf(before, after));
}

TEST(ChangePhrases, HaveTheWordBeforeThem) {
  EXPECT_EQ(phrases("<p>\xc2\xa9 2025 Shop</p>\n", "<p>\xc2\xa9 2026 Shop</p>\n"),
            (ChangePhrases{{"\xc2\xa9 2025", "\xc2\xa9 2026"}}));
  EXPECT_EQ(phrases("a\nb\n", "a\nb\nnew line\n"), (ChangePhrases{{"", "new line"}}));
  EXPECT_EQ(phrases("a\ngone\n", "a\n"), (ChangePhrases{{"gone", ""}}));
  EXPECT_TRUE(phrases("a\n", "a\n").empty());
}

TEST(ChangePhrases, AreNotRepeated) {
  EXPECT_EQ(phrases("v 1\nx\nv 1\n", "v 2\nx\nv 2\n"), (ChangePhrases{{"v 1", "v 2"}}));
}

TEST(ChangeGroups, HaveWhatHasChangedAlikeWhereverItStands) {
  std::vector<ChangePhrases> pages;
  for (int i = 0; i < 300; ++i) {
    const std::string head =
        "<h1>Page " + std::to_string(i) + "</h1>\n" + std::string(static_cast<std::size_t>(i % 7), '\n');
    const std::string shop = "<p>Shop " + std::to_string(i) + " ";
    pages.push_back(i % 100 == 50 ? phrases(head + "Kettle: 24\n", head + "Kettle: 29\n")
                    : i == 99     ? phrases(head, head)
                                  : phrases(head + shop + "\xc2\xa9 2025</p>\n", head + shop + "\xc2\xa9 2026</p>\n"));
  }
  const std::vector<ChangeGroup> groups = groupsOf(pages);
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].pages.size(), 296U);
  EXPECT_EQ(groups[0].phrases, (ChangePhrases{{"\xc2\xa9 2025", "\xc2\xa9 2026"}}));
  EXPECT_EQ(groups[1].pages, (std::vector<std::size_t>{50, 150, 250}));
}

}  // namespace
}  // namespace tarnwick
