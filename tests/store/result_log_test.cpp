// SPDX-License-Identifier: MIT
#include "store/result_log.h"

#include "store/sql_quote.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

class ResultLogTest : public DataFixture {
 protected:
  ResultLog log{database};

  /// Writes results of the sites 1 to `count`, each a second after the other.
  void write(int count) const {
    folder.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(count) +
                   ") insert into log (idSite, url, status, errCode, errDescription, dateStamp, content) " +
                   "select i, 'http://a/' || i, i % 2, 0, '', datetime('2024-05-17', '+' || i || ' seconds'), " +
                   "'page' from n");
  }

  std::vector<std::int64_t> idsOf(const LogChoice& choice) {
    std::vector<std::int64_t> ids;
    log.readLog(choice, [&](const LogRow& row) {
      ids.push_back(row.idSite.value());
      return true;
    });
    return ids;
  }
};

TEST_F(ResultLogTest, HandsOutNothingOfAnEmptyLog) { EXPECT_TRUE(idsOf({}).empty()); }

TEST_F(ResultLogTest, HandsOutEveryRowOnceAndInOrderHoweverManyThereAre) {
  constexpr int kCount = 2345;
  write(kCount);
  const auto ids = idsOf({});
  ASSERT_EQ(ids.size(), std::size_t{kCount});
  for (int i = 0; i < kCount; ++i) {
    ASSERT_EQ(ids[static_cast<std::size_t>(i)], i + 1);
  }
}

TEST_F(ResultLogTest, FiltersAcrossTheWholeLog) {
  write(2000);
  EXPECT_EQ(idsOf({.failures = true}).size(), 1000U);
  EXPECT_EQ(idsOf({.idSite = 1999}), (std::vector<std::int64_t>{1999}));
  EXPECT_EQ(idsOf({.since = HandClock::at("2024-05-17 00:33:19")}), (std::vector<std::int64_t>{1999, 2000}));
  EXPECT_EQ(idsOf({.failures = true, .newest = 2}), (std::vector<std::int64_t>{1998, 2000}));
}

TEST_F(ResultLogTest, IsReadBackwardsPieceByPiece) {
  EXPECT_TRUE(log.readLogBackwards(5, {}, 100).rows.empty());
  write(2000);
  folder.execute("insert into log (idSite, dateStamp) values (1999, '2024-05-18 00:00:00')");
  LogPiece piece = log.readLogBackwards(1999, {}, 2);
  ASSERT_EQ(piece.rows.size(), 1U);
  EXPECT_EQ(piece.rows.front().dateStamp, "2024-05-18 00:00:00");
  piece = log.readLogBackwards(1999, piece.before, 2);
  ASSERT_EQ(piece.rows.size(), 1U);
  EXPECT_EQ(piece.rows.front().url, "http://a/1999");
  piece = log.readLogBackwards(1999, piece.before, 5000);
  EXPECT_TRUE(piece.rows.empty());
  EXPECT_FALSE(piece.before);
}

TEST_F(ResultLogTest, KeepsTheOrderOfWritingWhenTheClockWasSetBack) {
  folder.execute(
      "insert into log (idSite, dateStamp) values (1, '2024-05-17 12:00:00'), (2, '2024-05-16 12:00:00'), "
      "(3, '2024-05-17 13:00:00')");
  EXPECT_EQ(idsOf({}), (std::vector<std::int64_t>{1, 2, 3}));
  EXPECT_EQ(idsOf({.since = HandClock::at("2024-05-17 00:00:00")}), (std::vector<std::int64_t>{1, 3}));
}

TEST_F(ResultLogTest, EndsWhenItsTakerHasHadEnough) {
  write(1000);
  int taken = 0;
  log.readLog({}, [&](const LogRow&) { return ++taken < 3; });
  EXPECT_EQ(taken, 3);
}

TEST_F(ResultLogTest, DoesNotLockTheDatabaseWhileItsTakerWorks) {
  write(1200);
  int taken = 0;
  log.readLog({}, [&](const LogRow&) {
    if (++taken == 1) {
      database.close();  // refused by nothing that still reads
      folder.execute("insert into log (idSite, dateStamp) values (9999, '2024-05-18')");
    }
    return true;
  });
  EXPECT_EQ(taken, 1200) << "what is written meanwhile is not among them";
}

TEST_F(ResultLogTest, ReadsThePageOnlyWhenItIsAskedFor) {
  write(1);
  takeStatements();
  log.readLog({}, [](const LogRow& row) {
    EXPECT_FALSE(row.content);
    return true;
  });
  for (const std::string& statement : takeStatements()) {
    EXPECT_EQ(statement.find("content"), std::string::npos) << statement;
  }
  log.readLog({.content = true}, [](const LogRow& row) {
    EXPECT_EQ(row.content, "page");
    return true;
  });
}

TEST_F(ResultLogTest, KeepsEveryByte) {
  for (const std::string& text : trickyTexts()) {
    folder.execute("delete from log");
    database.execute(joinSql("insert into log (url, errDescription, content) values ('", sqlQuote(text), "', '",
                             sqlQuote(text), "', '", sqlQuote(text), "')"));
    log.readLog({.content = true}, [&](const LogRow& row) {
      EXPECT_EQ(row.url, text);
      EXPECT_EQ(row.errDescription, text);
      EXPECT_EQ(row.content, text);
      return true;
    });
  }
}

TEST_F(ResultLogTest, ReadsLargePagesOneAfterTheOther) {
  folder.execute(
      "insert into log (idSite, content) values (1, zeroblob(3000000)), (2, zeroblob(3000000)), (3, zeroblob(10))");
  std::vector<std::size_t> sizes;
  log.readLog({.content = true}, [&](const LogRow& row) {
    sizes.push_back(row.content->size());
    return true;
  });
  EXPECT_EQ(sizes, (std::vector<std::size_t>{3000000, 3000000, 10}));
}

}  // namespace
}  // namespace tarnwick::testing
