// SPDX-License-Identifier: MIT
// What of a difference looks like something that always changes.
#include "engine/widening.h"

#include <gtest/gtest.h>

#include "holes/hole_words.h"
#include "page_rules/page_judge.h"

namespace tarnwick {
namespace {

constexpr LocalTime kNow = std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(22);

struct Trial {
  std::string before;
  std::string now;
  RuleSet set{};

  Learnt learnt() const { return widenedBy(before, set, now, kNow); }
  std::vector<std::string> words() const {
    std::vector<std::string> words;
    for (const Hole& hole : learnt().holes) {
      words.push_back(describe(hole) + " [" + before.substr(hole.begin, hole.length) + "]");
    }
    return words;
  }
  void store(const Learnt& learnt) { set.holes = united(set.holes, learnt.holes); }
  bool isSame(const std::string& page) const { return judgePage(before, page, set).same; }
};
using Words = std::vector<std::string>;

std::string page(const std::string& time, const std::string& visits, const std::string& rest = "is as it was") {
  return "<h1>Shop</h1>\n<p>Seen at " + time + " by visitor " + visits + "</p>\n<p>The rest of the page " + rest +
         ".</p>\n" + std::string(200, 'x') + "\n";
}

TEST(Widening, ProposesWhatLooksVolatile) {
  Trial trial{page("18:40:11", "204"), page("19:02:45", "211")};
  EXPECT_EQ(trial.words(), (Words{"a time [18:40:11]", "a number of 1 to 6 digits [204]"}));
  const Learnt learnt = trial.learnt();
  EXPECT_TRUE(learnt.explains);
  EXPECT_GT(learnt.watched, 0.9);
  EXPECT_LT(learnt.watched, 1);
  trial.store(learnt);
  EXPECT_TRUE(trial.isSame(trial.now));
  EXPECT_TRUE(trial.isSame(page("00:00:00", "1204")));
  EXPECT_FALSE(trial.isSame(page("00:00:00", "1204", "was defaced")));
}

TEST(Widening, LeavesOutWhatIsAChange) {
  Trial trial{page("18:40:11", "204"), page("19:02:45", "204", "was defaced")};
  EXPECT_EQ(trial.words(), Words{"a time [18:40:11]"});
  EXPECT_FALSE(trial.learnt().explains);
  EXPECT_EQ(trial.learnt().line, 3U);
  trial.store(trial.learnt());
  EXPECT_FALSE(trial.isSame(trial.now));

  const Trial words{"<p>Kettle</p>\n", "<p>Toaster &amp; more</p>\n"};
  EXPECT_EQ(words.words(), Words{});
  EXPECT_FALSE(words.learnt().explains);
}

TEST(Widening, KeepsWhatMayVaryAlready) {
  Trial trial{page("18:40:11", "204"), page("19:02:45", "204")};
  trial.store(trial.learnt());
  const Holes before = trial.set.holes;
  trial.now = page("20:00:01", "307");
  EXPECT_EQ(trial.words(), Words{"a number of 1 to 6 digits [204]"});
  trial.store(trial.learnt());
  ASSERT_EQ(trial.set.holes.size(), 2U);
  EXPECT_EQ(trial.set.holes.front().kind, before.front().kind);
  EXPECT_TRUE(trial.isSame(trial.now));
}

TEST(Widening, MakesAHoleWiderThatIsTooNarrow) {
  Trial trial{page("18:40:11", "204"), page("18:40:11", "1204567")};
  const std::size_t at = trial.before.find("204");
  trial.set.holes = {{.begin = at, .length = 3, .kind = HoleClass::digits, .least = 1, .most = 4}};
  setAnchors(trial.set.holes, trial.before);
  EXPECT_FALSE(trial.isSame(trial.now));
  const Learnt learnt = trial.learnt();
  ASSERT_EQ(learnt.holes.size(), 1U);
  EXPECT_EQ(learnt.holes.front().begin, at);
  EXPECT_EQ(learnt.holes.front().kind, HoleClass::digits);
  EXPECT_EQ(learnt.holes.front().least, 1U);
  EXPECT_GE(learnt.holes.front().most, 7U);
  EXPECT_TRUE(learnt.explains);
  trial.store(learnt);
  EXPECT_EQ(trial.set.holes.size(), 1U);
  EXPECT_TRUE(trial.isSame(trial.now));
  EXPECT_TRUE(trial.isSame(page("18:40:11", "9")));
}

TEST(Widening, MakesAKeyOfWhatWasTakenForAHexNumber) {
  const auto made = [](const std::string& key) { return "<p nonce=\"" + key + "\">Hello, all of you.</p>\n"; };
  Trial trial{made("9f86d081884c7d65"), made("zQ86d081884c7d6x")};
  const std::size_t at = trial.before.find("9f86");
  trial.set.holes = {{.begin = at, .length = 16, .kind = HoleClass::hex, .least = 16, .most = 16}};
  setAnchors(trial.set.holes, trial.before);
  ASSERT_EQ(trial.learnt().holes.size(), 1U);
  EXPECT_EQ(trial.learnt().holes.front().kind, HoleClass::base64);
  EXPECT_TRUE(trial.learnt().explains);
}

TEST(Widening, DoesNotLookAtWhatRulesLeaveOut) {
  Trial trial{"clock 18:40:11\nads 17\nvisits 204\nend of it\n", "clock 19:00:00\nads 99\nvisits 205\nend of it\n"};
  trial.set.rules = {{PageRule::Use::leaveOut, PageRule::Language::lines, "2"}};
  EXPECT_EQ(trial.words(), (Words{"a time [18:40:11]", "a number of 1 to 6 digits [204]"}));
  EXPECT_TRUE(trial.learnt().explains);
  trial.set.rules = {{PageRule::Use::compareOnly, PageRule::Language::lines, "3-4"}};
  EXPECT_EQ(trial.words(), Words{"a number of 1 to 6 digits [204]"});
  EXPECT_TRUE(trial.learnt().explains);
}

TEST(FirstLook, NamesWhatAlwaysChanges) {
  EXPECT_EQ(firstLook(page("18:40:11", "204"), {}, page("19:02:45", "204")), "a time");
  EXPECT_EQ(firstLook(page("18:40:11", "204"), {}, page("18:40:11", "205")), "a number");
  EXPECT_EQ(firstLook("key 9f86d081884c7d65.\n", {}, "key a3bf4f1b2b0b822c.\n"), "a key");
  EXPECT_EQ(firstLook("Updated 21 Nov 2026\n", {}, "Updated 22 Nov 2026\n"), "a date");
}

TEST(FirstLook, IsSilentWhereItIsAChange) {
  EXPECT_EQ(firstLook(page("18:40:11", "204"), {}, page("18:40:11", "204", "was defaced")), "");
  EXPECT_EQ(firstLook("a 17\n", {}, "b 18\n"), "");
  EXPECT_EQ(firstLook("a 17\n", {}, "a 17\n"), "");
  EXPECT_EQ(firstLook("a 17\n", {}, "a 17\nb\n"), "");
  EXPECT_EQ(firstLook(std::string(5000, 'x') + "17", {}, std::string(5000, 'x') + "18"), "");
}

TEST(FirstLook, KeepsToTheRules) {
  const RuleSet set{{{PageRule::Use::leaveOut, PageRule::Language::lines, "1"}}, {}};
  EXPECT_EQ(firstLook("clock 18:40:11\nvisits 204\n", set, "clock 19:00:00\nvisits 205\n"), "a number");
  EXPECT_EQ(firstLook("clock 18:40:11\nvisits few\n", set, "clock 19:00:00\nvisits many\n"), "");
}

TEST(Widening, RoughlyProposesNothing) {
  const Learnt learnt = roughlyWidenedBy(page("18:40:11", "204"), {}, page("18:40:12", "204"));
  EXPECT_TRUE(learnt.holes.empty());
  EXPECT_FALSE(learnt.explains);
  EXPECT_EQ(learnt.line, 2U);
}

TEST(Widening, OfEqualPagesIsNothing) {
  const Trial trial{page("18:40:11", "204"), page("18:40:11", "204")};
  EXPECT_TRUE(trial.learnt().explains);
  EXPECT_EQ(trial.learnt().watched, 1);
  EXPECT_EQ(trial.words(), Words{});
}

}  // namespace
}  // namespace tarnwick
