// SPDX-License-Identifier: MIT
#include "store/site_records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "store/post_vars.h"
#include "store/site_table.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class SiteRecordsTest : public DataFixture {
 protected:
  void addSiteWithId(int id) {
    folder.execute("insert into sites (idSite,url,success,failure) values (" + std::to_string(id) + ",'http://s',5,6)");
  }
  std::string ids() const { return folder.queryRows("select idSite from sites order by idSite"); }

  SiteRecords sites{database};
};

TEST_F(SiteRecordsTest, FirstSiteGetsId1AndTheDefaults) {
  EXPECT_EQ(sites.addSite(), 1);
  EXPECT_THAT(takeStatements(), ElementsAre("begin", "select max(idSite)+1 as mid from sites",
                                            "insert into sites (idSite,url,method,active,tInterval) values "
                                            "(1,'http://localhost','GET',true,10)",
                                            "commit"));
  EXPECT_EQ(folder.queryRows("select idSite,url,method,active<>0,tInterval,lastChecked,alertEmail,email,sUserName,"
                             "sPassWord,status,success,failure,content_compare,content_runtime from sites"),
            "1|http://localhost|GET|1|10|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL\n");
}

TEST_F(SiteRecordsTest, NewSiteGetsTheHighestIdPlus1) {
  addSiteWithId(1);
  addSiteWithId(2);
  addSiteWithId(7);
  EXPECT_EQ(sites.addSite(), 8);
  EXPECT_EQ(ids(), "1\n2\n7\n8\n");
}

TEST_F(SiteRecordsTest, DeletedHighestIdIsGivenOutAgain) {
  addSiteWithId(4);
  EXPECT_EQ(sites.addSite(), 5);
  sites.deleteSite(5);
  EXPECT_EQ(sites.addSite(), 5);
}

TEST_F(SiteRecordsTest, HighestPossibleIdIsGivenOut) {
  addSiteWithId(32766);
  EXPECT_EQ(sites.addSite(), 32767);
}

TEST_F(SiteRecordsTest, NoSiteIsAddedPastTheHighestPossibleId) {
  addSiteWithId(32767);
  const std::string message = errorOf<OverflowError>([&] { sites.addSite(); });
  EXPECT_THAT(message, HasSubstr("32767"));
  EXPECT_THAT(message, HasSubstr("Delete the site with the highest id"));
  EXPECT_EQ(ids(), "32767\n");
}

TEST_F(SiteRecordsTest, IdOutside16BitsInTheFileIsNamedWhenASiteIsAdded) {
  addSiteWithId(70000);
  EXPECT_THAT(errorOf<OverflowError>([&] { sites.addSite(); }), HasSubstr("70000"));
  EXPECT_EQ(ids(), "70000\n");
}

TEST_F(SiteRecordsTest, UpdateRewritesEveryColumnOfTheEditor) {
  addSiteWithId(3);
  addSiteWithId(4);
  sites.updateSites(3, "http://a/it's", "POST", false, 25, true, "me@there.org", "o'user", "pass|word");
  EXPECT_THAT(takeStatements(),
              ElementsAre("update sites set url = 'http://a/it''s', method = 'POST', active = False, tInterval = '25', "
                          "alertEmail = True, email = 'me@there.org', sUserName = 'o''user', sPassWord = 'pass|word'  "
                          "WHERE idSite = 3"));
  EXPECT_EQ(folder.queryRows("select url,method,active<>0,tInterval,typeof(tInterval),alertEmail<>0,email,sUserName,"
                             "sPassWord,success from sites where idSite = 3"),
            "http://a/it's|POST|0|25|integer|1|me@there.org|o'user|pass|word|5\n");
  EXPECT_EQ(folder.queryText("select url from sites where idSite = 4"), "http://s");
}

TEST_F(SiteRecordsTest, EveryTextComesBackAsItWasSaved) {
  addSiteWithId(1);
  for (const std::string& text : trickyTexts()) {
    sites.updateSites(1, text, text, true, 1, true, text, text, text);
    const TextTable table = sites.getArraySites(1);
    for (const std::size_t column :
         {site_column::url, site_column::method, site_column::email, site_column::sUserName, site_column::sPassWord}) {
      EXPECT_EQ(table.at(column, 1), text) << "column " << column;
    }
  }
}

TEST_F(SiteRecordsTest, UpdateOfAMissingSiteChangesNothing) {
  sites.updateSites(9, "http://x", "GET", true, 1, false, "", "", "");
  EXPECT_EQ(ids(), "");
}

TEST_F(SiteRecordsTest, ListHoldsEveryFieldAsText) {
  folder.execute(
      "insert into sites (idSite,url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,"
      "success,failure) values (5,'007','GET',1,10,'2024-05-17 12:00:30',0,'a@b.c','u','p',1,32767,0)");
  const TextTable table = sites.getArraySites(5);
  EXPECT_THAT(takeStatements(), ElementsAre("select idSite,url,method,active,tInterval,lastChecked,alertEmail,email,"
                                            "sUserName,sPassWord,status,success,failure from sites where idSite = 5"));
  ASSERT_EQ(table.lastColumn(), 13U);
  ASSERT_EQ(table.lastRow(), 1U);
  std::vector<std::string> row;
  for (std::size_t column = 0; column <= table.lastColumn(); ++column) {
    EXPECT_EQ(table.at(column, 0), "");
    row.push_back(table.at(column, 1));
  }
  EXPECT_THAT(row, ElementsAre("", "5", "007", "GET", "True", "10", "2024-05-17 12:00:30", "False", "a@b.c", "u", "p",
                               "True", "32767", "0"));
}

TEST_F(SiteRecordsTest, NullsAreListedAsTheTextNull) {
  sites.addSite();
  const TextTable table = sites.getArraySites(1);
  EXPECT_EQ(table.at(site_column::lastChecked, 1), "NULL");
  EXPECT_EQ(table.at(site_column::status, 1), "NULL");
  EXPECT_EQ(table.at(site_column::failure, 1), "NULL");
}

TEST_F(SiteRecordsTest, IdsOf0OrLessListEverySite) {
  addSiteWithId(1);
  addSiteWithId(5);
  for (const int id : {0, -1, -32768}) {
    EXPECT_EQ(sites.getArraySites(static_cast<std::int16_t>(id)).lastRow(), 2U) << id;
  }
  EXPECT_EQ(sites.getArraySites(5).at(site_column::idSite, 1), "5");
}

TEST_F(SiteRecordsTest, ListOfAMissingSiteHasNoFilledRow) {
  EXPECT_EQ(sites.getArraySites(5).lastRow(), 0U);
  EXPECT_EQ(sites.getArraySites(0).lastRow(), 0U);
}

TEST_F(SiteRecordsTest, IdOutside16BitsIsListedAsItIs) {
  addSiteWithId(70000);
  EXPECT_EQ(sites.getArraySites(0).at(site_column::idSite, 1), "70000");
}

TEST_F(SiteRecordsTest, MethodComesFromTheTableOfMethods) {
  folder.execute("insert into methods (idSite,method) values (2,'POST')");
  EXPECT_EQ(sites.getMethod(2), "POST");
  EXPECT_EQ(sites.getMethod(3), "NONE");
}

TEST_F(SiteRecordsTest, CountersOfOneSiteOrOfAllAreCleared) {
  const auto counters = [&] { return folder.queryRows("select idSite,success,failure from sites order by idSite"); };
  for (const int id : {0, 1, 2}) {
    addSiteWithId(id);
  }
  sites.clearCounters(1);
  EXPECT_EQ(counters(), "0|5|6\n1|0|0\n2|5|6\n");
  sites.clearCounters(0);
  EXPECT_EQ(counters(), "0|0|0\n1|0|0\n2|5|6\n");
  sites.clearCounters(-1);
  EXPECT_EQ(counters(), "0|0|0\n1|0|0\n2|0|0\n");
  EXPECT_THAT(takeStatements(), ElementsAre("update sites set success=0,failure=0  where idSite = 1",
                                            "update sites set success=0,failure=0  where idSite = 0",
                                            "update sites set success=0,failure=0 "));
}

TEST_F(SiteRecordsTest, DeletingASiteTakesItsPostVariablesAlong) {
  PostVars variables(database);
  addSiteWithId(1);
  addSiteWithId(2);
  variables.addPostVars(1, "a", "1");
  variables.addPostVars(2, "b", "2");
  takeStatements();
  sites.deleteSite(1);
  EXPECT_THAT(takeStatements(), ElementsAre("begin", "delete from sites  where idsite = 1",
                                            "delete from postvars  where idsite = 1", "commit"));
  EXPECT_EQ(ids(), "2\n");
  EXPECT_EQ(folder.queryRows("select idSite,pname from postVars"), "2|b\n");
}

TEST_F(SiteRecordsTest, SiteAndItsPostVariablesAreDeletedTogetherOrNotAtAll) {
  addSiteWithId(1);
  PostVars(database).addPostVars(1, "a", "1");
  watch().failAt("delete from postvars");
  EXPECT_THROW(sites.deleteSite(1), DataAccessError);
  EXPECT_EQ(ids(), "1\n");
  EXPECT_EQ(folder.queryText("select count(*) from postVars"), "1");
}

TEST_F(SiteRecordsTest, DeletingAMissingSiteChangesNothing) {
  addSiteWithId(1);
  EXPECT_NO_THROW(sites.deleteSite(9));
  EXPECT_EQ(ids(), "1\n");
}

TEST_F(SiteRecordsTest, IdExistsTellsWhetherTheSiteIsThere) {
  addSiteWithId(32767);
  EXPECT_TRUE(sites.idExists(32767));
  EXPECT_FALSE(sites.idExists(1));
}

TEST_F(SiteRecordsTest, FailedStatementTravelsToTheCaller) {
  folder.execute("drop view sites; drop table siteRows");
  EXPECT_THROW(sites.addSite(), DataAccessError);
  EXPECT_THROW(sites.getArraySites(0), DataAccessError);
  EXPECT_THROW(sites.idExists(1), DataAccessError);
}

TEST(IsEmail, AcceptsPlausibleAddresses) {
  for (const char* address : {"a@b.c", "1@2.3", "me@there.org", "first_last@there.co", "a-b.c@d-e.f.uk", "A@B.C",
                              ".@...", "a.b@c", "me@there."}) {
    EXPECT_TRUE(SiteRecords::isEmail(address)) << address;
  }
}

TEST(IsEmail, RefusesWhatIsNoAddress) {
  for (const char* address : {"", "a@b.", "a@bc", "abcde", "abc.d", "a@bcd", "me@there.info", "me@th_ere.org",
                              "a@b@c.d", "me @there.org", " me@there.org", "me@there.org ", "m\xc3\xa9@there.org",
                              "me+x@there.org", "me@there.o'g", "a@b.c;d@e.f", "me@.there", "first.last@there"}) {
    EXPECT_FALSE(SiteRecords::isEmail(address)) << address;
  }
}

TEST(IsEmail, RefusesANulByte) { EXPECT_FALSE(SiteRecords::isEmail(std::string_view("me\0@there.org", 13))); }

}  // namespace
}  // namespace tarnwick::testing
