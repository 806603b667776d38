// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class OptionVerb : public ToolFixture {
 protected:
  OptionVerb() {
    folder.execute("delete from siteOptions");
    addSite("http://a/");
  }
};

TEST_F(OptionVerb, ListsWhatIsSetAndWhatIsInForce) {
  EXPECT_EQ(run({"option", "all", "adopt=PAGES only"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The option adopt of all sites is stored.\n");
  EXPECT_EQ(runJson({"option", "1", "--json"})["adopt"], (Json{{"own", nullptr}, {"effective", "pages only"}}));
  EXPECT_EQ(run({"option", "1", "ADOPT=anything"}), exit_status::ok) << err;
  EXPECT_EQ(run({"option", "1"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("adopt         anything  anything\n"));
}

TEST_F(OptionVerb, ShowsOneForAScriptAndRemovesIt) {
  EXPECT_EQ(run({"option", "all", "mailLimit=030", "newSites=at once"}), exit_status::ok) << err;
  EXPECT_EQ(run({"option", "all", "mailLimit"}), exit_status::ok);
  EXPECT_EQ(out, "30\n");
  EXPECT_EQ(run({"option", "all", "mailLimit="}), exit_status::ok) << err;
  EXPECT_EQ(out, "The option mailLimit of all sites is removed.\n");
  EXPECT_EQ(run({"option", "all", "mailLimit"}), exit_status::ok);
  EXPECT_EQ(out, "\n");
  EXPECT_THAT(err, HasSubstr("The option mailLimit is not set: a mail server that stays silent"));
  EXPECT_EQ(folder.queryRows("select idSite, name, value from siteOptions"), "0|newSites|at once\n");
}

TEST_F(OptionVerb, TakesANumberOrItsWord) {
  EXPECT_EQ(run({"option", "all", "parallel=AUTO"}), exit_status::ok) << err;
  EXPECT_EQ(run({"option", "all", "parallel"}), exit_status::ok);
  EXPECT_EQ(out, "auto\n");
  EXPECT_EQ(run({"option", "all", "parallel=064"}), exit_status::ok) << err;
  EXPECT_EQ(run({"option", "all", "parallel=4"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("It takes a whole number from 5 to 256 or \"auto\"."));
  EXPECT_EQ(folder.queryRows("select value from siteOptions"), "64\n");
}

TEST_F(OptionVerb, RefusesWhatThereIsNot) {
  EXPECT_EQ(run({"option", "all", "nothing=1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no option \"nothing\". The options are: newSites, adopt, mailLimit"));
  EXPECT_EQ(run({"option", "all", "mailLimit", "20"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("To set the option mailLimit, write: mailLimit=20"));
  EXPECT_EQ(run({"option", "all", "adopt=anything", "mailLimit=0"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("a whole number from 1 to 3600"));
  EXPECT_EQ(run({"option", "1", "mailLimit=5"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("holds for all sites"));
  EXPECT_EQ(run({"option", "9", "adopt"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 9"));
  EXPECT_EQ(run({"option", "one"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is neither all nor the id of a site"));
  EXPECT_EQ(folder.queryRows("select * from siteOptions"), "");
}

TEST_F(OptionVerb, ListsEveryOptionInItsHelp) {
  EXPECT_EQ(run({"option", "--help"}), exit_status::ok);
  for (const OptionField& option : fields.options) {
    EXPECT_THAT(out, HasSubstr("\n  " + option.name + " (")) << option.name;
  }
}

TEST_F(OptionVerb, GoesIntoEveryExportAndBack) {
  for (const std::string format : {"csv", "json"}) {
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    EXPECT_EQ(out.find("options"), std::string::npos);
    ASSERT_EQ(run({"option", "all", "mailLimit=30"}), exit_status::ok) << err;
    ASSERT_EQ(run({"option", "1", "adopt=anything"}), exit_status::ok) << err;
    EXPECT_EQ(runJson({"site", "1", "--json"})["options"], (Json{{"adopt", "anything"}}));
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    const std::string file = out;
    folder.execute("delete from siteOptions");
    input = file;
    ASSERT_EQ(run({"import", "-", "--format", format}), exit_status::ok) << err;
    EXPECT_EQ(out, "The options of all sites are changed.\n0 added, 1 changed, 0 deleted, 0 unchanged.\n");
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    EXPECT_EQ(out, file);
    folder.execute("delete from siteOptions");
  }
}

TEST_F(OptionVerb, OfAllStaysWhenTheSitesOfAFileAreAddedAsNewOnes) {
  for (const std::string format : {"csv", "json"}) {
    ASSERT_EQ(run({"option", "all", "mailLimit=30"}), exit_status::ok) << err;
    ASSERT_EQ(run({"option", "1", "adopt=anything"}), exit_status::ok) << err;
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    input = out;
    ASSERT_EQ(run({"option", "all", "mailLimit=7"}), exit_status::ok) << err;
    ASSERT_EQ(run({"import", "-", "--format", format, "--as-new"}), exit_status::ok) << err;
    EXPECT_EQ(out, "1 added, 0 changed, 0 deleted, 0 unchanged.\n");
    EXPECT_EQ(folder.queryRows("select idSite, name, value from siteOptions order by 1"),
              "0|mailLimit|7\n1|adopt|anything\n2|adopt|anything\n");
    folder.execute("delete from sites where idSite > 1; delete from siteOptions");
  }
}

TEST_F(OptionVerb, IsExportedOnlyAsAnImportTakesIt) {
  folder.execute(
      "insert into siteOptions values (0, 'mailLimit', 'long'), (1, 'mailLimit', '5'), (1, 'adopt', 'what'), "
      "(0, 'adopt', 'ANYTHING')");
  for (const std::string format : {"csv", "json"}) {
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    EXPECT_EQ(err, "");
    input = out;
    EXPECT_EQ(run({"import", "-", "--format", format}), exit_status::ok) << err;
    EXPECT_EQ(out, "0 added, 0 changed, 0 deleted, 1 unchanged.\n");
  }
}

TEST_F(OptionVerb, KeepsEveryByteOfATextOnItsWayThroughAFile) {
  fields.options.push_back(
      {.name = "note", .kind = OptionKind::text, .ofSite = true, .original = "o", .label = "Note", .meaning = "m"});
  for (const std::string format : {"csv", "json"}) {
    folder.execute("insert or replace into siteOptions values (1, 'note', cast(x'66fc72' as text))");
    ASSERT_EQ(run({"export", "-", "--format", format}), exit_status::ok);
    folder.execute("delete from siteOptions");
    input = out;
    EXPECT_EQ(run({"import", "-", "--format", format}), exit_status::ok) << err;
    EXPECT_EQ(folder.queryText("select hex(value) from siteOptions"), "66FC72") << format;
  }
}

TEST_F(OptionVerb, IsATextOrNothingInAnImport) {
  fields.options.push_back(
      {.name = "note", .kind = OptionKind::text, .ofSite = true, .original = "o", .label = "Note", .meaning = "m"});
  input = R"({"tarnwick": 1, "options": {"note": {"base64": "?"}}, "sites": []})";
  EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("the option \"note\" is no text"));
  input = R"({"tarnwick": 1, "options": {"note": null, "mailLimit": 30}, "sites": []})";
  EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select * from siteOptions"), "0|mailLimit|30\n");
}

TEST_F(OptionVerb, IsGivenOnceInAnImport) {
  input = "idSite,url,options\n0,,mailLimit=5&MAILLIMIT=6\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 2: the option mailLimit is given twice"));
  input = R"({"tarnwick": 1, "options": {"mailLimit": 5, "MailLimit": 6}, "sites": []})";
  EXPECT_EQ(run({"import", "-", "--format", "json"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 1: the option mailLimit is given twice"));
  input = "idSite,url,options\n0,,mailLimit=5\n0,,mailLimit=6\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::failed);
  EXPECT_EQ(err,
            "tarnwickctl: standard input, line 3: idSite 0 stands on line 2 already: give each site an id of its own, "
            "or none to add it as a new one.\ntarnwickctl: Nothing was imported.\n");
  EXPECT_EQ(folder.queryRows("select * from siteOptions"), "");
}

TEST_F(OptionVerb, IsCheckedByAnImport) {
  input = "url,options\nhttp://b/,mailLimit=5\nhttp://c/,adopt=none\nhttp://d/,what=1\n";
  EXPECT_EQ(run({"import", "-", "--format", "csv"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("line 3: the option adopt does not take \"none\""));
  EXPECT_THAT(err, HasSubstr("line 4: there is no option \"what\""));
}

}  // namespace
}  // namespace tarnwick::testing
