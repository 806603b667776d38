// SPDX-License-Identifier: MIT
#include "store/settings_and_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class SettingsTest : public DataFixture {
 protected:
  void arrange(const std::string& assignment) { folder.execute("update control set " + assignment + " where id = 1"); }

  SettingsAndLog settings{database};
};

TEST_F(SettingsTest, TextsAreWrittenAndReadBackAsTheyAre) {
  for (const std::string key : {"email", "smtp", "audio", "program"}) {
    for (const std::string& text : trickyTexts()) {
      settings.setControl(key, text);
      EXPECT_EQ(settings.getControl(key).toText(), text) << key;
    }
  }
}

TEST_F(SettingsTest, StatementsAreBuiltFromTheirPieces) {
  settings.getControl("clogs");
  settings.setControl("email", "it's");
  settings.setControl("Smtp", "s");
  settings.setControl("audio", "a");
  settings.setControl("TIMEOUT", "30");
  settings.setControl("timeout", 31);
  settings.setControl("cLogs", true);
  settings.setControl("cReports", false);
  EXPECT_THAT(
      takeStatements(),
      ElementsAre("select clogs from control where id = 1", "update control set email = 'it''s' where id = 1",
                  "update control set Smtp = 's' where id = 1", "update control set audio = 'a' where id = 1",
                  "update control set TIMEOUT = '30' where id = 1", "update control set timeout = '31' where id = 1",
                  "update control set cLogs = True where id = 1", "update control set cReports = False where id = 1"));
}

TEST_F(SettingsTest, KeysMayBeWrittenInAnyLetterCase) {
  settings.setControl("TIMEOUT", "30");
  EXPECT_EQ(settings.getControl("timeout"), SqlValue(std::int64_t{30}));
  EXPECT_EQ(folder.queryText("select typeof(timeout) from control"), "integer");
}

TEST_F(SettingsTest, FlagsAreWrittenAndReadBack) {
  for (const std::string key : {"cLogs", "cReports", "cEmail", "cAudio", "cProgram"}) {
    settings.setControl(key, true);
    EXPECT_EQ(settings.getControl(key), SqlValue(true)) << key;
    settings.setControl(key, false);
    EXPECT_EQ(settings.getControl(key), SqlValue(false)) << key;
  }
}

TEST_F(SettingsTest, NullSettingIsNullAndAsAFlagFalse) {
  arrange("clogs = NULL");
  EXPECT_TRUE(settings.getControl("clogs").isNull());
  EXPECT_FALSE(settings.getControl("clogs").toBool());
}

TEST_F(SettingsTest, MissingSettingsRowReadsAsAnEmptyText) {
  folder.execute("delete from control");
  EXPECT_EQ(settings.getControl("email"), SqlValue(std::string()));
  EXPECT_EQ(settings.getControl("clogs"), SqlValue(std::string()));
  EXPECT_NO_THROW(settings.setControl("email", "a"));
  EXPECT_EQ(folder.queryText("select count(*) from control"), "0");
}

TEST_F(SettingsTest, MissingColumnIsADataAccessError) {
  EXPECT_THROW(settings.getControl("nosuch"), DataAccessError);
  EXPECT_THROW(settings.setControl("nosuch", "x"), DataAccessError);
  EXPECT_THROW(settings.getControl("email'"), DataAccessError);
}

TEST_F(SettingsTest, TimeoutThatIsNoNumberIsRefusedAndTheStoredOneKept) {
  settings.setControl("timeout", "45");
  for (const std::string text : {"soon", "4 5"}) {
    EXPECT_THAT(errorOf<DataAccessError>([&] { settings.setControl("timeout", text); }),
                HasSubstr("timeout takes a whole"));
    EXPECT_EQ(settings.requestTimeout(), 45s) << text;
  }
}

TEST_F(SettingsTest, AnEmptyTimeoutIsStoredAndCountsAs60Seconds) {
  arrange("email = 'old', timeout = 25");
  settings.storeSettings({{"email", "new"}, {"timeout", ""}});
  EXPECT_EQ(folder.queryRows("select email, typeof(timeout), timeout from control"), "new|text|\n");
  EXPECT_EQ(settings.getControl("timeout"), SqlValue(std::string()));
  EXPECT_EQ(settings.requestTimeout(), 60s);
}

TEST_F(SettingsTest, AnOlderListKeepsANullForAnEmptyTimeout) {
  folder.execute("alter table control drop column timeout");
  folder.execute("alter table control add column timeout INTEGER check (typeof(timeout) in ('integer', 'null'))");
  arrange("timeout = 25");
  settings.storeSettings({{"email", "new"}, {"timeout", ""}});
  EXPECT_EQ(folder.queryRows("select email, timeout is null from control"), "new|1\n");
  EXPECT_EQ(settings.requestTimeout(), 60s);
}

TEST_F(SettingsTest, SeveralSettingsAreWrittenInTheirOrderAsOneWhole) {
  settings.storeSettings({{"email", "it's"}, {"timeout", "45"}, {"cLogs", false}, {"cEmail", true}});
  EXPECT_EQ(folder.queryRows("select email, timeout, clogs, cemail from control"), "it's|45|0|1\n");
  EXPECT_THAT(
      takeStatements(),
      ElementsAre("begin", "select id from control where id = 1", "update control set email = 'it''s' where id = 1",
                  "update control set timeout = '45' where id = 1", "update control set cLogs = False where id = 1",
                  "update control set cEmail = True where id = 1", "commit"));
}

TEST_F(SettingsTest, ARefusedSettingIsNamedAndKeepsAllOthersFromBeingStored) {
  arrange("email = 'old', timeout = 45, cemail = 0");
  const auto store = [&] { settings.storeSettings({{"email", "new"}, {"timeout", "soon"}, {"cEmail", true}}); };
  EXPECT_THAT(errorOf<DataAccessError>(store), HasSubstr("timeout takes a whole number; 'soon' was not stored"));
  try {
    store();
  } catch (const SettingRefused& refused) {
    EXPECT_EQ(refused.key(), "timeout");
  }
  EXPECT_EQ(folder.queryRows("select email, timeout, cemail from control"), "old|45|0\n");
  EXPECT_NO_THROW(settings.storeSettings({{"email", "new"}})) << "nothing of the failure is left behind";
}

TEST_F(SettingsTest, SettingsWithoutARowToStoreThemInAreAnErrorWithARemedy) {
  folder.execute("delete from control");
  EXPECT_THAT(errorOf<DataAccessError>([&] { settings.storeSettings({{"email", "a"}}); }), HasSubstr("backup.mdb"));
}

TEST_F(SettingsTest, SettingsAreNotCached) {
  settings.setControl("timeout", 5);
  EXPECT_EQ(settings.requestTimeout(), 5s);
  arrange("timeout = 6");
  EXPECT_EQ(settings.requestTimeout(), 6s);
}

TEST_F(SettingsTest, TimeoutWithoutAUsefulValueIs60Seconds) {
  for (const char* value : {"NULL", "0", "-1"}) {
    arrange(std::string("timeout = ") + value);
    EXPECT_EQ(settings.requestTimeout(), 60s) << value;
  }
  arrange("timeout = 1");
  EXPECT_EQ(settings.requestTimeout(), 1s);
  arrange("timeout = 2147483647");
  EXPECT_EQ(settings.requestTimeout(), 2147483647s);
  folder.execute("delete from control");
  EXPECT_EQ(settings.requestTimeout(), 60s);
}

TEST_F(SettingsTest, TimeoutPast32BitsIsAnErrorThatNamesIt) {
  arrange("timeout = 2147483648");
  EXPECT_THAT(errorOf<OverflowError>([&] { settings.requestTimeout(); }), HasSubstr("timeout"));
}

class LogTest : public SettingsTest {
 protected:
  void log(const std::string& text) { settings.addLog(3, text, false, -12007, text, text); }
  std::string rowCount() const { return folder.queryText("select count(*) from log"); }
};

TEST_F(LogTest, NothingIsLoggedWhileTheSettingIsOffOrNull) {
  arrange("clogs = 0");
  log("off");
  arrange("clogs = NULL");
  log("Null");
  folder.execute("delete from control");
  log("no settings row");
  EXPECT_EQ(rowCount(), "0");
}

TEST_F(LogTest, AnyTrueSettingLogs) {
  for (const char* value : {"1", "-1"}) {
    arrange(std::string("clogs = ") + value);
    log("on");
  }
  EXPECT_EQ(rowCount(), "2");
}

TEST_F(LogTest, RowHoldsTheCheckAndTheTimeFromTheDatabase) {
  settings.setControl("clogs", true);
  takeStatements();
  settings.addLog(32767, "http://it's", true, 2147483647, "an 'error'", "page");
  EXPECT_THAT(takeStatements(), ElementsAre("select clogs from control where id = 1",
                                            "insert into log (idSite,url,status,errCode,errDescription,content) values "
                                            "(32767,'http://it''s',True,2147483647,'an ''error''','page')"));
  EXPECT_EQ(folder.queryRows("select idSite,url,status<>0,errCode,errDescription,content from log"),
            "32767|http://it's|1|2147483647|an 'error'|page\n");
  EXPECT_TRUE(parseDateTime(folder.queryText("select dateStamp from log")).has_value());
}

TEST_F(LogTest, EveryTextIsStoredWhole) {
  settings.setControl("clogs", true);
  for (const std::string& text : trickyTexts()) {
    settings.clearLog();
    log(text);
    for (const std::string column : {"url", "errDescription", "content"}) {
      EXPECT_EQ(folder.queryText("select " + column + " from log"), text) << column;
    }
  }
}

TEST_F(LogTest, ClearLogRemovesEveryRow) {
  settings.setControl("clogs", true);
  log("a");
  log("b");
  settings.clearLog();
  EXPECT_EQ(rowCount(), "0");
  EXPECT_EQ(takeStatements().back(), "delete from log");
}

TEST_F(SettingsTest, SelfTestLeavesItsTenRows) {
  folder.execute("insert into test (tname,tvalue) values ('old','row')");
  settings.Test();
  EXPECT_EQ(folder.queryText("select count(*) from test"), "10");
  EXPECT_EQ(folder.queryText("select tvalue from test where tname = 'tname1'"), "tvalue-11");
  EXPECT_EQ(folder.queryText("select tvalue from test where tname = 'tname10'"), "tvalue-1010");
  settings.Test();
  EXPECT_EQ(folder.queryText("select count(*) from test"), "10");
}

TEST_F(SettingsTest, SelfTestReportsAMissingTable) {
  folder.execute("drop table test");
  EXPECT_THROW(settings.Test(), DataAccessError);
}

}  // namespace
}  // namespace tarnwick::testing
