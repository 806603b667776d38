// SPDX-License-Identifier: MIT
// The pages of the sites lie apart; whoever reads and writes the sites does not notice.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kMib = std::size_t{1} << 20U;

class SqlitePagesTest : public ::testing::Test {
 protected:
  void SetUp() override { database_.run("insert into sites (idSite,url) values (7,'u')"); }

  void store(const std::string& column, std::string_view page) {
    database_.conn->execute("update sites set " + column + " = '", page, "' where idsite = 7");
  }
  std::string page(const std::string& column) {
    return database_.conn->execute("select " + column + " from sites where idSite = 7")->field(0).toText();
  }
  /// As any other tool sees it.
  std::string seen(const std::string& what) { return database_.folder.queryText("select " + what + " from sites"); }
  std::string pieces() { return database_.folder.queryText("select count(*) from pagePieces"); }

  OpenDatabase database_;
};

std::string longPage(std::size_t length) {
  std::string page(length, '\0');
  std::minstd_rand random(7);
  for (char& c : page) {
    c = static_cast<char>(random());
  }
  return page;
}

TEST_F(SqlitePagesTest, ALongPageIsWholeHoweverItIsRead) {
  for (const std::size_t length : {16 * kMib - 1, 16 * kMib, 16 * kMib + 1, 64 * kMib, 70 * kMib}) {
    const std::string stored = longPage(length);
    store("content_compare", stored);
    EXPECT_TRUE(page("content_compare") == stored) << length;
    EXPECT_TRUE(seen("content_compare") == stored) << length;
    EXPECT_EQ(seen("typeof(content_compare)"), "text");
    const auto rows = database_.conn->execute("select url,content_compare from sites where idSite = 7");
    EXPECT_TRUE(rows->holds("content_compare", stored));
    EXPECT_FALSE(rows->holds("content_compare", std::string_view(stored).substr(1)));
    EXPECT_FALSE(rows->holds("content_compare", stored + "x"));
    EXPECT_FALSE(rows->holds("content_compare", ""));
  }
}

TEST_F(SqlitePagesTest, WhatIsTheSameIsStoredOnce) {
  store("content_compare", "a page");
  store("content_runtime", "a page");
  EXPECT_EQ(pieces(), "1");
  store("content_runtime", "another");
  EXPECT_EQ(pieces(), "2");
  EXPECT_EQ(seen("content_compare || '|' || content_runtime"), "a page|another");
  store("content_compare", "another");
  EXPECT_EQ(pieces(), "1");
  store("content_compare", "");
  EXPECT_EQ(seen("content_compare || '|' || content_runtime"), "|another");
  database_.run("delete from sites where idSite = 7");
  EXPECT_EQ(pieces(), "0");
}

TEST_F(SqlitePagesTest, AnUnchangedPageWritesNothing) {
  store("content_compare", "a page");
  store("content_runtime", "a page");
  const auto changes = [&] { return database_.conn->execute("select total_changes()", {})->field(0).toInt64(); };
  const auto before = changes();
  store("content_runtime", "a page");
  EXPECT_EQ(changes(), before);
}

TEST_F(SqlitePagesTest, NoPageIsNoEmptyPage) {
  EXPECT_EQ(seen("content_compare is null and content_runtime is null"), "1");
  const auto rows = database_.conn->execute("select content_compare from sites where idSite = 7");
  EXPECT_TRUE(rows->field(0).isNull());
  EXPECT_TRUE(rows->holds("content_compare", ""));
  store("content_compare", {});
  EXPECT_EQ(seen("content_compare is ''"), "1");
}

TEST_F(SqlitePagesTest, WhatIsStoredAheadIsTaken) {
  const std::string stored = longPage(40 * kMib);
  int looks = 0;
  {
    const auto ahead = database_.conn->storeAhead(stored, [&] { ++looks; });
    EXPECT_EQ(looks, 3);
    EXPECT_EQ(pieces(), "3");
    EXPECT_EQ(seen("content_runtime is null"), "1");
    store("content_runtime", stored);
  }
  EXPECT_EQ(pieces(), "3");
  EXPECT_TRUE(page("content_runtime") == stored);
}

TEST_F(SqlitePagesTest, WhatIsStoredAheadAndNotTakenGoes) {
  const std::string stored = longPage(2 * kMib);
  database_.conn->storeAhead(stored, [] {}).reset();
  EXPECT_EQ(pieces(), "0");
  store("content_compare", "a page");
  // What a killed program has left behind goes with the next one, unless it may be still at work.
  database_.folder.execute(
      "insert into pagePieces (piece, content) values (400, 'left'), "
      "(((cast(strftime('%s', 'now') as integer) - 3700) << 22) + 1, 'behind'), "
      "((cast(strftime('%s', 'now') as integer) << 22), 'at work')");
  const auto ahead = database_.conn->storeAhead(stored, [] {});
  EXPECT_EQ(pieces(), "3");
  EXPECT_EQ(database_.folder.queryText("select count(*) from pagePieces where content = 'at work'"), "1");
  EXPECT_EQ(page("content_compare"), "a page");
}

TEST_F(SqlitePagesTest, APageThatGivesWayToWhatIsStoredAheadGoesPieceByPieceAfterwards) {
  store("content_compare", longPage(40 * kMib));
  const std::string stored = longPage(2 * kMib);
  const auto ahead = database_.conn->storeAhead(stored, [] {});
  store("content_compare", stored);
  EXPECT_EQ(pieces(), "4");
  std::vector<std::string> left;
  ahead->settle([&] { left.push_back(pieces()); });
  EXPECT_EQ(left, (std::vector<std::string>{"4", "3", "2", "1"}));
  EXPECT_TRUE(page("content_compare") == stored);
}

TEST_F(SqlitePagesTest, APageThatTheSiteStillHasDoesNotGiveWay) {
  const std::string baseline = longPage(2 * kMib);
  store("content_compare", baseline);
  store("content_runtime", baseline);
  const std::string stored(3 * kMib, 'x');
  {
    const auto ahead = database_.conn->storeAhead(stored, [] {});
    store("content_runtime", stored);
    ahead->settle([] {});
  }
  EXPECT_TRUE(page("content_compare") == baseline);
  EXPECT_EQ(pieces(), "2");
}

TEST_F(SqlitePagesTest, APageThatGivesWayIsNotWaitedForAndGoesWithTheNext) {
  const auto other = database_.databases.makeSqlConnection();
  other->open(database_.connString());
  store("content_compare", longPage(3 * kMib));
  const std::string stored = longPage(2 * kMib);
  const auto ahead = database_.conn->storeAhead(stored, [] {});
  store("content_compare", stored);
  other->begin();
  ahead->settle([] {});
  other->rollback();
  EXPECT_EQ(pieces(), "2");
  EXPECT_TRUE(page("content_compare") == stored);
}

TEST_F(SqlitePagesTest, WhatAToolHasAddedGoesOnWhenAPageGivesWay) {
  database_.folder.execute("create table changes (idSite)");
  database_.folder.execute(
      "create trigger noted after update on siteRows begin insert into changes values (new.idSite); end");
  store("content_compare", longPage(3 * kMib));
  const std::string stored = longPage(2 * kMib);
  const auto ahead = database_.conn->storeAhead(stored, [] {});
  store("content_compare", stored);
  EXPECT_EQ(database_.folder.queryText("select count(*) from changes"), "2");
  EXPECT_EQ(pieces(), "1");
}

TEST_F(SqlitePagesTest, WhatIsStoredAheadAndTakenAwayByOthersIsStoredAgain) {
  const std::string stored = longPage(20 * kMib);
  const auto ahead = database_.conn->storeAhead(stored, [] {});
  database_.folder.execute("delete from pagePieces where piece % 4 = 1");
  store("content_runtime", stored);
  EXPECT_TRUE(page("content_runtime") == stored);
}

TEST_F(SqlitePagesTest, TwoThatStoreAheadAtOnceEachGetTheirOwn) {
  database_.run("insert into sites (idSite) values (8)");
  const auto other = database_.databases.makeSqlConnection();
  other->open(database_.connString());
  const std::string mine = longPage(20 * kMib);
  const std::string theirs(33 * kMib, 'y');
  std::unique_ptr<StoredText> theirsAhead;
  const auto mineAhead = database_.conn->storeAhead(mine, [&] {
    if (!theirsAhead) {
      theirsAhead = other->storeAhead(theirs, [] {});
      other->execute("update sites set content_runtime = '", theirs, "' where idsite = 8");
    }
  });
  store("content_runtime", mine);
  EXPECT_TRUE(page("content_runtime") == mine);
  EXPECT_TRUE(database_.folder.queryText("select content_runtime from sites where idSite = 8") == theirs);
  EXPECT_EQ(pieces(), "5");
}

TEST_F(SqlitePagesTest, ALockOfAnotherProgramIsWaitedFor) {
  const auto other = database_.databases.makeSqlConnection();
  other->open(database_.connString());
  other->begin();
  const auto impatient = SqliteConnections(database_.clock, std::chrono::milliseconds(1)).makeSqlConnection();
  impatient->open(database_.connString());
  EXPECT_THROW(impatient->execute("update sites set content_compare = 'x' where idsite = 7"), DataAccessError);
  EXPECT_FALSE(impatient->inTransaction());
  std::jthread writer([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));  // sleeps because the lock is held for a while
    other->rollback();
  });
  store("content_compare", "waited for");
  EXPECT_EQ(page("content_compare"), "waited for");
}

TEST_F(SqlitePagesTest, AKeyThatIsTakenIsToldByTheNameThatIsKnown) {
  try {
    database_.run("insert into sites (idSite,url) values (7,'again')");
    FAIL() << "stored";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("(UNIQUE constraint failed: sites.idSite)"), std::string::npos) << error.cause();
  }
}

/// The same changes, made by the program and by other tools, to a list of today and to one whose sites are one table.
TEST(Lists, OfBothKindsHoldTheSameAfterTheSameChanges) {
  std::minstd_rand random(20);
  const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
  OpenDatabase today;
  OpenDatabase oneTable;
  oneTable.conn->close();
  oneTable.folder.laySitesAsOneTable();
  oneTable.conn->open("Data Source=" + oneTable.folder.databasePath() + ";");
  const std::vector<std::string> pages = {"''",      "'a'", "'it''s'", "null",
                                          "x'00ff'", "x''", "7",       "cast(x'6100' as text)"};
  for (int step = 0; step < 600; ++step) {
    const std::string id = std::to_string(below(6) + 1);
    const std::string& page = pages[random() % pages.size()];
    const std::string& other = pages[random() % pages.size()];
    const std::string column = below(2) == 0 ? "content_compare" : "content_runtime";
    const std::vector<std::string> statements = {
        "insert or ignore into sites (idSite,url,content_compare,content_runtime) values (" + id + ",'u'," + page +
            "," + other + ")",
        "insert into sites (url,content_runtime) values ('further'," + page + ")",
        "update sites set " + column + " = " + page + " where idSite = " + id,
        "update sites set url = 'changed', content_compare = " + page + ", content_runtime = " + other +
            " where idSite = " + id,
        "update sites set " + column + " = 'it''s " + std::to_string(below(3)) + "' where idSite = " + id,
        "update sites set content_compare = content_runtime where idSite <= " + id,
        "update sites set success = coalesce(success, 0) + 1, status = not status where idSite >= " + id,
        "update or ignore sites set idSite = idSite + 1 where idSite = " + id,
        "delete from sites where idSite = " + id,
    };
    const std::string& sql = statements[random() % statements.size()];
    const bool byProgram = below(2) == 0 && sql.find("x'") == std::string::npos;
    for (OpenDatabase* list : {&today, &oneTable}) {
      byProgram ? list->run(sql) : list->folder.execute(sql);
    }
    const std::string all =
        "select idSite, url, status, success, cast(content_compare as text), cast(content_runtime as text) from sites";
    ASSERT_EQ(today.folder.queryRows(all), oneTable.folder.queryRows(all)) << sql;
    const std::string read = "select content_compare,content_runtime from sites where idSite = " + id;
    ASSERT_EQ(today.rows(read), oneTable.rows(read)) << sql;
  }
  EXPECT_EQ(today.folder.queryText("select count(*) from pagePieces where piece / 4 not in (select comparePage from "
                                   "siteRows where comparePage > 0 union select runtimePage from siteRows where "
                                   "runtimePage > 0)"),
            "0");
}

}  // namespace
}  // namespace tarnwick::testing
