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
using ::testing::HasSubstr;

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

TEST_F(RunOptions, AnErrorPageBecomesNoBaselineWhenOnlyPagesAreAdopted) {
  set("adopt", "pages only");
  const std::int16_t id = addPage("/a", "");
  server.respond("/a", {.status = 503, .body = "We will be back soon."});
  program.startRun();
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_EQ(column(id, "content_compare"), "NULL");
  EXPECT_EQ(program.data().reasonOf(id), "there is no baseline yet");
  EXPECT_THAT(program.data().remark(), HasSubstr("error page"));
  server.respond("/a", {.body = "The page itself."});
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(id, "content_compare"), "The page itself.");
}

TEST_F(RunOptions, APageOfLessThanHalfTheUsualLengthBecomesNoBaselineAtOnce) {
  set("adopt", "pages only");
  const std::int16_t id = addPage("/a", std::string(1000, 'x'));
  program.startRun();
  program.data().clearContentCompare(id);
  server.respond("/a", {.body = "short"});
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(id, "content_compare"), "");
  EXPECT_EQ(column(id, "status"), "0");
  EXPECT_THAT(program.data().remark(), HasSubstr("less than half"));
  program.stopRun();
  program.startRun();
  EXPECT_EQ(column(id, "content_compare"), "short") << "by then it is the usual length";
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

TEST_F(MailLimit, LetsAServerThatSaysGoodbyeAfterARefusalEndTheExchange) {
  data.setOption(kAllSites, "mailLimit", "3600");
  server.reply(SmtpStage::greeting, "220 mail.example ESMTP\r\n");
  server.reply(SmtpStage::rcptTo, "550 5.1.1 no such user\r\n");
  server.reply(SmtpStage::data, "554 5.5.1 Error: no valid recipients\r\n");
  server.reply(SmtpStage::message, "221 2.7.0 Error: I can break rules, too. Goodbye.\r\n");
  server.hangUpAfter(SmtpStage::message);
  alerts.sendAlerts(3);
  EXPECT_TRUE(alerts.mailOutcome().lost);
  EXPECT_THAT(alerts.mailOutcome().why, HasSubstr("refused"));
}

TEST_F(MailLimit, LetsACloseThatComesWithTheLastBytesEndTheExchange) {
  data.setOption(kAllSites, "mailLimit", "3600");
  server.reply(SmtpStage::greeting, "421 too busy\r\n");
  server.hangUpAfter(SmtpStage::greeting);
  alerts.sendAlerts(3);
  EXPECT_TRUE(alerts.mailOutcome().lost);
  EXPECT_EQ(server.connections(), 1);
}

TEST_F(MailLimit, TakesAMailForDeliveredWhenTheCloseComesWithTheGoodbye) {
  data.setOption(kAllSites, "mailLimit", "3600");
  server.reply(SmtpStage::greeting, "220 ready\r\n");
  server.hangUpAfter(SmtpStage::quit);
  alerts.sendAlerts(3);
  EXPECT_FALSE(alerts.mailOutcome().lost) << alerts.mailOutcome().why;
}

TEST_F(MailLimit, LeavesOutTheOtherMailsOfAPassToAServerThatWasTooSlow) {
  data.setOption(kAllSites, "mailLimit", "1");
  alerts.beginPass();
  alerts.sendAlerts(3);
  EXPECT_FALSE(alerts.mailOutcome().leftOut);
  EXPECT_EQ(alerts.mailOutcome().why,
            "The mail server 127.0.0.1 has not taken the mail within 1 second; the other mails of this pass to it are "
            "left out.");
  alerts.sendAlerts(3);
  EXPECT_TRUE(alerts.mailOutcome().leftOut);
  EXPECT_TRUE(alerts.mailOutcome().lost);
  EXPECT_EQ(server.connections(), 1);

  server.reply(SmtpStage::greeting, "220 ready\r\n");
  data.setControl("smtp", "localhost");
  alerts.sendAlerts(3);
  EXPECT_FALSE(alerts.mailOutcome().lost) << "another server is asked";

  alerts.endPass();
  data.setControl("smtp", "127.0.0.1");
  alerts.sendAlerts(3);
  EXPECT_FALSE(alerts.mailOutcome().lost) << "and so is this one in the next pass";
  EXPECT_EQ(server.connections(), 3);
}

/// Sockets whose connection is never made, as to a server behind a broken network.
class StuckSockets final : public TcpSocketMaker {
 public:
  std::unique_ptr<TcpSocket> makeTcpSocket() override { return std::make_unique<Socket>(*this); }
  int tries = 0;
  std::function<void()> onConnect{};

 private:
  class Socket final : public TcpSocket {
   public:
    explicit Socket(StuckSockets& all) : all_(all) {}
    void connectTo(const std::string&, std::uint16_t) override {
      ++all_.tries;
      connecting_ = true;
      if (all_.onConnect) {
        all_.onConnect();
      }
    }
    SocketState state() const override { return connecting_ ? SocketState::connecting : SocketState::closed; }
    void send(const std::string&) override {}
    std::string getData() override { return {}; }
    void close() override { connecting_ = false; }
    void onDataArrival(std::function<void()>) override {}
    std::string localHostName() const override { return "host"; }
    std::string localIP() const override { return "127.0.0.1"; }

   private:
    StuckSockets& all_;
    bool connecting_ = false;
  };
};

/// Sites that are down, each with a mail to a server that nobody reaches.
struct DeadMailExchange : ::testing::Test, ProgramFixture {
  DeadMailExchange() {
    stuck.start();
    stuck.data().setOption(kAllSites, "mailLimit", "1");
    stuck.data().setControl("cemail", true);
    stuck.data().setControl("smtp", "mail.example");
    for (int i = 0; i < 3; ++i) {
      ids.push_back(addPage("/" + std::to_string(i), "page"));
    }
    folder.execute("update sites set content_compare = 'other', alertEmail = 1, email = 'a@b.cd'");
  }

  StuckSockets sockets;
  Program stuck{folder.path(), machine.services().with({.sockets = &sockets}), view};
  std::vector<std::int16_t> ids;
};

TEST_F(DeadMailExchange, HoldsUpAPassOnceAndIsToldForEverySite) {
  stuck.startRun();
  EXPECT_EQ(sockets.tries, 1);
  ASSERT_EQ(view.lostMails.size(), 3U);
  EXPECT_EQ(std::ranges::count_if(view.lostMails, [](const auto& mail) { return mail.second; }), 2);
  EXPECT_THAT(view.whyLost.front(), HasSubstr("mail.example has not taken the mail within 1 second"));
  EXPECT_EQ(folder.queryText("select sum(failure) from sites"), "3");

  stuck.run().runTestPass(1);
  EXPECT_EQ(sockets.tries, 2) << "each pass asks once";
}

TEST_F(DeadMailExchange, IsGivenUpByStopAndThePassOfAStartAtOnceIsShown) {
  stuck.data().setOption(kAllSites, "mailLimit", "3600");
  const auto click = machine.timers().makeTimer([&] {
    sockets.onConnect = {};
    stuck.stopRun();
    stuck.startRun();
    EXPECT_EQ(view.lamps.back(), RunState::start);
    stuck.data().setControl("cemail", false);
  });
  click->setInterval(std::chrono::milliseconds(20));
  sockets.onConnect = [&] { click->setEnabled(true); };
  view.onJudged = [&](std::int16_t) { click->setEnabled(false); };
  stuck.startRun();
  EXPECT_THAT(view.whyLost.front(), HasSubstr("given up"));
  EXPECT_TRUE(stuck.run().running());
  EXPECT_EQ(view.lamps.back(), RunState::pause);
  EXPECT_EQ(folder.queryText("select sum(failure) from sites"), "3");
}

}  // namespace
}  // namespace tarnwick::testing
