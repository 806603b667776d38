// SPDX-License-Identifier: MIT
#include "ui/baseline/hole_draft.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr std::string_view kPage = "<p>Seen at 04:10:12</p>\n<p>by visitor 18,204 of all</p>\n<p>The end</p>\n";

class HoleDraftTest : public ::testing::Test {
 protected:
  HoleDraftTest() { draft.start({}, std::string(kPage)); }

  std::size_t add(const std::string& text) {
    const std::size_t begin = draft.baseline().find(text);
    return draft.add(begin, begin + text.size());
  }
  std::string own(std::size_t entry) const {
    const Hole& hole = draft.entries()[entry].hole;
    return draft.baseline().substr(hole.begin, hole.length);
  }
  std::vector<std::string> shown() const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < draft.entries().size(); ++i) {
      texts.push_back(draft.entries()[i].isLost ? "lost" : own(i));
    }
    return texts;
  }
  void replace(const std::string& text, const std::string& by) {
    std::string page = draft.baseline();
    page.replace(page.find(text), text.size(), by);
    draft.follow(page);
  }

  HoleDraft draft;
};

TEST_F(HoleDraftTest, ProposesTheSmallestClass) {
  const std::size_t number = add("18,204");
  EXPECT_EQ(draft.entries()[number].hole.kind, HoleClass::digits);
  const std::size_t time = add("04:10:12");
  EXPECT_EQ(time, 0U) << "not in the order of the page";
  EXPECT_EQ(draft.entries()[time].hole.kind, HoleClass::date);
  EXPECT_EQ(draft.entries()[add("visitor")].hole.kind, HoleClass::letters);
  EXPECT_EQ(draft.entries()[add("<p>The end</p>")].hole.kind, HoleClass::anything);
}

TEST_F(HoleDraftTest, WhatTheLatestPageHasIsShownAndTakenIn) {
  std::string latest(kPage);
  latest.replace(latest.find("visitor"), 7, "friend7");
  draft.see(latest);
  const std::size_t entry = add("visitor");
  EXPECT_EQ(draft.entries()[entry].seen, "friend7");
  EXPECT_EQ(draft.entries()[entry].hole.kind, HoleClass::base64);
  ASSERT_TRUE(draft.setClass(entry, HoleClass::list));
  EXPECT_EQ(draft.entries()[entry].hole.choices, (std::vector<std::string>{"visitor", "friend7"}));
}

TEST_F(HoleDraftTest, APlaceBehindADifferenceHasNotBeenSeen) {
  std::string latest(kPage);
  latest.replace(latest.find("Seen"), 4, "Gone");
  draft.see(latest);
  EXPECT_EQ(draft.entries()[add("18,204")].seen, std::nullopt);
}

TEST_F(HoleDraftTest, AHoleGrowsByTheTextBesideIt) {
  add("04:10");
  add(":12");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12"}));
  EXPECT_EQ(draft.entries()[0].hole.kind, HoleClass::date);
}

TEST_F(HoleDraftTest, OffersTheClassesThatTheTextBelongsTo) {
  using enum HoleClass;
  EXPECT_EQ(draft.classesOf(add("visitor")), (std::vector<HoleClass>{base64, letters, list, text, anything}));
  EXPECT_EQ(draft.classesOf(add("04:10:12")), (std::vector<HoleClass>{date, list, text, anything}));
  EXPECT_FALSE(draft.setClass(0, letters));
  EXPECT_TRUE(draft.setClass(0, text));
  EXPECT_EQ(draft.classesOf(add("</p>\n<p>The")), (std::vector<HoleClass>{list, anything}));
}

TEST_F(HoleDraftTest, LengthsAlwaysTakeInTheBaseline) {
  const std::size_t entry = add("18,204");
  ASSERT_TRUE(draft.setLengths(entry, 1, 3));
  EXPECT_EQ(draft.entries()[entry].hole.least, 1U);
  EXPECT_EQ(draft.entries()[entry].hole.most, 5U);
  ASSERT_TRUE(draft.setLengths(entry, 9, 7));
  EXPECT_EQ(draft.entries()[entry].hole.least, 5U);
  EXPECT_EQ(draft.entries()[entry].hole.most, 9U);
  EXPECT_FALSE(draft.setLengths(add("04:10:12"), 1, 2));
}

TEST_F(HoleDraftTest, EditsAroundAHoleMoveIt) {
  add("04:10:12");
  add("18,204");
  replace("<p>Seen", "<p>Was seen");
  replace("The end", "An end of it");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12", "18,204"}));
  replace("18,204", "18,2045");
  replace("Was seen at", "Was seen at 2");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12", "18,2045"}));
  replace("18,2045", "17");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12", "17"}));
}

TEST_F(HoleDraftTest, AHoleWhosePlaceIsGoneIsLostUntilItComesBack) {
  add("04:10:12");
  add("18,204");
  replace("<p>by visitor 18,204 of all</p>\n", "");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12", "lost"}));
  EXPECT_EQ(draft.set().holes.size(), 1U);
  replace("<p>The end", "<p>by visitor 18,204 of all</p>\n<p>The end");
  EXPECT_EQ(shown(), (std::vector<std::string>{"04:10:12", "18,204"}));
}

TEST_F(HoleDraftTest, AnotherPageKeepsTheHolesThatItHas) {
  add("04:10:12");
  add("18,204");
  draft.follow("<title>New</title>\n<p>Seen at 17:22:59</p>\n<p>by visitor 9 of all</p>\n<p>A new end</p>\n");
  EXPECT_EQ(shown(), (std::vector<std::string>{"17:22:59", "9"}));
}

TEST_F(HoleDraftTest, EqualPlacesAreNotMixedUp) {
  std::string page;
  for (int i = 0; i < 10; ++i) {
    page += "<tr><td>a row like all the others of this long, long table</td><td>count 17</td></tr>\n";
  }
  draft.start({}, page);
  const std::size_t begin = page.find("17", page.size() / 2);
  draft.add(begin, begin + 2);
  draft.follow("<table>\n" + page);
  EXPECT_EQ(draft.entries()[0].hole.begin, begin + 8);
}

TEST_F(HoleDraftTest, TellsHowMuchStaysWatched) {
  EXPECT_EQ(draft.watched(), 1);
  add("04:10:12");
  EXPECT_DOUBLE_EQ(draft.watched(), 1 - 8.0 / static_cast<double>(kPage.size()));
  draft.setRules({{PageRule::Use::leaveOut, PageRule::Language::lines, "1"}});
  EXPECT_DOUBLE_EQ(draft.watched(), 1 - static_cast<double>(kPage.find('\n') + 1) / static_cast<double>(kPage.size()));
}

TEST_F(HoleDraftTest, WhatIsStoredStandsWhereItWasStored) {
  add("04:10:12");
  add("18,204");
  const RuleSet stored = draft.set();
  HoleDraft again;
  again.start(stored, std::string(kPage));
  EXPECT_EQ(again.set(), stored);
  again.start(stored, "quite another page");
  EXPECT_TRUE(again.set().empty());
  EXPECT_EQ(again.entries().size(), 2U);
}

}  // namespace
}  // namespace tarnwick
