// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

std::string quoted(const std::string& text) {
  std::string sql = "'";
  for (const char c : text) {
    sql.append(c == '\'' ? 2 : 1, c);
  }
  return sql + "'";
}

class SqliteValues : public ::testing::Test {
 protected:
  void SetUp() override { database_.run("insert into sites (idSite,url) values (1,'http://localhost')"); }

  void storeBaseline(const std::string& page) {
    database_.run("update sites set content_compare = " + quoted(page) + " where idsite = 1");
  }
  SqlValue baseline() { return database_.value("select content_compare from sites where idsite = 1"); }

  OpenDatabase database_;
};

TEST_F(SqliteValues, APageComesBackByteForByte) {
  for (const std::string& page :
       {std::string(), std::string("it's 'quoted'''"), std::string("a|b||c"), std::string("nul\0in\0it\0", 10),
        std::string("\0", 1), std::string("cr\rlf\ncrlf\r\n"), std::string("\xff\xfe\x80 no UTF-8 \xc3"),
        std::string("gr\xc3\xbc\xc3\x9f"), std::string("007"), std::string("1e5"), std::string(" 12 "),
        std::string("select a into b from c -- /* ; [x] now() top 1 = true 'z' ?1")}) {
    storeBaseline(page);
    EXPECT_EQ(baseline(), SqlValue(page));
    EXPECT_EQ(database_.folder.queryText("select content_compare from sites"), page);
  }
}

TEST_F(SqliteValues, ATextThatLooksLikeANumberStaysAText) {
  database_.run("insert into postvars (idSite,pname,pvalue) values (1, '007', '1.0' )");
  EXPECT_EQ(database_.rows("select pname,pvalue from postvars"), "007|1.0;");
  EXPECT_EQ(database_.rows("select idPostVars from postVars where  idSite = 1 AND  pname = '7' AND  pvalue = '1.0'"),
            "");
}

TEST_F(SqliteValues, TextsAreComparedWithLetterCaseAndBlanks) {
  database_.run("insert into postvars (idSite,pname,pvalue) values (1, 'Name', 'v ' )");
  EXPECT_EQ(database_.rows("select 1 from postVars where pname = 'name'"), "");
  EXPECT_EQ(database_.rows("select 1 from postVars where pvalue = 'v'"), "");
  EXPECT_EQ(database_.rows("select 1 from postVars where pvalue = 'v '"), "1;");
}

TEST_F(SqliteValues, AQuotedNumberIsANumberInANumberColumn) {
  database_.run("update sites set tInterval = '10' WHERE idSite = 1");
  database_.run("update control set timeout = '45' where id = 1");
  EXPECT_EQ(database_.value("select tInterval from sites"), SqlValue(std::int64_t{10}));
  EXPECT_EQ(database_.value("select timeout from control where id = 1"), SqlValue(std::int64_t{45}));
}

TEST_F(SqliteValues, AnEmptyTextIsNoNumberAndIsNotStored) {
  try {
    database_.run("update sites set tInterval = '' where idSite = 1");
    FAIL() << "stored";
  } catch (const DataAccessError& error) {
    EXPECT_EQ(error.cause(), "tInterval takes a whole number; '' was not stored.");
  }
  EXPECT_EQ(database_.value("select timeout from control"), SqlValue(std::int64_t{30}));
}

TEST_F(SqliteValues, NumberColumnsRefuseWhatIsNoWholeNumber) {
  for (const char* value : {"''", "'ten'", "'1.5'", "x'31'"}) {
    EXPECT_THROW(database_.run(std::string("update sites set tInterval = ") + value), DataAccessError) << value;
    EXPECT_THROW(database_.run(std::string("update sites set success = ") + value), DataAccessError) << value;
    EXPECT_THROW(database_.run(std::string("update sites set failure = ") + value), DataAccessError) << value;
    EXPECT_THROW(database_.run(std::string("insert into log (errCode) values (") + value + ")"), DataAccessError)
        << value;
    EXPECT_THROW(database_.run(std::string("insert into postVars (idSite) values (") + value + ")"), DataAccessError)
        << value;
  }
  database_.run("update sites set tInterval = null");
}

TEST_F(SqliteValues, YesNoColumnsGiveYesOrNoWhateverTheirNumber) {
  for (const auto& [stored, expected] :
       {std::pair("True", "True;"), std::pair("False", "False;"), std::pair("-1", "True;"), std::pair("7", "True;"),
        std::pair("0", "False;"), std::pair("null", "NULL;"), std::pair("'True'", "True;")}) {
    database_.run(std::string("update sites set status = ") + stored + " where idSite = 1");
    EXPECT_EQ(database_.rows("select status from sites"), expected) << stored;
  }
  EXPECT_EQ(database_.conn->execute("select clogs from control")->field("CLOGS"), SqlValue(true));
}

TEST_F(SqliteValues, AnyNumberButZeroIsTrueInACondition) {
  database_.run("insert into sites (idSite,active) values (2,-1)");
  database_.run("insert into sites (idSite,active) values (3,true)");
  database_.run("insert into sites (idSite,active) values (4,False)");
  EXPECT_EQ(database_.rows("select idSite from sites where  active = true  ORDER BY idSite"), "2;3;");
  EXPECT_EQ(database_.rows("select idSite from sites where active = FALSE"), "4;");
}

TEST_F(SqliteValues, NumbersAndNullsKeepTheirKind) {
  database_.run("create table kinds (a real, b blob, c datetime text, d datetime)");
  database_.run("insert into kinds values (1.5, x'00ff', '20240101', 5)");
  const auto records = database_.conn->execute("select a,b,c,d,null from kinds");
  EXPECT_EQ(records->field(0), SqlValue(1.5));
  EXPECT_EQ(records->field(1), SqlValue(std::string("\0\xff", 2)));
  EXPECT_EQ(records->field(2), SqlValue(std::string("20240101")));
  EXPECT_EQ(records->field(3), SqlValue(std::int64_t{5}));
  EXPECT_TRUE(records->field(4).isNull());
}

TEST_F(SqliteValues, APageOfSixtyFourMebibytesIsStoredAndReadBack) {
  constexpr std::size_t kSize = std::size_t{64} << 20;
  std::string page(kSize, 'x');
  page[1000] = '\0';
  page[kSize / 2] = '\'';
  page.back() = '\'';
  storeBaseline(page);
  EXPECT_TRUE(baseline() == SqlValue(page));
}

TEST_F(SqliteValues, AnErrorCarriesOnlyTheBeginningOfALargeStatement) {
  try {
    database_.run("update nosuch set content = '" + std::string(1 << 20, 'x') + "'");
    FAIL() << "accepted";
  } catch (const DataAccessError& error) {
    EXPECT_LT(std::string(error.what()).size(), 1000U);
    EXPECT_NE(std::string(error.what()).find("no such table: nosuch"), std::string::npos);
    EXPECT_EQ(error.statement(), "update nosuch set content = '...'");
  }
}

TEST_F(SqliteValues, FieldsAreFoundByNameInAnyLetterCase) {
  const auto records = database_.conn->execute("select idsite, url as [The Address] from sites");
  EXPECT_EQ(records->fieldCount(), 2U);
  EXPECT_EQ(records->fieldName(1), "The Address");
  EXPECT_EQ(records->field("IDSITE").toInt64(), 1);
  EXPECT_EQ(records->field("the address").toText(), "http://localhost");
  const SqlValue kept = records->field("the address");
  EXPECT_EQ(kept.toText(), "http://localhost");
  EXPECT_EQ(kept.toTableText(), "http://localhost") << "giving its text away does not empty a value that is kept";
  EXPECT_THROW(records->field("addres"), DataAccessError);
  EXPECT_THROW(records->field(2), DataAccessError);
  EXPECT_THROW(records->fieldName(2), DataAccessError);
}

TEST_F(SqliteValues, RowsAreReadFromTheFirstAgain) {
  database_.run("insert into sites (idSite,url) values (2,'b')");
  const auto records = database_.conn->execute("select url from sites where url <> 'it''s' order by idSite");
  records->moveNext();
  EXPECT_EQ(records->field(0).toText(), "b");
  records->moveNext();
  EXPECT_TRUE(records->eof());
  EXPECT_THROW(records->field(0), DataAccessError);
  records->moveFirst();
  EXPECT_EQ(records->field(0).toText(), "http://localhost");
  records->close();
  EXPECT_TRUE(records->eof());
  EXPECT_THROW(records->moveFirst(), DataAccessError);
}

TEST_F(SqliteValues, TheSameQueryMayBeReadTwiceAtATime) {
  database_.run("insert into sites (idSite,url) values (2,'b')");
  const auto outer = database_.conn->execute("select idSite from sites");
  const auto inner = database_.conn->execute("select idSite from sites");
  inner->moveNext();
  EXPECT_EQ(outer->field(0).toInt64(), 1);
  EXPECT_EQ(inner->field(0).toInt64(), 2);
}

TEST_F(SqliteValues, AStatementWithoutRowsGivesAnEmptyRecordset) {
  const auto records = database_.conn->execute("update sites set success=0,failure=0 ");
  EXPECT_TRUE(records->eof());
  EXPECT_EQ(records->fieldCount(), 0U);
  records->moveFirst();
  records->moveNext();
  EXPECT_THROW(records->field("success"), DataAccessError);
  EXPECT_THROW(records->field(0), DataAccessError);
  EXPECT_THROW(records->fieldName(0), DataAccessError);
}

TEST_F(SqliteValues, OneStatementAtATime) {
  EXPECT_THROW(database_.run("delete from log; delete from sites"), DataAccessError);
  EXPECT_THROW(database_.run("drop table log; drop table sites"), DataAccessError);
  EXPECT_THROW(database_.run(""), DataAccessError);
  EXPECT_THROW(database_.run("update sites set url = 'a"), DataAccessError);
  EXPECT_THROW(database_.run(std::string("drop table log\0", 15)), DataAccessError);
  EXPECT_THROW(database_.run(std::string("delete from log \0", 17)), DataAccessError);
  EXPECT_EQ(database_.rows("select count(*) from sites;"), "1;");
  EXPECT_EQ(database_.rows("select count(*) from log"), "0;");
}

TEST_F(SqliteValues, ALiteralWithAStatementInItIsOnlyALiteral) {
  database_.run("update sites set url = 'x''; drop table sites; --' WHERE idSite = 1");
  EXPECT_EQ(database_.rows("select url from sites"), "x'; drop table sites; --;");
}

}  // namespace
}  // namespace tarnwick::testing
