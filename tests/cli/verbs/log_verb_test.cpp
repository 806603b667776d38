// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

// The clock stands at 2024-05-17 12:00:00.
class LogVerb : public ToolFixture {
 protected:
  LogVerb() {
    folder.execute(R"(insert into log (idSite, url, status, errCode, errDescription, content, dateStamp) values
      (1, 'http://a/', 1, 0, '', 'page a', '2024-05-16 23:59:59'),
      (2, 'http://b/', 0, 7, 'Refused.', '11:Refused.', '2024-05-17 00:00:00'),
      (1, 'http://a/', 0, 0, '', 'one' || char(13, 10) || 'two' || char(27), '2024-05-17 11:30:00'),
      (2, 'http://b/', 1, 0, '', 'page b', '2024-05-17 11:59:00'))");
  }

  std::string dates(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"log", "--json"});
    std::string list;
    for (const Json& row : runJson(arguments)) {
      list += row["dateStamp"].get<std::string>().substr(8) + "\n";
    }
    return list;
  }

  const std::string first = "16 23:59:59\n";
  const std::string second = "17 00:00:00\n";
  const std::string third = "17 11:30:00\n";
  const std::string fourth = "17 11:59:00\n";
};

TEST_F(LogVerb, ShowsTheResultsTheOldestFirst) {
  EXPECT_EQ(run({"log"}), exit_status::ok);
  EXPECT_EQ(out,
            "2024-05-16 23:59:59  up    1  http://a/\n"
            "2024-05-17 00:00:00  down  2  http://b/: Refused.\n"
            "2024-05-17 11:30:00  down  1  http://a/\n"
            "2024-05-17 11:59:00  up    2  http://b/\n");
  EXPECT_EQ(err, "");
}

TEST_F(LogVerb, NamesTheColumnsInJson) {
  const Json list = runJson({"log", "--json"});
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(list[1], Json::parse(R"({"dateStamp": "2024-05-17 00:00:00", "idSite": 2, "url": "http://b/",
                                     "status": false, "errCode": 7, "errDescription": "Refused."})"));
}

TEST_F(LogVerb, PrintsNullsAsNull) {
  folder.execute("delete from log; insert into log (url, dateStamp) values (null, null)");
  EXPECT_EQ(runJson({"log", "--json", "--content"}),
            Json::parse(R"([{"dateStamp": null, "idSite": null, "url": null, "status": null, "errCode": null,
                             "errDescription": null, "content": null}])"));
  EXPECT_EQ(run({"log"}), exit_status::ok);
  EXPECT_EQ(out, "-  -     -  \n");
}

TEST_F(LogVerb, BeginsAtAMoment) {
  EXPECT_EQ(dates({"--since", "today"}), second + third + fourth);
  EXPECT_EQ(dates({"--since", "2024-05-17"}), second + third + fourth);
  EXPECT_EQ(dates({"--since", "2024-05-17 00:00:01"}), third + fourth);
  EXPECT_EQ(dates({"--since", "30m"}), third + fourth);
  EXPECT_EQ(dates({"--since", "60s"}), fourth);
  EXPECT_EQ(dates({"--since", "2d"}), first + second + third + fourth);
  EXPECT_EQ(dates({"--since", "2024-05-18"}), "");
}

TEST_F(LogVerb, RefusesAMomentThatIsNone) {
  EXPECT_EQ(run({"log", "--since", "tomorrow"}), exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("\"tomorrow\" is no moment. Write it as YYYY-MM-DD"));
}

TEST_F(LogVerb, KeepsOnlyWhatIsAskedFor) {
  EXPECT_EQ(dates({"--down"}), second + third);
  EXPECT_EQ(dates({"--site", "1"}), first + third);
  EXPECT_EQ(dates({"--site", "1", "--down"}), third);
  EXPECT_EQ(dates({"--site", "9"}), "");
}

TEST_F(LogVerb, LimitsItselfToTheNewest) {
  EXPECT_EQ(dates({"--limit", "1"}), fourth);
  EXPECT_EQ(dates({"--limit", "3"}), second + third + fourth);
  EXPECT_EQ(dates({"--limit", "9"}), first + second + third + fourth);
  EXPECT_EQ(dates({"--limit", "1", "--down"}), third);
  EXPECT_EQ(dates({"--limit", "1", "--site", "1", "--since", "today"}), third);
}

TEST_F(LogVerb, RefusesALimitThatIsNone) {
  for (const char* limit : {"0", "x", "010"}) {
    EXPECT_EQ(run({"log", "--limit", limit}), exit_status::failed) << limit;
    EXPECT_THAT(err, HasSubstr("--limit")) << limit;
  }
}

TEST_F(LogVerb, ShowsThePagesOnlyWhenTheyAreAskedFor) {
  EXPECT_EQ(run({"log", "--site", "1", "--content"}), exit_status::ok);
  EXPECT_EQ(out,
            "2024-05-16 23:59:59  up    1  http://a/\n"
            "    page a\n"
            "2024-05-17 11:30:00  down  1  http://a/\n"
            "    one\n"
            "    two\\x1b\n");
  EXPECT_EQ(runJson({"log", "--json", "--content"})[2]["content"], "one\r\ntwo\x1b");
  EXPECT_FALSE(runJson({"log", "--json"})[2].contains("content"));
}

TEST_F(LogVerb, ColoursTheStateOnATerminal) {
  terminal = {.isTerminal = true, .colour = true};
  EXPECT_EQ(run({"log", "--limit", "2"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("\x1b[31mdown\x1b[0m  1"));
  EXPECT_THAT(out, HasSubstr("\x1b[32mup  \x1b[0m  2"));
}

TEST_F(LogVerb, SaysThatItHoldsNothing) {
  folder.execute("delete from log");
  EXPECT_EQ(run({"log"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "tarnwickctl: The log holds no such result.\n");
  folder.execute("update control set clogs = 0");
  EXPECT_EQ(run({"log"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("tarnwickctl settings clogs on"));
  EXPECT_EQ(runJson({"log", "--json"}), Json::array());
}

TEST_F(LogVerb, IsEmptiedWithConsent) {
  EXPECT_EQ(run({"log", "clear", "--yes"}), exit_status::ok);
  EXPECT_EQ(out, "The log is empty now.\n");
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
}

TEST_F(LogVerb, AsksOnATerminalBeforeItIsEmptied) {
  terminal.canAsk = true;
  input = "n\n";
  EXPECT_EQ(run({"log", "clear"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Delete the whole log? [y/N]"));
  EXPECT_EQ(folder.queryText("select count(*) from log"), "4");
  input = "y\n";
  EXPECT_EQ(run({"log", "clear"}), exit_status::ok);
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
}

TEST_F(LogVerb, IsNotEmptiedWhereNobodyCanBeAsked) {
  EXPECT_EQ(run({"log", "clear"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("add --yes"));
  EXPECT_EQ(folder.queryText("select count(*) from log"), "4");
}

TEST_F(LogVerb, IsNotEmptiedInPart) {
  EXPECT_EQ(run({"log", "clear", "--site", "1", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("empties the whole log"));
  EXPECT_EQ(folder.queryText("select count(*) from log"), "4");
}

TEST_F(LogVerb, ShowsWhatACheckHasWritten) {
  folder.execute("delete from log");
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok) << err;
  server.respond("/a", {.body = "beta"});
  ASSERT_EQ(run({"check"}), exit_status::down) << err;
  const Json list = runJson({"log", "--json", "--content"});
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0]["status"], true);
  EXPECT_EQ(list[0]["url"], server.url("/a"));
  EXPECT_EQ(list[0]["content"], "");
  EXPECT_EQ(list[1]["status"], false);
  EXPECT_EQ(list[1]["content"], "beta");
}

TEST_F(LogVerb, RefusesWhatWouldDoNothing) {
  EXPECT_EQ(run({"log", "--since", ""}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("\"\" is no moment."));
  EXPECT_EQ(run({"log", "--yes"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Only \"log clear\" takes --yes."));
  EXPECT_EQ(run({"log", "clear", "--since", "", "--yes"}), exit_status::failed);
  EXPECT_EQ(folder.queryText("select count(*) from log"), "4");
}

}  // namespace
}  // namespace tarnwick::testing
