#include "platform/sqlite/sql_dialect.h"

#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "platform/sqlite/sql_table_definition.h"

namespace tarnwick {
namespace {

PlainStatement plain(std::string_view sql) { return std::get<PlainStatement>(translateSql(sql)); }
std::string translated(std::string_view sql) { return plain(sql).text; }

TEST(SqlDialect, TextsAndNumbersBecomeParametersSoThatStatementsShareOneForm) {
  EXPECT_EQ(translated("update sites set content_runtime = 'page' WHERE idsite = 7"),
            "update sites set content_runtime = ?1 WHERE idsite = ?2");
  EXPECT_EQ(translated("select url from sites where idSite = 3"), translated("select url from sites where idSite = 4"));
  EXPECT_EQ(translated("insert into log (idSite,status) values (12,True)"),
            "insert into log(idSite, status) values(?1, True)");
}

TEST(SqlDialect, ATextParameterRefersToTheStatementAndIsNotCopied) {
  const std::string sql = "update sites set url = 'http://localhost'";
  const PlainStatement statement = plain(sql);
  const auto& token = std::get<SqlToken>(statement.parameters.at(0));
  EXPECT_EQ(quotedPart(token).data(), sql.data() + sql.find("http"));
}

TEST(SqlDialect, TopBecomesTheLimitOfItsSelect) {
  EXPECT_EQ(translated("SELECT TOP 1 idsite From sites ORDER BY url ;"),
            "SELECT idsite From sites ORDER BY url limit 1");
  EXPECT_EQ(translated("select distinct top 2 a from b"), "select distinct a from b limit 2");
  EXPECT_EQ(translated("select a from (select top 3 b from c) where d = 'x'"),
            "select a from(select b from c limit 3) where d = ?1");
  EXPECT_EQ(translated("select top, 5 from hills"), "select top, 5 from hills");
}

TEST(SqlDialect, YesNoConditionsAskForTruth) {
  EXPECT_EQ(translated("select a from b where active = true AND Active=FALSE"),
            "select a from b where active is true AND Active is false");
  EXPECT_EQ(translated("select a from b where active <> True or active != false"),
            "select a from b where active is false or active is true");
}

TEST(SqlDialect, YesNoAssignmentsStayAssignments) {
  EXPECT_EQ(translated("update sites set status = true"), "update sites set status = true");
  EXPECT_EQ(translated("update sites set a = False, b = true where c = True"),
            "update sites set a = False, b = true where c is true");
  EXPECT_EQ(translated("update sites set a = (select 1 from t where d = true), e = true"),
            "update sites set a =(select 1 from t where d is true), e = true");
}

TEST(SqlDialect, NowIsOneValueThroughoutAStatement) {
  const PlainStatement statement = plain("select now(), datediff('s',[lastChecked],NOW()) from sites");
  EXPECT_EQ(statement.text, "select ?1, datediff('s', [lastChecked], ?1) from sites");
  ASSERT_EQ(statement.parameters.size(), 1U);
  EXPECT_TRUE(std::holds_alternative<StatementTime>(statement.parameters[0]));
}

TEST(SqlDialect, WordsInTextsAreLeftAlone) {
  const PlainStatement statement = plain("select 'top 1 = true now() into x from y' from t");
  EXPECT_EQ(statement.text, "select ?1 from t");
  EXPECT_EQ(textIn(std::get<SqlToken>(statement.parameters.at(0))), "top 1 = true now() into x from y");
}

TEST(SqlDialect, StatementsAboutTablesPassAsTheyStand) {
  const PlainStatement statement = plain("create table t (a text default 'x', b check (b = 1))");
  EXPECT_EQ(statement.text, "create table t (a text default 'x', b check (b = 1))");
  EXPECT_TRUE(statement.parameters.empty());
  EXPECT_FALSE(statement.reusable);
  EXPECT_EQ(translated("drop table tempPostVars"), "drop table tempPostVars");
  EXPECT_EQ(translated("alter table t add column c text"), "alter table t add column c text");
  EXPECT_EQ(translated("alter table t add constraint u unique (a)"), "alter table t add constraint u unique (a)");
  EXPECT_THROW(translateSql(std::string_view("create table t (a default '\0')", 31)), DataAccessError);
}

TEST(SqlDialect, KnowsSelectInto) {
  const auto command = std::get<SelectInto>(translateSql("select idSite,pname into tempPostVars from postvars"));
  EXPECT_EQ(command.target, "tempPostVars");
  EXPECT_EQ(command.source, "postvars");
  EXPECT_EQ(command.columns, (std::vector<std::string>{"idSite", "pname"}));
  EXPECT_EQ(command.select.text, "select idSite, pname from postvars not indexed");
}

TEST(SqlDialect, SelectIntoTellsColumnsFromExpressions) {
  const auto command =
      std::get<SelectInto>(translateSql("SELECT TOP 5 [a b] AS c, max(d,e), f INTO [new one] FROM t, u where g = 'x'"));
  EXPECT_EQ(command.target, "new one");
  EXPECT_EQ(command.source, "");
  EXPECT_EQ(command.columns, (std::vector<std::string>{"a b", "", "f"}));
  EXPECT_EQ(command.select.text, "SELECT [a b] AS c, max(d, e), f FROM t, u where g = ?1 limit 5");
}

TEST(SqlDialect, InsertIntoIsNoSelectInto) {
  EXPECT_EQ(translated("insert into t select a from u"), "insert into t select a from u");
}

TEST(SqlDialect, KnowsCounterColumnsAndAddedPrimaryKeys) {
  const auto counter =
      std::get<AddCounter>(translateSql("alter table tempPostVars add column idPostVars counter not null"));
  EXPECT_EQ(counter.table, "tempPostVars");
  EXPECT_EQ(counter.column, "idPostVars");
  const auto key = std::get<AddPrimaryKey>(
      translateSql("ALTER TABLE tempPostVars ADD CONSTRAINT idConstraint PRIMARY KEY (idPostVars, [b c])"));
  EXPECT_EQ(key.table, "tempPostVars");
  EXPECT_EQ(key.constraint, "idConstraint");
  EXPECT_EQ(key.columns, (std::vector<std::string>{"idPostVars", "b c"}));
}

TEST(SqlDialect, FindsTheTextThatAColumnIsSetTo) {
  const std::string sql = "update control set email = 'timeout = ''9''', TimeOut = '' where id = 1";
  EXPECT_EQ(assignedText(sql, "timeout"), "''");
  EXPECT_FALSE(assignedText(sql, "smtp"));
}

TEST(SqlTableDefinition, IsTakenApartAndPutTogetherAgain) {
  const TableDefinition definition = parseTableDefinition(
      "CREATE TABLE \"t\" (a INTEGER PRIMARY KEY, -- the key\n [b c] TEXT DEFAULT 'x,y' CHECK (length(b) IN (1, 2)),"
      " d, UNIQUE (d, a)) STRICT");
  ASSERT_EQ(definition.columns.size(), 3U);
  EXPECT_EQ(definition.columns[1].name, "b c");
  EXPECT_EQ(definition.columns[1].rest, "TEXT DEFAULT 'x,y' CHECK (length(b) IN (1, 2))");
  EXPECT_EQ(definition.find("D"), &definition.columns[2]);
  EXPECT_EQ(definition.find("e"), nullptr);
  EXPECT_EQ(definition.createStatement("n\"n"),
            "create table \"n\"\"n\" (\"a\" INTEGER PRIMARY KEY, "
            "\"b c\" TEXT DEFAULT 'x,y' CHECK (length(b) IN (1, 2)), \"d\", UNIQUE (d, a)) STRICT");
}

TEST(SqlTableDefinition, KeepsTypesAndDefaultsAsTheyAreWritten) {
  const TableDefinition definition = parseTableDefinition("create table t (a decimal(10, -2) default -1.5e3 , b)");
  ASSERT_EQ(definition.columns.size(), 2U);
  EXPECT_EQ(definition.columns[0].rest, "decimal(10, -2) default -1.5e3");
}

TEST(SqlTableDefinition, TakesATextForAName) {
  const TableDefinition definition = parseTableDefinition("create table 't' ('it''s a name' text, 'b')");
  ASSERT_EQ(definition.columns.size(), 2U);
  EXPECT_EQ(definition.columns[0].name, "it's a name");
  EXPECT_EQ(definition.columns[0].rest, "text");
  EXPECT_EQ(definition.createStatement("u"), "create table \"u\" (\"it's a name\" text, \"b\")");
}

TEST(SqlTableDefinition, OfAnythingElseHasNoColumns) {
  EXPECT_TRUE(parseTableDefinition("create view v as select a from t").columns.empty());
}

}  // namespace
}  // namespace tarnwick
