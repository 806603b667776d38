// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "base/errors.h"
#include "store/acknowledgements.h"
#include "store/baselines.h"
#include "store/compaction.h"
#include "store/deleted_site.h"
#include "store/post_vars.h"
#include "store/site_records.h"
#include "store/site_tags.h"
#include "support/data_fixture.h"

namespace tarnwick {
namespace {

using testing::DataFixture;

struct SettlingTables : DataFixture {
  static std::string bytes() { return std::string("it's\0\r\n\xff", 8); }

  Baselines baselines{database};
  SiteTags tags{database};
  Acknowledgements known{database};
  SiteRecords sites{database};
};

TEST_F(SettlingTables, KeepEveryByteOfABaseline) {
  baselines.keepBaseline(3, "2026-11-23 04:00:00", BaselineOrigin::replaced, bytes());
  baselines.keepBaseline(3, "2026-11-23 04:01:00", BaselineOrigin::also, "two");
  baselines.keepBaseline(4, "2026-11-23 04:02:00", BaselineOrigin::also, "other");
  const std::vector<KeptBaseline> kept = baselines.baselinesOf(3);
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0].origin, BaselineOrigin::also);
  EXPECT_EQ(kept[1].size, bytes().size());
  EXPECT_EQ(kept[1].taken, "2026-11-23 04:00:00");
  EXPECT_EQ(baselines.keptPage(3, kept[1].number), bytes());
  EXPECT_EQ(baselines.keptPage(4, kept[1].number), std::nullopt);
  EXPECT_TRUE(baselines.isFurtherPage(3, "two"));
  EXPECT_FALSE(baselines.isFurtherPage(3, bytes()));
  EXPECT_EQ(baselines.sitesWithFurtherPages(), (std::set<std::int64_t>{3, 4}));
  EXPECT_EQ(baselines.takeLastReplaced(3), bytes());
  EXPECT_EQ(baselines.takeLastReplaced(3), std::nullopt);
  EXPECT_TRUE(baselines.dropBaseline(3, kept[0].number));
  EXPECT_FALSE(baselines.dropBaseline(3, kept[0].number));
  EXPECT_EQ(baselines.sitesWithFurtherPages(), std::set<std::int64_t>{4});
}

TEST_F(SettlingTables, KeepTenOfEachOriginAndSite) {
  for (int i = 0; i < 12; ++i) {
    baselines.keepBaseline(3, "2026-11-23 04:00:00", BaselineOrigin::replaced, std::to_string(i));
  }
  EXPECT_EQ(baselines.baselinesOf(3).size(), kMostKeptBaselines);
  EXPECT_EQ(baselines.listedBaselines(3).front().page, "2");
  for (std::size_t i = 0; i < kMostKeptBaselines; ++i) {
    baselines.keepBaseline(3, "2026-11-23 04:00:00", BaselineOrigin::also, "x");
  }
  EXPECT_THROW(baselines.keepBaseline(3, "2026-11-23 04:00:00", BaselineOrigin::also, "y"), std::length_error);
  EXPECT_EQ(baselines.baselinesOf(3).size(), 2 * kMostKeptBaselines);
}

TEST_F(SettlingTables, TagsAreWordsAndNoneIsThereTwice) {
  tags.storeTags(3, withTags({"shop"}, {"SHOP", "anna", "\xc3\xa4"}));
  EXPECT_EQ(tags.tagsOf(3), (Tags{"anna", "shop", "\xc3\xa4"}));
  EXPECT_EQ(tags.tagsOfSites(), (std::map<std::int64_t, Tags>{{3, {"anna", "shop", "\xc3\xa4"}}}));
  tags.storeTags(3, withoutTags(tags.tagsOf(3), {"Anna", "gone"}));
  EXPECT_EQ(tags.tagsOf(3), (Tags{"shop", "\xc3\xa4"}));
  EXPECT_EQ(faultOfTag("shop:de"), "");
  EXPECT_EQ(faultOfTag("a b"),
            "\"a b\" is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it.");
  for (const char* bad : {"", "-a", "a,b", "a;b", "a\"", "\xff", "a\n"}) {
    EXPECT_NE(faultOfTag(bad), "") << bad;
  }
  EXPECT_NE(faultOfTag(std::string(51, 'a')), "");
}

TEST_F(SettlingTables, AnAcknowledgementIsKeptUntilItIsRemoved) {
  known.acknowledge(3, "1f", *parseDateTime("2026-11-23 04:00:00"));
  known.acknowledge(3, "2f", *parseDateTime("2026-11-23 05:00:00"));
  EXPECT_EQ(known.acknowledgementOf(3), (Acknowledgement{"2f", "2026-11-23 05:00:00"}));
  EXPECT_EQ(known.acknowledgements().size(), 1U);
  known.removeAcknowledgement(3);
  EXPECT_EQ(known.acknowledgementOf(3), std::nullopt);
}

TEST_F(SettlingTables, AListWithoutThemReadsAsIfTheyWereEmpty) {
  folder.execute("drop table baselines; drop table siteTags; drop table acknowledged");
  EXPECT_TRUE(baselines.baselinesOf(3).empty());
  EXPECT_TRUE(baselines.sitesWithFurtherPages().empty());
  EXPECT_FALSE(baselines.isFurtherPage(3, "x"));
  EXPECT_EQ(baselines.takeLastReplaced(3), std::nullopt);
  EXPECT_NO_THROW(baselines.storeBaselines(3, {}));
  EXPECT_TRUE(tags.tagsOf(3).empty());
  EXPECT_TRUE(tags.tagsOfSites().empty());
  EXPECT_NO_THROW(tags.storeTags(3, {}));
  EXPECT_TRUE(known.acknowledgements().empty());
  EXPECT_NO_THROW(known.removeAcknowledgement(3));
  EXPECT_NO_THROW(sites.deleteSite(sites.addSite()));
}

TEST_F(SettlingTables, GoWithTheSite) {
  const std::int16_t kept = sites.addSite();
  const std::int16_t gone = sites.addSite();
  for (const std::int16_t id : {kept, gone}) {
    baselines.keepBaseline(id, "2026-11-23 04:00:00", BaselineOrigin::also, "x");
    tags.storeTags(id, {"shop"});
    known.acknowledge(id, "1f", *parseDateTime("2026-11-23 04:00:00"));
  }
  sites.deleteSite(gone);
  EXPECT_EQ(folder.queryRows("select idSite from baselines union all select idSite from siteTags union all select "
                             "idSite from acknowledged"),
            "1\n1\n1\n");
}

struct DeletedSites : SettlingTables {
  /// Every row of every table that has sites in it.
  std::string everything() {
    std::string rows =
        folder.queryRows("select *, hex(content_compare), hex(content_runtime) from sites order by idSite");
    for (const char* table :
         {"postVars", "siteOptions", "siteState", "rules", "outbox", "baselines", "siteTags", "acknowledged", "log"}) {
      rows += std::string(table) + "\n" + folder.queryRows("select * from " + std::string(table) + " order by 1, 2");
    }
    return rows;
  }

  void layOneWithAll() {
    folder.execute(
        "insert into sites values (3, 'http://a.example/''', 'post', 1, 10, '2026-11-23 04:00:00', 1, 'a@b.de', 'u', "
        "'p', "
        "0, 7, 9, cast(x'6100ff0d0a' as text), 'now'), (4, 'http://b.example/', 'get', 1, 5, null, 0, null, null, "
        "null, "
        "null, null, null, null, null);"
        "insert into postVars values (5, 3, 'b', '1'), (6, 4, 'c', '2'), (7, 3, 'a', '3');"
        "insert into siteOptions values (3, 'adopt', 'anything'), (4, 'adopt', 'anything');"
        "insert into siteState (idSite, failures, owed) values (3, 2, 'down');"
        "insert into rules values (3, 1, 'leave out', 'css #a');"
        "insert into log (idSite, url, status) values (3, 'http://a.example/', 0);"
        "insert into outbox values (9, 1, 3, '', '', 'down', '', '', '', '', '', '', '', x'00', 'waiting', 0, '', '', "
        "'', '')");
    baselines.keepBaseline(3, "2026-11-23 04:00:00", BaselineOrigin::replaced, bytes());
    tags.storeTags(3, {"shop"});
    known.acknowledge(3, "1f", *parseDateTime("2026-11-23 04:00:00"));
  }
};

TEST_F(DeletedSites, ComeBackWithEveryRow) {
  layOneWithAll();
  const std::string before = everything();
  const DeletedSite site = takeSiteOut(database, 3);
  EXPECT_EQ(site.url, "http://a.example/'");
  EXPECT_FALSE(sites.anyIdExists(3));
  for (const char* table :
       {"postVars", "siteOptions", "siteState", "rules", "outbox", "baselines", "siteTags", "acknowledged"}) {
    EXPECT_EQ(folder.queryText("select count(*) from " + std::string(table) + " where idSite = 3"), "0") << table;
  }
  putSiteBack(database, site);
  EXPECT_EQ(everything(), before);
  EXPECT_EQ(folder.queryText("pragma integrity_check"), "ok");
}

TEST_F(DeletedSites, AreNumberedAnewWhereTheirNumbersAreInUse) {
  layOneWithAll();
  const DeletedSite site = takeSiteOut(database, 3);
  folder.execute("insert into postVars values (7, 4, 'd', '4')");
  putSiteBack(database, site);
  EXPECT_EQ(folder.queryRows("select pname from postVars where idSite = 3 order by idPostVars"), "b\na\n");
}

TEST_F(DeletedSites, DoNotTakeThePlaceOfAnother) {
  layOneWithAll();
  const DeletedSite site = takeSiteOut(database, 3);
  sites.addSite(3);
  const std::string before = everything();
  EXPECT_THROW(putSiteBack(database, site), DataAccessError);
  EXPECT_EQ(everything(), before);
  EXPECT_TRUE(takeSiteOut(database, 99).tables.empty());
}

}  // namespace
}  // namespace tarnwick
