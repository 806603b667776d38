// SPDX-License-Identifier: MIT
#include <fstream>

#include "cli/support/tool_fixture.h"
#include "program/site_draft.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class SiteImport : public ToolFixture {
 protected:
  int importCsv(const std::string& text, std::vector<std::string> options = {}) {
    input = text;
    options.insert(options.begin(), {"import", "-", "--format", "csv"});
    return run(options);
  }

  std::string list() const { return folder.queryRows("select idSite, url from sites order by idSite"); }
};

TEST_F(SiteImport, ChangesAddsAndKeeps) {
  addSite("http://a/");
  addSite("http://b/");
  EXPECT_EQ(importCsv("idSite,url,tInterval\n1,http://a/,5\n2,http://b/,10\n9,http://c/,\n,http://d/,\n"),
            exit_status::ok)
      << err;
  EXPECT_EQ(out, "2 added, 1 changed, 0 deleted, 1 unchanged.\n");
  EXPECT_EQ(list(), "1|http://a/\n2|http://b/\n9|http://c/\n10|http://d/\n");
  EXPECT_EQ(column(1, "tInterval"), "5");
  EXPECT_EQ(column(10, "tInterval"), "10");
  EXPECT_EQ(column(10, "method"), "get");
  EXPECT_EQ(column(10, "active"), "1");
}

TEST_F(SiteImport, KeepsWhatTheFileDoesNotTell) {
  m(folder.path(), machine.services()).addSite();
  folder.execute(
      "update sites set method = 'POST', active = 0, tInterval = 7, alertEmail = 1, email = 'a@b.cd',"
      " sUserName = 'u', sPassWord = 'p', content_compare = 'page';"
      "insert into postVars (idSite, pname, pvalue) values (1, 'n', 'v')");
  EXPECT_EQ(importCsv("idSite,url\n1,http://new/\n"), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select url, method, active, tInterval, alertEmail, email, sUserName, sPassWord,"
                             " content_compare from sites"),
            "http://new/|POST|0|7|1|a@b.cd|u|p|page\n");
  EXPECT_EQ(folder.queryRows("select pname, pvalue from postVars"), "n|v\n");
}

TEST_F(SiteImport, TakesPostVariablesInTheirOrderAndPostsThem) {
  EXPECT_EQ(importCsv("url,postVars\nhttp://a/,b=2&a=1&a=1&=\n"), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select pname, pvalue from postVars order by idPostVars"), "b|2\na|1\na|1\n|\n");
  EXPECT_EQ(column(1, "method"), "post");
  EXPECT_EQ(importCsv("idSite,url,postVars\n1,http://a/,a=1&b=2\n", {"--dry-run"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("change 1 http://a/ (postVars)\n"));
  EXPECT_EQ(importCsv("idSite,url,postVars\n1,http://a/,\n"), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select pname from postVars"), "");
}

TEST_F(SiteImport, SetsAndClearsBaselines) {
  EXPECT_EQ(importCsv("idSite,url,baseline\n1,http://a/,YWI=\n"), exit_status::ok) << err;
  EXPECT_EQ(column(1, "content_compare"), "ab");
  EXPECT_EQ(importCsv("idSite,url,baseline\n1,http://a/,YWI=\n"), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("1 unchanged"));
  EXPECT_EQ(importCsv("idSite,url,baseline\n1,http://a/,\n"), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("1 changed"));
  EXPECT_EQ(column(1, "content_compare"), "");
}

TEST_F(SiteImport, ReplaceDeletesWhatTheFileDoesNotName) {
  addSite("http://a/");
  addSite("http://b/");
  folder.execute("insert into postVars (idSite, pname, pvalue) values (2, 'n', 'v')");
  EXPECT_EQ(importCsv("idSite,url\n1,http://a/\n,http://c/\n", {"--replace"}), exit_status::ok) << err;
  EXPECT_EQ(out, "1 added, 0 changed, 1 deleted, 1 unchanged.\n");
  EXPECT_EQ(list(), "1|http://a/\n2|http://c/\n");
  EXPECT_EQ(folder.queryRows("select * from postVars"), "");
}

TEST_F(SiteImport, AsNewLeavesTheSitesThatAreThere) {
  addSite("http://a/");
  EXPECT_EQ(importCsv("idSite,url\n1,http://b/\n1,http://c/\n", {"--as-new"}), exit_status::ok) << err;
  EXPECT_EQ(list(), "1|http://a/\n2|http://b/\n3|http://c/\n");
}

TEST_F(SiteImport, ADryRunSaysWhatItWouldDoAndDoesNothing) {
  addSite("http://a/");
  addSite("http://b/");
  addSite("http://c/");
  const std::string before = list();
  EXPECT_EQ(importCsv("idSite,url,active,tInterval\n1,http://x/,no,10\n3,http://c/,yes,10\n8,http://d/\xc2\x9b,,\n",
                      {"--dry-run", "--replace"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(out,
            "change 1 http://x/ (url, active)\nadd 8 http://d/\\xc2\\x9b\ndelete 2 http://b/\n"
            "1 to add, 1 to change, 1 to delete, 1 unchanged.\n");
  EXPECT_EQ(list(), before);
}

TEST_F(SiteImport, PrintsThePlanAndTheResultAsJson) {
  addSite("http://a/");
  input = "idSite,url\n1,http://x/\n,http://b/\n";
  const Json plan = runJson({"import", "-", "--format", "csv", "--json", "--dry-run"});
  EXPECT_EQ(plan, Json::parse(R"({"dryRun": true, "added": 1, "changed": 1, "deleted": 0, "unchanged": 0, "sites": [
      {"action": "change", "idSite": 1, "url": "http://x/", "fields": ["url"]},
      {"action": "add", "idSite": 2, "url": "http://b/"}]})"));
  Json result = runJson({"import", "-", "--format", "csv", "--json"});
  EXPECT_EQ(result["dryRun"], false);
  result["dryRun"] = true;
  EXPECT_EQ(result, plan);
  EXPECT_EQ(list(), "1|http://x/\n2|http://b/\n");
}

TEST_F(SiteImport, TakesMailAddressesThatCannotBeTypedInAndSaysSo) {
  const std::string list =
      "idSite,url,alertEmail,email\n"
      "3,http://a/,yes,ann@example.info\n"
      "4,http://b/,no,nobody\n"
      "5,http://c/,yes,ann@example.org\n"
      "6,http://d/,no,\n";
  EXPECT_EQ(importCsv(list, {"--dry-run"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("ann@example.info"));
  EXPECT_EQ(importCsv(list), exit_status::ok) << err;
  EXPECT_THAT(err, HasSubstr("standard input, line 2: site 3: the email \"ann@example.info\" is imported, but is none "
                             "that add takes: letters a to z"));
  EXPECT_THAT(err, HasSubstr("at most 3 characters behind the last \".\"."));
  EXPECT_THAT(err, HasSubstr("line 3: site 4: the email \"nobody\""));
  EXPECT_THAT(err, Not(HasSubstr("line 4")));
  EXPECT_THAT(err, Not(HasSubstr("line 5")));
  EXPECT_EQ(column(3, "email"), "ann@example.info");
  EXPECT_EQ(column(3, "alertEmail"), "1");
  EXPECT_EQ(column(4, "email"), "nobody");
  EXPECT_EQ(importCsv(list), exit_status::ok);
  EXPECT_THAT(err, Not(HasSubstr("email"))) << "nothing new comes in";
  EXPECT_EQ(run({"add", "http://e/", "--alert-email", "ann@example.info"}), exit_status::failed);
}

TEST_F(SiteImport, AnExportOfWhatAnotherProgramHasStoredComesBack) {
  addSite("http://a/");
  folder.execute("update sites set alertEmail = 1, email = 'ann+alerts@example.museum'");
  ASSERT_EQ(run({"export", "-", "--format", "json"}), exit_status::ok);
  EXPECT_EQ(err, "");
  const std::string exported = out;
  folder.execute("delete from sites");
  input = exported;
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  ASSERT_EQ(run({"export", "-", "--format", "json"}), exit_status::ok);
  EXPECT_EQ(out, exported);
}

TEST_F(SiteImport, NoMailAddressWithControlCharactersComesIn) {
  for (const std::string email :
       {"a\r\nRCPT TO:<b@c.org>@d.org", "a@b.info\n", "a\tb@c.info", "<a>@b.info", "a@b@c.info"}) {
    EXPECT_EQ(importCsv("url,alertEmail,email\nhttp://a/,yes,\"" + email + "\"\n"), exit_status::failed) << email;
  }
  EXPECT_EQ(list(), "");
}

TEST_F(SiteImport, TellsAllFaultsAndImportsNothing) {
  addSite("http://a/");
  EXPECT_EQ(importCsv("idSite,url,alertEmail,email\n"
                      "1,http://new/,,\n"
                      "5,file:///etc/passwd,,\n"
                      "5,http://b/,,\n"
                      "6,http://c/,yes,nobody\n"
                      ",,,x\n"
                      "0,http://d/,,\n"),
            exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("standard input, line 3: url \"file:///etc/passwd\" cannot be fetched"));
  EXPECT_THAT(err, HasSubstr("line 4: idSite 5 stands on line 3 already"));
  EXPECT_THAT(err, HasSubstr("line 5: email \"nobody\" is no mail address"));
  EXPECT_THAT(err, HasSubstr("line 6: the url is empty"));
  EXPECT_THAT(err, HasSubstr("line 7: idSite \"0\" is outside 1 to 32767"));
  EXPECT_THAT(err, HasSubstr("Nothing was imported."));
  EXPECT_EQ(list(), "1|http://a/\n");
}

TEST_F(SiteImport, RefusesWhatAddRefuses) {
  const std::vector<std::string> noAddresses = {"http://",        "http://a b c:/",   "http://[::1",
                                                "a%zz://x",       "http://a:99999/",  "http://a%20b/",
                                                "/tmp/x.desktop", "C:/Windows/x.exe", "ms-msdt:/id"};
  std::string text = "url\n";
  for (const std::string& url : noAddresses) {
    EXPECT_EQ(run({"add", url}), exit_status::failed) << url;
    text += url + "\n";
  }
  EXPECT_EQ(importCsv(text), exit_status::failed);
  for (std::size_t row = 0; row < noAddresses.size(); ++row) {
    EXPECT_THAT(err, HasSubstr("line " + std::to_string(row + 2) + ": url \"" + noAddresses[row] +
                               "\" is no address: give one like https://example.org/page"));
  }
  EXPECT_EQ(list(), "");
}

TEST_F(SiteImport, RefusesLineEndsAndNulWhereTheyWouldBecomeCommands) {
  const std::string remedy = " holds a line end or a NUL byte: give it without";
  for (const std::string end : {"\\r", "\\n", "\\u0000"}) {
    for (const std::string name : {"url", "email", "sUserName"}) {
      input = R"({"tarnwick": 1, "sites": [)"
              "\n"
              R"({"url": "http://a/"},)"
              "\n{" +
              std::string(name == "url" ? "" : R"("url": "http://b/", )");
      input.append("\"").append(name).append(R"(": "http://c/)").append(end).append(R"(.x"}]})");
      EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed) << name << end;
      EXPECT_THAT(err, HasSubstr("line 3: " + name + " \"http://c/"));
      EXPECT_THAT(err, HasSubstr(remedy));
    }
  }
  EXPECT_EQ(importCsv("url\n\"http://a/\r\n\"\n"), exit_status::failed) << "at the end, too";
  EXPECT_EQ(list(), "");
}

TEST_F(SiteImport, ChecksTheStoredMailAddressToo) {
  addSite("http://a/");
  EXPECT_EQ(importCsv("idSite,url,alertEmail\n1,http://a/,yes\n"), exit_status::failed);
  folder.execute("update sites set email = 'a@b.cd'");
  EXPECT_EQ(importCsv("idSite,url,alertEmail\n1,http://a/,yes\n"), exit_status::ok) << err;
}

TEST_F(SiteImport, CountsTheFaultsThatAreNotShown) {
  std::string text = "url,active\n";
  for (int i = 0; i < 25; ++i) {
    text += "http://a/,maybe\n";
  }
  EXPECT_EQ(importCsv(text), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 21:"));
  EXPECT_THAT(err, Not(HasSubstr("line 22:")));
  EXPECT_THAT(err, HasSubstr("Nothing was imported; 5 more faults are not shown."));
}

TEST_F(SiteImport, NamesTheLineOfAJsonSite) {
  input = "{\"tarnwick\": 1, \"sites\": [\n{\"url\": \"http://a/\"},\n{\"url\": \"ldap://b/\"}]}";
  EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 3: url \"ldap://b/\" cannot be fetched"));
  EXPECT_EQ(list(), "");
}

TEST_F(SiteImport, RefusesASiteThatNoIdIsLeftFor) {
  folder.execute("insert into sites (idSite, url) values (32767, 'http://last/')");
  EXPECT_EQ(importCsv("url\nhttp://a/\n"), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 2: no id is left for a new site"));
  EXPECT_EQ(importCsv("idSite,url\n5,http://a/\n"), exit_status::ok) << err;
  EXPECT_EQ(importCsv("url\nhttp://b/\n", {"--replace"}), exit_status::ok) << err;
  EXPECT_EQ(list(), "1|http://b/\n");
}

TEST_F(SiteImport, TakesAsManySitesAsThereAreIds) {
  std::string text = "url,postVars\r\n";
  for (int i = 1; i <= 32767; ++i) {
    text += "http://host/" + std::to_string(i) + ",a=1&b=2\r\n";
  }
  EXPECT_EQ(importCsv(text), exit_status::ok) << err;
  EXPECT_EQ(out, "32767 added, 0 changed, 0 deleted, 0 unchanged.\n");
  EXPECT_EQ(folder.queryText("select count(*) from postVars"), "65534");
  EXPECT_EQ(column(32767, "url"), "http://host/32767");
}

TEST_F(SiteImport, AFaultOfTheDatabaseTakesEverythingBack) {
  addSite("http://a/");
  folder.execute(
      "create trigger refuse before update on siteRows when new.url = 'http://bad/' begin"
      " select raise(abort, 'no room'); end");
  EXPECT_EQ(importCsv("idSite,url\n1,http://x/\n2,http://b/\n3,http://bad/\n"), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("no room"));
  EXPECT_EQ(list(), "1|http://a/\n");
}

TEST_F(SiteImport, AFolderWithoutAListIsNamed) {
  EXPECT_EQ(importCsv("idSite,url\n1,http://a/\n", {"--folder", folder.file("nowhere")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("nowhere"));
}

}  // namespace
}  // namespace tarnwick::testing
