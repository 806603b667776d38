// SPDX-License-Identifier: MIT
#include "platform/sqlite/sql_dialect.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/errors.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

SqlCommand commandOf(std::string_view sql) { return translateSql(sql, HandClock()); }
PlainStatement plain(std::string_view sql) { return std::get<PlainStatement>(commandOf(sql)); }
std::string translated(std::string_view sql) { return plain(sql).text; }

TEST(SqlDialect, TextsAndNumbersBecomeParametersSoThatStatementsShareOneForm) {
  EXPECT_EQ(translated("update sites set content_runtime = 'page' WHERE idsite = 7"),
            "update sites set content_runtime = ?1 WHERE idsite = ?2");
  EXPECT_EQ(translated("select url from sites where idSite = 3"), translated("select url from sites where idSite = 4"));
  EXPECT_EQ(translated("insert into log (idSite,status,url) values (12,True,'it''s')"),
            "insert into log (idSite,status,url) values (?1,True,?2)");
}

TEST(SqlDialect, NumbersThatAreNoValuesStayWhereTheyAre) {
  EXPECT_EQ(translated("select max(idSite)+1 as mid from sites"), "select max(idSite)+1 as mid from sites");
  EXPECT_EQ(translated("insert into t values (-1,1.5,1e-3,x'0A')"), "insert into t values (-1,1.5,1e-3,x'0A')");
}

TEST(SqlDialect, ATextParameterRefersToTheStatementAndIsNotCopied) {
  const std::string sql = "update sites set url = 'http://localhost'";
  const PlainStatement statement = plain(sql);
  EXPECT_EQ(std::get<std::string_view>(statement.parameters.at(0)).data(), sql.data() + sql.find("http"));
}

TEST(SqlDialect, TopBecomesTheLimitOfTheSelect) {
  EXPECT_EQ(translated("SELECT TOP 1 idsite From sites ORDER BY url ; -- the first"),
            "SELECT  idsite From sites ORDER BY url limit 1");
  EXPECT_EQ(translated("select count(*) from (select top 2 url from sites where status=now()) where url = 'a'"),
            "select count(*) from (select  url from sites where status=?1 limit 2) where url = ?2");
  EXPECT_EQ(translated("select top, 5 from hills"), "select top, 5 from hills");
}

TEST(SqlDialect, YesNoConditionsAskForTruth) {
  EXPECT_EQ(translated("select a from b where active = true AND Active=FALSE"),
            "select a from b where active  is true AND Active is FALSE");
}

TEST(SqlDialect, YesNoAssignmentsStayAssignments) {
  EXPECT_EQ(translated("update sites set status = true"), "update sites set status = true");
  EXPECT_EQ(translated("update sites set a = False, b = true where c = True"),
            "update sites set a = False, b = true where c  is True");
}

TEST(SqlDialect, NowIsOneValueThroughoutAStatement) {
  const PlainStatement statement = plain("select now(), datediff('s',[lastChecked],NOW()) from sites");
  EXPECT_EQ(statement.text, "select ?1, datediff('s',[lastChecked],?1) from sites");
  ASSERT_EQ(statement.parameters.size(), 1U);
  EXPECT_EQ(std::get<SqlValue>(statement.parameters[0]).toText(), dateTimeText(HandClock().localNow()));
}

TEST(SqlDialect, WordsInTextsAreLeftAlone) {
  const PlainStatement statement = plain("select 'top 1 = true now() into x from y' from t");
  EXPECT_EQ(statement.text, "select ?1 from t");
  EXPECT_EQ(std::get<std::string_view>(statement.parameters.at(0)), "top 1 = true now() into x from y");
}

TEST(SqlDialect, StatementsAboutTablesPassAsTheyStand) {
  for (const char* sql : {"create table t (a text default 'x', b check (b = 1))", "drop table tempPostVars",
                          "alter table t add column c text", "alter table t add constraint u unique (a)"}) {
    const PlainStatement statement = plain(sql);
    EXPECT_EQ(statement.text, sql);
    EXPECT_TRUE(statement.parameters.empty());
    EXPECT_FALSE(statement.reusable);
  }
}

TEST(SqlDialect, KnowsSelectInto) {
  const auto command = std::get<SelectInto>(commandOf("select idSite,[p name] into tempPostVars from postvars"));
  EXPECT_EQ(command.target, "tempPostVars");
  EXPECT_EQ(command.source, "postvars");
  EXPECT_EQ(command.columns, (std::vector<std::string>{"idSite", "p name"}));
  EXPECT_EQ(translated("insert into t select a from u"), "insert into t select a from u");
}

TEST(SqlDialect, KnowsCounterColumnsAndAddedPrimaryKeys) {
  const auto counter =
      std::get<AddCounter>(commandOf("alter table tempPostVars add column idPostVars counter not null"));
  EXPECT_EQ(counter.table, "tempPostVars");
  EXPECT_EQ(counter.column, "idPostVars");
  EXPECT_EQ(translated("ALTER TABLE tempPostVars ADD CONSTRAINT idConstraint PRIMARY KEY (idPostVars)"),
            "create unique index `idConstraint` on `tempPostVars` (`idPostVars`)");
}

TEST(SqlDialect, FindsTheTextThatAColumnIsSetTo) {
  const std::string sql = "update control set email = 'timeout = ''9''', TimeOut = '' where id = 1";
  EXPECT_EQ(assignedText(sql, "timeout"), "''");
  EXPECT_FALSE(assignedText(sql, "smtp"));
}

}  // namespace
}  // namespace tarnwick::testing
