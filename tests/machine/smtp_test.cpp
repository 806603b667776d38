// SPDX-License-Identifier: MIT
#include "mail/smtp.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <ostream>

#include "platform/events/qt_event_loop.h"
#include "platform/events/qt_tcp_socket.h"
#include "support/real_mail_server.h"
#include "support/smtp_server.h"
#include "support/system.h"
#include "support/wait_until.h"

namespace tarnwick {
namespace {

using namespace std::string_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::RealMailServer;
using testing::SmtpServer;
using testing::SmtpStage;
using testing::waitUntil;

class SmtpExchange : public ::testing::Test {
 protected:
  bool send(const std::string& body = "body", const std::string& to = "to@example.com",
            const std::string& from = "from@example.com", const std::string& subject = "subject") {
    std::int16_t port = server.port16();
    return smtp(mail, pump).sendEmail("127.0.0.1", to, from, subject, body, port);
  }

  /// Looks in on the exchange while it waits.
  std::unique_ptr<Timer> meanwhile(std::function<void()> action) {
    auto timer = timers.makeTimer(std::move(action));
    timer->setInterval(milliseconds(10));
    timer->setEnabled(true);
    return timer;
  }

  /// Sends while the server keeps silent, or hangs up, after `commands` commands; then closes the program. The wait
  /// must have gone on until then, and end promptly.
  void expectWaitUntilClosing(std::size_t commands) {
    bool returned = false;
    int looks = 0;
    steady_clock::time_point closedAt;
    const auto look = meanwhile([&] {
      const bool thereNow = server.connections() > 0 && server.commandCount() == commands;
      if (thereNow && ++looks == 20) {
        EXPECT_FALSE(returned);
        closedAt = steady_clock::now();
        pump.close();
      }
    });
    EXPECT_FALSE(send());
    returned = true;
    EXPECT_EQ(looks, 20);
    EXPECT_LT(steady_clock::now() - closedAt, milliseconds(500));
    EXPECT_EQ(server.commandCount(), commands);
    EXPECT_TRUE(waitUntil([this] { return server.clientGone(); }));
  }

  SmtpServer server;
  QtEventPump pump;
  QtTimers timers;
  QtTcpSockets sockets;
  MailSocket mail{sockets};
};

TEST_F(SmtpExchange, SendsTheFiveCommandsByteForByte) {
  EXPECT_TRUE(send("line one\r\nline two", "you@example.com", "me@example.com", "the subject"));

  EXPECT_EQ(server.allReceived(),
            "MAIL FROM:<me@example.com>\r\n"
            "RCPT TO:<you@example.com>\r\n"
            "DATA\r\n"
            "Subject:the subject\r\n"
            "TO:<you@example.com>\r\n"
            "Tarnapplication: Tarnwick\r\n"
            "Website: https://www.tarnwick.example/\r\n"
            "\r\n"
            "line one\r\nline two\r\n\r\n.\r\n"
            "QUIT\r\n");
  EXPECT_EQ(server.commandCount(), 5U);
}

TEST_F(SmtpExchange, ClosesTheConnectionAtItsEnd) {
  EXPECT_TRUE(send());
  EXPECT_EQ(mail.winsock1().state(), SocketState::closed);
  EXPECT_TRUE(waitUntil([this] { return server.clientGone(); }));
}

TEST_F(SmtpExchange, CanBeRepeatedOnTheSameSocket) {
  EXPECT_TRUE(send("first"));
  EXPECT_TRUE(send("second"));
  EXPECT_EQ(server.connections(), 2);
  EXPECT_NE(server.received(SmtpStage::message).find("second"), std::string::npos);
}

TEST_F(SmtpExchange, SendsABodyOfAnyBytesAndAnySizeUnchanged) {
  std::string body = "NUL \0, bare \n and \r, \xff\xfe"s;
  body.append(4 * 1024 * 1024, 'x');
  EXPECT_TRUE(send(body));
  const std::string message = server.received(SmtpStage::message);
  ASSERT_GT(message.size(), body.size());
  EXPECT_TRUE(message.ends_with("\r\n\r\n" + body + "\r\n\r\n.\r\n"));
}

TEST_F(SmtpExchange, ALineOfASingleDotEndsTheMessageEarly) {
  // What follows the dot is taken for commands, after which this server expects nothing more.
  const auto look = meanwhile([this] {
    if (server.commandCount() == 5) {
      pump.close();
    }
  });
  send("before\r\n.\r\nafter");
  EXPECT_TRUE(server.received(SmtpStage::message).ends_with("\r\n\r\nbefore\r\n.\r\n"));
  EXPECT_EQ(server.received(SmtpStage::quit), "after\r\n");
}

TEST_F(SmtpExchange, ALineEndInASettingDoesNotBecomeACommandOrAHeader) {
  EXPECT_TRUE(
      send("body", "to@example.com>\r\nDATA\r\n", "from@example.com\r\nRSET\0"s, "subject\nBcc: other@example.com"));
  EXPECT_EQ(server.received(SmtpStage::mailFrom), "MAIL FROM:<from@example.comRSET>\r\n");
  EXPECT_EQ(server.received(SmtpStage::rcptTo), "RCPT TO:<to@example.com>DATA>\r\n");
  EXPECT_TRUE(server.received(SmtpStage::message).starts_with("Subject:subjectBcc: other@example.com\r\nTO:<to@"));
  EXPECT_EQ(server.received(SmtpStage::quit), "QUIT\r\n");
}

TEST_F(SmtpExchange, AGreetingThatRefusesIsNoFailureByItself) {
  server.reply(SmtpStage::greeting, "554 not today\r\n");
  EXPECT_TRUE(send());
  EXPECT_EQ(server.commandCount(), 5U);
}

class SmtpStep : public SmtpExchange, public ::testing::WithParamInterface<SmtpStage> {};

TEST_P(SmtpStep, RefusedMakesTheResultFalseAndTheOthersFollow) {
  server.reply(GetParam(), "550 refused\r\n");
  EXPECT_FALSE(send());
  EXPECT_EQ(server.commandCount(), 5U);
  EXPECT_EQ(server.received(SmtpStage::quit), "QUIT\r\n");
}

TEST_P(SmtpStep, RefusedWithACodeAloneIsRefused) {
  server.reply(GetParam(), "500\r\n");
  EXPECT_FALSE(send());
}

TEST_P(SmtpStep, RefusedForNowCountsAsSuccess) {
  server.reply(GetParam(), "499 try later\r\n");
  EXPECT_TRUE(send());
  EXPECT_EQ(server.commandCount(), 5U);
}

TEST_P(SmtpStep, AContinuationLineCountsAsSuccess) {
  server.reply(GetParam(), "550-refused, and here is why\r\n");
  EXPECT_TRUE(send());
}

TEST_P(SmtpStep, ACodeBeyond16BitsFailsTheExchange) {
  server.reply(GetParam(), "65786 not 250\r\n");
  EXPECT_FALSE(send());
  EXPECT_TRUE(waitUntil([this] { return server.clientGone(); }));
}

TEST_P(SmtpStep, SilenceIsWaitedForUntilTheProgramCloses) {
  server.reply(GetParam(), "");
  expectWaitUntilClosing(static_cast<std::size_t>(GetParam()));
}

TEST_P(SmtpStep, AConnectionThatDropsIsWaitedForUntilTheProgramCloses) {
  server.drop(GetParam());
  expectWaitUntilClosing(static_cast<std::size_t>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, SmtpStep,
                         ::testing::Values(SmtpStage::mailFrom, SmtpStage::rcptTo, SmtpStage::data, SmtpStage::message,
                                           SmtpStage::quit));

TEST_F(SmtpExchange, ASilentGreetingIsWaitedForUntilTheProgramCloses) {
  server.reply(SmtpStage::greeting, "");
  expectWaitUntilClosing(0);
}

TEST_F(SmtpExchange, AGreetingBeyond16BitsFailsTheExchange) {
  server.reply(SmtpStage::greeting, "220220 mail.example\r\n");
  EXPECT_FALSE(send());
}

TEST_F(SmtpExchange, AReplyInTwoChunksEndsTheNextWaitEarly) {
  server.reply(SmtpStage::mailFrom, "250 sen");
  server.reply(SmtpStage::rcptTo, "der ok\r\n");
  // The answers are one behind from here on: this is the one to RCPT TO, and it is taken for the one to DATA.
  server.reply(SmtpStage::data, "550 no such user\r\n");
  EXPECT_FALSE(send());
  EXPECT_EQ(server.commandCount(), 5U);
}

TEST_F(SmtpExchange, WaitsWithoutUsingTheProcessor) {
  server.reply(SmtpStage::greeting, "");
  const double before = tarnwick::testing::processorSeconds();
  auto timer = timers.makeTimer([this] { pump.close(); });
  timer->setInterval(milliseconds(600));
  timer->setEnabled(true);
  EXPECT_FALSE(send());
  EXPECT_LT(tarnwick::testing::processorSeconds() - before, 0.2);
}

TEST_F(SmtpExchange, HandlesEventsWhileItWaits) {
  server.reply(SmtpStage::rcptTo, "");
  int ticks = 0;
  const auto timer = meanwhile([&] {
    if (++ticks == 5) {
      server.say("250 at last\r\n");
    }
  });
  EXPECT_TRUE(send());
  EXPECT_GE(ticks, 5);
}

TEST_F(SmtpExchange, ASecondOneMeanwhileIsRefusedAtOnceAndDoesNoHarm) {
  server.reply(SmtpStage::rcptTo, "");
  bool tried = false;
  const auto timer = meanwhile([&] {
    if (!tried && server.commandCount() == 2) {
      tried = true;
      EXPECT_FALSE(send("intruder"));
      server.say("250 ok\r\n");
    }
  });
  EXPECT_TRUE(send("rightful"));
  EXPECT_TRUE(tried);
  EXPECT_EQ(server.connections(), 1);
  EXPECT_EQ(server.allReceived().find("intruder"), std::string::npos);

  server.reply(SmtpStage::rcptTo, "250 ok\r\n");
  EXPECT_TRUE(send("next"));
}

TEST_F(SmtpExchange, AnUnreachableServerIsAFailure) {
  std::int16_t port = 0;
  {
    const SmtpServer gone;
    port = gone.port16();
  }
  EXPECT_FALSE(smtp(mail, pump).sendEmail("127.0.0.1", "to", "from", "subject", "body", port));
  EXPECT_EQ(mail.winsock1().state(), SocketState::closed);
  EXPECT_TRUE(send());
}

class BadServerName : public SmtpExchange, public ::testing::WithParamInterface<std::string> {};

TEST_P(BadServerName, IsAFailure) {
  std::int16_t port = server.port16();
  EXPECT_FALSE(smtp(mail, pump).sendEmail(GetParam(), "to", "from", "subject", "body", port));
  EXPECT_EQ(server.connections(), 0);
}

INSTANTIATE_TEST_SUITE_P(Any, BadServerName, ::testing::Values("", "   ", "no such name", std::string(300, 'a')));

TEST_F(SmtpExchange, Port0Becomes25InTheCallersVariable) {
  std::int16_t port = 0;
  smtp(mail, pump).sendEmail("no such name", "to", "from", "subject", "body", port);
  EXPECT_EQ(port, 25);
}

TEST_F(SmtpExchange, AnotherPortStays) {
  std::int16_t port = server.port16();
  const std::int16_t before = port;
  EXPECT_TRUE(smtp(mail, pump).sendEmail("127.0.0.1", "to", "from", "subject", "body", port));
  EXPECT_EQ(port, before);
}

TEST_F(SmtpExchange, EndsAtOnceWhenTheProgramIsAlreadyClosing) {
  pump.close();
  EXPECT_FALSE(send());
  EXPECT_EQ(mail.winsock1().state(), SocketState::closed);
}

TEST_F(SmtpExchange, IsUnderstoodByAMailServerThatIsNotOurs) {
  const RealMailServer real;
  if (!real.available()) {
    GTEST_SKIP() << "aiosmtpd is not installed";
  }
  std::int16_t port = real.port16();
  const std::string body = "A page has changed:\r\n  http://example.com/?a=1&b=2\r\n\r\ngr\xc3\xbc\xc3\x9f dich";
  EXPECT_TRUE(smtp(mail, pump).sendEmail("127.0.0.1", "to@example.com", "from@example.com", "subject", body, port));
  EXPECT_EQ(real.envelope(), "from@example.com\nto@example.com\n");
  EXPECT_EQ(real.content(),
            "Subject:subject\r\nTO:<to@example.com>\r\nTarnapplication: Tarnwick\r\n"
            "Website: https://www.tarnwick.example/\r\n\r\n" +
                body + "\r\n\r\n");
}

}  // namespace
}  // namespace tarnwick
