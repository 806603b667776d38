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

TEST_F(SqliteTables, SelectIntoThatFailsHalfwayLeavesNoTable) {
  database_.run("create table loose (n INTEGER)");
  database_.run("insert into loose values (5)");
  database_.run("insert into loose values (-9223372036854775808)");
  EXPECT_THROW(database_.run("select abs(n) as positive into t from loose"), DataAccessError);
  EXPECT_EQ(database_.rows("select count(*) from sqlite_master where name = 't'"), "0;");
  EXPECT_FALSE(database_.conn->inTransaction());
}

TEST_F(SqliteTables, SelectIntoTakesConditionsTopAliasesAndExpressions) {
  addVariables();
  database_.run(
      "select top 1 idPostVars as id, pname & 'x' as n, 'it''s' as k into t from postVars where idSite = 2 "
      "order by idPostVars desc");
  EXPECT_EQ(database_.rows("select id,k from t"), "12|it's;");
  database_.run("insert into t (k) values ('next')");
  EXPECT_EQ(database_.rows("select id from t where k = 'next'"), "13;");
  database_.run("select * into everything from postVars");
  EXPECT_EQ(database_.rows("select * from everything"), database_.rows("select * from postVars"));
  EXPECT_EQ(database_.rows("select type from pragma_table_info('everything')"), "INTEGER;INTEGER;TEXT;TEXT;");
  EXPECT_EQ(database_.rows("select count(*) from pragma_index_list('everything')"), "1;");
}

TEST_F(SqliteTables, RowsAreCopiedInTheirOrderThoughAnIndexCouldServe) {
  addVariables();
  database_.run("select idSite into t from postVars");
  EXPECT_EQ(database_.rows("select idSite from t order by rowid"), "2;1;2;");
}

TEST_F(SqliteTables, CopiesOfIndexesGetFreeNames) {
  database_.run("create unique index odd on sites (url desc, idSite)");
  database_.run("create table t_url_idSite (a)");
  database_.run("select idSite,url into t from sites");
  EXPECT_EQ(database_.rows("select name, \"unique\" from pragma_index_list('t')"), "t_url_idSite_2|1;");
  EXPECT_EQ(database_.rows("select name, \"desc\" from pragma_index_xinfo('t_url_idSite_2') where key = 1"),
            "url|1;idSite|0;");
}

TEST_F(SqliteTables, ACounterNumbersTheRowsAndGoesOnFromThere) {
  database_.run("create table t (a text, unique (a))");
  database_.run("create index t_a on t (a desc)");
  database_.run("insert into t values ('z')");
  database_.run("insert into t values ('y')");
  database_.run("alter table t add column n counter not null");
  database_.run("insert into t (a) values ('x')");
  EXPECT_EQ(database_.rows("select a, n from t order by n"), "z|1;y|2;x|3;");
  EXPECT_EQ(database_.rows("select count(*) from sqlite_master where name = 't_a'"), "1;");
  EXPECT_THROW(database_.run("insert into t (a) values ('x')"), DataAccessError);
}

TEST_F(SqliteTables, ASecondCounterOrATakenNameIsRefused) {
  EXPECT_THROW(database_.run("alter table postVars add column n counter"), DataAccessError);
  EXPECT_THROW(database_.run("alter table nosuch add column n counter"), DataAccessError);
  database_.run("create table t (a text)");
  EXPECT_THROW(database_.run("alter table t add column A counter"), DataAccessError);
  EXPECT_EQ(database_.rows("select name from pragma_table_info('t')"), "a;");
  EXPECT_EQ(database_.rows("select name from sqlite_master where name like 't!_%' escape '!'"), "");
}

TEST_F(SqliteTables, APrimaryKeyIsAddedToAPlainColumn) {
  database_.run("create table t (a INTEGER, b text)");
  database_.run("insert into t values (5,'x')");
  database_.run("alter table t add constraint k primary key (A)");
  EXPECT_EQ(database_.rows("select a,b from t"), "5|x;");
  EXPECT_THROW(database_.run("insert into t values (5,'y')"), DataAccessError);
  database_.run("select b,a into u from t");
  EXPECT_EQ(database_.rows("select name, pk from pragma_table_info('u')"), "b|0;a|1;");
}

TEST_F(SqliteTables, AddingThePrimaryKeyThatIsThereChangesNothing) {
  const std::string before = database_.rows("select sql from sqlite_master");
  database_.run("alter table postVars add constraint again primary key (idpostvars)");
  EXPECT_EQ(database_.rows("select sql from sqlite_master"), before);
}

TEST_F(SqliteTables, AnImpossiblePrimaryKeyIsRefusedAndChangesNothing) {
  EXPECT_THROW(database_.run("alter table postVars add constraint k primary key (nosuch)"), DataAccessError);
  EXPECT_THROW(database_.run("alter table postVars add constraint k primary key (pname)"), DataAccessError);
  EXPECT_THROW(database_.run(kAddKey), DataAccessError);
  database_.run("create table t (a)");
  database_.run("insert into t values (1)");
  database_.run("insert into t values (1)");
  EXPECT_THROW(database_.run("alter table t add constraint k primary key (a)"), DataAccessError);
  EXPECT_EQ(database_.rows("select a from t"), "1;1;");
}

TEST_F(SqliteTables, TriggersAndViewsOutliveARebuild) {
  database_.run("create table t (a text)");
  database_.run("create view v as select a from t");
  database_.run("create trigger g after insert on t begin insert into test (tname) values (new.a); end");
  database_.run("alter table t add column n counter not null");
  database_.run("insert into t (a) values ('seen')");
  EXPECT_EQ(database_.rows("select tname from test"), "seen;");
  EXPECT_EQ(database_.rows("select a from v"), "seen;");
}

}  // namespace
}  // namespace tarnwick::testing
