// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class SettingsVerb : public ToolFixture {
 protected:
  std::string stored(const std::string& key) const { return folder.queryText("select " + key + " from control"); }
};

TEST_F(SettingsVerb, ListsAllOfThem) {
  folder.execute("update control set email = 'a@b.cc', cemail = 1");
  EXPECT_EQ(run({"settings"}), exit_status::ok);
  EXPECT_EQ(out,
            "SETTING   VALUE\n"
            "email     a@b.cc\n"
            "smtp\n"
            "audio\n"
            "program\n"
            "timeout   30\n"
            "clogs     on\n"
            "creports  off\n"
            "cemail    on\n"
            "caudio    off\n"
            "cprogram  off\n");
}

TEST_F(SettingsVerb, TakesANameOfAnyLength) {
  fields.settings.push_back({"longestWaitForTheMailServer", FieldKind::seconds, "Wait", "how long it may take"});
  folder.execute("alter table control add column longestWaitForTheMailServer integer");
  EXPECT_EQ(run({"settings", "--help"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("\n  longestWaitForTheMailServer  how long it may take\n"));
  EXPECT_THAT(out, HasSubstr("\n  smtp                         the mail server"));
  EXPECT_EQ(run({"settings", "LONGESTwaitForTheMailServer", "7"}), exit_status::ok) << err;
  EXPECT_EQ(runJson({"settings", "--json"})["longestWaitForTheMailServer"], 7);
}

TEST_F(SettingsVerb, PrintsThemAsJson) {
  folder.execute("update control set program = null, caudio = null, email = 'NULL'");
  EXPECT_EQ(runJson({"settings", "--json"}),
            Json::parse(R"({"email": "NULL", "smtp": "", "audio": "", "program": null, "timeout": 30, "clogs": true,
                            "creports": false, "cemail": false, "caudio": null, "cprogram": false})"));
}

TEST_F(SettingsVerb, PrintsOneForAScript) {
  EXPECT_EQ(run({"settings", "TimeOut"}), exit_status::ok);
  EXPECT_EQ(out, "30\n");
  EXPECT_EQ(run({"settings", "cLogs"}), exit_status::ok);
  EXPECT_EQ(out, "on\n");
  EXPECT_EQ(runJson({"settings", "CLOGS", "--json"}), Json::parse(R"({"clogs": true})"));
}

TEST_F(SettingsVerb, ActsOnNoTerminalThroughAValue) {
  folder.execute("update control set smtp = 'a' || char(27) || 'b'");
  EXPECT_EQ(run({"settings", "smtp"}), exit_status::ok);
  EXPECT_EQ(out,
            "a\x1b"
            "b\n");
  terminal.isTerminal = true;
  EXPECT_EQ(run({"settings", "smtp"}), exit_status::ok);
  EXPECT_EQ(out, "a\\x1bb\n");
}

TEST_F(SettingsVerb, StoresTexts) {
  for (const char* key : {"email", "smtp", "audio", "program"}) {
    for (const char* value : {"it's [a,b]", "{}", ""}) {
      EXPECT_EQ(run({"settings", key, value}), exit_status::ok) << err;
      EXPECT_EQ(stored(key), value) << key;
    }
  }
}

TEST_F(SettingsVerb, StoresFlagsInEveryForm) {
  for (const char* yes : {"on", "yes", "true", "1", "ON"}) {
    folder.execute("update control set creports = 0");
    EXPECT_EQ(run({"settings", "cReports", yes}), exit_status::ok) << yes;
    EXPECT_EQ(stored("creports"), "1") << yes;
  }
  for (const char* no : {"off", "no", "false", "0", "False"}) {
    folder.execute("update control set creports = 1");
    EXPECT_EQ(run({"settings", "creports", no}), exit_status::ok) << no;
    EXPECT_EQ(stored("creports"), "0") << no;
  }
}

TEST_F(SettingsVerb, RefusesAFlagThatIsNeither) {
  for (const char* value : {"maybe", "", "2"}) {
    EXPECT_EQ(run({"settings", "cemail", value}), exit_status::failed) << value;
    EXPECT_THAT(err, HasSubstr("The setting cemail is on or off")) << value;
  }
  EXPECT_EQ(stored("cemail"), "0");
}

TEST_F(SettingsVerb, StoresATimeOut) {
  EXPECT_EQ(runJson({"settings", "TIMEOUT", "2147483647", "--json"}), Json::parse(R"({"timeout": 2147483647})"));
  EXPECT_EQ(stored("timeout"), "2147483647");
}

TEST_F(SettingsVerb, RefusesATimeOutThatIsNone) {
  for (const char* value : {"0", "1.5", "soon", "", "2147483648", "5s"}) {
    EXPECT_EQ(run({"settings", "timeout", value}), exit_status::failed) << value;
    EXPECT_THAT(err, HasSubstr("seconds from 1 to 2147483647, and")) << value;
  }
  EXPECT_EQ(run({"settings", "timeout", "--", "-5"}), exit_status::failed);
  EXPECT_EQ(stored("timeout"), "30");
}

TEST_F(SettingsVerb, LeadsToTheOptionsWhereTheKeyIsOne) {
  EXPECT_EQ(run({"settings", "MAILlimit", "30"}), exit_status::failed);
  EXPECT_EQ(err, "tarnwickctl: mailLimit is an option, and no setting. See: tarnwickctl option all mailLimit\n");
}

TEST_F(SettingsVerb, ListsTheKeysWhenOneIsUnknown) {
  for (const char* key : {"bla", "id", "email,smtp", ""}) {
    EXPECT_EQ(run({"settings", key, "1"}), exit_status::failed) << key;
    EXPECT_THAT(err, HasSubstr("The settings are: email, smtp, audio, program, timeout, clogs, creports, cemail, "
                               "caudio, cprogram."))
        << key;
  }
}

TEST_F(SettingsVerb, SaysThatTheSettingsRowIsMissing) {
  folder.execute("delete from control");
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{"settings"}, {"settings", "email"}, {"settings", "email", "a@b.cc"}}) {
    EXPECT_EQ(run(arguments), exit_status::failed);
    EXPECT_EQ(out, "");
    EXPECT_THAT(err, HasSubstr("no settings row"));
  }
}

}  // namespace
}  // namespace tarnwick::testing
