// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"
#include "support/file_bytes.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

// The clock stands at 2024-05-17 12:00:00.
class HistoryVerb : public ToolFixture {
 protected:
  HistoryVerb() {
    addSite("http://a.example/");
    addSite("http://b.example/");
    const std::string hour = std::to_string(
        std::chrono::duration_cast<std::chrono::seconds>(machine.clock().now().time_since_epoch()).count() - 7200);
    folder.execute(
        "insert into hours values (1, " + hour + ", 6, 2700, 0, 600, 200, x'3006'), (1, " + hour +
        " + 3600, 6, 1800, 1800, 600, 200, x'3006'); insert into outages values (1, " + hour + ", " + hour +
        " + 900, 2, 'refused'); insert into latestChecks (idSite, at, up, until, lookUp, connect, firstByte, whole) "
        "values (1, " +
        hour + " + 7000, 1, " + hour +
        " + 7000, 0, 12, 70, 100), (0, 1, 1, null, null, "
        "null, null, null)");
    folder.execute("insert or replace into siteOptions values (0, 'history', 'on')");
  }
};

TEST_F(HistoryVerb, ShowsStripesFiguresAndOutages) {
  EXPECT_EQ(run({"history", "1"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("1  http://a.example/"));
  EXPECT_THAT(out, HasSubstr("83.33 %"));
  EXPECT_THAT(out, HasSubstr("15 min"));
  EXPECT_THAT(out, HasSubstr("refused"));
  EXPECT_THAT(out, HasSubstr("\nLatest check: look-up 0 ms, connect 12 ms, first byte 70 ms, whole 100 ms\n"));
}

TEST_F(HistoryVerb, PerCentAreThoseOfTheKnownTime) {
  const Json list = runJson({"history", "all", "--json"});
  ASSERT_EQ(list.size(), 2U);
  for (const Json& period : list[0]["periods"]) {
    EXPECT_NEAR(period["uptime"].get<double>(), 100.0 * 4500 / 5400, 1e-9) << period["days"];
    EXPECT_EQ(period["checks"], 12);
    EXPECT_EQ(period["downSeconds"], 900);
  }
  EXPECT_TRUE(list[1]["periods"][0]["uptime"].is_null());
  EXPECT_EQ(list[0]["outages"][0]["seconds"], 900);
  EXPECT_EQ(list[0]["latestMs"]["whole"], 100);
  EXPECT_EQ(list[0]["latestMs"]["firstByte"], 70);
  EXPECT_TRUE(list[0]["latestMs"]["tls"].is_null());
}

TEST_F(HistoryVerb, SeveralSitesHaveALineEach) {
  EXPECT_EQ(run({"history", "all"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("83.33 %  83.33 %  83.33 %  83.33 %  83.33 %"));
  EXPECT_THAT(out, HasSubstr("http://b.example/"));
}

TEST_F(HistoryVerb, WritesCsvAndPictures) {
  EXPECT_EQ(run({"history", "1", "--csv"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr(",2700,900,0,6,"));
  EXPECT_EQ(run({"history", "1", "--svg", "-"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("<svg "));
  EXPECT_NE(run({"history", "all", "--svg", "-"}), exit_status::ok);
  EXPECT_NE(run({"history", "1", "--csv", "--json"}), exit_status::ok);
}

TEST_F(HistoryVerb, GoesIntoAnExportOnWishAndOutOfIt) {
  const std::string file = folder.file("sites.json");
  EXPECT_EQ(run({"export", file}), exit_status::ok);
  EXPECT_THAT(bytesOfFile(file), ::testing::Not(HasSubstr("\"history\":[")));
  EXPECT_EQ(run({"export", file, "--with-history"}), exit_status::ok);
  EXPECT_EQ(run({"history", "1", "--csv"}), exit_status::ok);
  const std::string before = out;

  EXPECT_EQ(run({"delete", "1", "2", "--yes"}), exit_status::ok) << err;
  const std::string taken = "(sites: 1, hours: 2, outages: 1).\n";
  EXPECT_EQ(run({"import", file, "--dry-run"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("The history would be taken in, too " + taken));
  EXPECT_EQ(runJson({"import", file, "--dry-run", "--json"})["history"],
            Json::parse(R"({"sites": 1, "hours": 2, "outages": 1})"));
  EXPECT_EQ(run({"import", file}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("The history is taken in, too " + taken));
  EXPECT_EQ(run({"history", "1", "--csv"}), exit_status::ok);
  EXPECT_EQ(out, before);

  EXPECT_EQ(run({"import", file}), exit_status::ok);
  EXPECT_EQ(out, "0 added, 0 changed, 0 deleted, 2 unchanged.\n");
  folder.execute("delete from outages");
  EXPECT_EQ(run({"import", file, "--dry-run"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("change 1 http://a.example/ (history)\n"));
}

TEST_F(HistoryVerb, SaysWhenNoneIsKept) {
  folder.execute("delete from siteOptions");
  EXPECT_EQ(run({"history", "1"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("history=on"));
}

TEST_F(HistoryVerb, AMonthHasItsTablesInEveryForm) {
  EXPECT_EQ(run({"month-report", "2024-05"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("Month 2024-05, as it was known 2024-05-17 12:00:00\n"));
  EXPECT_THAT(out, HasSubstr("83.33 %"));
  EXPECT_THAT(out, HasSubstr("refused"));
  EXPECT_EQ(run({"month-report", "2024-05", "--html", "-"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("<h1>May 2024</h1>"));
  EXPECT_EQ(run({"month-report", "2024-05", "--csv", "outages"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("idSite,began,ended,seconds,checks,url,cause\r\n1,\"2024-05-17 10:00:00\",\"2024-05-17 "
                             "10:15:00\",900,2,\"http://a.example/\",\"refused\"\r\n"));
  const Json json = runJson({"month-report", "2024-05", "--json"});
  EXPECT_EQ(json["month"][0]["downSeconds"], 900);
  EXPECT_NEAR(json["month"][0]["uptime"].get<double>(), 100.0 * 4500 / 5400, 1e-9);
  EXPECT_EQ(json["sites"].size(), 2U);
  EXPECT_TRUE(json["sites"][1]["uptime"].is_null());
  EXPECT_EQ(json["outages"][0]["cause"], "refused");
  EXPECT_EQ(json["slowest"][0]["idSite"], 1);
  EXPECT_TRUE(json["certificates"].empty());
}

TEST_F(HistoryVerb, AMonthIsTheLastOneWhereNoneIsNamedAndNoneToCome) {
  const Json json = runJson({"month-report", "--json"});
  EXPECT_EQ(json["month"][0]["month"], "2024-04");
  EXPECT_NE(run({"month-report", "2024-06"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("The month 2024-06 has not begun. The present one is 2024-05."));
  EXPECT_NE(run({"month-report", "May"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("\"May\" is no month. Write it as in \"2024-05\"."));
  EXPECT_NE(run({"month-report", "--json", "--html", "-"}), exit_status::ok);
  EXPECT_NE(run({"month-report", "--csv", "nothing"}), exit_status::ok);
}

TEST_F(HistoryVerb, MetricsAreThoseOfEverySite) {
  folder.execute("update sites set status = 1, success = 5, failure = 2, active = 1 where idSite = 1");
  EXPECT_EQ(run({"metrics"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("tarnwick_site_up{id=\"1\",url=\"http://a.example/\"} 1\n"));
  EXPECT_THAT(out, HasSubstr("result=\"failed\"} 2\n"));
  EXPECT_THAT(out, HasSubstr("part=\"whole\"} 0.1\n"));
  EXPECT_EQ(run({"metrics", "--file", folder.file("m.prom")}), exit_status::ok);
  EXPECT_EQ(out, "");
}

TEST_F(HistoryVerb, AStatusPageIsWrittenOnce) {
  EXPECT_EQ(run({"status-page", folder.file("public")}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("public/index.html"));
  EXPECT_THAT(bytesOfFile(folder.file("public/index.html")), HasSubstr("http://a.example/"));
}

TEST_F(HistoryVerb, TheReportHasItBesideIt) {
  EXPECT_EQ(run({"report"}), exit_status::ok);
  EXPECT_THAT(bytesOfFile(folder.file("reports/history.html")), HasSubstr("http://a.example/"));
  folder.execute("delete from siteOptions");
  std::filesystem::remove(folder.file("reports/history.html"));
  EXPECT_EQ(run({"report"}), exit_status::ok);
  EXPECT_FALSE(std::filesystem::exists(folder.file("reports/history.html")));
}

}  // namespace
}  // namespace tarnwick::testing
