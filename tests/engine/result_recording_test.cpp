// SPDX-License-Identifier: MIT
#include "engine/result_recording.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "platform/transfer_control.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ResultRecordingTest : public DataFixture {
 protected:
  ResultRecordingTest() {
    folder.execute("update control set clogs = 1");
    folder.execute(
        "insert into sites (idSite,url,method,active) values (1,'http://one','GET',1),(2,'http://two','GET',1)");
  }
  std::string siteField(const std::string& column, int id = 1) const {
    return folder.queryText("select " + column + " from sites where idSite = " + std::to_string(id));
  }
  std::string logRows() const {
    return folder.queryRows("select idSite,url,status<>0,errCode,errDescription,content from log");
  }

  SettingsAndLog settings{database};
  ResultRecording results{database, settings, clock};
};

TEST_F(ResultRecordingTest, FirstPageBecomesTheBaselineAndCountsAsUp) {
  EXPECT_TRUE(results.testSite(1, "a page", 0, ""));
  EXPECT_EQ(siteField("content_compare"), "a page");
  EXPECT_EQ(siteField("content_runtime"), "a page");
  EXPECT_EQ(logRows(), "1|http://one|1|0||\n");
  EXPECT_EQ(siteField("content_compare", 2), "NULL");
}

TEST_F(ResultRecordingTest, UnchangedPageIsUp) {
  results.updateContentCompare(1, "a page");
  EXPECT_TRUE(results.testSite(1, "a page", 0, ""));
  EXPECT_EQ(logRows(), "1|http://one|1|0||\n");
}

TEST_F(ResultRecordingTest, OneLettersCaseMakesASiteDown) {
  results.updateContentCompare(1, "a page");
  EXPECT_FALSE(results.testSite(1, "a Page", 0, ""));
  EXPECT_EQ(siteField("content_compare"), "a page");
  EXPECT_EQ(siteField("content_runtime"), "a Page");
  EXPECT_EQ(logRows(), "1|http://one|0|0||a Page\n");
}

TEST_F(ResultRecordingTest, PagesAreComparedByteForByte) {
  const std::string baseline("line\r\nwith NUL\0 end", 19);
  results.updateContentCompare(1, baseline);
  EXPECT_TRUE(results.testSite(1, baseline, 0, ""));
  for (const std::string& page : {std::string("line\nwith NUL\0 end", 18), std::string("line\r\nwith NUL\0 END", 19),
                                  std::string("line\r\nwith NUL"), baseline + " ", std::string()}) {
    EXPECT_FALSE(results.testSite(1, page, 0, "")) << page;
  }
}

TEST_F(ResultRecordingTest, PagesThatLookLikeNumbersAreTexts) {
  results.updateContentCompare(1, "007");
  EXPECT_FALSE(results.testSite(1, "7", 0, ""));
  EXPECT_TRUE(results.testSite(1, "007", 0, ""));
  EXPECT_EQ(results.getContentCompare(1), "007");
}

TEST_F(ResultRecordingTest, EveryPageIsStoredUnchanged) {
  for (const std::string& page : trickyTexts()) {
    results.clearContentCompare(1);
    EXPECT_TRUE(results.testSite(1, page, 0, page));
    EXPECT_EQ(results.getContentCompare(1), page);
    EXPECT_EQ(siteField("content_runtime"), page);
    results.updateContentCompare(1, "something else");
    EXPECT_FALSE(results.testSite(1, page, 0, page));
    EXPECT_EQ(folder.queryText("select content from log order by rowid desc limit 1"), page);
  }
}

TEST_F(ResultRecordingTest, LargestPageIsStoredUnchanged) {
  std::string page(kLargestPage, 'x');
  for (std::size_t i = 0; i < page.size(); i += 1000) {
    page[i] = "'\0\n\xff"[i / 1000 % 4];
  }
  EXPECT_TRUE(results.testSite(1, page, 0, ""));
  EXPECT_TRUE(results.testSite(1, page, 0, ""));
  EXPECT_TRUE(results.getContentCompare(1) == page);
  page.back() = 'y';
  EXPECT_FALSE(results.testSite(1, page, 0, ""));
  EXPECT_TRUE(siteField("content_runtime") == page);
}

TEST_F(ResultRecordingTest, FailureTextIsAdoptedByASiteWithoutABaseline) {
  EXPECT_TRUE(results.testSite(1, "11:Couldn't connect", 7, "Couldn't connect"));
  EXPECT_EQ(siteField("content_compare"), "11:Couldn't connect");
  EXPECT_EQ(logRows(), "1|http://one|1|7|Couldn't connect|\n");
  EXPECT_FALSE(results.testSite(1, "the page at last", 0, ""));
}

TEST_F(ResultRecordingTest, ErrorCodeTakesNoPartInTheVerdict) {
  results.updateContentCompare(1, "a page");
  EXPECT_TRUE(results.testSite(1, "a page", 28, "timed out"));
  EXPECT_FALSE(results.testSite(1, "11:timed out", 28, "timed out"));
  EXPECT_EQ(logRows(), "1|http://one|1|28|timed out|\n1|http://one|0|28|timed out|11:timed out\n");
}

TEST_F(ResultRecordingTest, EmptyPageOfASiteWithoutABaselineIsUpAndLeavesItWithoutOne) {
  EXPECT_TRUE(results.testSite(1, "", 0, ""));
  EXPECT_EQ(siteField("content_compare"), "");
  EXPECT_TRUE(results.testSite(1, "a page", 0, ""));
  EXPECT_EQ(siteField("content_compare"), "a page");
}

TEST_F(ResultRecordingTest, ClearedBaselineIsLearntAgain) {
  results.testSite(1, "old", 0, "");
  results.clearContentCompare(1);
  EXPECT_EQ(results.getContentCompare(1), "");
  EXPECT_TRUE(results.testSite(1, "new", 0, ""));
  EXPECT_EQ(results.getContentCompare(1), "new");
}

TEST_F(ResultRecordingTest, CheckIsStampedWithTheClock) {
  clock.setLocal(HandClock::at("2024-02-29 23:59:59"));
  results.testSite(1, "a page", 0, "");
  EXPECT_EQ(siteField("lastChecked"), "2024-02-29 23:59:59");
  EXPECT_EQ(results.getLastChecked(1), HandClock::at("2024-02-29 23:59:59"));
  EXPECT_EQ(siteField("lastChecked", 2), "NULL");
}

TEST_F(ResultRecordingTest, WithoutTheLogSettingNothingIsLogged) {
  for (const char* value : {"0", "NULL"}) {
    folder.execute(std::string("update control set clogs = ") + value);
    results.testSite(1, "a page", 0, "");
    EXPECT_EQ(logRows(), "");
    EXPECT_EQ(siteField("content_runtime"), "a page");
  }
}

TEST_F(ResultRecordingTest, StatementsRunInTheirOrderInOneTransaction) {
  results.testSite(1, "it's", 5, "e");
  results.testSite(1, "other", 5, "e");
  EXPECT_THAT(takeStatements(),
              ElementsAre("begin", "select url,method,content_compare from sites where idSite = 1",
                          "update sites set content_compare = 'it''s' WHERE idsite = 1",
                          "update sites set content_runtime = 'it''s' WHERE idsite = 1",
                          "select clogs from control where id = 1",
                          "insert into log (idSite,url,status,errCode,errDescription,content) values "
                          "(1,'http://one',True,5,'e','')",
                          "update sites set lastChecked = '2024-05-17 12:00:00' where idsite = 1", "commit",  //
                          "begin", "select url,method,content_compare from sites where idSite = 1",
                          "update sites set content_runtime = 'other' WHERE idsite = 1",
                          "select clogs from control where id = 1",
                          "insert into log (idSite,url,status,errCode,errDescription,content) values "
                          "(1,'http://one',False,5,'e','other')",
                          "update sites set lastChecked = '2024-05-17 12:00:00' where idsite = 1", "commit"));
}

TEST_F(ResultRecordingTest, RecordIsNeverHalfWritten) {
  for (const char* statement :
       {"begin", "select url", "update sites set content_compare", "update sites set content_runtime", "select clogs",
        "insert into log", "update sites set lastChecked", "commit"}) {
    watch().failAt(statement);
    EXPECT_THROW(results.testSite(1, "a page", 0, ""), DataAccessError) << statement;
    EXPECT_EQ(folder.queryRows("select content_compare,content_runtime,lastChecked from sites where idSite = 1"),
              "NULL|NULL|NULL\n")
        << statement;
    EXPECT_EQ(logRows(), "") << statement;
    EXPECT_FALSE(database.conn().inTransaction()) << statement;
  }
  EXPECT_TRUE(results.testSite(1, "a page", 0, ""));
}

TEST_F(ResultRecordingTest, SiteDeletedDuringItsFetchChangesNoSite) {
  folder.execute("delete from sites where idSite = 1");
  EXPECT_TRUE(results.testSite(1, "a page", 0, ""));
  EXPECT_EQ(folder.queryRows("select idSite,content_compare,content_runtime,lastChecked from sites"),
            "2|NULL|NULL|NULL\n");
  results.setStatus(1, false);
  results.updateStatusCounter(1, true);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "1");
}

TEST_F(ResultRecordingTest, ReadsOfAMissingSiteAreEmpty) {
  EXPECT_EQ(results.getContentCompare(9), "");
  EXPECT_EQ(results.getUrl(9), "");
  EXPECT_FALSE(results.getStatus(9));
  EXPECT_FALSE(results.getActive(9));
  EXPECT_EQ(results.getLastChecked(9), std::nullopt);
}

TEST_F(ResultRecordingTest, NeverCheckedOrUnreadableDateIsNoDate) {
  EXPECT_EQ(results.getLastChecked(1), std::nullopt);
  for (const char* stored : {"''", "'yesterday'", "'2024-13-40 25:61:61'", "45000.5", "x'00ff'", "'2024-05-17 12'"}) {
    folder.execute(std::string("update sites set lastChecked = ") + stored + " where idSite = 1");
    EXPECT_EQ(results.getLastChecked(1), std::nullopt) << stored;
  }
  folder.execute("update sites set lastChecked = '2024-05-17' where idSite = 1");
  EXPECT_EQ(results.getLastChecked(1), HandClock::at("2024-05-17 00:00:00"));
}

TEST_F(ResultRecordingTest, XupdateLastCheckedStampsTheSiteAlone) {
  clock.setLocal(HandClock::at("2024-05-17 08:00:01"));
  results.xupdateLastChecked(2);
  EXPECT_EQ(results.getLastChecked(2), HandClock::at("2024-05-17 08:00:01"));
  EXPECT_EQ(results.getLastChecked(1), std::nullopt);
}

TEST_F(ResultRecordingTest, StatusIsSetForOneSiteAndClearedForAll) {
  EXPECT_FALSE(results.getStatus(1));
  results.setStatus(1, true);
  EXPECT_TRUE(results.getStatus(1));
  EXPECT_EQ(siteField("status", 2), "NULL");
  results.setStatus(1, false);
  EXPECT_FALSE(results.getStatus(1));
  EXPECT_EQ(siteField("status"), "0");
  results.clearStatus();
  EXPECT_TRUE(results.getStatus(1));
  EXPECT_TRUE(results.getStatus(2));
}

TEST_F(ResultRecordingTest, ActiveIsSetForOneSite) {
  EXPECT_TRUE(results.getActive(1));
  results.setActive(1, false);
  EXPECT_FALSE(results.getActive(1));
  EXPECT_TRUE(results.getActive(2));
}

TEST_F(ResultRecordingTest, SmallStatementsAreBuiltFromTheirPieces) {
  results.clearContentCompare(1);
  results.updateContentCompare(1, "it's");
  results.getContentCompare(1);
  results.xupdateLastChecked(1);
  results.getLastChecked(1);
  results.getStatus(1);
  results.setStatus(1, true);
  results.clearStatus();
  results.getActive(1);
  results.setActive(1, false);
  results.getUrl(1);
  results.updateStatusCounter(1, true);
  EXPECT_THAT(
      takeStatements(),
      ElementsAre("update sites set content_compare = '' where idsite = 1",
                  "update sites set content_compare = 'it''s' where idsite = 1",
                  "select content_compare from sites where idsite = 1",
                  "update sites set lastChecked = '2024-05-17 12:00:00' where idsite = 1",
                  "select lastChecked from sites where idsite = 1", "select status from sites where idSite = 1",
                  "update sites set status = True where idSite = 1", "update sites set status = true",
                  "select Active from sites where idSite = 1", "update sites set Active = False where idSite = 1",
                  "select url from sites where idSite = 1", "begin", "select success from sites where idsite = 1",
                  "update sites set success = 1 where idsite = 1", "commit"));
}

TEST_F(ResultRecordingTest, CountersRiseBy1FromNull) {
  results.updateStatusCounter(1, true);
  results.updateStatusCounter(1, true);
  results.updateStatusCounter(1, false);
  EXPECT_EQ(folder.queryRows("select success,failure from sites order by idSite"), "2|1\nNULL|NULL\n");
}

TEST_F(ResultRecordingTest, CounterReaches32767) {
  folder.execute("update sites set failure = 32766 where idSite = 1");
  results.updateStatusCounter(1, false);
  EXPECT_EQ(siteField("failure"), "32767");
}

TEST_F(ResultRecordingTest, LowestCounterCounts) {
  folder.execute("update sites set failure = -32768 where idSite = 1");
  results.updateStatusCounter(1, false);
  EXPECT_EQ(siteField("failure"), "-32767");
}

TEST_F(ResultRecordingTest, FullCounterIsAnErrorThatNamesTheRemedy) {
  for (const char* full : {"32767", "40000", "-40000"}) {
    folder.execute(std::string("update sites set failure = ") + full + " where idSite = 1");
    const std::string message = errorOf<OverflowError>([&] { results.updateStatusCounter(1, false); });
    EXPECT_THAT(message, HasSubstr("site 1 (http://one)"));
    EXPECT_THAT(message, HasSubstr("failure"));
    EXPECT_THAT(message, HasSubstr("Counters dialog"));
    EXPECT_EQ(siteField("failure"), full);
  }
  EXPECT_NO_THROW(results.updateStatusCounter(1, true));
}

TEST_F(ResultRecordingTest, FailedStatementTravelsToTheCaller) {
  folder.execute("drop view sites; drop table siteRows");
  EXPECT_THROW(results.testSite(1, "a page", 0, ""), DataAccessError);
  EXPECT_THROW(results.updateStatusCounter(1, true), DataAccessError);
  EXPECT_THROW(results.getStatus(1), DataAccessError);
  EXPECT_THROW(results.setStatus(1, true), DataAccessError);
}

}  // namespace
}  // namespace tarnwick::testing
