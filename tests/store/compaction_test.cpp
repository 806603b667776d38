// SPDX-License-Identifier: MIT
#include "store/compaction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "base/errors.h"
#include "store/compaction_fixture.h"
#include "store/first_field.h"
#include "store/sql_quote.h"
#include "support/file_bytes.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class CompactionTest : public CompactionFixture {
 protected:
  Compaction compaction{database, connections, files, prompts};
};

TEST_F(CompactionTest, EveryRowAndDefinitionIsThereAfterwards) {
  const std::string before = contents();
  EXPECT_TRUE(compaction.compact());
  EXPECT_EQ(contents(), before);
  EXPECT_EQ(contents("temp.mdb"), before);
  EXPECT_EQ(contents("backup.mdb"), before);
  EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(CompactionTest, ALinkToTheDatabaseStaysOne) {
  database.close();
  const ProgramFolder elsewhere;
  fs::rename(folder.databasePath(), elsewhere.file("list.mdb"));
  std::error_code fault;
  fs::create_symlink(elsewhere.file("list.mdb"), folder.databasePath(), fault);
  if (fault) {
    fs::rename(elsewhere.file("list.mdb"), folder.databasePath());
    GTEST_SKIP() << "Here no link can be made: " << fault.message();
  }
  const auto before = fs::file_size(elsewhere.file("list.mdb"));
  database.reopen();
  EXPECT_TRUE(compaction.compact());
  EXPECT_TRUE(fs::is_symlink(folder.databasePath()));
  EXPECT_LT(fs::file_size(elsewhere.file("list.mdb")), before);
}

TEST_F(CompactionTest, PagesThatNoSiteHasAnyMoreAreGone) {
  folder.execute("replace into sites (idSite, url, content_compare) values (3, 'http://a/', 'another page')");
  ASSERT_EQ(folder.queryText("select group_concat(content) from pagePieces"), "page,another page");
  ASSERT_TRUE(compaction.compact());
  EXPECT_EQ(folder.queryText("select group_concat(content) from pagePieces"), "another page");
}

TEST_F(CompactionTest, EveryByteOfATextIsKept) {
  for (const std::string& text : trickyTexts()) {
    database.execute(joinSql("update sites set content_compare = '", sqlQuote(text), "' where idSite = 9"));
    ASSERT_TRUE(compaction.compact());
    EXPECT_EQ(firstText(database, "select content_compare from sites where idSite = 9"), text);
  }
}

TEST_F(CompactionTest, RulesAndDefaultsStillHold) {
  ASSERT_TRUE(compaction.compact());
  EXPECT_THROW(database.execute("update control set timeout = 'soon' where id = 1"), DataAccessError);
  database.execute("insert into log (idSite) values (500)");
  EXPECT_NE(firstText(database, "select dateStamp from log where idSite = 500"), "");
}

TEST_F(CompactionTest, UnusedSpaceIsGone) {
  database.close();
  const auto before = fs::file_size(folder.databasePath());
  ASSERT_TRUE(compaction.compact());
  EXPECT_LT(fs::file_size(folder.databasePath()), before / 2);
}

TEST_F(CompactionTest, BackupIsTheFileAsItWasBefore) {
  database.close();
  const auto before = fs::file_size(folder.databasePath());
  ASSERT_TRUE(compaction.compact());
  EXPECT_EQ(fs::file_size(folder.file("backup.mdb")), before);
}

TEST_F(CompactionTest, RowsStillInTheLogOfChangesAreInTheBackup) {
  database.execute("insert into sites (idSite, url) values (77, 'newest')");
  ASSERT_TRUE(exists("tarnwick.mdb-wal"));
  ASSERT_TRUE(compaction.compact());
  EXPECT_THAT(contents("backup.mdb"), HasSubstr("newest"));
  EXPECT_THAT(contents(), HasSubstr("newest"));
}

TEST_F(CompactionTest, NothingButBackupAndWorkFileIsLeftBeside) {
  ASSERT_TRUE(compaction.compact());
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
  database.close();
  EXPECT_FALSE(exists("tarnwick.mdb-wal"));
  EXPECT_FALSE(exists("tarnwick.mdb-shm"));
}

TEST_F(CompactionTest, WorkFileIsTheCompactedDatabase) {
  ASSERT_TRUE(compaction.compact());
  database.close();
  EXPECT_EQ(fs::file_size(folder.file("temp.mdb")), fs::file_size(folder.databasePath()));
}

TEST_F(CompactionTest, SecondCompactionReplacesBackupAndWorkFile) {
  ASSERT_TRUE(compaction.compact());
  database.execute("delete from log");
  database.execute("update sites set url = 'second' where idSite = 3");
  ASSERT_TRUE(compaction.compact());
  EXPECT_THAT(contents("backup.mdb"), HasSubstr("second"));
  EXPECT_THAT(contents("temp.mdb"), HasSubstr("second"));
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
}

TEST_F(CompactionTest, ConnectionIsOpenAgainAndWrites) {
  const std::string connString = database.connString();
  ASSERT_TRUE(compaction.compact());
  EXPECT_TRUE(database.conn().isOpen());
  EXPECT_EQ(database.connString(), connString);
  database.execute("update sites set url = 'later' where idSite = 3");
  EXPECT_EQ(folder.queryText("select url from sites where idSite = 3"), "later");
}

TEST_F(CompactionTest, LeftoversOfADeadCompactionAreOverwritten) {
  writeFile(folder.file("backup.mdb.new"), "half a copy");
  writeFile(folder.file("tarnwick.mdb.new"), "half a copy");
  writeFile(folder.file("temp.mdb"), "half a database");
  EXPECT_TRUE(compaction.compact());
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
}

TEST_F(CompactionTest, SideFilesOfAnEarlierBackupAreNotMarriedToTheNewOne) {
  const std::string before = contents();
  for (const char* name : {"backup.mdb-wal", "backup.mdb-journal", "temp.mdb-wal", "temp.mdb-shm"}) {
    writeFile(folder.file(name), "stale");
  }
  ASSERT_TRUE(compaction.compact());
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
  EXPECT_EQ(contents("backup.mdb"), before);
}

TEST_F(CompactionTest, AllThreeFilesKeepThePermissions) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder.");
  const fs::perms ownerOnly = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(folder.databasePath(), ownerOnly);
  ASSERT_TRUE(compaction.compact());
  for (const char* name : {"tarnwick.mdb", "backup.mdb", "temp.mdb"}) {
    EXPECT_EQ(fs::status(folder.file(name)).permissions(), ownerOnly) << name;
  }
}

TEST(CompactionDestinationTest, EveryOccurrenceOfTheNameIsReplaced) {
  EXPECT_EQ(Compaction::destinationOf("Data Source=/a/tarnwick.mdb;Jet"), "Data Source=/a/temp.mdb;Jet");
  EXPECT_EQ(Compaction::destinationOf("/tarnwick.mdb/tarnwick.mdb"), "/temp.mdb/temp.mdb");
}

TEST(CompactionDestinationTest, OtherLetterCaseIsNotRewritten) {
  EXPECT_EQ(Compaction::destinationOf("Data Source=/a/Tarnwick.mdb;"), "Data Source=/a/Tarnwick.mdb;");
}

TEST_F(CompactionTest, SourceAsDestinationIsRefusedAndUntouched) {
  database.close();
  const std::string before = bytes("tarnwick.mdb");
  EXPECT_THROW(connections.holdDatabase(database.connString())->compactInto(database.connString()), DataAccessError);
  // The first bytes of the file count its changes of journal.
  EXPECT_TRUE(bytes("tarnwick.mdb").substr(100) == before.substr(100));
  EXPECT_EQ(contents().find("malformed"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing
