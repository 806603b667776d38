// SPDX-License-Identifier: MIT
#include "engine/site_reasons.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "engine/result_recording.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kRefused = "Refused.";

class SiteReasonsTest : public DataFixture {
 protected:
  SiteReasonsTest() {
    folder.execute("update control set clogs = 1");
    folder.execute(
        "insert into sites (idSite,url,method,active) values (1,'http://one','GET',1),(2,'http://two','GET',1)");
  }

  /// A check of a site, logged at the moment of the hand-moved clock.
  void check(std::int16_t id, const std::string& page, std::int32_t errCode = 0, const std::string& cause = "") {
    results.setStatus(id, results.testSite(id, page, errCode, cause));
    folder.execute("update log set dateStamp = '" + dateTimeText(clock.localNow()) +
                   "' where rowid = (select max(rowid) from log)");
  }
  void checkFails(std::int16_t id, const std::string& cause = kRefused) { check(id, "11:" + cause, 7, cause); }

  SettingsAndLog settings{database};
  ResultRecording results{database, settings, clock};
  SiteReasons reasons{database};
};

TEST_F(SiteReasonsTest, ASiteThatIsUpOrWasNeverCheckedNeedsNone) {
  check(1, "page");
  EXPECT_EQ(reasons.reasonOf(1), "");
  EXPECT_EQ(reasons.reasonOf(2), "");
  EXPECT_EQ(reasons.reasonOf(3), "");
}

TEST_F(SiteReasonsTest, AChangedPageIsToldAsACheckTellsIt) {
  check(1, "one\ntwo\n");
  check(1, "one\nTWO\n");
  EXPECT_EQ(reasons.reasonOf(1), R"(line 2: expected "two", found "TWO")");
}

TEST_F(SiteReasonsTest, AListIsToldTheLineOrTheError) {
  check(1, "one\ntwo\n");
  EXPECT_EQ(reasons.shortReasonOf(1).line, 0u);
  check(1, "one\nTWO\n");
  EXPECT_EQ(reasons.shortReasonOf(1).line, 2u);
  EXPECT_EQ(reasons.shortReasonOf(1).error, "");
  check(1, "one\n" + std::string(3'000'000, 'x'));
  EXPECT_EQ(reasons.shortReasonOf(1).line, 0u) << "that would take too long for a list";
  checkFails(1);
  EXPECT_EQ(reasons.shortReasonOf(1).error, kRefused);
  EXPECT_EQ(reasons.shortReasonOf(3).error, "") << "there is no such site";
}

TEST_F(SiteReasonsTest, TheLineOfAPageWithRulesIsTheOneThatCounts) {
  check(1, "18:40:11\none\ntwo\n");
  SiteRules(database).storeRules(1, {{{PageRule::Use::leaveOut, PageRule::Language::lines, "1"}}, {}});
  check(1, "19:02:45\none\nTWO\n");
  EXPECT_EQ(reasons.shortReasonOf(1).line, 3u);
}

TEST_F(SiteReasonsTest, WhatLooksLikeNoChangeIsSaidToDoSo) {
  check(1, "It is 18:40:11 now.\n");
  check(1, "It is 19:02:45 now.\n");
  EXPECT_EQ(reasons.reasonOf(1),
            R"(line 1: expected "It is 18:40:11 now.", found "It is 19:02:45 now."; it looks like a time)");
}

TEST_F(SiteReasonsTest, AFailedFetchIsToldByTheLog) {
  check(1, "page");
  checkFails(1);
  EXPECT_EQ(reasons.reasonOf(1), kRefused);
  EXPECT_THAT(reasons.sitesNotFetched(), ElementsAre(1));
  check(1, "other");
  EXPECT_THAT(reasons.sitesNotFetched(), IsEmpty());
}

TEST_F(SiteReasonsTest, APageThatBeginsLikeAFailureIsNone) {
  check(1, "11:05");
  EXPECT_THAT(reasons.sitesNotFetched(), IsEmpty());
  check(1, "11:06");
  EXPECT_EQ(reasons.reasonOf(1), R"(line 1: expected "11:05", found "11:06")")
      << "it is taken for the text of a fetch that failed";
}

TEST_F(SiteReasonsTest, AnInactiveSiteHasNone) {
  check(1, "page");
  check(1, "other");
  results.setActive(1, false);
  EXPECT_EQ(reasons.reasonOf(1), "");
}

TEST_F(SiteReasonsTest, WhereNoLogIsKeptAFailedFetchIsToldByItsText) {
  check(1, "page");
  folder.execute("update control set clogs = 0");
  checkFails(1);
  EXPECT_EQ(reasons.reasonOf(1), R"(line 1: expected "page", found "11:Refused.")");
}

TEST_F(SiteReasonsTest, AFailureThatBecameTheBaselineIsFound) {
  checkFails(1);
  check(2, "page");
  ASSERT_TRUE(results.getStatus(1));
  EXPECT_EQ(reasons.reasonOf(1), "up: the fetch fails, and its text is the baseline: Refused.");
  EXPECT_THAT(reasons.sitesNotFetched(), ElementsAre(1));
  EXPECT_THAT(reasons.sitesNotFetched(1), ElementsAre(1));
  EXPECT_THAT(reasons.sitesNotFetched(2), IsEmpty());
}

TEST_F(SiteReasonsTest, AnOlderFailureOfTheLogCountsNoMore) {
  checkFails(1);
  folder.execute("update control set clogs = 0");
  results.clearContentCompare(1);
  check(1, "page");
  EXPECT_THAT(reasons.sitesNotFetched(), IsEmpty());
  EXPECT_EQ(reasons.reasonOf(1), "");
}

TEST_F(SiteReasonsTest, ABaselineThatWasChangedMeanwhileIsNoFailure) {
  checkFails(1);
  results.updateContentCompare(1, "page");
  EXPECT_THAT(reasons.sitesNotFetched(), IsEmpty());
  EXPECT_EQ(reasons.reasonOf(1), "");
}

TEST_F(SiteReasonsTest, TheNewestOfADayCounts) {
  checkFails(1);
  results.clearContentCompare(1);
  clock.advance(std::chrono::minutes(10));
  check(1, "page");
  EXPECT_THAT(reasons.sitesNotFetched(), IsEmpty());
  results.clearContentCompare(1);
  clock.advance(std::chrono::minutes(10));
  checkFails(1);
  EXPECT_THAT(reasons.sitesNotFetched(), ElementsAre(1));
}

TEST_F(SiteReasonsTest, ACheckThatEndsAfterMidnightIsFoundToo) {
  clock.setLocal(HandClock::at("2024-05-18 00:00:01"));
  checkFails(1);
  folder.execute("update log set dateStamp = '2024-05-17 23:59:59'");
  EXPECT_THAT(reasons.sitesNotFetched(), ElementsAre(1));
  EXPECT_EQ(reasons.reasonOf(1), "up: the fetch fails, and its text is the baseline: Refused.");
}

TEST_F(SiteReasonsTest, AreReadByTheIndexOfTheDays) {
  checkFails(1);
  // Thirty thousand sites and a log of hundreds of thousands of rows; a search through it for each would take hours.
  folder.execute(
      "with recursive n(i) as (select 3 union all select i + 1 from n where i < 32767) "
      "insert into sites (idSite,url,method,active,status,lastChecked) select i,'http://localhost/' || i,'GET',1,1,"
      "'2024-05-17 12:00:00' from n");
  folder.execute(
      "with recursive n(i) as (select 0 union all select i + 1 from n where i < 200000) insert into log "
      "(idSite,url,status,errCode,errDescription,dateStamp) select i % 32767,'http://localhost/' || (i % 32767),1,0,'',"
      "'2024-05-17 11:00:00' from n");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THAT(reasons.sitesNotFetched(), ElementsAre(1));
  const auto time = std::chrono::steady_clock::now() - start;
  EXPECT_LT(time, std::chrono::seconds(3));
}

TEST_F(SiteReasonsTest, TheLargestPagesAreComparedInAMoment) {
  const std::string page(16U << 20U, 'x');
  check(1, page + "a");
  check(1, page + "b");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THAT(reasons.reasonOf(1), ::testing::StartsWith("line 1: expected \"...x"));
  const auto time = std::chrono::steady_clock::now() - start;
  EXPECT_LT(time, std::chrono::seconds(1));
}

TEST_F(SiteReasonsTest, PagesThatWouldHoldUpTheWindowAreNotCompared) {
  const std::string page(30U << 20U, 'x');
  check(1, page + "a");
  check(1, page + "b");
  EXPECT_EQ(reasons.reasonOf(1), "the page differs from the baseline, and is too large to be compared here");
}

}  // namespace
}  // namespace tarnwick::testing
