// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CheckVerb : public ToolFixture {
 protected:
  std::string line(const std::string& state, std::int16_t id, const std::string& path) {
    return state + " " + std::to_string(id) + " " + server.url(path);
  }
};

TEST_F(CheckVerb, WritesALineForEachSiteThatIsUp) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(out, line("up  ", 1, "/a") + "\n");
  EXPECT_EQ(err, "");
}

TEST_F(CheckVerb, NamesTheFirstLineThatDiffersAndEndsWithOneWhenASiteIsDown) {
  addPage("/a", "one\ntwo\n");
  addPage("/b", "steady");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  server.respond("/a", {.body = "one\nTWO\n"});
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_THAT(out, HasSubstr(line("down", 1, "/a") + R"(: line 2: expected "two", found "TWO")"));
  EXPECT_THAT(out, HasSubstr(line("up  ", 2, "/b") + "\n"));
}

TEST_F(CheckVerb, NamesTheTransfersErrorOfASiteThatCannotBeFetched) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  folder.execute("update sites set url = 'http://127.0.0.1:1/'");
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_THAT(out, StartsWith("down 1 http://127.0.0.1:1/: "));
  EXPECT_THAT(out, HasSubstr("refused"));
}

TEST_F(CheckVerb, RecordsWhatItFindsAsARunDoes) {
  addPage("/a", "alpha");
  run({"check"});
  server.respond("/a", {.body = "beta"});
  run({"check"});
  EXPECT_EQ(column(1, "success"), "1");
  EXPECT_EQ(column(1, "failure"), "1");
  EXPECT_EQ(column(1, "status"), "0");
  EXPECT_EQ(column(1, "content_runtime"), "beta");
  EXPECT_EQ(folder.queryRows("select idSite, status from log"), "1|1\n1|0\n");
}

TEST_F(CheckVerb, RaisesTheAlertsOfAFailure) {
  addPage("/a", "alpha");
  folder.execute("update control set cprogram = 1, program = 'alarm ~3~'");
  run({"check"});
  server.respond("/a", {.body = "beta"});
  run({"check"});
  EXPECT_EQ(machine.programs.started.size(), 1U);
}

TEST_F(CheckVerb, ChecksTheNamedSitesOnlyEvenInactiveOnes) {
  addPage("/a", "alpha");
  addPage("/b", "beta");
  addPage("/c", "gamma");
  folder.execute("update sites set active = 0 where idSite = 3");
  EXPECT_EQ(run({"check", "3", "1", "3"}), exit_status::ok);
  EXPECT_EQ(column(1, "success"), "1");
  EXPECT_EQ(column(2, "success"), "NULL");
  EXPECT_EQ(column(3, "success"), "1");
}

TEST_F(CheckVerb, ChecksNothingWhenOneOfTheNamedSitesIsNotThere) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"check", "1", "9"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("no site 9"));
  EXPECT_EQ(out, "");
  EXPECT_EQ(column(1, "success"), "NULL");
}

TEST_F(CheckVerb, ChecksOnlyWhatIsDueWhenAskedTo) {
  addPage("/a", "alpha");
  addPage("/b", "beta");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  folder.execute("update sites set lastChecked = '2001-01-01 00:00:00' where idSite = 2");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(out, line("up  ", 2, "/b") + "\n");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("No site is due."));
}

TEST_F(CheckVerb, TakesNeitherIdsAndDueTogetherNorIdsThatAreNone) {
  EXPECT_EQ(run({"check", "--due", "1"}), exit_status::failed);
  EXPECT_EQ(run({"check", "one"}), exit_status::failed);
  EXPECT_EQ(run({"check", "99999"}), exit_status::failed);
  EXPECT_EQ(run({"check", "0"}), exit_status::failed);
}

TEST_F(CheckVerb, SaysThatThereIsNothingToCheck) {
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("tarnwickctl add URL"));
}

TEST_F(CheckVerb, PrintsJson) {
  addPage("/a", "alpha");
  addPage("/b", "beta");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  server.respond("/b", {.body = "other"});
  EXPECT_EQ(run({"check", "--json"}), exit_status::down);
  Json results = Json::parse(out);
  std::sort(results.begin(), results.end(), [](const Json& a, const Json& b) { return a["idSite"] < b["idSite"]; });
  EXPECT_EQ(results, (Json::array({{{"idSite", 1},
                                    {"url", server.url("/a")},
                                    {"status", true},
                                    {"errCode", 0},
                                    {"errDescription", ""},
                                    {"cause", nullptr}},
                                   {{"idSite", 2},
                                    {"url", server.url("/b")},
                                    {"status", false},
                                    {"errCode", 0},
                                    {"errDescription", ""},
                                    {"cause", R"(line 1: expected "beta", found "other")"}}})));
}

TEST_F(CheckVerb, EndsWithAStatusOfItsOwnWhenAFailureIsTheBaseline) {
  addPage("/a", "11:05");
  addSite("http://127.0.0.1:1/");
  EXPECT_EQ(run({"check", "1"}), exit_status::ok);
  for (int i = 0; i < 2; ++i) {  // when it becomes the baseline, and ever after
    EXPECT_EQ(run({"check"}), exit_status::notAPage);
    EXPECT_THAT(out, HasSubstr("up   2 http://127.0.0.1:1/: the fetch fails, and its text is the baseline: "));
    EXPECT_EQ(run({"check", "--json"}), exit_status::notAPage);
    for (const Json& result : Json::parse(out)) {
      EXPECT_EQ(result.contains("notAPage") && result["notAPage"] == true, result["idSite"] == 2) << result;
    }
  }
  server.respond("/a", {.body = "11:06"});
  EXPECT_EQ(run({"check"}), exit_status::down);
}

TEST_F(CheckVerb, SaysThatThePageOfASiteThatWasChangedMeanwhileIsDropped) {
  addPage("/b", "beta");
  addPage("/a", "alpha");
  server.handle("/a", [this](const HttpRequest&) {
    folder.execute("update sites set url = url || '?new' where idSite = 2");
    return HttpResponse{.body = "alpha"};
  });
  EXPECT_EQ(run({"check"}), exit_status::dropped);
  EXPECT_THAT(out, HasSubstr(line("drop", 2, "/a") + ": the site was changed, switched off or deleted while"));
  EXPECT_THAT(out, HasSubstr(line("up  ", 1, "/b") + "\n"));
  EXPECT_EQ(column(2, "lastChecked"), "NULL");

  folder.execute("update sites set url = '" + server.url("/a") + "' where idSite = 2");
  EXPECT_EQ(run({"check", "2", "--json"}), exit_status::dropped);
  const Json result = Json::parse(out).at(0);
  EXPECT_EQ(result["idSite"], 2);
  EXPECT_EQ(result["status"], nullptr);
  EXPECT_EQ(result["dropped"], true);

  folder.execute("update sites set url = '" + server.url("/a") + "' where idSite = 2");
  server.respond("/b", {.body = "other"});
  EXPECT_EQ(run({"check"}), exit_status::down) << "which counts more";
}

TEST_F(CheckVerb, SaysThatAMailWasLost) {
  addPage("/a", "alpha");
  folder.execute("update sites set content_compare = 'other', alertEmail = 1, email = 'a@b.cd'");
  folder.execute("update control set cemail = 1, smtp = 'no such name'");
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_THAT(err, HasSubstr("Site 1: The mail server no such name could not be reached or refused the mail."));
}

TEST_F(CheckVerb, PrintsAnEmptyJsonArrayWhenNothingIsChecked) {
  EXPECT_EQ(run({"check", "--json"}), exit_status::ok);
  EXPECT_EQ(out, "[]\n");
}

TEST_F(CheckVerb, EndsWithTwoWhenTheDatabaseIsMissing) {
  EXPECT_EQ(run({"check", "--folder", folder.path() + "/nowhere"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("nowhere/tarnwick.mdb is missing"));
}

TEST_F(CheckVerb, EndsWithTwoAndOneComplaintWhenAResultCannotBeRecorded) {
  addPage("/a", "alpha");
  folder.execute("create trigger no before update on siteRows begin select raise(fail, 'kept out'); end");
  EXPECT_EQ(run({"check"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("kept out"));
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
}

TEST_F(CheckVerb, ShowsWhereThePassStandsOnATerminal) {
  terminal = {.isTerminal = true, .colour = true};
  addPage("/a", "alpha");
  run({"check"});
  EXPECT_THAT(out, HasSubstr("\r\x1b[KTesting: " + server.url("/a")));
  EXPECT_THAT(out, HasSubstr("\x1b[32mup  \x1b[0m 1 " + server.url("/a") + "\n"));
  EXPECT_TRUE(out.ends_with("\r\x1b[K")) << out;
}

TEST_F(CheckVerb, TakesNewSitesWithThoseThatAreDueWhenTheyAreTakenOnAtOnce) {
  EXPECT_EQ(run({"option", "all", "newSites=at once"}), exit_status::ok);
  addPage("/new", "hello");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(err, "");
  EXPECT_EQ(column(1, "status"), "1");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(err, "tarnwickctl: No site is due.\n");
}

TEST_F(CheckVerb, NamesWhatIsNeverDueSinceItWasNeverChecked) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  addPage("/b", "beta");
  addPage("/c", "gamma");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("Left out, since never checked: 2 sites. Check once with: tarnwickctl check 2 3\n"));
  EXPECT_EQ(run({"check", "--due", "--json"}), exit_status::ok);
  EXPECT_EQ(out, "[]\n");
  for (int i = 0; i < 9; ++i) {
    addSite("http://a/");
  }
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("Left out, since never checked: 11 sites. Check once with: tarnwickctl check\n"));
}

TEST_F(CheckVerb, FullCountersAreToldOnceAndTheStatusIsThatOfTheSites) {
  addPage("/a", "alpha");
  addPage("/b", "beta");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  folder.execute("update sites set success = 32767, failure = 32767");
  EXPECT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
  EXPECT_THAT(err, HasSubstr("stands at 32767 and cannot count further"));
  server.respond("/a", {.body = "changed"});
  EXPECT_EQ(run({"check"}), exit_status::down);
  EXPECT_THAT(out, HasSubstr(line("down", 1, "/a")));
  EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
}

TEST_F(CheckVerb, ASiteThatCannotBeCheckedForItsIdIsAFailureBesideAFullCounter) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  folder.execute("update sites set success = 32767");
  folder.execute("insert into sites (idSite, url, active, tInterval) values (40000, 'http://localhost/', 1, 10)");
  EXPECT_EQ(run({"check"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("40000"));
}

TEST_F(CheckVerb, TellsWhatIsNeverDueForItsStamp) {
  addPage("/a", "alpha");
  folder.execute("update sites set lastChecked = 'yesterday'");
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("Left out, since never checked: 1 site. Check once with: tarnwickctl check 1"));
  EXPECT_EQ(run({"option", "all", "newSites=at once"}), exit_status::ok) << err;
  EXPECT_EQ(run({"check", "--due"}), exit_status::ok);
  EXPECT_EQ(out, line("up  ", 1, "/a") + "\n");
}

}  // namespace
}  // namespace tarnwick::testing
