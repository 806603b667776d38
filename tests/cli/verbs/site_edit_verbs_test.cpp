// SPDX-License-Identifier: MIT
#include <fstream>

#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class SiteEdit : public ToolFixture {
 protected:
  std::string row(std::int16_t id) const {
    return folder.queryRows(
        "select url, method, active, tInterval, alertEmail, email, sUserName, sPassWord from sites where idSite = " +
        std::to_string(id));
  }
  std::string vars(std::int16_t id) const {
    return folder.queryRows("select pname || '=' || pvalue from postVars where idSite = " + std::to_string(id) +
                            " order by idPostVars");
  }
  std::string writeFile(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder.file(name), std::ios::binary) << bytes;
    return folder.file(name);
  }
};

using AddVerb = SiteEdit;

TEST_F(AddVerb, AddsASiteWithItsDefaultsAndPrintsItsId) {
  EXPECT_EQ(run({"add", "http://a/"}), exit_status::ok);
  EXPECT_EQ(out, "1\n");
  EXPECT_EQ(err, "");
  EXPECT_EQ(row(1), "http://a/|get|1|10|0|||\n");
  EXPECT_EQ(column(1, "status"), "NULL");
}

TEST_F(AddVerb, PrintsTheIdAsJson) {
  addSite("http://a/");
  EXPECT_EQ(runJson({"add", "http://b/", "--json"}), Json::parse(R"({"idSite": 2})"));
}

TEST_F(AddVerb, StoresEverythingThatIsGiven) {
  EXPECT_EQ(run({"add", "https://a/it's?q=1", "--method", "POST", "--interval", "32767", "--inactive", "--alert-email",
                 "ann@example.org", "--user", "ann", "--password", "it's secret", "--post", "q=a=b", "--post",
                 "q=", "--post", "=x"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(row(1), "https://a/it's?q=1|post|0|32767|1|ann@example.org|ann|it's secret\n");
  EXPECT_EQ(vars(1), "q=a=b\nq=\n=x\n");
  EXPECT_EQ(err, "");
}

TEST_F(AddVerb, FetchesWithPostWhenThereAreVariables) {
  EXPECT_EQ(run({"add", "--post", "a=b", "http://a/"}), exit_status::ok);
  EXPECT_EQ(column(1, "method"), "post");
}

TEST_F(AddVerb, SaysWhenTheVariablesWillNotBeSent) {
  EXPECT_EQ(run({"add", "http://a/", "--post", "a=b", "--method", "get"}), exit_status::ok);
  EXPECT_EQ(column(1, "method"), "get");
  EXPECT_EQ(vars(1), "a=b\n");
  EXPECT_THAT(err, HasSubstr("tarnwickctl set 1 --method post"));
}

TEST_F(AddVerb, TakesTextsThatLookLikeAList) {
  EXPECT_EQ(run({"add", "http://a/", "--post", "[a,b]=[c]", "--post", "={}", "--user", "{}", "--password", "%%"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(vars(1), "[a,b]=[c]\n={}\n");
  EXPECT_EQ(column(1, "sUserName"), "{}");
  EXPECT_EQ(column(1, "sPassWord"), "%%");
}

TEST_F(AddVerb, TakesTextsThatBeginWithAMinusSignBehindAnEqualsSign) {
  EXPECT_EQ(run({"add", "http://a/", "--post=-a=-b", "--password=--x"}), exit_status::ok) << err;
  EXPECT_EQ(vars(1), "-a=-b\n");
  EXPECT_EQ(column(1, "sPassWord"), "--x");
}

TEST_F(AddVerb, TakesEverySchemeThatIsFetchedAndAnAddressWithoutOne) {
  for (const char* url : {"http://a/", "HTTPS://a/", "ftp://a/b", "ftps://a/b", "a.example/page", "localhost:8080"}) {
    EXPECT_EQ(run({"add", url}), exit_status::ok) << url;
  }
}

TEST_F(AddVerb, RefusesWhatCannotBeFetched) {
  for (const char* url : {"gopher://a/", "file:///etc/passwd", "ws://a/"}) {
    EXPECT_EQ(run({"add", url}), exit_status::failed) << url;
    EXPECT_THAT(err, HasSubstr("is none of http, https, ftp and ftps")) << url;
  }
  for (const char* url : {"", "  ", "http://", "http://a\n/", "http://a:port/", "http://a b/", "/etc/passwd",
                          "C:/Windows/x.exe", "ms-msdt:/id", "javascript:alert(1)"}) {
    EXPECT_EQ(run({"add", url}), exit_status::failed) << url;
    EXPECT_THAT(err, HasSubstr("is not a valid address")) << url;
  }
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(AddVerb, RefusesAUserNameOfSeveralLines) {
  for (const char* user : {"me\r\nDELE x", "me\n", "\rme"}) {
    EXPECT_EQ(run({"add", "ftp://a.test/", "--user", user}), exit_status::failed) << user;
    EXPECT_THAT(err, HasSubstr("holds a line end"));
  }
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
  EXPECT_EQ(run({"add", "ftp://a.test/", "--user", "me"}), exit_status::ok) << err;
  EXPECT_EQ(run({"set", "1", "--user", "you\nx"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select sUserName from sites"), "me");
}

TEST_F(AddVerb, RefusesAnIntervalThatIsNone) {
  for (const char* interval : {"0", "32768", "1.5", "x", "", "1 ", "99999999999999999999"}) {
    EXPECT_EQ(run({"add", "http://a/", "--interval", interval}), exit_status::failed) << interval;
    EXPECT_THAT(err, HasSubstr("minutes from 1 to 32767")) << interval;
  }
  EXPECT_EQ(run({"add", "http://a/", "--interval=-5"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(AddVerb, ReadsAnIntervalInDecimal) {
  EXPECT_EQ(run({"add", "http://a/", "--interval", "010"}), exit_status::ok);
  EXPECT_EQ(column(1, "tInterval"), "10");
}

TEST_F(AddVerb, RefusesAMethodThatIsNone) {
  EXPECT_EQ(run({"add", "http://a/", "--method", "put"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Take get or post."));
}

TEST_F(AddVerb, RefusesAnAlertAddressThatIsNone) {
  for (const char* email : {"ann", "", "a@b.info", "a@b.cc, c@d.ee"}) {
    EXPECT_EQ(run({"add", "http://a/", "--alert-email", email}), exit_status::failed) << email;
    EXPECT_THAT(err, HasSubstr("is not a valid email address")) << email;
  }
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(AddVerb, RefusesAVariableWithoutAnEqualsSign) {
  EXPECT_EQ(run({"add", "http://a/", "--post", "a=b", "--post", "c"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--post takes NAME=VALUE, and \"c\" has no \"=\"."));
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(AddVerb, ReadsThePasswordFromAFileWithoutItsLineEnd) {
  const std::vector<std::pair<std::string, std::string>> files = {
      {"secret\n", "secret"}, {"secret\r\n", "secret"}, {"secret", "secret"}, {"two\n\n", "two\n"}, {"", ""}};
  std::int16_t id = 0;
  for (const auto& [bytes, password] : files) {
    ASSERT_EQ(run({"add", "http://a/", "--password-file", writeFile("secret.txt", bytes)}), exit_status::ok) << err;
    EXPECT_EQ(column(++id, "sPassWord"), password);
  }
}

TEST_F(AddVerb, ReadsThePasswordFromStandardInput) {
  input = "from a pipe\n";
  EXPECT_EQ(run({"add", "http://a/", "--password-file", "-"}), exit_status::ok);
  EXPECT_EQ(column(1, "sPassWord"), "from a pipe");
}

TEST_F(AddVerb, NamesAPasswordFileThatCannotBeRead) {
  EXPECT_EQ(run({"add", "http://a/", "--password-file", folder.file("none.txt")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("none.txt"));
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(AddVerb, RefusesTwoPasswords) {
  EXPECT_EQ(run({"add", "http://a/", "--password", "a", "--password-file", "b"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--password"));
}

TEST_F(AddVerb, RefusesAnIdBeyond16Bits) {
  folder.execute("insert into sites (idSite, url) values (32767, 'http://a/')");
  EXPECT_EQ(run({"add", "http://b/"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("32767"));
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "1");
}

TEST_F(AddVerb, LeavesNothingBehindWhenTheVariablesCannotBeStored) {
  folder.execute("drop table postVars");
  EXPECT_EQ(run({"add", "http://a/", "--post", "a=b"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

class SetVerb : public SiteEdit {
 protected:
  SetVerb() {
    addSite("http://a/");
    folder.execute(
        "update sites set method = 'GET', email = 'a@b.cc', alertEmail = 1, sUserName = 'ann', sPassWord = 'secret';"
        "insert into postVars (idSite, pname, pvalue) values (1, 'q', 'x'), (1, 'r', 'y')");
  }
};

TEST_F(SetVerb, ChangesOnlyWhatIsGiven) {
  EXPECT_EQ(run({"set", "1", "--interval", "5"}), exit_status::ok);
  EXPECT_EQ(out, "Site 1 is changed.\n");
  EXPECT_EQ(err, "");
  EXPECT_EQ(row(1), "http://a/|GET|1|5|1|a@b.cc|ann|secret\n");
  EXPECT_EQ(vars(1), "q=x\nr=y\n");
}

TEST_F(SetVerb, ChangesEverythingThatIsGiven) {
  EXPECT_EQ(run({"set", "1", "--url", "ftp://b/", "--method", "post", "--inactive", "--alert-email", "c@d.ee", "--user",
                 "bob", "--password", "new", "--post", "z=1"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(row(1), "ftp://b/|post|0|10|1|c@d.ee|bob|new\n");
  EXPECT_EQ(vars(1), "z=1\n");
}

TEST_F(SetVerb, SwitchesASiteOnAndOff) {
  EXPECT_EQ(run({"set", "1", "--inactive"}), exit_status::ok);
  EXPECT_EQ(column(1, "active"), "0");
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_EQ(column(1, "active"), "1");
  EXPECT_EQ(run({"set", "1", "--active", "--inactive"}), exit_status::failed);
}

TEST_F(SetVerb, SwitchesTheAlertMailsOffAndKeepsTheAddress) {
  EXPECT_EQ(run({"set", "1", "--no-alert-email"}), exit_status::ok);
  EXPECT_EQ(row(1), "http://a/|GET|1|10|0|a@b.cc|ann|secret\n");
}

TEST_F(SetVerb, RemovesTheCredentialsWithEmptyTexts) {
  EXPECT_EQ(run({"set", "1", "--user", "", "--password", ""}), exit_status::ok);
  EXPECT_EQ(row(1), "http://a/|GET|1|10|1|a@b.cc||\n");
}

TEST_F(SetVerb, ReadsThePasswordFromStandardInput) {
  input = "new\n";
  EXPECT_EQ(run({"set", "1", "--password-file", "-"}), exit_status::ok);
  EXPECT_EQ(column(1, "sPassWord"), "new");
}

TEST_F(SetVerb, LeavesResultsAndBaselineAlone) {
  folder.execute("update sites set status = 0, failure = 7, content_compare = 'page', lastChecked = '2024-05-17'");
  EXPECT_EQ(run({"set", "1", "--url", "http://b/"}), exit_status::ok);
  EXPECT_EQ(folder.queryRows("select status, failure, content_compare, lastChecked from sites"),
            "0|7|page|2024-05-17\n");
}

TEST_F(SetVerb, ChangesNothingWhenOneOfTheValuesIsWrong) {
  for (const auto& wrong : std::vector<std::vector<std::string>>{{"--interval", "0"},
                                                                 {"--method", "head"},
                                                                 {"--alert-email", "ann"},
                                                                 {"--url", "gopher://a/"},
                                                                 {"--post", "x"}}) {
    EXPECT_EQ(run({"set", "1", "--user", "bob", wrong[0], wrong[1]}), exit_status::failed) << wrong[0];
    EXPECT_EQ(out, "");
    EXPECT_EQ(column(1, "sUserName"), "ann") << wrong[0];
  }
}

TEST_F(SetVerb, AsksWhatIsToBeChanged) {
  EXPECT_EQ(run({"set", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Say what is to be changed of site 1."));
}

TEST_F(SetVerb, NamesAnIdThatIsNotInTheList) {
  EXPECT_EQ(run({"set", "2", "--active"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 2."));
}

TEST_F(AddVerb, TellsOnATerminalHowARunTakesTheSiteOn) {
  terminal.isTerminal = true;
  EXPECT_EQ(run({"add", "http://a/"}), exit_status::ok);
  EXPECT_EQ(out, "1\n");
  EXPECT_THAT(err, HasSubstr("takes the site on once it was checked. Check it with: tarnwickctl check 1\n"));
  EXPECT_EQ(run({"add", "http://a/", "--inactive"}), exit_status::ok);
  EXPECT_EQ(err, "");
}

TEST_F(SetVerb, TellsHowARunTakesOnASiteThatIsSwitchedOnOrMovedAndWasNeverChecked) {
  const std::string hint =
      "tarnwickctl: A run that is on takes the site on once it was checked. Check it with: tarnwickctl check 1\n";
  terminal.isTerminal = true;
  addSite("http://a/");
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_EQ(err, hint);
  EXPECT_EQ(run({"set", "1", "--url", "http://b/"}), exit_status::ok);
  EXPECT_EQ(err, hint);
  EXPECT_EQ(run({"set", "1", "--url", "http://b/", "--inactive"}), exit_status::ok);
  EXPECT_EQ(err, "");
  folder.execute("update sites set lastChecked = '2024-05-17 12:00:00'");
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_EQ(err, "") << "its time tells when it is due";
}

TEST_F(SetVerb, TellsItWhereNobodyReadsAlongOnlyWhileARunIsOn) {
  addSite("http://a/");
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_EQ(err, "");
  const auto lock = machine.runLocks.makeRunLock(folder.path());
  lock->take();
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("Check it with: tarnwickctl check 1\n"));
  ASSERT_EQ(run({"option", "all", "newSites=at once"}), exit_status::ok);
  EXPECT_EQ(run({"set", "1", "--active"}), exit_status::ok);
  EXPECT_EQ(err, "");
}

}  // namespace
}  // namespace tarnwick::testing
