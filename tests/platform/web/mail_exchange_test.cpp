// SPDX-License-Identifier: MIT
// What is said to a mail server, and what is made of its words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTimer>

#include "base/base64.h"
#include "mail_probe.h"
#include "support/test_certificates.h"
#include "support/whole_match.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kOffersLogin = "250-mail.example\r\n250-AUTH LOGIN PLAIN\r\n250 8BITMIME\r\n";

class MailExchangeTest : public ::testing::Test {
 protected:
  std::string place() const { return "127.0.0.1 port " + std::to_string(server_.port()); }

  EsmtpServer server_;
  MailProbe probe_;
};

TEST_F(MailExchangeTest, GreetsAndHandsTheMailOver) {
  probe_.message.to = {"me@example.org", "You <you@example.org>"};
  EXPECT_EQ(probe_.send(server_.port()), "Message: 250 2.0.0 taken as 1");
  EXPECT_TRUE(probe_.delivered());
  EXPECT_FALSE(probe_.whileAnswered);
  EXPECT_THAT(server_.spoken(), WholeMatch("EHLO [^|]+\\|MAIL FROM:<watch@example.org>\\|RCPT TO:<me@example.org>\\|"
                                           "RCPT TO:<you@example.org>\\|DATA(\\|QUIT)?"));
  EXPECT_TRUE(waitUntil([&] { return server_.clientGone(); }));
}

TEST_F(MailExchangeTest, GreetsWithAWholeNameOrAnAddress) {
  probe_.send(server_.port());
  EXPECT_THAT(server_.lines().at(0).text, WholeMatch("EHLO (\\[127\\.0\\.0\\.1\\]|[A-Za-z0-9-]+\\.[A-Za-z0-9.-]+)"));
}

TEST_F(MailExchangeTest, AServerThatKnowsNoNewGreetingIsGreetedTheOldWay) {
  server_.replies["EHLO"] = {"502 what?\r\n"};
  probe_.send(server_.port());
  EXPECT_TRUE(probe_.delivered());
  EXPECT_THAT(server_.spoken(), HasSubstr("|HELO "));
}

TEST_F(MailExchangeTest, TellsTheServersWordsWithTheStepInWhichTheyCame) {
  struct Case {
    const char* at;
    const char* reply;
    const char* words;
  };
  for (const Case& each :
       {Case{"greeting", "554 go away\r\n", "Greeting: 554 go away"},
        Case{"MAIL", "530 5.7.0 Must issue a STARTTLS command first\r\n",
             "MAIL FROM: 530 5.7.0 Must issue a STARTTLS command first"},
        Case{"RCPT", "550 5.1.1 <me@example.org>: Recipient address rejected: User unknown\r\n",
             "RCPT TO: 550 5.1.1 <me@example.org>: Recipient address rejected: User unknown"},
        Case{"RCPT", "450 4.2.0 greylisted\r\n", "RCPT TO: 450 4.2.0 greylisted"},
        Case{"DATA", "451 4.3.0 later\r\n", "DATA: 451 4.3.0 later"},
        Case{"message", "554-5.7.1 looks like\r\n554 5.7.1 spam\r\n", "Message: 554 5.7.1 looks like spam"},
        Case{"message", "452 full\r\n", "Message: 452 full"}}) {
    EsmtpServer server;
    server.replies[each.at] = {each.reply};
    EXPECT_EQ(probe_.send(server.port()), each.words);
    EXPECT_FALSE(probe_.delivered()) << each.words;
  }
}

TEST_F(MailExchangeTest, ARecipientThatIsRefusedRefusesTheMailForAll) {
  probe_.message.to = {"me@example.org", "you@example.org"};
  server_.replies["RCPT"] = {"250 well\r\n", "550 5.1.1 unknown\r\n"};
  EXPECT_EQ(probe_.send(server_.port()), "RCPT TO: 550 5.1.1 unknown");
  EXPECT_EQ(server_.mail(), "");
}

TEST_F(MailExchangeTest, AServerThatHangsUpIsToldWithTheLastStep) {
  for (const auto& [at, step] : {std::pair{"greeting", "Greeting"},
                                 {"EHLO", "EHLO"},
                                 {"MAIL", "MAIL FROM"},
                                 {"RCPT", "RCPT TO"},
                                 {"DATA", "DATA"},
                                 {"message", "Message"}}) {
    EsmtpServer server;
    server.replies[at] = {std::nullopt};
    EXPECT_EQ(probe_.send(server.port()), "The mail server 127.0.0.1 port " + std::to_string(server.port()) +
                                              " broke the connection off; the last step was " + step + ".");
  }
}

TEST_F(MailExchangeTest, ASilentServerIsWaitedForAsLongAsAllowed) {
  for (const auto& [at, step] : {std::pair{"greeting", "Greeting"}, {"RCPT", "RCPT TO"}, {"message", "Message"}}) {
    EsmtpServer server;
    server.replies[at] = {""};
    probe_.server.limit = std::chrono::seconds(1);
    EXPECT_EQ(probe_.send(server.port()), "The mail server 127.0.0.1 port " + std::to_string(server.port()) +
                                              " has not taken the mail within 1 second; the last step was " + step +
                                              ".");
    EXPECT_TRUE(waitUntil([&] { return server.clientGone(); }));
  }
}

TEST_F(MailExchangeTest, NothingStandsStillForAServerThatTakesNoLeave) {
  server_.replies["QUIT"] = {""};
  probe_.start(server_.port());
  std::chrono::steady_clock::duration longest{};
  auto last = std::chrono::steady_clock::now();
  QTimer ticks;
  QObject::connect(&ticks, &QTimer::timeout, &ticks, [&] {
    const auto now = std::chrono::steady_clock::now();
    longest = std::max(longest, now - last);
    last = now;
  });
  ticks.start(5);
  EXPECT_TRUE(waitUntil([&] { return probe_.reply.has_value() && server_.clientGone(); }));
  EXPECT_TRUE(probe_.delivered());
  EXPECT_LT(longest, std::chrono::milliseconds(500));
  EXPECT_THAT(server_.spoken(), HasSubstr("|QUIT"));
}

TEST_F(MailExchangeTest, ALineWithoutAnEndIsNotKept) {
  server_.replies["MAIL"] = {"550-" + std::string(3'000'000, 'x')};
  probe_.server.limit = std::chrono::seconds(2);
  EXPECT_THAT(probe_.send(server_.port()).size(), ::testing::Lt(600U));
  EXPECT_FALSE(probe_.delivered());
}

TEST_F(MailExchangeTest, WhatIsNoMailServerIsSaidToBeNone) {
  server_.replies["greeting"] = {"HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n", std::nullopt};
  probe_.server.limit = std::chrono::seconds(1);
  EXPECT_THAT(probe_.send(server_.port()), StartsWith("The mail server " + place()));
  EXPECT_FALSE(probe_.delivered());
}

TEST_F(MailExchangeTest, WordsOfManyLinesAreOneLineThatIsSafeToShow) {
  server_.replies["RCPT"] = {"550-5.7.1 \x1b[31mred\r\n550-5.7.1 \xff\r\n550 5.7.1 end\r\n"};
  EXPECT_EQ(probe_.send(server_.port()), "RCPT TO: 550 5.7.1 \\x1b[31mred \\xff end");
}

TEST_F(MailExchangeTest, AServerThatIsNotThereIsTold) {
  std::uint16_t port = 0;
  {
    const EsmtpServer gone;
    port = gone.port();
  }
  EXPECT_EQ(probe_.send(port), "The connection to 127.0.0.1 port " + std::to_string(port) + " was refused.");
  probe_.server.host = "no.such.host.invalid";
  EXPECT_EQ(probe_.send(25), "The name of the host no.such.host.invalid could not be found.");
}

TEST_F(MailExchangeTest, IsCutOffWithoutAnAnswer) {
  server_.replies["RCPT"] = {""};
  probe_.start(server_.port());
  EXPECT_TRUE(waitUntil([&] { return server_.spoken().find("RCPT") != std::string::npos; }));
  EXPECT_TRUE(probe_.mail->isUnderWay());
  probe_.mail->cancel();
  EXPECT_FALSE(probe_.mail->isUnderWay());
  EXPECT_TRUE(waitUntil([&] { return server_.clientGone(); }));
  EXPECT_FALSE(probe_.reply);
  EXPECT_THAT(server_.spoken(), Not(HasSubstr("DATA")));
}

TEST_F(MailExchangeTest, TheAnswerMaySendTheNextMailOrEndItAll) {
  int mails = 0;
  std::function<void(MailReply)> next = [&](const MailReply& reply) {
    EXPECT_TRUE(reply.delivered) << reply.words;
    if (++mails < 3) {
      probe_.mail->send(probe_.server, probe_.message, next);
    } else {
      probe_.mail.reset();
    }
  };
  probe_.server.port = server_.port();
  probe_.mail->send(probe_.server, probe_.message, next);
  EXPECT_TRUE(waitUntil([&] { return mails == 3; }));
  EXPECT_EQ(server_.connections(), 3);
}

TEST_F(MailExchangeTest, LogsInAsItIsTold) {
  probe_.server.user = "me";
  probe_.server.secret = "a secret";
  const std::string plain = encodeBase64(std::string("\0me\0a secret", 12));
  const auto spokenWith = [&](MailLogin login, EsmtpServer::Replies auth) {
    EsmtpServer server;
    server.replies["EHLO"] = {"250-mail.example\r\n250 AUTH LOGIN PLAIN CRAM-MD5 XOAUTH2 GSSAPI NTLM DIGEST-MD5\r\n"};
    server.replies["AUTH"] = {"334 \r\n"};
    server.replies["credentials"] = std::move(auth);
    probe_.server.login = login;
    EXPECT_EQ(probe_.send(server.port()), "Message: 250 2.0.0 taken as 1");
    return server.spoken();
  };
  const std::string in = "235 2.7.0 you are in\r\n";
  EXPECT_THAT(spokenWith(MailLogin::plain, {in}), HasSubstr("|AUTH PLAIN|" + plain + "|MAIL"));
  EXPECT_THAT(spokenWith(MailLogin::login, {"334 UGFzc3dvcmQ6\r\n", in}),
              HasSubstr("|AUTH LOGIN|" + encodeBase64("me") + "|" + encodeBase64("a secret") + "|MAIL"));
  EXPECT_THAT(spokenWith(MailLogin::xoauth2, {in}),
              HasSubstr("|AUTH XOAUTH2|" + encodeBase64("user=me\1auth=Bearer a secret\1\1") + "|MAIL"));
  // In clear the password is not shown to whoever listens.
  EXPECT_THAT(spokenWith(MailLogin::automatic, {in}), AllOf(HasSubstr("|AUTH CRAM-MD5|"), Not(HasSubstr(plain))));
}

TEST_F(MailExchangeTest, ARefusedLogInIsToldWithoutWhatItConsistedOf) {
  probe_.server.user = "me";
  probe_.server.secret = "hunter22";
  probe_.server.login = MailLogin::plain;
  const std::string plain = encodeBase64(std::string("\0me\0hunter22", 12));
  server_.replies["EHLO"] = {kOffersLogin};
  server_.replies["credentials"] = {"535 5.7.8 hunter22 is wrong, and so is " + plain + "\r\n"};
  EXPECT_EQ(probe_.send(server_.port()), "AUTH: 535 5.7.8 *** is wrong, and so is ***");
  EXPECT_THAT(server_.spoken(), Not(HasSubstr("MAIL")));
}

TEST_F(MailExchangeTest, ATokenThatIsNotTakenIsToldInTheWordsBehindTheCode) {
  probe_.server.user = "me";
  probe_.server.secret = "token";
  probe_.server.login = MailLogin::xoauth2;
  server_.replies["EHLO"] = {"250-mail.example\r\n250 AUTH XOAUTH2\r\n"};
  server_.replies["credentials"] = {"334 " + encodeBase64(R"({"status":"400","schemes":"Bearer"})") + "\r\n"};
  EXPECT_EQ(probe_.send(server_.port()), R"(AUTH: 334 {"status":"400","schemes":"Bearer"})");
}

TEST_F(MailExchangeTest, NoKnownWayToLogInIsTold) {
  probe_.server.user = "me";
  probe_.server.secret = "a secret";
  server_.replies["EHLO"] = {"250-mail.example\r\n250 AUTH GSSAPI\r\n"};
  EXPECT_EQ(probe_.send(server_.port()),
            "The mail server " + place() + " offers none of the ways to log in that are known here.");
}

TEST_F(MailExchangeTest, AServerThatOffersNoLogInTakesTheMailOrSaysWhyNot) {
  probe_.server.user = "me";
  probe_.server.secret = "a secret";
  probe_.send(server_.port());
  EXPECT_TRUE(probe_.delivered());
  server_.replies["MAIL"] = {"530 5.7.0 log in first\r\n"};
  EXPECT_EQ(probe_.send(server_.port()), "MAIL FROM: 530 5.7.0 log in first (the server offers no log-in)");
}

TEST_F(MailExchangeTest, LettersBeyondAsciiInAnAddressNeedAServerThatKnowsThem) {
  probe_.message.to = {"jürgen@bücher.example"};
  EXPECT_EQ(probe_.send(server_.port()),
            "The mail server " + place() + " takes no mail addresses with other letters than those of ASCII.");
  EXPECT_THAT(server_.spoken(), Not(HasSubstr("MAIL")));
  server_.replies["EHLO"] = {"250-mail.example\r\n250-SMTPUTF8\r\n250 8BITMIME\r\n"};
  probe_.send(server_.port());
  EXPECT_TRUE(probe_.delivered());
  EXPECT_THAT(server_.spoken(), AllOf(HasSubstr("MAIL FROM:<watch@example.org> SMTPUTF8"),
                                      HasSubstr("RCPT TO:<jürgen@xn--bcher-kva.example>")));
  // A domain alone has a name for every server.
  EsmtpServer old;
  probe_.message.to = {"me@bücher.example"};
  probe_.send(old.port());
  EXPECT_TRUE(probe_.delivered());
  EXPECT_THAT(old.spoken(), HasSubstr("RCPT TO:<me@xn--bcher-kva.example>"));
}

TEST_F(MailExchangeTest, NoValueBecomesACommand) {
  using namespace std::string_literals;
  for (const std::string& bad : {"me@example.org>\r\nRCPT TO:<you@example.org"s, "me@example.org> SIZE=1"s, ""s,
                                 "me@example.org\nX: y"s, "me\0@example.org"s, "a@b,c@d"s, "<a@b> <c@d"s, "@"s}) {
    probe_.message.to = {bad};
    EXPECT_THAT(probe_.send(server_.port()), StartsWith("The mail address \"")) << bad;
    probe_.message.to = {"me@example.org"};
    probe_.message.from = bad;
    EXPECT_THAT(probe_.send(server_.port()), StartsWith("The mail address \"")) << bad;
    probe_.message.from = "watch@example.org";
  }
  for (const std::string& bad : {"mail.example\r\nQUIT"s, "a/b"s, "user@mail.example"s, ""s, "a b"s, "a\0b"s}) {
    probe_.server.host = bad;
    EXPECT_THAT(probe_.send(server_.port()), StartsWith("The name of the mail server \"")) << bad;
  }
  probe_.server.host = "127.0.0.1";
  for (const std::string& bad : {"a\r\nQUIT"s, "a\0b"s, "a\1auth=Bearer x"s}) {
    probe_.server.user = bad;
    EXPECT_THAT(probe_.send(server_.port()), HasSubstr("holds a character that cannot be sent")) << bad;
    probe_.server.user = "me";
    probe_.server.secret = bad;
    EXPECT_THAT(probe_.send(server_.port()), HasSubstr("holds a character that cannot be sent")) << bad;
  }
  probe_.message.to.clear();
  probe_.server.secret.clear();
  EXPECT_EQ(probe_.send(server_.port()), "The mail has no recipient.");
  EXPECT_EQ(server_.connections(), 0);
}

class SecuredMail : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!certificates_.problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << certificates_.problem();
    }
    probe_.server.safety = MailSafety::startTls;
    probe_.server.caFile = certificates_.authorityFile();
    probe_.server.user = "me";
    probe_.server.secret = "a secret";
  }
  static void offer(EsmtpServer& server) {
    server.replies["EHLO"] = {"250-mail.example\r\n250 STARTTLS\r\n", kOffersLogin};
  }

  TestCertificates certificates_;
  MailProbe probe_;
};

TEST_F(SecuredMail, NothingButTheGreetingIsSaidInClear) {
  EsmtpServer server(certificates_.good());
  offer(server);
  EXPECT_EQ(probe_.send(server.port()), "Message: 250 2.0.0 taken as 1");
  EXPECT_THAT(server.spoken(), HasSubstr("|AUTH PLAIN|" + encodeBase64(std::string("\0me\0a secret", 12)) + "|MAIL"));
  for (std::size_t i = 2; i < server.lines().size(); ++i) {
    EXPECT_TRUE(server.lines()[i].secured) << server.lines()[i].text;
  }
  EXPECT_EQ(server.lines().at(1).text, "STARTTLS");
}

TEST_F(SecuredMail, FromTheFirstByteOn) {
  EsmtpServer server(certificates_.good(), true);
  server.replies["EHLO"] = {kOffersLogin};
  probe_.server.safety = MailSafety::tls;
  EXPECT_EQ(probe_.send(server.port()), "Message: 250 2.0.0 taken as 1");
  for (const EsmtpServer::Line& line : server.lines()) {
    EXPECT_TRUE(line.secured) << line.text;
  }
}

TEST_F(SecuredMail, WhereItIsRequiredNoByteOfTheLogInGoesInClear) {
  // A server that offers none, one that cannot, one that refuses, and ones that somebody on the way speaks for.
  const std::string login = kOffersLogin;
  const std::vector<std::pair<EsmtpServer::Replies, std::string>> answers{
      {{login}, ""},
      {{"250-mail.example\r\n250-STARTTLS\r\n250 AUTH PLAIN\r\n"}, "454 4.7.0 not now\r\n"},
      {{"250-mail.example\r\n250-STARTTLS\r\n250 AUTH PLAIN\r\n"}, "220 go\r\n250-mail.example\r\n250 AUTH PLAIN\r\n"},
      {{"502 what?\r\n"}, ""},
  };
  const std::vector<std::string> words{"The mail server .* offers no encryption, and it is required\\.",
                                       "STARTTLS: 454 4\\.7\\.0 not now", ".+", "EHLO: 502 what\\?"};
  for (std::size_t i = 0; i < answers.size(); ++i) {
    EsmtpServer server(certificates_.good());
    server.replies["EHLO"] = answers[i].first;
    server.replies["STARTTLS"] = {answers[i].second};
    EXPECT_THAT(probe_.send(server.port()), WholeMatch(words[i]));
    EXPECT_FALSE(probe_.delivered());
    EXPECT_THAT(server.inClear(), AllOf(Not(HasSubstr("AUTH")), Not(HasSubstr("MAIL")))) << i;
    EXPECT_THAT(server.spoken(), Not(HasSubstr("AUTH"))) << i;
  }
}

TEST_F(SecuredMail, AServerThatCannotProveItselfGetsNothing) {
  const auto wordsFor = [&](const TlsIdentity& identity) {
    EsmtpServer server(identity);
    offer(server);
    const std::string words = probe_.send(server.port());
    EXPECT_FALSE(probe_.delivered());
    EXPECT_THAT(server.spoken(), Not(HasSubstr("AUTH")));
    return words;
  };
  const std::string start = "The certificate of the server 127\\.0\\.0\\.1 port [0-9]+ could not be verified: ";
  EXPECT_THAT(wordsFor(certificates_.wrongHost()), WholeMatch(start + "it was issued for another host\\."));
  EXPECT_THAT(wordsFor(certificates_.expired()), WholeMatch(start + "certificate has expired\\."));
  EXPECT_THAT(wordsFor(certificates_.selfSigned()), WholeMatch(start + "self-signed certificate\\."));
  EXPECT_THAT(wordsFor(certificates_.ofAStranger()), WholeMatch(start + ".+"));
  probe_.server.caFile.clear();
  EXPECT_THAT(wordsFor(certificates_.good()), WholeMatch(start + ".+"));
  probe_.server.caFile = "/no/such/file.pem";
  EXPECT_EQ(wordsFor(certificates_.good()), "The file of trusted certificates /no/such/file.pem could not be read.");
}

TEST_F(SecuredMail, ThatMeetsAPlainServerSaysSo) {
  const EsmtpServer server;
  probe_.server.safety = MailSafety::tls;
  EXPECT_THAT(probe_.send(server.port()), StartsWith("No secure connection to 127.0.0.1 port "));
}

}  // namespace
}  // namespace tarnwick::testing
