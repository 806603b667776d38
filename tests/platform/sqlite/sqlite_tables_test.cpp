// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kDropTemp = "drop table tempPostVars";
constexpr const char* kCopyOut = "select idSite,pname,pvalue into tempPostVars from postvars";
constexpr const char* kNumber = "alter table tempPostVars add column idPostVars counter not null";
constexpr const char* kAddKey = "ALTER TABLE tempPostVars ADD CONSTRAINT idConstraint PRIMARY KEY (idPostVars)";
constexpr const char* kDropOld = "drop table postVars";
constexpr const char* kCopyBack = "select idPostVars,idSite,pname,pvalue into postVars from tempPostVars";

class SqliteTables : public ::testing::Test {
 protected:
  /// The renumbering of the variables as the program does it: a step that fails is passed over.
  void renumber() {
    for (const char* step : {kDropTemp, kCopyOut, kNumber, kAddKey, kDropOld, kCopyBack}) {
      try {
        database_.run(step);
      } catch (const DataAccessError&) {
      }
    }
  }
  void addVariables() {
    database_.run("insert into postvars (idPostVars,idSite,pname,pvalue) values (3,2,'a','it''s')");
    database_.run("insert into postvars (idPostVars,idSite,pname,pvalue) values (9,1,'b','007')");
    database_.run("insert into postvars (idPostVars,idSite,pname,pvalue) values (12,2,'c',null)");
  }
  bool usesIndexOnSite() {
    return database_.rows("explain query plan select pname,pvalue from postvars where idsite = 1")
               .find("USING INDEX") != std::string::npos;
  }

  OpenDatabase database_;
};

TEST_F(SqliteTables, RenumberingMakesIdsDenseAndChangesNothingElse) {
  addVariables();
  renumber();
  EXPECT_EQ(database_.rows("select idPostVars,idSite,pname,pvalue from postVars"), "1|2|a|it's;2|1|b|007;3|2|c|NULL;");
}

TEST_F(SqliteTables, RenumberingLeavesItsWorkTableWithTheCounterLast) {
  addVariables();
  renumber();
  EXPECT_EQ(database_.rows("select * from tempPostVars"), "2|a|it's|1;1|b|007|2;2|c|NULL|3;");
  EXPECT_EQ(database_.rows("select name from pragma_table_info('tempPostVars')"), "idSite;pname;pvalue;idPostVars;");
  EXPECT_EQ(database_.rows("select name from pragma_table_info('postVars')"), "idPostVars;idSite;pname;pvalue;");
}

TEST_F(SqliteTables, RenumberingAgainAndAgainKeepsNamesTypesChecksAndTheIndex) {
  addVariables();
  for (int i = 0; i < 3; ++i) {
    renumber();
    EXPECT_TRUE(usesIndexOnSite());
  }
  EXPECT_EQ(database_.rows("select idPostVars,idSite,pname,pvalue from postVars"), "1|2|a|it's;2|1|b|007;3|2|c|NULL;");
  EXPECT_EQ(database_.rows("select name, type, pk from pragma_table_info('postVars')"),
            "idPostVars|INTEGER|1;idSite|INTEGER|0;pname|TEXT|0;pvalue|TEXT|0;");
  EXPECT_THROW(database_.run("insert into postvars (idSite,pname) values ('','x')"), DataAccessError);
  EXPECT_EQ(database_.rows("select name from sqlite_master where type = 'index' and tbl_name = 'postVars'"),
            "postVars_idSite;");
}

TEST_F(SqliteTables, NewVariablesGetUniqueIdsAfterRenumbering) {
  addVariables();
  renumber();
  database_.run("insert into postvars (idSite,pname,pvalue) values (5, 'd', 'e' )");
  EXPECT_EQ(database_.rows("select idPostVars from postVars where  idSite = 5 AND  pname = 'd' AND  pvalue = 'e'"),
            "4;");
}

TEST_F(SqliteTables, RenumberingAnEmptyTableLeavesAnEmptyTable) {
  renumber();
  EXPECT_EQ(database_.rows("select count(*) from postVars"), "0;");
  database_.run("insert into postvars (idSite,pname,pvalue) values (1, 'a', 'b' )");
  EXPECT_EQ(database_.rows("select idPostVars from postVars"), "1;");
}

TEST_F(SqliteTables, EachStepOfTheRenumberingWorksInsideATransaction) {
  addVariables();
  database_.conn->begin();
  renumber();
  EXPECT_EQ(database_.rows("select idPostVars,pname from postVars"), "1|a;2|b;3|c;");
  database_.conn->rollback();
  EXPECT_EQ(database_.rows("select idPostVars,pname from postVars"), "3|a;9|b;12|c;");
}

TEST_F(SqliteTables, QueriesPreparedBeforeATableIsReplacedGoOn) {
  addVariables();
  const std::string before = database_.rows("select idpostvars,pname,pvalue from postvars where idSite = 2");
  renumber();
  const std::string after = database_.rows("select idpostvars,pname,pvalue from postvars where idSite = 2");
  EXPECT_EQ(before, "3|a|it's;12|c|NULL;");
  EXPECT_EQ(after, "1|a|it's;3|c|NULL;");
}

TEST_F(SqliteTables, DroppingAnAbsentTableFails) { EXPECT_THROW(database_.run(kDropTemp), DataAccessError); }

TEST_F(SqliteTables, SelectIntoAnExistingTableFailsAndChangesNothing) {
  addVariables();
  database_.run(kCopyOut);
  database_.run("delete from postVars");
  EXPECT_THROW(database_.run(kCopyOut), DataAccessError);
  EXPECT_EQ(database_.rows("select count(*) from tempPostVars"), "3;");
  EXPECT_FALSE(database_.conn->inTransaction());
}

TEST_F(SqliteTables, SelectIntoFromAnAbsentTableFailsAndMakesNothing) {
  EXPECT_THROW(database_.run("select a into b from nosuch"), DataAccessError);
  EXPECT_EQ(database_.rows("select count(*) from sqlite_master where name = 'b'"), "0;");
}

TEST_F(SqliteTables, RowsAreCopiedInTheirOrderThoughAnIndexCouldServe) {
  addVariables();
  database_.run("select idSite into t from postVars");
  EXPECT_EQ(database_.rows("select idSite from t order by rowid"), "2;1;2;");
}

TEST_F(SqliteTables, SelectIntoThatFailsHalfwayLeavesNoTable) {
  EXPECT_THROW(database_.run("select nosuch into t from postVars"), DataAccessError);
  EXPECT_THROW(database_.run("select idSite+1 into t from postVars"), DataAccessError);
  EXPECT_EQ(database_.rows("select count(*) from sqlite_master where name = 't'"), "0;");
  EXPECT_FALSE(database_.conn->inTransaction());
}

TEST_F(SqliteTables, ACounterNumbersTheRowsAndGoesOnFromThere) {
  database_.run("create table t (a decimal(10, -2) default -1.5e3, -- it's a number\n [b c] text default 'x,y')");
  database_.run("create index t_a on t (a desc)");
  database_.run("insert into t values (7, '007')");
  database_.run("insert into t (a) values (5)");
  database_.run("alter table t add column n counter not null");
  database_.run("insert into t (a) values (6)");
  EXPECT_EQ(database_.rows("select a, [b c], n from t order by n"), "7|007|1;5|x,y|2;6|x,y|3;");
  EXPECT_EQ(database_.rows("select count(*) from sqlite_master where name = 't_a'"), "1;");
}

TEST_F(SqliteTables, ASecondCounterOrATakenNameIsRefusedAndChangesNothing) {
  EXPECT_THROW(database_.run("alter table postVars add column n counter not null"), DataAccessError);
  EXPECT_THROW(database_.run("alter table nosuch add column n counter not null"), DataAccessError);
  database_.run("create table t (a text)");
  EXPECT_THROW(database_.run("alter table t add column A counter not null"), DataAccessError);
  EXPECT_EQ(database_.rows("select name from pragma_table_info('t')"), "a;");
  EXPECT_EQ(database_.rows("select name from sqlite_master where name like 't!_%' escape '!'"), "");
}

TEST_F(SqliteTables, AnAddedPrimaryKeyRefusesAValueThatIsThereAlready) {
  addVariables();
  database_.run(kCopyOut);
  EXPECT_THROW(database_.run(kAddKey), DataAccessError) << "there is no such column";
  database_.run(kNumber);
  database_.run(kAddKey);
  EXPECT_THROW(database_.run("insert into tempPostVars (idPostVars) values (2)"), DataAccessError);
  EXPECT_THROW(database_.run("alter table postVars add constraint k primary key (idSite)"), DataAccessError);
}

TEST_F(SqliteTables, RenumberingGoesOnBesideViewsThatShowNothingAnyMore) {
  addVariables();
  database_.run("create view v as select pname from tempPostVars");
  database_.run("create view w as select a from nosuch");
  renumber();
  EXPECT_EQ(database_.rows("select idPostVars,pname from postVars"), "1|a;2|b;3|c;");
  EXPECT_EQ(database_.rows("select pname from v"), "a;b;c;");
}

}  // namespace
}  // namespace tarnwick::testing
