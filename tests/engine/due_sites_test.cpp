// SPDX-License-Identifier: MIT
#include "engine/due_sites.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "base/errors.h"
#include "store/site_table.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class DueSitesTest : public DataFixture {
 protected:
  /// Adds a site; `lastChecked` as it stands in SQL.
  void addSite(int id, bool active, int interval, const std::string& lastChecked) {
    folder.execute("insert into sites (idSite,url,method,active,tInterval,lastChecked) values (" + std::to_string(id) +
                   ",'http://" + std::to_string(id) + "','GET'," + (active ? "1" : "0") + "," +
                   std::to_string(interval) + "," + lastChecked + ")");
  }
  void setTime(std::string_view dateTime) { clock.setLocal(HandClock::at(dateTime)); }
  std::vector<std::string> ids(std::int16_t mode) {
    const TextTable table = due.getArraySitesActiveTrue(mode);
    std::vector<std::string> list;
    for (std::size_t row = 1; row <= table.lastRow(); ++row) {
      list.push_back(table.at(site_column::idSite, row));
    }
    return list;
  }

  DueSites due{database};
};

TEST_F(DueSitesTest, MinuteBoundariesAreCountedNotWholeMinutes) {
  addSite(1, true, 10, "'2024-05-17 12:00:30'");
  setTime("2024-05-17 12:09:59");
  EXPECT_THAT(ids(site_choice::due), ElementsAre());
  setTime("2024-05-17 12:10:00");
  EXPECT_THAT(ids(site_choice::due), ElementsAre("1"));
}

TEST_F(DueSitesTest, AStampOfAnotherToolIsReadOrItsSiteCountsAsNeverChecked) {
  setTime("2024-05-17 12:00:00");
  addSite(1, true, 10, "'2024-05-17T11:00'");
  addSite(2, true, 10, "'2024-05-17T11:55:00.5'");
  addSite(3, true, 10, "'17.05.2024 11:00'");
  addSite(4, false, 10, "'rubbish'");
  addSite(5, true, 10, "1715943600");
  addSite(6, true, 10, "null");
  EXPECT_THAT(ids(site_choice::due), ElementsAre("1"));
  EXPECT_EQ(due.neverChecked().count, 3);
  EXPECT_THAT(due.idsNeverChecked(), ElementsAre(3, 5, 6));
  const TextTable sites = due.getSitesDueOrNeverChecked();
  ASSERT_EQ(sites.lastRow(), 4U);
  EXPECT_EQ(sites.at(site_column::idSite, 1), "1");
  EXPECT_EQ(sites.at(site_column::idSite, 2), "6");
  EXPECT_EQ(sites.at(site_column::idSite, 3), "3");
  EXPECT_EQ(sites.at(site_column::idSite, 4), "5");
}

TEST_F(DueSitesTest, DueSitesAreActiveOnesInTheOrderOfTheirIds) {
  setTime("2024-05-17 12:00:00");
  addSite(9, true, 10, "'2024-05-17 11:00:00'");
  addSite(2, true, 60, "'2024-05-17 11:00:00'");
  addSite(4, false, 10, "'2024-05-17 11:00:00'");
  addSite(5, true, 61, "'2024-05-17 11:00:00'");
  EXPECT_THAT(ids(site_choice::due), ElementsAre("2", "9"));
  EXPECT_THAT(ids(site_choice::active), ElementsAre("2", "5", "9"));
  EXPECT_THAT(ids(site_choice::all), ElementsAre("2", "4", "5", "9"));
  EXPECT_THAT(due.getSitesToTest(), ElementsAre(2, 9));
  EXPECT_THAT(due.xgetSitesToTest(), ElementsAre(2, 9));
}

// Nothing may be open between two slices: a click that is served there may close the file, compact it or change it.
TEST_F(DueSitesTest, ALongListIsReadInSlices) {
  setTime("2024-05-17 12:00:00");
  folder.execute(
      "insert into sites (idSite,url,active,tInterval,lastChecked) with recursive n (i) as (select 1 union all select "
      "i + 1 from n where i < 9000) select i, 'http://' || i, i % 3 <> 0, 10, case i % 2 when 0 then '2024-05-17 "
      "11:00:00' end from n");
  const auto expectInSlices = [&](std::size_t count, int slices, const auto& read) {
    int between = 0;
    const TextTable sites = read([&] {
      ++between;
      folder.execute("vacuum");
    });
    EXPECT_EQ(sites.lastRow(), count);
    EXPECT_EQ(between, slices - 1);
    int last = 0;
    for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
      const int id = std::stoi(sites.at(site_column::idSite, row));
      EXPECT_GT(id, last);
      last = id;
    }
  };
  expectInSlices(9000, 3, [&](const auto& between) { return due.getArraySitesActiveTrue(site_choice::all, between); });
  expectInSlices(6000, 2, [&](const auto& b) { return due.getArraySitesActiveTrue(site_choice::active, b); });
  expectInSlices(3000, 1, [&](const auto& between) { return due.getArraySitesActiveTrue(site_choice::due, between); });
  expectInSlices(6000, 2, [&](const auto& between) { return due.getSitesDueOrNeverChecked(between); });
}

// With some ten thousand sites the window would stand still while the pages of the file that hold them are read.
TEST_F(DueSitesTest, ListAndCountdownAreReadWithoutAnyPage) {
  for (const std::string& sql : {"select " + std::string(kSiteFields) + " from sites where active = 1 order by idSite",
                                 std::string("select idSite, url, tInterval, lastChecked from sites where active = 1 "
                                             "order by tInterval * 60 - datediff('s', lastChecked, '2024-01-01')")}) {
    const auto plan = database.query("explain query plan " + sql);
    ASSERT_FALSE(plan->eof());
    EXPECT_THAT(plan->field("detail").toText(), "SCAN siteRows") << sql;
    plan->moveNext();
    EXPECT_THAT(plan->eof() ? "" : plan->field("detail").toText(), Not(HasSubstr("pagePieces"))) << sql;
    plan->close();
  }
}

TEST_F(DueSitesTest, AnyNonZeroFlagIsActive) {
  addSite(1, true, 10, "NULL");
  addSite(2, true, 10, "NULL");
  folder.execute("update sites set active = -1 where idSite = 2");
  EXPECT_THAT(ids(site_choice::active), ElementsAre("1", "2"));
}

TEST_F(DueSitesTest, SiteNeverCheckedIsActiveButNotDue) {
  addSite(1, true, 10, "NULL");
  EXPECT_THAT(ids(site_choice::due), ElementsAre());
  EXPECT_THAT(ids(site_choice::active), ElementsAre("1"));
}

TEST_F(DueSitesTest, SiteCheckedInTheFutureWaits) {
  addSite(1, true, 1, "'2024-05-17 13:00:00'");
  setTime("2024-05-17 12:00:00");
  EXPECT_THAT(ids(site_choice::due), ElementsAre());
  EXPECT_EQ(due.getMinWaitTime().mlc, 3660);
}

TEST_F(DueSitesTest, TableHoldsNullsAsTextAndAnEmptyEdge) {
  addSite(1, true, 10, "NULL");
  const TextTable table = due.getArraySitesActiveTrue(site_choice::active);
  ASSERT_EQ(table.lastColumn(), 13U);
  ASSERT_EQ(table.lastRow(), 1U);
  EXPECT_EQ(table.at(site_column::url, 1), "http://1");
  EXPECT_EQ(table.at(site_column::active, 1), "True");
  EXPECT_EQ(table.at(site_column::tInterval, 1), "10");
  EXPECT_EQ(table.at(site_column::sUserName, 1), "NULL");
  EXPECT_EQ(table.at(0, 1), "");
  EXPECT_EQ(table.at(1, 0), "");
}

TEST_F(DueSitesTest, WithoutAMatchTheTableHasRow0Only) {
  for (const std::int16_t mode : {site_choice::due, site_choice::active, site_choice::all}) {
    EXPECT_EQ(due.getArraySitesActiveTrue(mode).lastRow(), 0U);
  }
  EXPECT_THAT(due.getSitesToTest(), ElementsAre());
}

TEST_F(DueSitesTest, UnknownChoiceIsRefused) {
  EXPECT_THROW(due.getArraySitesActiveTrue(3), std::invalid_argument);
  EXPECT_THROW(due.getArraySitesActiveTrue(-1), std::invalid_argument);
}

TEST_F(DueSitesTest, StatementsAreBuiltFromTheirPieces) {
  due.getArraySitesActiveTrue(0);
  due.getArraySitesActiveTrue(1);
  due.getArraySitesActiveTrue(2);
  due.getMinWaitTime();
  due.xgetSitesToTest();
  const std::string fields =
      "idSite,url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,success,failure";
  EXPECT_THAT(
      takeStatements(),
      ElementsAre(
          "SELECT " + fields +
              " from sites where  datediff('n',[lastChecked],now()) >= tInterval  AND  active = true  "
              "ORDER BY idSite",
          "SELECT " + fields + " from sites where  active = true  ORDER BY idSite",
          "SELECT " + fields + " from sites   ORDER BY idSite",
          "SELECT TOP 1 idsite,url,tInterval*60 AS tlc, (tinterval*60)-datediff('s',[lastChecked],now()) AS mlc "
          " From sites  Where  Active = True   ORDER BY (tinterval*60)-datediff('s',[lastChecked],now()) ",
          "SELECT idsite from sites where  datediff('n',[lastChecked],now()) >= tInterval  AND  active = true  "
          "ORDER BY idSite"));
}

TEST_F(DueSitesTest, SoonestDueSiteIsReportedWithItsSeconds) {
  setTime("2024-05-17 12:00:00");
  addSite(1, true, 10, "'2024-05-17 11:59:00'");
  addSite(2, true, 5, "'2024-05-17 11:58:30'");
  addSite(3, false, 1, "'2024-05-17 11:00:00'");
  const MinWaitTime soonest = due.getMinWaitTime();
  EXPECT_EQ(soonest.idsite, 2);
  EXPECT_EQ(soonest.url, "http://2");
  EXPECT_EQ(soonest.tlc, 300);
  EXPECT_EQ(soonest.mlc, 210);
}

TEST_F(DueSitesTest, OverdueSiteHasNegativeSecondsLeft) {
  addSite(1, true, 10, "'2024-05-17 12:00:00'");
  setTime("2024-05-17 12:10:30");
  EXPECT_EQ(due.getMinWaitTime().mlc, -30);
}

TEST_F(DueSitesTest, SiteNeverCheckedIsSoonestWith0SecondsLeft) {
  addSite(1, true, 10, "'2020-01-01 00:00:00'");
  addSite(2, true, 10, "NULL");
  const MinWaitTime soonest = due.getMinWaitTime();
  EXPECT_EQ(soonest.idsite, 2);
  EXPECT_EQ(soonest.tlc, 600);
  EXPECT_EQ(soonest.mlc, 0);
}

TEST_F(DueSitesTest, WithoutAnActiveSiteThereIsNothingToWaitFor) {
  addSite(1, false, 10, "'2024-05-17 12:00:00'");
  const MinWaitTime soonest = due.getMinWaitTime();
  EXPECT_EQ(soonest.idsite, 0);
  EXPECT_EQ(soonest.url, "");
  EXPECT_EQ(soonest.tlc, 0);
  EXPECT_EQ(soonest.mlc, 0);
}

TEST_F(DueSitesTest, LongestIntervalDoesNotOverflow) {
  addSite(32767, true, 32767, "'2024-05-17 12:00:00'");
  setTime("2024-05-17 12:00:00");
  EXPECT_EQ(due.getMinWaitTime().idsite, 32767);
  EXPECT_EQ(due.getMinWaitTime().tlc, 1966020);
  EXPECT_EQ(due.getMinWaitTime().mlc, 1966020);
}

TEST_F(DueSitesTest, IdOutside16BitsIsListedButNeverWrapped) {
  addSite(65537, true, 10, "'2024-05-17 11:00:00'");
  EXPECT_THAT(ids(site_choice::active), ElementsAre("65537"));
  EXPECT_THAT(errorOf<OverflowError>([&] { due.getMinWaitTime(); }), HasSubstr("65537"));
  EXPECT_THAT(errorOf<OverflowError>([&] { due.getSitesToTest(); }), HasSubstr("65537"));
}

TEST_F(DueSitesTest, IntervalPast32BitsIsAnErrorThatNamesTheSite) {
  addSite(4, true, 2000000000, "NULL");
  EXPECT_THAT(errorOf<OverflowError>([&] { due.getMinWaitTime(); }), HasSubstr("site 4"));
}

TEST_F(DueSitesTest, LastCheckOfAnotherAgeIsDueOrWaitsAndLeavesRoomToCountDown) {
  setTime("2024-05-17 12:00:00");
  addSite(1, true, 10, "'1899-12-30 00:00:00'");
  EXPECT_EQ(due.getMinWaitTime().mlc, -2147483647);
  EXPECT_THAT(ids(site_choice::due), ElementsAre("1"));
  folder.execute("update sites set lastChecked = '2199-12-31 00:00:00'");
  EXPECT_EQ(due.getMinWaitTime().mlc, 2147483647);
  EXPECT_THAT(ids(site_choice::due), ElementsAre());
}

TEST_F(DueSitesTest, FailedStatementTravelsToTheCaller) {
  folder.execute("drop view sites; drop table siteRows");
  EXPECT_THROW(due.getArraySitesActiveTrue(0), DataAccessError);
  EXPECT_THROW(due.getMinWaitTime(), DataAccessError);
  EXPECT_THROW(due.getSitesToTest(), DataAccessError);
}

TEST_F(DueSitesTest, WhatTookTooLongIsKnownByItsCause) {
  for (int id = 1; id <= 4; ++id) {
    addSite(id, true, 10, "'2024-05-17 12:00:30'");
  }
  folder.execute(
      "update sites set status = 0, content_runtime = '11:The request took longer than 30 seconds.' "
      "where idSite in (1, 3)");
  folder.execute("update sites set status = 0, content_runtime = '11:The server refused.' where idSite = 2");
  // A page that says so itself is none.
  folder.execute(
      "update sites set status = 1, content_runtime = '11:The request took longer than 30 seconds.' "
      "where idSite = 4");
  EXPECT_THAT(due.idsThatTookTooLong(), ::testing::UnorderedElementsAre(1, 3));
}

}  // namespace
}  // namespace tarnwick::testing
