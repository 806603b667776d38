// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_connection.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "base/errors.h"
#include "open_database.h"
#include "platform/file_system.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

class SqliteConnectionTest : public ::testing::Test {
 protected:
  /// Opens a copy of the fresh database under `name`, with `rest` behind the path in the connection string.
  bool opensAs(const std::string& name, const std::string& rest) {
    const std::string path = folder_.file(name);
    fs::create_directories(tarnwick::pathOf(path).parent_path());
    fs::remove(tarnwick::pathOf(path));
    fs::copy_file(folder_.databasePath(), tarnwick::pathOf(path));
    const auto conn = databases_.makeSqlConnection();
    conn->open("provider=any;data source=" + path + rest);
    conn->execute("insert into sites (idSite) values (1)");
    return conn->isOpen() && fs::exists(tarnwick::pathOf(path + "-wal"));
  }
  bool sideFilesExist() const {
    return fs::exists(folder_.file("tarnwick.mdb-wal")) || fs::exists(folder_.file("tarnwick.mdb-shm"));
  }

  ProgramFolder folder_;
  HandClock clock_;
  SqliteConnections databases_{clock_};
};

TEST_F(SqliteConnectionTest, OpensTheFileThatTheConnectionStringNames) {
  EXPECT_TRUE(opensAs("plain.mdb", ";Jet OLEDB:Engine Type=4;"));
  EXPECT_TRUE(opensAs("a;b.mdb", ";JET OLEDB:Engine Type=4;"));
  // A quote is part of no name there.
  const std::string quoted =
      tarnwick::testing::kOnWindows ? "it's quoted [here] 100%.mdb" : "it's \"quoted\" [here] 100%.mdb";
  EXPECT_TRUE(opensAs(quoted, ";Jet OLEDB:Engine Type=4;"));
  EXPECT_TRUE(opensAs("gr\xc3\xbc\xc3\x9f \xe6\x97\xa5.mdb", ";Jet OLEDB:Engine Type=4;"));
  EXPECT_TRUE(opensAs("x;Jet OLEDB:y/z.mdb", ";Jet OLEDB:Engine Type=4;"));
  EXPECT_TRUE(opensAs("a;b.mdb", ";"));
  EXPECT_TRUE(opensAs("bare.mdb", ""));
}

TEST_F(SqliteConnectionTest, AConnectionStringWithoutAPathIsRefused) {
  const auto conn = databases_.makeSqlConnection();
  EXPECT_THROW(conn->open("Provider=any;"), DataAccessError);
  EXPECT_THROW(conn->open("Data Source=;Jet OLEDB:Engine Type=4;"), DataAccessError);
  EXPECT_THROW(conn->open("Data Source=:memory:;"), DataAccessError);
  EXPECT_FALSE(conn->isOpen());
}

TEST_F(SqliteConnectionTest, ClosingLeavesTheDatabaseAlone) {
  const auto conn = databases_.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
  conn->execute("insert into sites (idSite) values (1)");
  EXPECT_TRUE(sideFilesExist());
  conn->close();
  EXPECT_FALSE(conn->isOpen());
  EXPECT_FALSE(sideFilesExist());
  EXPECT_EQ(folder_.queryText("select count(*) from sites"), "1");
}

TEST_F(SqliteConnectionTest, OpensAndClosesAgain) {
  const auto conn = databases_.makeSqlConnection();
  for (int i = 0; i < 2; ++i) {
    conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
    EXPECT_THROW(conn->open(OpenDatabase::connStringFor(folder_.databasePath())), DataAccessError);
    EXPECT_TRUE(conn->isOpen());
    EXPECT_FALSE(conn->readOnly());
    conn->close();
    conn->close();
  }
  EXPECT_THROW(conn->execute("select 1"), DataAccessError);
  EXPECT_THROW(conn->begin(), DataAccessError);
  conn->rollback();
  EXPECT_FALSE(conn->inTransaction());
}

TEST_F(SqliteConnectionTest, ClosingEndsTheRecordsetsStillOpen) {
  folder_.execute("insert into sites (idSite) values (1)");
  auto conn = databases_.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
  const auto records = conn->execute("select idSite from sites");
  conn.reset();
  EXPECT_TRUE(records->eof());
  EXPECT_THROW(records->field(0), DataAccessError);
  EXPECT_THROW(records->moveFirst(), DataAccessError);
  records->moveNext();
  EXPECT_EQ(records->fieldCount(), 0U);
  EXPECT_FALSE(sideFilesExist());
}

TEST_F(SqliteConnectionTest, ATransactionIsKeptOrTakenBackAsAWhole) {
  const OpenDatabase database;
  database.conn->begin();
  EXPECT_TRUE(database.conn->inTransaction());
  EXPECT_THROW(database.conn->begin(), DataAccessError);
  database.run("insert into sites (idSite) values (1)");
  database.conn->rollback();
  EXPECT_FALSE(database.conn->inTransaction());
  EXPECT_EQ(database.rows("select count(*) from sites"), "0;");
  database.conn->begin();
  database.run("insert into sites (idSite) values (1)");
  database.conn->commit();
  database.conn->rollback();
  EXPECT_EQ(database.rows("select count(*) from sites"), "1;");
  EXPECT_THROW(database.conn->commit(), DataAccessError);
}

TEST_F(SqliteConnectionTest, ATransactionThatIsOpenAtTheEndIsTakenBack) {
  auto conn = databases_.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
  conn->begin();
  conn->execute("insert into sites (idSite) values (1)");
  conn.reset();
  EXPECT_FALSE(sideFilesExist());
  EXPECT_EQ(folder_.queryText("select count(*) from sites"), "0");
}

TEST_F(SqliteConnectionTest, ARollbackAfterTheDatabaseHasTakenEverythingBackIsHarmless) {
  const OpenDatabase database;
  database.conn->begin();
  database.run("insert into sites (idSite) values (1)");
  EXPECT_THROW(database.run("insert or rollback into sites (idSite) values (1)"), DataAccessError);
  EXPECT_FALSE(database.conn->inTransaction());
  database.conn->rollback();
  EXPECT_EQ(database.rows("select count(*) from sites"), "0;");
}

TEST_F(SqliteConnectionTest, OthersSeeWhatIsCommittedAtOnce) {
  const OpenDatabase database;
  database.run("insert into sites (idSite,url) values (1,'u')");
  EXPECT_EQ(database.folder.queryText("select url from sites"), "u");
  database.folder.execute("update sites set url = 'other'");
  EXPECT_EQ(database.rows("select url from sites"), "other;");
}

TEST_F(SqliteConnectionTest, TellsWhetherOthersHaveChangedTheDatabase) {
  const OpenDatabase database;
  database.run("insert into sites (idSite,url) values (1,'u')");
  const std::int64_t before = database.conn->changesOfOthers();
  database.run("update sites set url = 'own'");
  EXPECT_EQ(database.conn->changesOfOthers(), before) << "An own change is none of others.";
  EXPECT_EQ(database.conn->changesOfOthers(), before);
  database.folder.execute("update sites set url = 'other'");
  const std::int64_t after = database.conn->changesOfOthers();
  EXPECT_NE(after, before);
  EXPECT_EQ(database.conn->changesOfOthers(), after);
  database.conn->begin();
  EXPECT_EQ(database.conn->changesOfOthers(), after);
  database.conn->rollback();
  database.folder.execute("pragma wal_checkpoint(truncate); update sites set url = 'again'");
  EXPECT_NE(database.conn->changesOfOthers(), after) << "The log was begun anew meanwhile.";
}

TEST_F(SqliteConnectionTest, TellsChangesOfOthersAroundOwnTransactions) {
  const OpenDatabase database;
  database.run("insert into sites (idSite,url) values (1,'u')");
  std::int64_t known = database.conn->changesOfOthers();
  const auto change = [&](bool isKept) {
    database.conn->begin();
    database.run("update sites set url = 'own'");
    isKept ? database.conn->commit() : database.conn->rollback();
  };
  const auto isTold = [&] { return std::exchange(known, database.conn->changesOfOthers()) != known; };
  change(true);
  EXPECT_FALSE(isTold()) << "after an own transaction";
  database.folder.execute("update sites set url = 'other'");
  change(true);
  EXPECT_TRUE(isTold()) << "before an own transaction";
  change(true);
  database.folder.execute("update sites set url = 'other'");
  EXPECT_TRUE(isTold()) << "after an own transaction";
  change(false);
  database.folder.execute("update sites set url = 'other'");
  database.run("update sites set url = 'own'");
  EXPECT_TRUE(isTold()) << "between one that was taken back and a change without one";
  change(true);
  database.folder.execute("pragma wal_checkpoint(truncate)");
  change(true);
  isTold();
  database.folder.execute("update sites set url = 'other'");
  EXPECT_TRUE(isTold()) << "in a log that was begun anew";
}

TEST_F(SqliteConnectionTest, TakesAFileThatIsOpenedAgainForOneThatOthersHaveChanged) {
  const OpenDatabase database;
  const std::int64_t before = database.conn->changesOfOthers();
  database.conn->close();
  database.conn->open(database.connString());
  EXPECT_NE(database.conn->changesOfOthers(), before);
}

TEST_F(SqliteConnectionTest, AFreshDatabaseHasEveryTableButTheWorkTable) {
  EXPECT_EQ(folder_.queryRows("select name from sqlite_master where type = 'table' order by name collate nocase"),
            "acknowledged\nbaselines\ncertificates\nchannels\ncontrol\ndays\nhours\nlatestChecks\nlog\nmethods\n"
            "monthReports\nmonths\n"
            "outages\noutbox\npagePieces\npostVars\nrules\nsiteOptions\n"
            "siteRows\nsiteState\nsiteTags\ntest\n");
  EXPECT_EQ(folder_.queryText("pragma integrity_check"), "ok");
}

}  // namespace
}  // namespace tarnwick::testing
