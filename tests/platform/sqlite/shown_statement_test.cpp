// SPDX-License-Identifier: MIT
#include "platform/sqlite/shown_statement.h"

#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

TEST(ShownStatement, HidesEveryQuotedTextAndKeepsTheRest) {
  EXPECT_EQ(shownStatement("update sites set sPassWord = 'secret', tInterval = 10 WHERE idSite = 1"),
            "update sites set sPassWord = '...', tInterval = 10 WHERE idSite = 1");
  EXPECT_EQ(shownStatement("insert into postVars values (1, 'it''s', '')"),
            "insert into postVars values (1, '...', '...')");
  EXPECT_EQ(shownStatement("select x'41', 1-2, 4/2 from t"), "select x'...', 1-2, 4/2 from t");
  EXPECT_EQ(shownStatement("select [it's], \"it's\", `it's` /* it's */ from t -- it's\n where a = 'b'"),
            "select [it's], \"it's\", `it's` /* it's */ from t -- it's\n where a = '...'");
  EXPECT_EQ(shownStatement(""), "");
}

TEST(ShownStatement, HidesATextWithoutItsEnd) {
  EXPECT_EQ(shownStatement("update sites set url = 'it''s"), "update sites set url = '...'");
  EXPECT_EQ(shownStatement("update sites set url = '"), "update sites set url = '...'");
}

TEST(ShownStatement, ShowsTheBeginningOfALongOne) {
  const std::string names(10000, 'n');
  EXPECT_EQ(shownStatement("select " + names), ("select " + names).substr(0, 400));
  const std::string large(10 << 20, 'x');
  EXPECT_EQ(shownStatement("update t set a = '" + large + "', b = '" + large + "'"),
            "update t set a = '...', b = '...'");
  EXPECT_EQ(shownStatement("select [" + large + "]").size(), 400U);
}

std::string errorOf(const OpenDatabase& database, const std::string& sql) {
  try {
    database.run(sql);
  } catch (const DataAccessError& error) {
    return error.what();
  }
  return "";
}

TEST(ShownStatement, NoErrorHoldsAPassword) {
  const OpenDatabase database;
  const std::string set = " set sPassWord = 'PwFromFile7', url = '\x1b[31mred' WHERE idSite = ";
  const std::string secrets[] = {errorOf(database, "update nosuch" + set + "1"),
                                 errorOf(database, "update sites" + set + "1; select 1"),
                                 errorOf(database, "update sites" + set + "?"),
                                 errorOf(database, "update sites" + set + "'"),
                                 errorOf(database, "update sites set sPassWord = 'PwFromFile7"),
                                 errorOf(database, "alter table nosuch add constraint c primary key (a) 'PwFromFile7'"),
                                 errorOf(database, "insert into sites (idSite, sPassWord) values ('x', 'PwFromFile7')"),
                                 errorOf(database, "update control set timeout = 'PwFromFile7\x1b[31m'")};
  for (const std::string& error : secrets) {
    EXPECT_NE(error, "");
    EXPECT_EQ(error.find("PwFromFile7"), std::string::npos) << error;
    EXPECT_EQ(error.find('\x1b'), std::string::npos) << error;
  }
}

}  // namespace
}  // namespace tarnwick::testing
