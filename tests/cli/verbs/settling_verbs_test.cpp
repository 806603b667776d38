// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class SettlingVerbs : public ToolFixture {
 protected:
  /// A site that was checked with the first page, and then with the second.
  std::int16_t changed(const std::string& path, const std::string& before, const std::string& after) {
    const std::int16_t id = addPage(path, before);
    run({"check", std::to_string(id)});
    server.respond(path, {.body = after});
    run({"check", std::to_string(id)});
    return id;
  }
};

TEST_F(SettlingVerbs, AcceptTakesExactlyTheBytesOfTheLastCheckAndUndoGivesTheOldOnesBack) {
  const std::string before("a\0\xff\r\n", 5);
  const std::string after("b\0'\xfe\n\r", 6);
  changed("/a", before, after);
  EXPECT_EQ(run({"accept", "1", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(out, "Site 1: the latest page is the baseline.\n");
  EXPECT_EQ(column(1, "content_compare"), after);
  EXPECT_EQ(run({"check", "1"}), exit_status::ok);
  const Json kept = runJson({"baseline", "1", "list", "--json"});
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0]["origin"], "replaced");
  EXPECT_EQ(kept[0]["size"], before.size());
  EXPECT_EQ(run({"baseline", "1", "undo"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "content_compare"), before);
  EXPECT_EQ(run({"baseline", "1", "undo"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("no earlier baseline"));
}

TEST_F(SettlingVerbs, AcceptShowsWhatItTakesAndAsks) {
  changed("/a", "1\n2\n", "1\ntwo\n");
  EXPECT_EQ(run({"accept", "1", "--show"}), exit_status::ok);
  EXPECT_EQ(out, "--- baseline of site 1\n+++ latest page of site 1\n@@ -1,2 +1,2 @@\n 1\n-2\n+two\n");
  EXPECT_EQ(run({"accept", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--yes"));
  terminal = {.canAsk = true};
  input = "n\n";
  EXPECT_EQ(run({"accept", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Is that page (6 bytes) the new baseline of site 1?"));
  EXPECT_THAT(out, HasSubstr("+two"));
  EXPECT_EQ(column(1, "content_compare"), "1\n2\n");
  input = "y\n";
  EXPECT_EQ(run({"accept", "1"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), "1\ntwo\n");
}

TEST_F(SettlingVerbs, AcceptRefusesWhatLooksWrong) {
  changed("/a", "<p>a page of some length</p>", "<title>404 Not Found</title>");
  EXPECT_EQ(run({"accept", "1", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, AllOf(HasSubstr("looks like an error page (404 Not Found)"), HasSubstr("--anyway")));
  EXPECT_EQ(run({"accept", "1", "--yes", "--anyway"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), "<title>404 Not Found</title>");
  changed("/b", "a long page", "short");
  EXPECT_EQ(run({"accept", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("less than half the size of the baseline (5 bytes instead of 11)"));
  folder.execute("update sites set url = 'http://127.0.0.1:1/' where idSite = 2");
  run({"check", "2"});
  EXPECT_EQ(run({"accept", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("brought no page"));
}

TEST_F(SettlingVerbs, AnEmptyPageIsShownAndKnownAndNoBaseline) {
  changed("/a", "a page\n", "");
  EXPECT_EQ(run({"diff", "1"}), exit_status::down);
  EXPECT_THAT(out, HasSubstr("-a page"));
  for (const std::vector<std::string>& verb :
       {std::vector<std::string>{"accept", "1", "--yes", "--anyway"}, {"baseline", "1", "accept", "--force"}}) {
    EXPECT_EQ(run(verb), exit_status::failed);
    EXPECT_THAT(err, HasSubstr("The latest page of site 1 is empty, which cannot be a baseline."));
  }
  EXPECT_EQ(column(1, "content_compare"), "a page\n");
  EXPECT_EQ(run({"acknowledge", "1"}), exit_status::ok);
  EXPECT_EQ(run({"check", "1"}), exit_status::down);
  EXPECT_EQ(runJson({"sites", "known", "--json"}).size(), 1U);
}

TEST_F(SettlingVerbs, APageThatWasNotKeptIsNeitherComparedNorTaken) {
  changed("/a", "a page", "another");
  folder.execute("update sites set content_runtime = 'The page was not kept: there is too little room on the disk.'");
  for (const std::vector<std::string>& verb :
       {std::vector<std::string>{"diff", "1"}, {"baseline", "1", "accept", "--force"}, {"accept", "1", "--yes"}}) {
    EXPECT_EQ(run(verb), exit_status::failed);
    EXPECT_THAT(err, HasSubstr("The latest page of site 1 was not kept")) << verb.front();
  }
  EXPECT_EQ(column(1, "content_compare"), "a page");
}

TEST_F(SettlingVerbs, AcceptNamesWhatHasNothingToAccept) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"accept", "1", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("has no latest page"));
  run({"check"});
  EXPECT_EQ(run({"accept", "1", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is as it should be"));
  EXPECT_EQ(run({"accept", "9", "--yes"}), exit_status::failed);
  EXPECT_EQ(run({"accept"}), exit_status::failed);
  EXPECT_EQ(run({"accept", "tagg:shop"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("tagg: is no filter word"));
  EXPECT_EQ(run({"accept", "1", "down"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is both"));
  EXPECT_EQ(run({"accept", "down"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("No site of the list is like that: down"));
}

TEST_F(SettlingVerbs, AcceptAlsoKeepsBothPagesGoodUntilOneIsDropped) {
  changed("/a", "server A", "server B");
  EXPECT_EQ(run({"accept", "1", "--also", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "content_compare"), "server A");
  EXPECT_EQ(run({"check", "1"}), exit_status::ok);
  server.respond("/a", {.body = "server A"});
  EXPECT_EQ(run({"check", "1"}), exit_status::ok);
  server.respond("/a", {.body = "server C"});
  EXPECT_EQ(run({"check", "1"}), exit_status::down);
  EXPECT_EQ(run({"baseline", "1", "list"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("NUMBER"), HasSubstr("good, too")));
  EXPECT_EQ(run({"baseline", "1", "drop", "7"}), exit_status::failed);
  EXPECT_EQ(run({"baseline", "1", "drop", "1"}), exit_status::ok) << err;
  server.respond("/a", {.body = "server B"});
  EXPECT_EQ(run({"check", "1"}), exit_status::down);
}

TEST_F(SettlingVerbs, ChangesGroupsSitesThatHaveChangedAlikeAndAcceptTakesThemTogether) {
  for (int i = 1; i <= 4; ++i) {
    const std::string name = std::to_string(i);
    changed("/" + name, "<h1>" + name + "</h1>\n<p>(c) 2025</p>\n",
            "<h1>" + name + "</h1>\n<p>(c) " + (i == 3 ? "1999" : "2026") + "</p>\n");
  }
  addPage("/5", "same");
  EXPECT_EQ(run({"changes"}), exit_status::ok);
  EXPECT_EQ(out, "3 sites: \"(c) 2025\" became \"(c) 2026\"\n  1 2 4\n1 site: \"(c) 2025\" became \"(c) 1999\"\n  3\n");
  const Json json = runJson({"changes", "id:1,3", "--json"});
  EXPECT_EQ(json[0]["sites"], Json({1}));
  EXPECT_EQ(json[0]["changes"][0]["after"], "(c) 2026");
  EXPECT_EQ(run({"accept", "--same-as", "2", "--show"}), exit_status::ok);
  EXPECT_EQ(out, "3 sites: \"(c) 2025\" became \"(c) 2026\"\n  1 2 4\n");
  EXPECT_EQ(run({"accept", "--same-as", "2", "--yes"}), exit_status::ok);
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"sites", "down"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("/3"), Not(HasSubstr("/4"))));
  EXPECT_EQ(run({"accept", "--same-as", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("has not changed"));
}

TEST_F(SettlingVerbs, AcknowledgeIsSeenUntilTheSiteIsUp) {
  changed("/a", "good", "wrong");
  EXPECT_EQ(run({"acknowledge", "1"}), exit_status::ok) << err;
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("known"));
  EXPECT_EQ(runJson({"sites", "known", "--json"})[0]["alarm"]["state"], "known");
  run({"check"});
  EXPECT_EQ(runJson({"sites", "known", "--json"}).size(), 1U);
  EXPECT_EQ(run({"acknowledge", "1", "--off"}), exit_status::ok);
  EXPECT_EQ(runJson({"sites", "known", "--json"}).size(), 0U);
  run({"acknowledge", "1"});
  server.respond("/a", {.body = "good"});
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(folder.queryText("select count(*) from acknowledged"), "0");
  EXPECT_EQ(run({"acknowledge", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is as it should be"));
}

TEST_F(SettlingVerbs, AnAcknowledgedPageAlarmsNoMoreAndAnyOtherDoes) {
  changed("/a", "good", "wrong");
  folder.execute("update control set cprogram = 1, program = '/bin/alert'");
  run({"check"});
  EXPECT_EQ(machine.programs.started.size(), 1U);
  run({"acknowledge", "1"});
  run({"check"});
  EXPECT_EQ(machine.programs.started.size(), 1U);
  EXPECT_EQ(column(1, "failure"), "3");
  server.respond("/a", {.body = "worse"});
  run({"check"});
  EXPECT_EQ(machine.programs.started.size(), 2U);
  server.respond("/a", {.body = "wrong"});
  run({"check"});
  EXPECT_EQ(machine.programs.started.size(), 3U);
}

class FindingVerbs : public ToolFixture {};

TEST_F(FindingVerbs, SitesAreFoundByTagsAndWords) {
  addPage("/shop", "alpha");
  addPage("/news", "beta");
  addSite("https://www.example.org/");
  EXPECT_EQ(run({"tag", "1", "shop", "Anna"}), exit_status::ok) << err;
  EXPECT_EQ(out, "1: Anna shop\n");
  EXPECT_EQ(run({"tag", "never", "new"}), exit_status::ok);
  EXPECT_EQ(out, "1: Anna new shop\n2: new\n3: new\n");
  EXPECT_EQ(run({"tag", "all", "--remove", "NEW"}), exit_status::ok);
  EXPECT_EQ(out, "1: Anna shop\n2: -\n3: -\n");
  EXPECT_EQ(run({"sites", "tag:shop"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("TAGS"), HasSubstr("Anna shop"), HasSubstr("/shop"), Not(HasSubstr("/news"))));
  const Json json = runJson({"sites", "tag:anna", "--json"});
  ASSERT_EQ(json.size(), 1U);
  EXPECT_EQ(json[0]["tags"], Json({"Anna", "shop"}));
  EXPECT_EQ(runJson({"site", "1", "--json"})["tags"], Json({"Anna", "shop"}));
  EXPECT_EQ(runJson({"sites", "host:example.org", "--json"})[0]["idSite"], 3);
  EXPECT_EQ(runJson({"sites", "never -tag:shop -news", "--json"}).size(), 1U);
  EXPECT_EQ(run({"sites", "tagg:shop"}), exit_status::failed);
  EXPECT_EQ(run({"tag", "1", "a b"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("is no tag"));
  EXPECT_EQ(run({"tag", "1", "--remove"}), exit_status::failed);
}

TEST_F(FindingVerbs, WithoutTagsTheListIsAsItWas) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, Not(HasSubstr("TAGS")));
  EXPECT_FALSE(runJson({"sites", "--json"})[0].contains("tags"));
}

TEST_F(FindingVerbs, TagsAndKeptBaselinesAreExportedAndImported) {
  addPage("/a", "server A");
  run({"check"});
  server.respond("/a", {.body = "server B"});
  run({"check"});
  run({"accept", "1", "--also", "--yes"});
  run({"accept", "1", "--yes"});
  run({"tag", "1", "shop", "news"});
  for (const std::string name : {"list.json", "list.csv"}) {
    const std::string file = folder.file(name);
    ASSERT_EQ(run({"export", "--baselines", file}), exit_status::ok) << err;
    const std::string before = folder.queryRows("select taken, origin, content from baselines");
    ASSERT_EQ(run({"tag", "1", "--remove", "shop"}), exit_status::ok);
    folder.execute("delete from baselines");
    ASSERT_EQ(run({"import", file}), exit_status::ok) << err;
    EXPECT_EQ(folder.queryRows("select taken, origin, content from baselines"), before) << name;
    EXPECT_EQ(folder.queryRows("select tag from siteTags order by tag"), "news\nshop\n") << name;
    ASSERT_EQ(run({"import", file}), exit_status::ok) << err;
    EXPECT_EQ(folder.queryText("select count(*) from baselines"), "1");
  }
}

TEST_F(FindingVerbs, SeveralSitesAreChangedAtOnce) {
  for (const char* path : {"/a", "/b", "/c"}) {
    addPage(path, "alpha");
  }
  folder.execute("update sites set tInterval = 5 where idSite = 2");
  EXPECT_EQ(run({"change", "all", "--interval", "5", "--dry-run"}), exit_status::ok);
  EXPECT_EQ(out, "1: interval\n3: interval\n");
  EXPECT_THAT(err, HasSubstr("1 of 3 sites stay as they are."));
  EXPECT_EQ(column(1, "tInterval"), "10");
  EXPECT_EQ(run({"change", "all", "--interval", "5"}), exit_status::failed);
  EXPECT_EQ(run({"change", "1", "3", "--interval", "5", "--inactive", "--tag", "shop", "--option", "adopt=anything",
                 "--yes"}),
            exit_status::ok)
      << err;
  EXPECT_EQ(folder.queryRows("select tInterval, active from sites"), "5|0\n5|1\n5|0\n");
  EXPECT_EQ(folder.queryRows("select idSite, value from siteOptions where idSite > 0"), "1|anything\n3|anything\n");
  EXPECT_EQ(run({"change", "tag:shop", "--untag", "shop", "--option", "adopt=", "--active", "--yes"}), exit_status::ok);
  EXPECT_EQ(folder.queryRows("select count(*) from siteTags"), "0\n");
  folder.execute("update sites set success = 7 where idSite = 1");
  EXPECT_EQ(run({"change", "all", "--reset-counters", "--yes"}), exit_status::ok);
  EXPECT_EQ(column(1, "success"), "0");
  EXPECT_EQ(run({"change", "all"}), exit_status::failed);
  EXPECT_EQ(run({"change", "all", "--option", "mailLimit=30", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("holds for all sites"));
  EXPECT_EQ(run({"change", "all", "--option", "adopt", "--yes"}), exit_status::failed);
  EXPECT_EQ(run({"delete", "host:127.0.0.1", "--dry-run"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("/b"));
  EXPECT_EQ(run({"delete", "id:1,2", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(folder.queryRows("select idSite from sites"), "3\n");
}

}  // namespace
}  // namespace tarnwick::testing
