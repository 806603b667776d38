// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/errors.h"
#include "open_database.h"
#include "platform/sqlite/sqlite_connection.h"

namespace tarnwick::testing {
namespace {

TEST(PlainSql, ValuesOfEveryKindComeBackAsTheyWere) {
  const OpenDatabase database;
  database.conn->execute("create table kept (a, b, c, d, e)", {});
  const std::string bytes("it's \0 \xff ?1", 11);
  const std::vector<SqlValue> values{SqlValue(), SqlValue(true), SqlValue(std::int64_t{-7}), SqlValue(0.5),
                                     SqlValue(bytes)};
  database.conn->execute("insert into kept values (?1, ?2, ?3, ?4, ?5)", values);
  const auto row = database.conn->execute("select * from kept", {});
  EXPECT_TRUE(row->field(0).isNull());
  EXPECT_EQ(row->field(1).toInt64(), 1);
  EXPECT_EQ(row->field(2), values[2]);
  EXPECT_EQ(row->field(3), values[3]);
  EXPECT_EQ(row->field(4), values[4]);
}

TEST(PlainSql, NothingIsTranslated) {
  const OpenDatabase database;
  EXPECT_THROW(database.conn->execute("select top 1 idSite from sites", {}), DataAccessError);
  EXPECT_EQ(database.conn->execute("select 'now()'", {})->field(0).toText(), "now()");
}

TEST(PlainSql, TheFormOfAListIsNotTrustedAndNotRewritten) {
  const OpenDatabase open;
  EXPECT_EQ(open.rows("pragma trusted_schema"), "0;");
  open.run("pragma writable_schema = on");
  EXPECT_THROW(open.run("update sqlite_master set sql = 'create table sites (idSite)' where name = 'sites'"),
               DataAccessError);
  // A trigger of somebody else, and one that the functions of this program serve.
  open.run("create trigger unsafe after insert on postVars begin select load_extension('libc.so.6'); end");
  EXPECT_THROW(open.run("insert into postVars (idSite) values (1)"), DataAccessError);
  open.run("drop trigger unsafe");
  open.run("create trigger safe after insert on postVars begin select datediff('n', '2024-01-01', '2024-01-02'); end");
  open.run("insert into postVars (idSite) values (1)");
  EXPECT_EQ(open.rows("select idSite from postVars"), "1;");
}

TEST(PlainSql, AsManyValuesAreGivenAsTheStatementTakes) {
  const OpenDatabase database;
  const std::vector<SqlValue> one{SqlValue(std::int64_t{1})};
  EXPECT_THROW(database.conn->execute("select 1", one), DataAccessError);
  EXPECT_THROW(database.conn->execute("select ?1 + ?2", one), DataAccessError);
  EXPECT_THROW(database.conn->execute("select ?1; delete from control", one), DataAccessError);
  EXPECT_EQ(database.conn->execute("select ?1 + ?1", one)->field(0).toInt64(), 2);
  EXPECT_EQ(database.rows("select count(*) from control"), "1;");
}

TEST(PlainSql, TheFormOfTheTablesIsPartOfTheTransactionAndStays) {
  OpenDatabase database;
  const std::int64_t fresh = database.conn->formOfTables();
  database.conn->begin();
  database.conn->setFormOfTables(fresh + 1);
  EXPECT_EQ(database.conn->formOfTables(), fresh + 1);
  database.conn->rollback();
  EXPECT_EQ(database.conn->formOfTables(), fresh);
  database.conn->setFormOfTables(7);
  EXPECT_THROW(database.conn->setFormOfTables(std::int64_t{1} << 40), OverflowError);
  database.conn->proveWritable();
  database.conn->close();

  const std::string compacted = database.folder.file("compacted.mdb");
  database.databases.holdDatabase(database.connString())->compactInto(OpenDatabase::connStringFor(compacted));
  database.conn->open(OpenDatabase::connStringFor(compacted));
  EXPECT_EQ(database.conn->formOfTables(), 7);
}

}  // namespace
}  // namespace tarnwick::testing
