// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "base/errors.h"
#include "store/post_vars.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;

constexpr const char* kArrangement =
    "insert into postVars (idPostVars,idSite,pname,pvalue) values (3,1,'a','it''s'),(9,2,'b',''),(12,1,'c','x|y')";
constexpr const char* kAll = "select idPostVars,idSite,pname,pvalue from postVars order by idPostVars";
constexpr const char* kBefore = "3|1|a|it's\n9|2|b|\n12|1|c|x|y\n";
constexpr const char* kAfter = "1|1|a|it's\n2|2|b|\n3|1|c|x|y\n";

class RenumberingTest : public DataFixture {
 protected:
  RenumberingTest() { folder.execute(kArrangement); }
  std::string rows() const { return folder.queryRows(kAll); }
  bool hasTable(const std::string& name) const {
    return folder.queryText("select count(*) from sqlite_master where lower(name) = lower('" + name + "')") == "1";
  }

  PostVars variables{database};
};

TEST_F(RenumberingTest, IdsBecomeDenseFrom1WithNamesAndValuesKept) {
  variables.reIdpostVars();
  EXPECT_EQ(rows(), kAfter);
}

TEST_F(RenumberingTest, StatementsRunInTheirOrderInOneTransaction) {
  variables.reIdpostVars();
  EXPECT_THAT(
      takeStatements(),
      ElementsAre("begin", "drop table tempPostVars", "select idSite,pname,pvalue into tempPostVars from postVars",
                  "alter table tempPostVars add column idPostVars counter not null",
                  "ALTER TABLE tempPostVars ADD CONSTRAINT idConstraint PRIMARY KEY (idPostVars)",
                  "drop table postVars", "select idPostVars,idSite,pname,pvalue into postVars from tempPostVars",
                  "commit"));
}

TEST_F(RenumberingTest, CopyStaysBehindAndDoesNotDisturbTheNextTime) {
  variables.reIdpostVars();
  EXPECT_TRUE(hasTable("tempPostVars"));
  variables.deletePostVars(1);
  variables.addPostVars(7, "d", "4");
  variables.reIdpostVars();
  EXPECT_EQ(rows(), "1|2|b|\n2|1|c|x|y\n3|7|d|4\n");
}

TEST_F(RenumberingTest, NewVariablesGetIdsOfTheirOwnAfterwards) {
  variables.reIdpostVars();
  variables.addPostVars(5, "new", "1");
  variables.addPostVars(5, "new", "2");
  EXPECT_EQ(variables.getIdPostVars(5, "new", "1"), 4);
  EXPECT_EQ(variables.getIdPostVars(5, "new", "2"), 5);
  variables.updatePostVars(4, "changed", "1");
  variables.deletePostVars(5);
  EXPECT_EQ(rows(), std::string(kAfter) + "4|5|changed|1\n");
}

TEST_F(RenumberingTest, EveryTextIsKept) {
  folder.execute("delete from postVars");
  for (const std::string& text : trickyTexts()) {
    variables.addPostVars(1, text, text);
  }
  variables.reIdpostVars();
  std::int16_t id = 0;
  for (const std::string& text : trickyTexts()) {
    EXPECT_EQ(variables.getIdPostVars(1, text, text), ++id) << text;
    EXPECT_EQ(variables.getPostVars(1).at(1, static_cast<std::size_t>(id)), text);
  }
}

TEST_F(RenumberingTest, EmptyTableStaysEmptyAndUsable) {
  folder.execute("delete from postVars");
  variables.reIdpostVars();
  EXPECT_EQ(rows(), "");
  variables.addPostVars(1, "a", "b");
  EXPECT_EQ(rows(), "1|1|a|b\n");
}

TEST_F(RenumberingTest, LockedDatabaseIsLeftAlone) {
  SqliteConnections connections(clock);
  Database other(folder.path(), connections);
  other.conn().begin();
  EXPECT_NO_THROW(variables.reIdpostVars());
  EXPECT_THAT(takeStatements(), ElementsAre("begin"));
  other.conn().rollback();
  EXPECT_EQ(rows(), kBefore);
}

TEST_F(RenumberingTest, NothingMoreIsDroppedOnceTheDatabaseHasTakenEverythingBack) {
  watch().failAt("select idSite", [&] { database.conn().rollback(); });
  EXPECT_NO_THROW(variables.reIdpostVars());
  EXPECT_EQ(rows(), kBefore);
  variables.addPostVars(1, "still", "usable");
  EXPECT_EQ(variables.getIdPostVars(1, "still", "usable"), 13);
}

TEST_F(RenumberingTest, FailedCommitLeavesTheVariablesAsTheyWere) {
  watch().failAt("commit");
  EXPECT_NO_THROW(variables.reIdpostVars());
  EXPECT_FALSE(database.conn().inTransaction());
  EXPECT_EQ(rows(), kBefore);
}

TEST_F(RenumberingTest, FailedStatementIsSkippedAndTheNextOnesRun) {
  folder.execute("create table tempPostVars (idSite,pname,pvalue)");
  watch().failAt("drop table tempPostVars");
  EXPECT_NO_THROW(variables.reIdpostVars());
  EXPECT_EQ(takeStatements().back(), "commit");
  // The old copy is in the way of the new one, is renumbered in its place and becomes the table.
  EXPECT_EQ(rows(), "");
  EXPECT_TRUE(hasTable("tempPostVars"));
}

#ifndef _WIN32
// No connection is open in this process when it forks: SQLite's state must not be shared with a child.
TEST(Renumbering, KilledAtAnyInstantItLosesNothing) {
  ProgramFolder folder;
  folder.execute(kArrangement);
  for (std::size_t lastStatement = 1; lastStatement <= 8; ++lastStatement) {
    const pid_t child = fork();
    if (child == 0) {
      HandClock clock;
      SqliteConnections real(clock);
      WatchedConnections connections(real);
      Database own(folder.path(), connections);
      connections.watch.before = [&](std::string_view) {
        if (connections.watch.statements.size() == lastStatement) {
          _exit(9);
        }
      };
      PostVars(own).reIdpostVars();
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 9) << "killed at statement " << lastStatement;
    EXPECT_EQ(folder.queryRows(kAll), kBefore) << "killed at statement " << lastStatement;
  }
}
#endif

TEST_F(RenumberingTest, FullDiskLosesNothing) {
  const std::string value(20'000, 'x');
  for (int i = 0; i < 200; ++i) {
    variables.addPostVars(1, "n", value);
  }
  const std::string before = rows();
  const std::string pages = folder.queryText("pragma page_count");
  for (const int spare : {0, 1, 5, 50, 500, 1100}) {
    database.execute("pragma max_page_count = " + std::to_string(std::stoi(pages) + spare));
    EXPECT_NO_THROW(variables.reIdpostVars());
    EXPECT_TRUE(rows() == before) << spare << " spare pages";
  }
}

}  // namespace
}  // namespace tarnwick::testing
