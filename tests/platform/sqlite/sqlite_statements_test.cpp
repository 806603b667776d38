// SPDX-License-Identifier: MIT
// Every kind of statement that the program writes, as it writes it, on a fresh database.
#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kColumns =
    "idSite,url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,success,failure";

class SqliteStatements : public ::testing::Test {
 protected:
  void addSite(const std::string& id = "1") {
    database_.run("insert into sites (idSite,url,method,active,tInterval) values (" + id +
                  ",'http://localhost','GET',true,10)");
  }
  void addLog(const std::string& url, const std::string& status) {
    database_.run("insert into log (idSite,url,status,errCode,errDescription,content) values (1,'" + url + "'," +
                  status + ",0,'it''s','')");
  }

  OpenDatabase database_;
};

TEST_F(SqliteStatements, AddASite) {
  EXPECT_EQ(database_.rows("select max(idSite)+1 as mid from sites"), "NULL;");
  addSite("7");
  EXPECT_EQ(database_.rows("select max(idSite)+1 as mid from sites"), "8;");
  EXPECT_EQ(database_.rows(std::string("select ") + kColumns + " from sites"),
            "7|http://localhost|GET|True|10|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL;");
  EXPECT_THROW(addSite("7"), DataAccessError);
}

TEST_F(SqliteStatements, ChangeASite) {
  addSite();
  database_.run(
      "update sites set url = 'http://a/?q=''x''', method = 'POST', active = False, tInterval = '25', "
      "alertEmail = True, email = 'a@b.c', sUserName = 'u', sPassWord = 'p'  WHERE idSite = 1");
  EXPECT_EQ(database_.rows(std::string("SELECT ") + kColumns + " from sites   ORDER BY idSite"),
            "1|http://a/?q='x'|POST|False|25|NULL|True|a@b.c|u|p|NULL|NULL|NULL;");
}

TEST_F(SqliteStatements, ListAndRemoveSites) {
  addSite("1");
  addSite("5");
  database_.run("insert into postvars (idSite,pname,pvalue) values (5, 'a', 'b' )");
  EXPECT_EQ(database_.rows("select idSite from sites where idsite = 5"), "5;");
  EXPECT_EQ(database_.rows("SELECT idsite from sites where  active = true  ORDER BY idSite"), "1;5;");
  database_.run("delete from sites  where idsite = 5");
  database_.run("delete from postvars  where idsite = 5");
  EXPECT_EQ(database_.rows(std::string("select ") + kColumns + " from sites where idSite = 5"), "");
  EXPECT_EQ(database_.rows("select idpostvars,pname,pvalue from postvars where idSite = 5"), "");
  EXPECT_EQ(database_.rows("select method from methods where idSite = 1"), "");
}

TEST_F(SqliteStatements, RecordACheck) {
  addSite();
  EXPECT_EQ(database_.rows("select url,method,content_compare from sites where idSite = 1"),
            "http://localhost|GET|NULL;");
  database_.run("update sites set content_compare = 'it''s' WHERE idsite = 1");
  database_.run("update sites set content_runtime = 'it''s' WHERE idsite = 1");
  database_.run("update sites set lastChecked = '2024-05-17 12:00:30' where idsite = 1");
  database_.run("update sites set status = True where idSite = 1");
  EXPECT_EQ(database_.rows("select success from sites where idsite = 1"), "NULL;");
  database_.run("update sites set success = 1 where idsite = 1");
  EXPECT_EQ(database_.rows("select content_compare,content_runtime,lastChecked,status,success from sites"),
            "it's|it's|2024-05-17 12:00:30|True|1;");
  database_.run("update sites set content_compare = '' where idsite = 1");
  EXPECT_EQ(database_.value("select content_compare from sites where idsite = 1"), SqlValue(std::string()));
}

TEST_F(SqliteStatements, SingleColumnsOfASite) {
  addSite();
  database_.run("update sites set status = true");
  database_.run("update sites set Active = False where idSite = 1");
  database_.run("update sites set success=0,failure=0  where idSite = 1");
  database_.run("update sites set success=0,failure=0 ");
  EXPECT_EQ(database_.rows("select lastChecked from sites where idsite = 1"), "NULL;");
  EXPECT_EQ(database_.rows("select status from sites where idSite = 1"), "True;");
  EXPECT_EQ(database_.rows("select Active from sites where idSite = 1"), "False;");
  EXPECT_EQ(database_.rows("select url from sites where idSite = 1"), "http://localhost;");
  EXPECT_EQ(database_.rows("select url,alertEmail,email from sites where idSite = 1"), "http://localhost|NULL|NULL;");
  EXPECT_EQ(database_.rows("select url,method,sUserName,sPassWord from sites where idsite = 1"),
            "http://localhost|GET|NULL|NULL;");
}

TEST_F(SqliteStatements, PostVariables) {
  database_.run("insert into postvars (idSite,pname,pvalue) values (1, 'n', 'v' )");
  EXPECT_EQ(database_.rows("select idPostVars from postVars where  idSite = 1 AND  pname = 'n' AND  pvalue = 'v'"),
            "1;");
  database_.run("update postVars set pname = 'it''s',pvalue = 'w' WHERE  idPostVars = 1");
  EXPECT_EQ(database_.rows("select pname,pvalue from postvars where idsite = 1"), "it's|w;");
  database_.run("delete from postVars where  idPostvars = 1");
  database_.run("delete from postvars where idSite = 1");
  EXPECT_EQ(database_.rows("select idpostvars,pname,pvalue from postvars where idSite = 1"), "");
}

TEST_F(SqliteStatements, AFreshDatabaseHasItsSettings) {
  EXPECT_EQ(database_.rows("select id,email,smtp,audio,program,timeout,clogs,creports,cemail,caudio,cprogram from "
                           "control where id = 1"),
            "1|||||30|True|False|False|False|False;");
  EXPECT_EQ(database_.rows("select count(*) from control"), "1;");
}

TEST_F(SqliteStatements, Settings) {
  database_.run("update control set TIMEOUT = '30' where id = 1");
  database_.run("update control set smtp = 'mail' where id = 1");
  database_.run("update control set cEmail = True where id = 1");
  EXPECT_EQ(database_.rows("select cEmail from control where id = 1"), "True;");
  EXPECT_EQ(database_.rows("select timeout from control where id = 1"), "30;");
  EXPECT_THROW(database_.rows("select nosuch from control where id = 1"), DataAccessError);
  EXPECT_THROW(database_.run("update control set nosuch = '' where id = 1"), DataAccessError);
}

TEST_F(SqliteStatements, TheReportsQueries) {
  for (const char* status : {"True", "True", "False"}) {
    addLog("http://a", status);
  }
  addLog("http://b", "True");
  addLog("http://old", "True");
  database_.run("update log set dateStamp = '2024-05-17 23:59:59' where url <> 'http://old'");
  database_.run("update log set dateStamp = '2024-05-16 23:59:59' where url = 'http://old'");
  EXPECT_EQ(database_.rows("select url,count(url) as total,status from log  where datevalue(dateStamp) = '2024-05-17' "
                           "group by url,status"),
            "http://a|1|False;http://a|2|True;http://b|1|True;");
  EXPECT_EQ(database_.rows("select count(*) as [Total Log Entries] from log where datevalue(dateStamp) = '2024-05-17'"),
            "4;");
  EXPECT_EQ(database_.rows("select count(*) as [Total Errors] from log  where  status = 0 AND  datevalue(dateStamp) = "
                           "'2024-05-17'"),
            "1;");
  const auto success = database_.conn->execute(
      "select count(*) as [Total Success] from log  where  status <> 0 AND  datevalue(dateStamp) = '2024-05-17'");
  EXPECT_EQ(success->fieldName(0), "Total Success");
  EXPECT_EQ(success->field(0).toInt64(), 3);
  database_.run("delete from log");
  EXPECT_EQ(database_.rows("select count(*) from log"), "0;");
}

TEST_F(SqliteStatements, TheSelfTest) {
  database_.run("delete from test");
  for (int i = 1; i <= 10; ++i) {
    const std::string n = std::to_string(i);
    database_.run("insert into test (tname,tvalue) values ('tname" + n + "','tvalue-" + n + n + "')");
  }
  const std::string rows = database_.rows("select id,tname,tvalue from test");
  EXPECT_EQ(rows.substr(0, rows.find(';')), "1|tname1|tvalue-11");
  EXPECT_NE(rows.find("10|tname10|tvalue-1010;"), std::string::npos);
}

TEST_F(SqliteStatements, MoreDifferentStatementsThanAreKeptPrepared) {
  addSite();
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 100; ++i) {
      EXPECT_EQ(database_.rows("select idSite as a" + std::to_string(i) + " from sites"), "1;");
    }
  }
}

TEST_F(SqliteStatements, AreTheSameHoweverOftenTheyAreAsked) {
  addSite("1");
  const std::string moment = "select now() from sites where idSite = 1";
  for (int day = 1; day <= 3; ++day) {
    const std::string date = "2026-11-0" + std::to_string(day) + " 10:00:00";
    database_.clock.setLocal(HandClock::at(date));
    EXPECT_EQ(database_.rows(moment), date + ";") << "the moment in which it is asked";
    // So many others that one of them is forgotten, and translated again.
    for (int site = 1; site <= 400; ++site) {
      const std::string id = std::to_string(site);
      database_.run("update sites set url = 'u" + id + "' where idSite = " + id);
      EXPECT_EQ(database_.rows("select url from sites where url = 'u" + id + "' and idSite = 1"),
                id == "1" ? "u1;" : "");
    }
    database_.run("update sites set url = 'u1' where idSite = 1");
  }
  EXPECT_THROW(database_.run("select 'without an end"), DataAccessError);
  EXPECT_THROW(database_.run("select 'without an end"), DataAccessError);
}

}  // namespace
}  // namespace tarnwick::testing
