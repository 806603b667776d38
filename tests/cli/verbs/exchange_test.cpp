// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "cli/support/tool_fixture.h"
#include "program/site_draft.h"
#include "store/options_for_others.h"
#include "support/file_bytes.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const std::string kOddText(" \"a,b\"\r\n\0\xff;\t'=&%+\x1b ", 20);
// What may stand in an address and in a name, which are one line.
const std::string kOddLine(" \"a,b\"\xff;'=&%+ ");

class ExchangeVerbs : public ToolFixture {
 protected:
  std::string read(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// A list in which every text is odd in its own way.
  void makeOddList() {
    m data(folder.path(), machine.services());
    data.addSite(3);
    storeSite(data, 3, {"http://a/" + kOddLine, "GET", false, "1", true, "a@b.cd", kOddLine, kOddText},
              {{kOddText, "NULL"}, {"", ""}, {"a", "2"}, {"a", "1"}, {"a", "1"}, {"a", ""}});
    data.updateContentCompare(3, kOddText);
    data.addSite(7);
    storeSite(data, 7, {"http://b/ä", "post", true, "32767", false, "NULL", "NULL", ""}, {{"NULL", "NULL"}});
    data.addSite(32767);
    storeSite(data, 32767, {"", "get", true, "10", false, "", "", ""}, {});
    folder.execute("insert into sites (idSite, url) values (20, 'http://bare/')");
  }

  void expectRoundTrip(const std::string& name) {
    makeOddList();
    const ProgramFolder other;
    ASSERT_EQ(run({"export", folder.file(name), "--baselines"}), exit_status::ok) << err;
    EXPECT_EQ(err, "");
    ASSERT_EQ(run({"--folder", other.path(), "import", folder.file(name)}), exit_status::ok) << err;
    EXPECT_EQ(out, "4 added, 0 changed, 0 deleted, 0 unchanged.\n");
    ASSERT_EQ(run({"--folder", other.path(), "export", other.file(name), "--baselines"}), exit_status::ok) << err;
    EXPECT_EQ(read(folder.file(name)), read(other.file(name)));
    EXPECT_EQ(other.queryText("select sUserName from sites where idSite = 3"), kOddLine);
    EXPECT_EQ(other.queryText("select sPassWord from sites where idSite = 3"), kOddText);
    EXPECT_EQ(other.queryText("select content_compare from sites where idSite = 3"), kOddText);
    ASSERT_EQ(run({"--folder", other.path(), "import", folder.file(name), "--replace"}), exit_status::ok) << err;
    EXPECT_EQ(out, "0 added, 0 changed, 0 deleted, 4 unchanged.\n");
  }
};

TEST_F(ExchangeVerbs, CsvComesBackByteForByte) { expectRoundTrip("sites.csv"); }

TEST_F(ExchangeVerbs, JsonComesBackByteForByte) { expectRoundTrip("sites.json"); }

TEST_F(ExchangeVerbs, NameTheOptionThatDoesNotTakeItsValueAndWhatItTakes) {
  for (const OptionField& option : programOptions()) {
    if (option.name == option_name::statusPage || option.name == option_name::metricsFile) {
      continue;  // a file may have any name
    }
    input = R"({"tarnwick": 1, "options": {")" + option.name + R"(": "what,, is this?"}, "sites": []})";
    EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed) << option.name;
    if (option.kind == OptionKind::text && option.form == nullptr) {
      continue;
    }
    EXPECT_THAT(err, HasSubstr("the option " + option.name + " does not take \"what,, is this?\": give "))
        << option.name;
    EXPECT_THAT(err, HasSubstr(option.values())) << option.name;
    EXPECT_THAT(err, HasSubstr("Nothing was imported.")) << option.name;
  }
  EXPECT_EQ(folder.queryText("select count(*) from siteOptions"), "0");
}

TEST_F(ExchangeVerbs, WriteAndReadTheStandardStreams) {
  addSite("http://a/");
  ASSERT_EQ(run({"export", "-", "--format", "csv"}), exit_status::ok);
  EXPECT_EQ(out,
            "idSite,url,method,active,tInterval,alertEmail,email,sUserName,sPassWord,postVars\r\n"
            "1,http://a/,get,True,10,False,,,,\r\n");
  input = out;
  EXPECT_EQ(run({"import", "-", "--format", "csv", "--as-new"}), exit_status::ok) << err;
  EXPECT_EQ(column(2, "url"), "http://a/");
}

TEST_F(ExchangeVerbs, AnEmptyListIsExportedToo) {
  const Json list = runJson({"export", "-", "--format", "json"});
  EXPECT_EQ(list, (Json{{"tarnwick", 1}, {"sites", Json::array()}}));
}

TEST_F(ExchangeVerbs, TheFormatFollowsTheNameUnlessItIsGiven) {
  addSite("http://a/");
  EXPECT_EQ(run({"export", folder.file("sites.JSON")}), exit_status::ok);
  EXPECT_EQ(out, "Exported 1 site to " + folder.file("sites.JSON") + ".\n");
  EXPECT_TRUE(Json::accept(read(folder.file("sites.JSON"))));
  EXPECT_EQ(run({"export", folder.file("sites.csv"), "--format", "json"}), exit_status::ok);
  EXPECT_TRUE(Json::accept(read(folder.file("sites.csv"))));
  EXPECT_EQ(run({"export", folder.file("sites.txt")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--format csv"));
  EXPECT_EQ(run({"import", "-"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Add --format with csv, json, addresses, "));
  EXPECT_EQ(run({"export", "-", "--format", "xml"}), exit_status::failed);
}

// In every build there is a reader for it.
const std::string kAddresses = "# mine\nhttp://a.example/ First\nhttp://b.example Second\nmailto:me@example.org\n";

TEST_F(ExchangeVerbs, AListOfAnotherProgramIsTakenAndWhatHasNoPlaceIsNamed) {
  addSite("http://b.example/");
  writeFile(folder.file("mine.txt"), kAddresses);
  const std::string notes =
      "line 2, http://a.example/: not taken over: the text behind it, \"First\"\n"
      "line 3, http://b.example: not taken over: the text behind it, \"Second\"\n"
      "line 4, mailto:me@example.org: left out: it is the address of no page\n";
  const std::string last = "2 notes tell what was not taken over, 1 entry was left out.\n";
  EXPECT_EQ(run({"import", folder.file("mine.txt"), "--dry-run"}), exit_status::ok) << err;
  EXPECT_EQ(out, "add 2 http://a.example/\n" + notes + "1 to add, 0 to change, 0 to delete, 1 unchanged.\n" + last);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "1");
  EXPECT_EQ(run({"import", folder.file("mine.txt")}), exit_status::ok) << err;
  EXPECT_EQ(out, notes + "1 added, 0 changed, 0 deleted, 1 unchanged.\n" + last);
  EXPECT_EQ(folder.queryRows("select idSite, url, method, active, tInterval from sites"),
            "1|http://b.example/|get|1|10\n2|http://a.example/|get|1|10\n");
  const Json told = runJson({"import", folder.file("mine.txt"), "--json"});
  EXPECT_EQ(told["unchanged"], 2) << "once more changes nothing";
  EXPECT_EQ(told["format"], "addresses");
  EXPECT_EQ(told["notTaken"][0],
            (Json{{"line", 2}, {"url", "http://a.example/"}, {"things", {"the text behind it, \"First\""}}}));
  EXPECT_EQ(told["leftOut"][0]["url"], "mailto:me@example.org");
}

TEST_F(ExchangeVerbs, ASiteOfAnotherProgramIsTheOneOfItsAddress) {
  SKIP_ON_WINDOWS("There is no reader of YAML there.");
  addSite("http://a.example");
  folder.execute("update sites set alertEmail = 1, email = 'a@b.cd'");
  input = "url: http://a.example/\nmethod: POST\ndata: a=1\n---\nurl: http://a.example/\nname: again\n";
  EXPECT_EQ(run({"import", "-"}), exit_status::ok) << err;
  EXPECT_THAT(out,
              HasSubstr("line 5, http://a.example/: left out: the address stands in the file before, on line 1\n"));
  EXPECT_THAT(out, HasSubstr("0 added, 1 changed, 0 deleted, 0 unchanged.\n"));
  EXPECT_EQ(folder.queryRows("select url, method, alertEmail, email from sites"), "http://a.example|post|1|a@b.cd\n");
  EXPECT_EQ(folder.queryText("select pname || '=' || pvalue from postVars"), "a=1");
  EXPECT_EQ(run({"import", "-", "--as-new"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("2 added, 0 changed, 0 deleted, 0 unchanged.\n"));
  input = "https://other.example/\n";
  EXPECT_EQ(run({"import", "-", "--replace"}), exit_status::ok) << err;
  EXPECT_EQ(out, "1 added, 0 changed, 3 deleted, 0 unchanged.\n");
}

TEST_F(ExchangeVerbs, OfABadFileOfAnotherProgramNothingIsTaken) {
  const std::string name = folder.file("mine.txt");
  writeFile(name, kAddresses + "http://c.example/\x01\n");
  EXPECT_EQ(run({"import", name}), exit_status::failed);
  EXPECT_EQ(err, "tarnwickctl: " + name +
                     ", line 5: a control character stands here, so this is no list of addresses: give a text file.\n"
                     "tarnwickctl: Nothing was imported.\n");
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
  writeFile(name, std::string("\x89PNG\r\n\x1a\n", 8));
  EXPECT_EQ(run({"import", name}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("mine.txt\" is does not show in its content. Add --format with "));
  EXPECT_EQ(run({"import", name, "--format", "addresses"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("a control character stands here"));
}

TEST_F(ExchangeVerbs, OnlyTheOwnerMayReadTheFile) {
  SKIP_ON_WINDOWS("There is no file mode there: the list of who may read the file is another one.");
  addSite("http://a/");
  const std::string path = folder.file("sites.csv");
  std::ofstream(path) << "what stood here";
  std::filesystem::permissions(path, std::filesystem::perms::all);
  ASSERT_EQ(run({"export", path}), exit_status::ok);
  EXPECT_EQ(std::filesystem::status(path).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_THAT(read(path), HasSubstr("http://a/"));
}

TEST_F(ExchangeVerbs, TheListItselfIsNoFileToExportTo) {
  addSite("http://a/");
  std::filesystem::create_hard_link(folder.databasePath(), folder.file("list.json"));
  for (const std::string& path : {folder.databasePath(), folder.file("list.json"), folder.file("./tarnwick.mdb")}) {
    EXPECT_EQ(run({"export", path, "--format", "json"}), exit_status::failed) << path;
    EXPECT_THAT(err, HasSubstr("is the list itself"));
  }
  EXPECT_EQ(folder.queryText("select url from sites"), "http://a/");
}

TEST_F(ExchangeVerbs, AFileBehindALinkIsReplacedWhereItLies) {
  SKIP_ON_WINDOWS("There a link needs rights that a tester seldom has.");
  addSite("http://a/");
  std::ofstream(folder.file("real.csv")) << "old";
  std::filesystem::create_symlink(folder.file("real.csv"), folder.file("link.csv"));
  ASSERT_EQ(run({"export", folder.file("link.csv")}), exit_status::ok);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.csv")));
  EXPECT_THAT(read(folder.file("real.csv")), HasSubstr("http://a/"));
}

TEST_F(ExchangeVerbs, WhatIsNoFileIsNotReplaced) {
  SKIP_ON_WINDOWS("There no path leads to a device.");
  addSite("http://a/");
  EXPECT_EQ(run({"export", "/dev/null", "--format", "csv"}), exit_status::ok) << err;
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
  EXPECT_EQ(run({"export", folder.path(), "--format", "csv"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("folder"));
}

TEST_F(ExchangeVerbs, AFailedExportLeavesWhatStoodThere) {
  folder.execute("insert into sites (idSite, url) values (70000, 'http://a/')");
  const std::string path = folder.file("sites.csv");
  std::ofstream(path) << "what stood here";
  EXPECT_EQ(run({"export", path}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("70000"));
  EXPECT_EQ(read(path), "what stood here");
  EXPECT_FALSE(std::filesystem::exists(path + ".new"));
}

TEST_F(ExchangeVerbs, PasswordsCanBeLeftOutAndThenStay) {
  const std::int16_t id = addSite("http://a/");
  folder.execute("update sites set sPassWord = 'secret', sUserName = 'me'");
  const std::string path = folder.file("sites.csv");
  ASSERT_EQ(run({"export", path, "--no-passwords"}), exit_status::ok);
  EXPECT_THAT(read(path), Not(HasSubstr("secret")));
  EXPECT_THAT(read(path), Not(HasSubstr("sPassWord")));
  folder.execute("update sites set sUserName = 'you'");
  ASSERT_EQ(run({"import", path}), exit_status::ok);
  EXPECT_EQ(out, "0 added, 1 changed, 0 deleted, 0 unchanged.\n");
  EXPECT_EQ(column(id, "sPassWord"), "secret");
  EXPECT_EQ(column(id, "sUserName"), "me");
}

TEST_F(ExchangeVerbs, WhatChecksHaveFoundIsNoPartOfTheList) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  ASSERT_EQ(run({"export", "-", "--format", "json"}), exit_status::ok);
  for (const char* name : {"lastChecked", "status", "success", "failure", "baseline", "alpha"}) {
    EXPECT_THAT(out, Not(HasSubstr(name)));
  }
  input = out;
  folder.execute("update sites set tInterval = 5");
  ASSERT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "tInterval"), "10");
  EXPECT_EQ(column(1, "success"), "1");
  EXPECT_EQ(column(1, "content_compare"), "alpha");
}

TEST_F(ExchangeVerbs, AnExportTellsWhatAnImportWillRefuse) {
  addSite("http://a/");
  addSite("gopher://b/");
  folder.execute("insert into sites (idSite, url, tInterval) values (9, 'http://c/', 0)");
  EXPECT_EQ(run({"export", "-", "--format", "csv"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("An import will refuse site 2: url \"gopher://b/\" cannot be fetched"));
  EXPECT_THAT(err, HasSubstr("An import will refuse site 9: tInterval \"0\""));
  EXPECT_THAT(err, Not(HasSubstr("site 1:")));
}

TEST_F(ExchangeVerbs, AMissingFileIsNamed) {
  EXPECT_EQ(run({"import", folder.file("none.csv")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("none.csv"));
}

TEST_F(ExchangeVerbs, AFileWithoutASiteReplacesTheListOnlyWithConsent) {
  addSite("http://a/");
  const std::string path = folder.file("none.json");
  std::ofstream(path) << R"({"tarnwick": 1, "sites": []})";
  EXPECT_EQ(run({"import", path}), exit_status::ok) << err;
  EXPECT_EQ(run({"import", path, "--replace", "--dry-run"}), exit_status::ok) << err;
  EXPECT_EQ(run({"import", path, "--replace"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("add --yes"));
  EXPECT_EQ(run({"import", path, "--yes"}), exit_status::failed);
  terminal.canAsk = true;
  input = "n\n";
  EXPECT_EQ(run({"import", path, "--replace"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "1");
  terminal.canAsk = false;
  EXPECT_EQ(run({"import", path, "--replace", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(out, "0 added, 0 changed, 1 deleted, 0 unchanged.\n");
}

TEST_F(ExchangeVerbs, AnImportTellsWhichSitesARunThatIsOnDoesNotTakeOn) {
  terminal.isTerminal = true;
  input = "url,active\nhttp://a/,True\nhttp://b/,True\nhttp://c/,False\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::ok) << err;
  EXPECT_EQ(err,
            "tarnwickctl: A run that is on takes 2 of the sites on once they were checked. Check them with: "
            "tarnwickctl check 1 2\n");
  input = "idSite,url,tInterval\n1,http://a/,5\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::ok) << err;
  EXPECT_EQ(err, "") << "as unwatched as before";
  folder.execute("update sites set lastChecked = '2024-05-17 12:00:00'");
  input = "url\nhttp://d/\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::ok) << err;
  EXPECT_THAT(err, HasSubstr("takes the site on once it was checked. Check it with: tarnwickctl check 4\n"));
}

}  // namespace
}  // namespace tarnwick::testing
