// SPDX-License-Identifier: MIT
// What a run does otherwise when its user wants it to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "alerts/alert_dispatch.h"
#include "engine/run_controller.h"
#include "support/program_fixture.h"
#include "support/smtp_server.h"

namespace tarnwick::testing {
namespace {

using std::chrono::seconds;

struct RunOptions : ::testing::Test, ProgramFixture {
  RunOptions() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  void set(const std::string& name, const std::string& value) { program.data().setOption(kAllSites, name, value); }
  void tick() { machine.handTimers.advance(seconds(1)); }
  /// As another program adds a site.
  void addFromElsewhere(int id, const std::string& path) {
    server.respond(path, {.body = "new"});
    folder.execute("insert into sites (idSite, url, method, active, tInterval) values (" + std::to_string(id) + ", '" +
                   server.url(path) + "', 'get', 1, 10)");
  }
};

TEST_F(RunOptions, ANewSiteWaitsForTheNextStartWhenNothingIsSet) {
  addPage("/a", "hello");
  program.startRun();
  addFromElsewhere(7, "/new");
  machine.handTimers.advance(seconds(700));
  EXPECT_EQ(column(7, "lastChecked"), "NULL");
}

TEST_F(RunOptions, ANewSiteIsTestedByTheNextTickWhenTheyAreTakenOnAtOnce) {
  set("newSites", "at once");
  addPage("/a", "hello");
  program.startRun();
  tick();
  addFromElsewhere(7, "/new");
  tick();
  EXPECT_EQ(column(7, "status"), "1");
  const auto requests = server.requests().size();
  machine.handTimers.advance(seconds(30));
  EXPECT_EQ(server.requests().size(), requests) << "It was tested again before its time.";
}

TEST_F(RunOptions, AFailedFetchBecomesTheBaselineWhenNothingIsSet) {
  const std::int16_t id = addSite("http://127.0.0.1:1/");
  program.startRun();
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_NE(column(id, "content_compare"), "NULL");
}

TEST_F(RunOptions, AFailedFetchBecomesNoBaselineWhenOnlyPagesAreAdopted) {
  set("adopt", "pages only");
  const std::int16_t id = addSite("http://127.0.0.1:1/");
  program.startRun();
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_EQ(column(id, "failure"), "1");
  EXPECT_EQ(column(id, "content_compare"), "NULL");

  server.respond("/page", {.body = "good"});
  folder.execute("update sites set url = '" + server.url("/page") + "'");
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(id, "content_compare"), "good");
  EXPECT_EQ(column(id, "status"), "1");
}

TEST_F(RunOptions, ASiteMayAdoptOtherwiseThanAllOthers) {
  set("adopt", "pages only");
  const std::int16_t one = addSite("http://127.0.0.1:1/");
  const std::int16_t other = addSite("http://127.0.0.1:1/");
  program.data().setOption(other, "adopt", "anything");
  program.startRun();
  EXPECT_EQ(column(one, "status"), "0");
  EXPECT_EQ(column(other, "status"), "1");
}

/// A mail server that never greets, and a site whose failure is mailed through it.
struct MailLimit : ::testing::Test {
  MailLimit() {
    server.reply(SmtpStage::greeting, "");
    data.setControl("cemail", true);
    data.setControl("smtp", "127.0.0.1");
    data.addSite(3);
    data.updateSites(3, "http://example.org/", "get", true, 10, true, "ann@example.org", "", "");
  }

  ProgramFolder folder;
  TestServices machine;
  SmtpServer server;
  m data{folder.path(), machine.services()};
  AlertDispatch alerts{data.database(), data, data, data.mail(), machine.services(), server.port16()};
};

TEST_F(MailLimit, BoundsTheWaitForASilentServer) {
  data.setOption(kAllSites, "mailLimit", "1");
  const auto begin = std::chrono::steady_clock::now();
  alerts.sendAlerts(3);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(900));
  EXPECT_TRUE(waitUntil([&] { return server.clientGone(); }));
}

TEST_F(MailLimit, LetsAConnectionThatIsGoneEndTheExchange) {
  data.setOption(kAllSites, "mailLimit", "3600");
  server.drop(SmtpStage::greeting);
  alerts.sendAlerts(3);
  EXPECT_EQ(server.connections(), 1);
}

TEST_F(MailLimit, LetsStopEndTheExchange) {
  data.setOption(kAllSites, "mailLimit", "3600");
  const auto timer = machine.timers().makeTimer([&] { alerts.giveUpMail(); });
  timer->setInterval(std::chrono::milliseconds(20));
  timer->setEnabled(true);
  alerts.sendAlerts(3);
  EXPECT_TRUE(waitUntil([&] { return server.clientGone(); }));
}

}  // namespace
}  // namespace tarnwick::testing
