// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// A page with a counter and a time among fixed text.
class RulesVerbs : public ToolFixture {
 protected:
  RulesVerbs() : ToolFixture(TestServices::Time::clockByHand) {
    server.handle("/page", [this](const HttpRequest&) { return HttpResponse{.body = page(++visits)}; });
  }

  std::string page(int visit) const {
    return "<html>\n<p>Visitor " + std::to_string(18200 + visit * 7) + "</p>\n<p id=\"clock\">at 18:40:1" +
           std::to_string(visit % 10) + "</p>\n<p>" + text +
           "</p>\n<p>Much more of the page, which is always the same, word for word.</p>\n</html>\n";
  }

  std::string text = "Nothing new.";
  int visits = 0;
};

TEST_F(RulesVerbs, WhatIsLearntLetsThePageVaryThereAndNowhereElse) {
  const std::int16_t id = addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  ASSERT_EQ(run({"check"}), exit_status::down) << "byte for byte";
  EXPECT_EQ(run({"learn", std::to_string(id), "--fetches", "3", "--yes"}), exit_status::ok) << err;
  EXPECT_THAT(out, AllOf(HasSubstr("Site 1: 2 places vary; "), HasSubstr("line 2"), HasSubstr("a number of 1 to"),
                         HasSubstr("line 3"), HasSubstr("a time"), HasSubstr("The rules of site 1 are stored.")));
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
  visits = 100000;
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
  text = "Hacked.";
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_THAT(out, HasSubstr(R"(line 4: expected "<p>Nothing new.</p>", found "<p>Hacked.</p>")"));
}

TEST_F(RulesVerbs, ASiteWithoutABaselineGetsTheFirstCopy) {
  addSite(server.url("/page"));
  EXPECT_EQ(run({"learn", "1", "--fetches", "3", "--yes"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "content_compare"), page(1));
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
}

TEST_F(RulesVerbs, APageThatHasChangedSinceIsNotLearnt) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  text = "Something else.";
  EXPECT_EQ(run({"learn", "1", "--fetches", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Site 1: the page differs from the baseline also in line 4, so nothing is stored."));
  EXPECT_EQ(folder.queryText("select count(*) from rules"), "0");
}

TEST_F(RulesVerbs, WhatIsNoChangeIsProposedOfTheLatestPage) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  ASSERT_EQ(run({"check"}), exit_status::down);
  const int before = visits;
  const Json json = runJson({"learn", "1", "--from-last", "--json"});
  EXPECT_EQ(json[0]["holes"].size(), 2U);
  EXPECT_EQ(json[0]["explains"], true);
  EXPECT_EQ(folder.queryText("select count(*) from rules"), "0");
  EXPECT_EQ(run({"learn", "1", "--from-last", "--yes"}), exit_status::ok) << err;
  EXPECT_THAT(out, AllOf(HasSubstr("Site 1: 2 places vary; "), HasSubstr("a number of 1 to"), HasSubstr("a time")));
  EXPECT_EQ(visits, before) << "nothing is fetched";
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
  EXPECT_EQ(run({"learn", "1", "--from-last"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("Site 1: nothing has varied."));
}

TEST_F(RulesVerbs, WhatIsAChangeIsNotProposed) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  text = "Hacked.";
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"learn", "1", "--from-last", "--yes"}), exit_status::ok) << err;
  EXPECT_THAT(err, HasSubstr("Site 1: line 4 differs as well, and does not look like what always changes: it stays"));
  EXPECT_EQ(run({"check"}), exit_status::down) << out;
  EXPECT_EQ(run({"learn", "1", "--from-last", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Site 1: line 4 differs, and nothing of it looks like what always changes."));
  EXPECT_EQ(folder.queryText("select count(*) from rules"), "2");
}

TEST_F(RulesVerbs, WhatRulesLeaveOutIsNoDifference) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  ASSERT_EQ(run({"rules", "1", "add", "leave-out", "lines", "2"}), exit_status::ok) << err;
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"diff", "1"}), exit_status::down);
  EXPECT_THAT(out, AllOf(HasSubstr("-<p id=\"clock\">"), HasSubstr(" <p>Visitor "), Not(HasSubstr("-<p>Visitor "))));
  EXPECT_EQ(run({"diff", "1", "--json"}), exit_status::down);
  EXPECT_THAT(out, Not(HasSubstr("-<p>Visitor")));
  ASSERT_EQ(run({"rules", "1", "add", "compare-only", "lines", "4"}), exit_status::ok) << err;
  EXPECT_EQ(run({"diff", "1"}), exit_status::ok) << out;
}

TEST_F(RulesVerbs, WithoutALatestPageNothingIsProposed) {
  addSite("http://127.0.0.1:1/");
  EXPECT_EQ(run({"learn", "1", "--from-last"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no baseline yet, or the latest check brought no page."));
  EXPECT_EQ(run({"learn", "1", "--from-last", "--over", "1d"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Nothing is fetched with --from-last"));
}

TEST_F(RulesVerbs, NothingIsLearntOfAnErrorPageOrNone) {
  server.respond("/gone", {.status = 503, .body = "busy"});
  addSite(server.url("/gone"));
  EXPECT_EQ(run({"learn", "1", "--fetches", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("The server answered with an error page (503)."));
  addSite("http://127.0.0.1:1/");
  EXPECT_EQ(run({"learn", "2", "--fetches", "2", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("The page could not be fetched."));
}

TEST_F(RulesVerbs, WithoutConsentNothingIsStored) {
  addSite(server.url("/page"));
  const Json json = runJson({"learn", "1", "--fetches", "2", "--json"});
  EXPECT_EQ(json[0]["holes"].size(), 2U);
  EXPECT_EQ(json[0]["stored"], false);
  EXPECT_EQ(folder.queryText("select count(*) from rules"), "0");
  EXPECT_EQ(run({"learn", "1", "--fetches", "2"}), exit_status::failed) << "nobody is there to be asked";
}

#ifdef TARNWICK_ALL_LANGUAGES

TEST_F(RulesVerbs, ARuleLeavesOutWhatItFinds) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"rules", "1", "add", "leave-out", "lines", "2"}), exit_status::ok) << err;
  EXPECT_EQ(run({"rules", "1", "add", "leave-out", "css", "#clock"}), exit_status::ok) << err;
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
  EXPECT_EQ(run({"rules", "1"}), exit_status::ok);
  EXPECT_EQ(out, "1  leave out lines 2\n2  leave out css #clock\n");
  EXPECT_EQ(run({"rules", "1", "test"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("leave out css #clock: 1 match\n  3: <p id=\"clock\">at 18:40:12</p>"),
                         HasSubstr("By these rules the page is the same as the baseline.")));
  EXPECT_EQ(run({"rules", "1", "remove", "2"}), exit_status::ok);
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"rules", "1", "remove", "all"}), exit_status::ok);
  EXPECT_EQ(run({"rules", "1"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("compared byte for byte"));
}

TEST_F(RulesVerbs, ARuleThatMatchesNothingIsToldWhenItIsMadeAndWithEachResult) {
  addPage("/still", "<p>always</p>");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"rules", "1", "add", "compare-only", "css", "table"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("Rule 1 (compare only css table) matches nothing on the page."));
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("Rule 1 (compare only css table) matches nothing on the page."));
  EXPECT_THAT(folder.queryText("select errDescription from log order by rowid desc limit 1"),
              HasSubstr("matches nothing"));
}

#endif

TEST_F(RulesVerbs, AHoleIsMadeOfATextOfTheBaseline) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"rules", "1", "add", "hole", "digits", "18207"}), exit_status::ok) << err;
  EXPECT_EQ(run({"rules", "1", "add", "hole", "date", "18:40:11"}), exit_status::ok) << err;
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
  EXPECT_EQ(run({"rules", "1", "add", "hole", "digits", "207"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("This place touches another one that may vary, in line 2."));
  EXPECT_EQ(run({"rules", "1", "add", "hole", "date", "Nothing"}), exit_status::failed);
  EXPECT_EQ(run({"rules", "1", "add", "hole", "moods", "x"}), exit_status::failed);
  EXPECT_EQ(run({"rules", "1", "add", "hole", "digits", "99"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("stands nowhere"));
  EXPECT_EQ(run({"rules", "1", "add", "hole", "letters", "p"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("more than once"));
}

TEST_F(RulesVerbs, WhatIsNoRuleIsRefusedWithTheRemedy) {
  addPage("/a", "x");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"leave-out", "css", "p:hover"},
                                                {"leave-out", "prolog", "x"},
                                                {"leave-out", "css"},
                                                {"leave-out", "lines", "0"},
                                                {"leave-out", "regex", "a\nb"},
                                                {"drop", "css", "p"}}) {
    std::vector<std::string> arguments = {"rules", "1", "add"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    EXPECT_EQ(run(arguments), exit_status::failed) << words.back();
    EXPECT_NE(err, "");
  }
  EXPECT_EQ(run({"rules", "1", "remove", "1"}), exit_status::failed);
  EXPECT_EQ(run({"rules", "1", "test"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select count(*) from rules"), "0");
}

TEST_F(RulesVerbs, HolesFollowAnEditedBaseline) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"learn", "1", "--fetches", "2", "--yes"}), exit_status::ok) << err;
  text = "News of today.";
  ASSERT_EQ(run({"check"}), exit_status::down);
  ASSERT_EQ(run({"baseline", "1", "accept"}), exit_status::ok);
  EXPECT_EQ(run({"check"}), exit_status::ok) << out;
}

TEST_F(RulesVerbs, WhatMayVaryIsNoDifference) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"learn", "1", "--fetches", "2", "--yes"}), exit_status::ok) << err;
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"diff", "1"}), exit_status::ok);
  EXPECT_EQ(out, "");
  text = "Hacked.";
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"diff", "1"}), exit_status::down);
  EXPECT_THAT(out,
              AllOf(HasSubstr("\n-<p>Nothing new.</p>\n+<p>Hacked.</p>\n"), HasSubstr("\n <p>Visitor 18207</p>\n")));
}

#ifdef TARNWICK_ALL_LANGUAGES

TEST_F(RulesVerbs, GoAlongWithExportAndImport) {
  addSite(server.url("/page"));
  ASSERT_EQ(run({"learn", "1", "--fetches", "2", "--yes"}), exit_status::ok) << err;
  ASSERT_EQ(run({"rules", "1", "add", "leave-out", "regex", "a, \"b\" (\\d+)"}), exit_status::ok) << err;
  const std::string before = folder.queryRows("select * from rules");
  for (const std::string format : {"json", "csv"}) {
    const std::string file = folder.path() + "/list." + format;
    ASSERT_EQ(run({"export", file, "--baselines"}), exit_status::ok) << err;
    ASSERT_EQ(run({"rules", "1", "remove", "all"}), exit_status::ok);
    ASSERT_EQ(run({"import", file}), exit_status::ok) << err;
    EXPECT_EQ(folder.queryRows("select * from rules"), before) << format;
  }
}

#endif

}  // namespace
}  // namespace tarnwick::testing
