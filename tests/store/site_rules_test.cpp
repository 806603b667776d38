// SPDX-License-Identifier: MIT
#include "store/site_rules.h"

#include <gtest/gtest.h>

#include "store/site_records.h"
#include "support/data_fixture.h"

namespace tarnwick {
namespace {

using testing::DataFixture;

class SiteRulesTest : public DataFixture {
 protected:
  static RuleSet someRules() {
    Hole date{.begin = 40,
              .length = 5,
              .kind = HoleClass::date,
              .form = "%H:%M",
              .before = "at ",
              .after = std::string("\0\n%\xFF", 4)};
    Hole list{.begin = 3, .length = 4, .kind = HoleClass::list, .choices = {"web1", "web 2", ""}};
    return {{{PageRule::Use::leaveOut, PageRule::Language::css, "#clock > b"},
             {PageRule::Use::compareOnly, PageRule::Language::regex, "price: (\\d+)\nand more"}},
            {list, date}};
  }

  SiteRules rules{database};
};

TEST_F(SiteRulesTest, ComeBackAsTheyWereStored) {
  rules.storeRules(7, someRules());
  EXPECT_EQ(rules.rulesOf(7), someRules());
  EXPECT_TRUE(rules.rulesOf(8).empty());
  EXPECT_EQ(rules.sitesWithRules(), std::set<std::int64_t>{7});
  rules.storeRules(7, {});
  EXPECT_TRUE(rules.rulesOf(7).empty());
  EXPECT_TRUE(rules.sitesWithRules().empty());
}

TEST_F(SiteRulesTest, AListWithoutTheTableReadsAsIfItWereEmpty) {
  folder.execute("drop table rules");
  EXPECT_TRUE(rules.rulesOf(7).empty());
  EXPECT_TRUE(rules.sitesWithRules().empty());
  EXPECT_NO_THROW(rules.removeRules(7));
  EXPECT_NO_THROW(rules.storeRules(7, {}));
}

TEST_F(SiteRulesTest, WhatANewerProgramHasStoredIsLeftOut) {
  folder.execute(
      "insert into rules values (7, 1, 'leave out', 'css #a'), (7, 2, 'leave in', 'css #b'), (7, 3, 'leave out', "
      "'prolog #c'), (7, 4, 'hole', 'moods at=1'), (7, 5, 'hole', 'digits at=x'), (7, 6, 'leave out', 'css')");
  EXPECT_EQ(rules.rulesOf(7).rules.size(), 1U);
  EXPECT_TRUE(rules.rulesOf(7).holes.empty());
}

TEST_F(SiteRulesTest, GoWithTheSite) {
  SiteRecords sites(database);
  const std::int16_t kept = sites.addSite();
  const std::int16_t gone = sites.addSite();
  rules.storeRules(kept, someRules());
  rules.storeRules(gone, someRules());
  sites.deleteSite(gone);
  EXPECT_EQ(rules.sitesWithRules(), std::set<std::int64_t>{kept});
  folder.execute("delete from sites");  // as an older program does
  EXPECT_TRUE(rules.rulesOf(sites.addSite()).empty());
}

}  // namespace
}  // namespace tarnwick
