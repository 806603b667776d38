// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class SiteVerbs : public ToolFixture {
 protected:
  void setResult(std::int16_t id, const std::string& status, const std::string& when = "2024-05-17 11:00:00") {
    folder.execute("update sites set status = " + status + ", success = 3, failure = 4, lastChecked = '" + when +
                   "' where idSite = " + std::to_string(id));
  }
};

using SitesVerb = SiteVerbs;

TEST_F(SitesVerb, SaysHowToAddTheFirstSite) {
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "tarnwickctl: There is no site in the list yet. Add the first one with: tarnwickctl add URL\n");
}

TEST_F(SitesVerb, PrintsAnEmptyArrayOfAnEmptyList) { EXPECT_EQ(runJson({"sites", "--json"}), Json::array()); }

TEST_F(SitesVerb, ListsEachSiteWithItsState) {
  addSite("http://up/");
  addSite("http://down/");
  addSite("http://never/");
  setResult(1, "1");
  setResult(2, "0");
  folder.execute("update sites set active = 0 where idSite = 2");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_EQ(out,
            "ID  STATE            METHOD  INTERVAL  LAST TEST            UP  DOWN  URL\n"
            " 1  up               get           10  2024-05-17 11:00:00   3     4  http://up/\n"
            " 2  down (inactive)  get           10  2024-05-17 11:00:00   3     4  http://down/\n"
            " 3  -                get           10  -                     0     0  http://never/\n");
  EXPECT_EQ(err, "");
}

TEST_F(SitesVerb, TellsASiteThatIsUpWithoutAPage) {
  addSite("http://127.0.0.1:1/");
  addSite("http://up/");
  ASSERT_EQ(run({"check", "1"}), exit_status::notAPage);
  setResult(2, "1");
  folder.execute("update sites set content_compare = '11:05', content_runtime = '11:05' where idSite = 2");
  folder.execute("update log set dateStamp = (select lastChecked from sites where idSite = 1)");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr(" 1  not a page "));
  EXPECT_THAT(out, HasSubstr(" 2  up "));
  const Json list = runJson({"sites", "--json"});
  EXPECT_EQ(list[0]["notAPage"], true);
  EXPECT_EQ(list[0]["status"], true);
  EXPECT_FALSE(list[1].contains("notAPage"));
  EXPECT_EQ(runJson({"site", "1", "--json"})["notAPage"], true);
}

TEST_F(SitesVerb, ColoursTheStateOnATerminal) {
  addSite("http://up/");
  addSite("http://down/");
  setResult(1, "1");
  setResult(2, "0");
  terminal = {.isTerminal = true, .colour = true};
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("\x1b[32mup\x1b[0m"));
  EXPECT_THAT(out, HasSubstr("\x1b[31mdown\x1b[0m"));
}

TEST_F(SitesVerb, ShowsNoControlCharacterOfAnAddress) {
  addSite("http://a/\x1b[2J\n");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("http://a/\\x1b[2J\\n\n"));
}

TEST_F(SitesVerb, KeepsOnlyWhatIsAskedFor) {
  for (const char* url : {"http://a/", "http://b/", "http://c/", "http://d/"}) {
    addSite(url);
  }
  setResult(1, "1");
  setResult(2, "0");
  setResult(3, "0");
  folder.execute("update sites set active = 0 where idSite in (3, 4)");
  const auto idsOf = [this](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"sites", "--json"});
    std::vector<int> ids;
    for (const Json& site : runJson(arguments)) {
      ids.push_back(site["idSite"]);
    }
    return ids;
  };
  EXPECT_EQ(idsOf({"--down"}), (std::vector<int>{2, 3}));
  EXPECT_EQ(idsOf({"--active"}), (std::vector<int>{1, 2}));
  EXPECT_EQ(idsOf({"--inactive"}), (std::vector<int>{3, 4}));
  EXPECT_EQ(idsOf({"--down", "--active"}), (std::vector<int>{2}));
}

TEST_F(SitesVerb, SaysWhenNoSiteIsLikeThat) {
  addSite("http://a/");
  EXPECT_EQ(run({"sites", "--down"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "tarnwickctl: No site of the list is like that.\n");
}

TEST_F(SitesVerb, RefusesActiveTogetherWithInactive) {
  EXPECT_EQ(run({"sites", "--active", "--inactive"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--inactive"));
}

TEST_F(SitesVerb, NamesTheColumnsInJsonAndHidesThePassword) {
  addSite("http://a/");
  folder.execute("update sites set sPassWord = 'secret', sUserName = 'ann', email = 'a@b.c', alertEmail = 1");
  setResult(1, "0");
  const Json list = runJson({"sites", "--json"});
  EXPECT_EQ(list, Json::parse(R"([{"idSite": 1, "url": "http://a/", "method": "get", "active": true, "tInterval": 10,
                                   "lastChecked": "2024-05-17 11:00:00", "alertEmail": true, "email": "a@b.c",
                                   "sUserName": "ann", "hasPassword": true, "status": false, "success": 3,
                                   "failure": 4, "unwatched": "noRun"}])"));
}

TEST_F(SitesVerb, PrintsNullForWhatHasNotHappenedAndEmptyTextsForNulls) {
  folder.execute("insert into sites (idSite, url) values (1, 'http://a/')");
  const Json site = runJson({"sites", "--json"})[0];
  EXPECT_TRUE(site["status"].is_null());
  EXPECT_TRUE(site["lastChecked"].is_null());
  EXPECT_TRUE(site["tInterval"].is_null());
  EXPECT_EQ(site["active"], false);
  EXPECT_EQ(site["email"], "");
  EXPECT_EQ(site["success"], 0);
}

TEST_F(SitesVerb, TellsATextOfTheLettersNullFromANull) {
  addSite("NULL");
  EXPECT_EQ(runJson({"sites", "--json"})[0]["url"], "NULL");
}

TEST_F(SitesVerb, ListsAnIdBeyond16BitsAsItIs) {
  folder.execute("insert into sites (idSite, url) values (70000, 'http://a/')");
  EXPECT_EQ(runJson({"sites", "--json"})[0]["idSite"], 70000);
}

TEST_F(SitesVerb, WrapsBytesThatAreNoUtf8) {
  addSite("http://a/\xff");
  EXPECT_EQ(runJson({"sites", "--json"})[0]["url"], Json::parse(R"({"base64": "aHR0cDovL2Ev/w=="})"));
}

using SiteVerb = SiteVerbs;

TEST_F(SiteVerb, ShowsEveryFieldAndHidesThePassword) {
  addSite("http://a/");
  folder.execute(
      "update sites set sPassWord = 'secret', sUserName = 'ann', email = 'a@b.c', content_compare = 'a page';"
      "insert into postVars (idSite, pname, pvalue) values (1, 'q', 'x y'), (1, '', 'z')");
  EXPECT_EQ(run({"site", "1"}), exit_status::ok);
  EXPECT_EQ(out,
            "Site:        1\n"
            "URL:         http://a/\n"
            "State:       -\n"
            "Active:      yes\n"
            "Method:      get\n"
            "Interval:    10 min\n"
            "Last test:   never\n"
            "Up:          0\n"
            "Down:        0\n"
            "Alert mail:  no, a@b.c\n"
            "User name:   ann\n"
            "Password:    set; --show-password shows it\n"
            "Baseline:    6 bytes\n"
            "Variables:   2\n"
            "  q=x y\n"
            "  =z\n");
  EXPECT_EQ(run({"site", "1", "--show-password"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("Password:    secret\n"));
}

TEST_F(SiteVerb, PrintsEveryFieldAsJson) {
  addSite("http://a/");
  folder.execute("insert into postVars (idSite, pname, pvalue) values (1, 'q', 'x')");
  const Json site = runJson({"site", "1", "--json"});
  EXPECT_EQ(site["url"], "http://a/");
  EXPECT_EQ(site["hasPassword"], false);
  EXPECT_FALSE(site.contains("sPassWord"));
  EXPECT_EQ(site["postVars"], Json::parse(R"([{"pname": "q", "pvalue": "x"}])"));
  EXPECT_EQ(site["hasBaseline"], false);
  EXPECT_EQ(site["baselineSize"], 0);
}

TEST_F(SiteVerb, PrintsThePasswordAndTheSizeOfTheBaselineAsJson) {
  addSite("http://a/");
  folder.execute("update sites set sPassWord = 'secret', content_compare = '12345'");
  const Json site = runJson({"site", "1", "--json", "--show-password"});
  EXPECT_EQ(site["sPassWord"], "secret");
  EXPECT_EQ(site["hasBaseline"], true);
  EXPECT_EQ(site["baselineSize"], 5);
}

TEST_F(SiteVerb, NamesAnIdThatIsNotInTheList) {
  addSite("http://a/");
  for (const char* id : {"2", "0"}) {
    EXPECT_EQ(run({"site", id}), exit_status::failed);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, std::string("tarnwickctl: There is no site ") + id + ". The ids are listed by: tarnwickctl sites\n");
  }
}

TEST_F(SiteVerb, ReadsIdsInDecimalOnly) {
  for (int i = 0; i < 8; ++i) {
    addSite("http://a/");
  }
  for (const char* id : {"010", "0x8", "8.0", "", "seven", "70000"}) {
    EXPECT_EQ(run({"site", id}), exit_status::failed) << id;
    EXPECT_EQ(out, "") << id;
    EXPECT_THAT(err, HasSubstr("ID")) << id;
  }
}

class DeleteVerb : public SiteVerbs {
 protected:
  DeleteVerb() {
    for (const char* url : {"http://a/", "http://b/", "http://c/"}) {
      addSite(url);
    }
  }
  std::string ids() const { return folder.queryRows("select idSite from sites order by idSite"); }
};

TEST_F(DeleteVerb, DeletesASiteWithItsVariables) {
  folder.execute("insert into postVars (idSite, pname, pvalue) values (2, 'q', 'x'), (3, 'r', 'y')");
  EXPECT_EQ(run({"delete", "2", "--yes"}), exit_status::ok);
  EXPECT_EQ(out, "Site 2 is deleted.\n");
  EXPECT_EQ(ids(), "1\n3\n");
  EXPECT_EQ(folder.queryRows("select pname from postVars"), "r\n");
}

TEST_F(DeleteVerb, DeletesSeveralOfWhichOneIsNamedTwice) {
  EXPECT_EQ(run({"delete", "3", "1", "3", "--yes"}), exit_status::ok);
  EXPECT_EQ(out, "Site 1 is deleted.\nSite 3 is deleted.\n");
  EXPECT_EQ(ids(), "2\n");
}

TEST_F(DeleteVerb, DeletesWhatAnotherToolHasGivenAnIdOutsideSixteenBits) {
  folder.execute(
      "insert into sites (idSite, url) values (40000, 'http://far/');"
      "insert into postVars (idPostVars, idSite, pname, pvalue) values (99, 40000, 'n', 'v')");
  for (const std::string id : {"9223372036854775808", "999999999999999999999999"}) {
    EXPECT_EQ(run({"delete", id, "--yes"}), exit_status::failed);
    EXPECT_THAT(err, HasSubstr("\"" + id + "\" is no id"));
  }
  EXPECT_EQ(run({"delete", "40000"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Delete site 40000, with"));
  EXPECT_EQ(run({"delete", "40000", "2", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(out, "Site 2 is deleted.\nSite 40000 is deleted.\n");
  EXPECT_EQ(folder.queryText("select count(*) from sites where idSite > 32767"), "0");
  EXPECT_EQ(folder.queryText("select count(*) from postVars where idSite = 40000"), "0");
  EXPECT_EQ(run({"delete", "40000", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("\"40000\" is no id"));
}

TEST_F(DeleteVerb, DeletesNothingWhenOneIsNotInTheList) {
  EXPECT_EQ(run({"delete", "1", "9", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 9."));
  EXPECT_EQ(ids(), "1\n2\n3\n");
}

TEST_F(DeleteVerb, NeedsYesWhereNobodyCanBeAsked) {
  input = "y\n";
  EXPECT_EQ(run({"delete", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("add --yes"));
  EXPECT_EQ(ids(), "1\n2\n3\n");
}

TEST_F(DeleteVerb, AsksOnATerminal) {
  terminal.canAsk = true;
  input = "y\n";
  EXPECT_EQ(run({"delete", "1"}), exit_status::ok);
  EXPECT_THAT(err, StartsWith("Delete site 1, http://a/, with its POST variables and its baseline? [y/N] "));
  EXPECT_EQ(ids(), "2\n3\n");
}

TEST_F(DeleteVerb, NamesTheSitesOfWhichThereAreSeveralWhenItAsks) {
  terminal.canAsk = true;
  input = "yes\r\n";
  EXPECT_EQ(run({"delete", "3", "1"}), exit_status::ok);
  EXPECT_THAT(err, StartsWith("Delete 2 sites (1, 3) with their POST variables and baselines? [y/N] "));
  EXPECT_EQ(ids(), "2\n");
}

TEST_F(DeleteVerb, NamesNoMoreThanTenWhenItAsks) {
  std::vector<std::string> arguments{"delete", "1", "2", "3"};
  for (int i = 0; i < 9; ++i) {
    arguments.push_back(std::to_string(addSite("http://a/")));
  }
  EXPECT_EQ(run(arguments), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Delete 12 sites (1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and 2 more) with their"));
}

TEST_F(DeleteVerb, DeletesNothingOnAnyOtherAnswer) {
  terminal.canAsk = true;
  for (const char* answer : {"n\n", "\n", "", "yo\n"}) {
    input = answer;
    EXPECT_EQ(run({"delete", "1"}), exit_status::failed) << answer;
    EXPECT_EQ(out, "");
    EXPECT_THAT(err, HasSubstr("Nothing was changed."));
  }
  EXPECT_EQ(ids(), "1\n2\n3\n");
}

TEST_F(DeleteVerb, NeedsAnId) {
  EXPECT_EQ(run({"delete", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("tarnwickctl delete --help"));
}

TEST_F(SiteVerbs, EveryVerbHasExamples) {
  for (const char* verb :
       {"sites", "site", "add", "set", "delete", "post", "counters", "settings", "log", "report", "compact"}) {
    EXPECT_EQ(run({verb, "--help"}), exit_status::ok) << verb;
    EXPECT_THAT(out, HasSubstr(std::string("\nExamples:\n  tarnwickctl ") + verb)) << verb;
    EXPECT_EQ(err, "") << verb;
  }
}

TEST_F(SiteVerbs, AMissingDatabaseIsNamedAndNotMade) {
  std::filesystem::remove(folder.databasePath());
  EXPECT_EQ(run({"sites"}), exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("tarnwick.mdb"));
  EXPECT_FALSE(std::filesystem::exists(folder.databasePath()));
}

}  // namespace
}  // namespace tarnwick::testing
