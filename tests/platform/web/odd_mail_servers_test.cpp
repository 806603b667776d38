// SPDX-License-Identifier: MIT
// Mail servers that do what no mail server should: what is made of each, and that none of them holds up anything else.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <future>
#include <list>
#include <mutex>
#include <stop_token>
#include <thread>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "base/base64.h"
#include "mail_probe.h"
#include "support/test_certificates.h"

namespace tarnwick::testing {
namespace {

using namespace std::string_literals;
using Manner = EsmtpServer::Manner;
using Replies = EsmtpServer::Replies;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kTaken = "Message: 250 2.0.0 taken as 1";
constexpr const char* kBrokenOff = "The mail server <place> broke the connection off; the last step was ";
constexpr const char* kNoMail = "The mail server <place> did not answer in the language of mail.";

struct OddServer {
  const char* name;
  std::map<std::string, Replies> replies;
  /// What the user reads; the mail is delivered where it is the server's "taken".
  std::string words;
  std::map<std::string, Manner> manners = {};
  MailLogin login = MailLogin::automatic;
  /// Nobody logs in where it is empty.
  const char* user = "";
};

Replies offering(const std::string& words) { return {"250-mail.example\r\n250 " + words + "\r\n"}; }

/// The longest time for which the event loop was not come back to.
class LoopWatch {
 public:
  LoopWatch() {
    QObject::connect(&ticks_, &QTimer::timeout, &ticks_, [this] {
      const auto now = std::chrono::steady_clock::now();
      longest_ = std::max(longest_, now - std::exchange(last_, now));
    });
    ticks_.start(1);
  }
  std::chrono::steady_clock::duration longest() const {
    return std::max(longest_, std::chrono::steady_clock::now() - last_);
  }

 private:
  QTimer ticks_;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::duration longest_{};
};

/// How long the machine lets a thread wait at most that wants to run each millisecond: what it takes from this one, it
/// takes from the event loop, too.
class MachineWatch {
 public:
  std::chrono::steady_clock::duration longest() const { return longest_; }

 private:
  void watch(const std::stop_token& end) {
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any never;
    auto last = std::chrono::steady_clock::now();
    while (!end.stop_requested()) {
      never.wait_for(lock, end, std::chrono::milliseconds(1), [] { return false; });
      const auto now = std::chrono::steady_clock::now();
      longest_ = std::max(longest_.load(), now - std::exchange(last, now));
    }
  }

  std::atomic<std::chrono::steady_clock::duration> longest_{};
  std::jthread thread_{[this](const std::stop_token& end) { watch(end); }};
};

std::string withPlace(std::string words, std::uint16_t port) {
  if (const auto at = words.find("<place>"); at != std::string::npos) {
    words.replace(at, 7, "127.0.0.1 port " + std::to_string(port));
  }
  return words;
}

class OddMailServers : public ::testing::TestWithParam<OddServer> {};

TEST_P(OddMailServers, AreToldInTheirOwnWordsAndHoldNothingUp) {
  std::chrono::steady_clock::duration longest = std::chrono::hours(1);
  // What holds up does so each time, unlike a machine that is busy with something else.
  for (int round = 0; round < 4 && longest > std::chrono::milliseconds(50); ++round) {
    EsmtpServer server;
    for (const auto& [to, replies] : GetParam().replies) {
      server.replies[to] = replies;
    }
    server.manners = GetParam().manners;
    MailProbe probe;
    probe.server.login = GetParam().login;
    probe.server.user = GetParam().user;
    probe.server.secret = "a secret";
    probe.server.limit = std::chrono::seconds(20);
    const MachineWatch machine;
    const LoopWatch watch;
    EXPECT_EQ(probe.send(server.port()), withPlace(GetParam().words, server.port()));
    EXPECT_EQ(probe.delivered(), GetParam().words.find(": 250") != std::string::npos);
    longest = watch.longest() - machine.longest();
  }
  EXPECT_LE(longest, std::chrono::milliseconds(50));
}

const std::string kLong(5000, 'x');
const std::string kManyLines = [] {
  std::string lines;
  for (int i = 0; i < 200; ++i) {
    lines += "250-line\r\n";
  }
  return lines + "250 the last\r\n";
}();

INSTANTIATE_TEST_SUITE_P(
    Greeting, OddMailServers,
    ::testing::Values(
        OddServer{"refuses", {{"greeting", {"554 5.3.2 no mail here\r\n"}}}, "Greeting: 554 5.3.2 no mail here"},
        OddServer{"isBusy", {{"greeting", {"421 too many of you\r\n"}}}, "Greeting: 421 too many of you"},
        OddServer{"speaksSlowly", {}, kTaken, {{"greeting", Manner::byteByByte}}},
        OddServer{
            "isCut", {{"greeting", {"220 mail.exa"}}}, kBrokenOff + "Greeting."s, {{"greeting", Manner::thenClosed}}},
        OddServer{"hasManyLines", {{"greeting", {"220-mail.example\r\n220-no junk\r\n220 please\r\n"}}}, kTaken},
        OddServer{"hasNoWords", {{"greeting", {"220\r\n"}}}, kTaken},
        OddServer{"endsItsLinesOddly", {{"greeting", {"220 mail.example\n"}}}, kTaken},
        OddServer{"beginsWithTwoDigits",
                  {{"greeting", {"22 mail.example\r\n"}}},
                  kBrokenOff + "Greeting."s,
                  {{"greeting", Manner::thenClosed}}},
        OddServer{"isNewsInstead", {{"greeting", {"200 news.example\r\n"}}}, kTaken},
        OddServer{"isAnotherCode", {{"greeting", {"354 go on\r\n"}}}, kNoMail},
        OddServer{"isKnownTheOldWay", {{"EHLO", {"500 what?\r\n"}}, {"HELO", {"250 hello\r\n"}}}, kTaken},
        OddServer{
            "knowsNoGreeting", {{"EHLO", {"500 what?\r\n"}}, {"HELO", {"550 5.7.1 who?\r\n"}}}, "HELO: 550 5.7.1 who?"},
        OddServer{"leavesAtOnce",
                  {{"EHLO", {"421 4.3.2 closing\r\n"}}},
                  "EHLO: 421 4.3.2 closing",
                  {{"EHLO", Manner::thenClosed}}},
        OddServer{"offersALot", {{"EHLO", {kManyLines}}}, kTaken},
        OddServer{"offersInSmallLetters", {{"EHLO", offering("8bitmime size 100")}}, kTaken},
        OddServer{"offersAllAtTwice", {{"EHLO", offering("SIZE\r\n250 SIZE 10")}}, kTaken}),
    [](const auto& each) { return std::string(each.param.name); });

INSTANTIATE_TEST_SUITE_P(
    LogIn, OddMailServers,
    ::testing::Values(
        OddServer{"byLoginAlone",
                  {{"EHLO", offering("AUTH LOGIN")}, {"credentials", {"334 \r\n", "235 in\r\n"}}},
                  kTaken,
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"byPlainAlone", {{"EHLO", offering("AUTH PLAIN")}}, kTaken, {}, MailLogin::automatic, "me"},
        OddServer{"inSmallLetters",
                  {{"EHLO", offering("AUTH plain login")}, {"MAIL", {"530 log in\r\n"}}},
                  "The mail server <place> offers none of the ways to log in that are known here.",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"inTheOldForm",
                  {{"EHLO", offering("AUTH=LOGIN PLAIN")}, {"MAIL", {"530 5.7.0 log in\r\n"}}},
                  "MAIL FROM: 530 5.7.0 log in (the server offers no log-in)",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{
            "inBothForms",
            {{"EHLO", offering("AUTH=LOGIN\r\n250-AUTH LOGIN\r\n250 OK")}, {"credentials", {"334 \r\n", "235 in\r\n"}}},
            kTaken,
            {},
            MailLogin::automatic,
            "me"},
        OddServer{"withoutWays",
                  {{"EHLO", offering("AUTH")}, {"MAIL", {"530 log in\r\n"}}},
                  "MAIL FROM: 530 log in (the server offers no log-in)",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"asksInItsOwnWords",
                  {{"EHLO", offering("AUTH LOGIN")},
                   {"AUTH", {"334 dear user\r\n"}},
                   {"credentials", {"334 !!!\r\n", "235 in\r\n"}}},
                  kTaken,
                  {},
                  MailLogin::login,
                  "me"},
        OddServer{"asksWithoutWords",
                  {{"EHLO", offering("AUTH LOGIN")}, {"AUTH", {"334\r\n"}}, {"credentials", {"334\r\n", "235\r\n"}}},
                  kTaken,
                  {},
                  MailLogin::login,
                  "me"},
        OddServer{"hasAChallengeThatIsNone",
                  {{"EHLO", offering("AUTH CRAM-MD5")},
                   {"AUTH", {"334 !!!\r\n"}},
                   {"credentials", {"501 5.5.2 cancelled\r\n"}}},
                  "AUTH: 501 5.5.2 cancelled",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"isRefused",
                  {{"EHLO", offering("AUTH PLAIN")}, {"credentials", {"535 5.7.8 wrong\r\n"}}},
                  "AUTH: 535 5.7.8 wrong",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"isRefusedForNow",
                  {{"EHLO", offering("AUTH PLAIN")}, {"credentials", {"454 4.7.0 later\r\n"}}},
                  "AUTH: 454 4.7.0 later",
                  {},
                  MailLogin::automatic,
                  "me"},
        OddServer{"isRefusedAtTheWord",
                  {{"EHLO", offering("AUTH PLAIN")}, {"AUTH", {"504 5.5.4 not that\r\n"}}},
                  "AUTH: 504 5.5.4 not that",
                  {},
                  MailLogin::plain,
                  "me"},
        OddServer{"endsTheTalk",
                  {{"EHLO", offering("AUTH PLAIN")}, {"credentials", {"421 4.7.0 too often\r\n"}}},
                  "AUTH: 421 4.7.0 too often",
                  {{"credentials", Manner::thenClosed}},
                  MailLogin::automatic,
                  "me"},
        OddServer{"asksForEver",
                  {{"EHLO", offering("AUTH LOGIN")}, {"credentials", {"334 \r\n"}}},
                  "AUTH: 334",
                  {},
                  MailLogin::login,
                  "me"}),
    [](const auto& each) { return std::string(each.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Words, OddMailServers,
    ::testing::Values(
        OddServer{"areMissing",
                  {{"EHLO", {"250\r\n"}},
                   {"MAIL", {"250\r\n"}},
                   {"RCPT", {"250\r\n"}},
                   {"DATA", {"354\r\n"}},
                   {"message", {"250\r\n"}}},
                  "Message: 250"},
        OddServer{"areMissingWithTheRefusal", {{"RCPT", {"550\r\n"}}}, "RCPT TO: 550"},
        OddServer{"areLong", {{"RCPT", {"550 " + kLong + "\r\n"}}}, "RCPT TO: 550 " + kLong.substr(0, 393) + "..."},
        OddServer{"endOddly",
                  {{"MAIL", {"250 well\n"}},
                   {"RCPT", {"250-a\n250 b\n"}},
                   {"DATA", {"354 go on\n"}},
                   {"message", {"250 2.0.0 taken as 1\n"}}},
                  kTaken},
        OddServer{"holdANul", {{"RCPT", {"550 5.1.1 a\0b\r\n"s}}}, "RCPT TO: 550 5.1.1 a\\x00b"},
        OddServer{"holdANulAtFirst", {{"EHLO", {"250-a\0b\r\n250 c\0\r\n"s}}}, kTaken},
        OddServer{"areBeyondAscii",
                  {{"MAIL", {"550 gr\xc3\xbc\xc3\x9f dich \xfc\r\n"}}},
                  "MAIL FROM: 550 gr\xc3\xbc\xc3\x9f dich \\xfc"},
        OddServer{
            "haveTwoDigits", {{"MAIL", {"55 no\r\n"}}}, kBrokenOff + "MAIL FROM."s, {{"MAIL", Manner::thenClosed}}},
        OddServer{
            "haveFourDigits", {{"MAIL", {"2500 yes\r\n"}}}, kBrokenOff + "MAIL FROM."s, {{"MAIL", Manner::thenClosed}}},
        OddServer{"areNone", {{"RCPT", {"\r\n\r\n \r\n"}}}, kBrokenOff + "RCPT TO."s, {{"RCPT", Manner::thenClosed}}},
        OddServer{"changeTheCode", {{"RCPT", {"250-yes\r\n550 5.1.1 or no\r\n"}}}, "RCPT TO: 550 yes 5.1.1 or no"},
        OddServer{"areOfAnotherKind", {{"MAIL", {"354 go on\r\n"}}}, kNoMail},
        OddServer{"areNeitherYesNorNo", {{"DATA", {"250 well\r\n"}}}, kNoMail},
        OddServer{"areTaken", {{"message", {"354 more?\r\n"}}}, kNoMail},
        OddServer{"comeSlowly", {}, kTaken, {{"message", Manner::byteByByte}}},
        OddServer{"comeTwice", {{"MAIL", {"250 well\r\n250 well\r\n250 well\r\n250 well\r\n"}}}, kNoMail},
        OddServer{"comeTooEarly", {{"DATA", {"354 go on\r\n250 taken\r\n"}}}, kNoMail},
        OddServer{"comeBehindTheEnd",
                  {{"message", {"250 2.0.0 taken as 1\r\n550 or not\r\n"}}, {"QUIT", {"221 bye\r\n250 x\r\n" + kLong}}},
                  kTaken},
        OddServer{"areManyLines", {{"RCPT", {kManyLines}}}, kTaken},
        OddServer{"areOfTooLargeAMail",
                  {{"EHLO", offering("SIZE 10")}, {"MAIL", {"552 5.3.4 too large\r\n"}}},
                  "MAIL FROM: 552 5.3.4 too large"},
        OddServer{"areOfAnUnknownWord",
                  {{"EHLO", offering("SIZE")}, {"MAIL", {"555 5.5.4 SIZE?\r\n"}}},
                  "MAIL FROM: 555 5.5.4 SIZE?"}),
    [](const auto& each) { return std::string(each.param.name); });

const std::vector<std::pair<const char*, const char*>> kSteps{
    {"greeting", "Greeting"}, {"MAIL", "MAIL FROM"}, {"RCPT", "RCPT TO"}, {"DATA", "DATA"}, {"message", "Message"}};

TEST(OddMailServer, EachRefusalIsToldAtEachStepAlsoWithTheConnectionClosedBehindIt) {
  for (const auto& [at, step] : kSteps) {
    for (const std::string code : {"421", "450", "451", "452", "550", "552", "554"}) {
      for (const bool closed : {false, true}) {
        EsmtpServer server;
        server.replies[at] = {code + " " + code[0] + ".9.9 said at " + step + "\r\n"};
        if (closed) {
          server.manners[at] = Manner::thenClosed;
        }
        MailProbe probe;
        probe.message.text = std::string(200'000, 'x');
        EXPECT_EQ(probe.send(server.port()), step + ": "s + code + " " + code[0] + ".9.9 said at " + step) << closed;
        EXPECT_FALSE(probe.delivered());
      }
    }
  }
}

TEST(OddMailServer, EachSilenceIsWaitedForNoLongerThanAllowed) {
  std::vector<std::pair<const char*, const char*>> silences = kSteps;
  silences.insert(silences.end(), {{"EHLO", "EHLO"}, {"AUTH", "AUTH"}, {"credentials", "AUTH"}});
  struct Talk {
    EsmtpServer server;
    MailProbe probe;
  };
  std::list<Talk> talks;
  for (const auto& [at, step] : silences) {
    Talk& talk = talks.emplace_back();
    talk.server.replies["EHLO"] = offering("AUTH PLAIN");
    talk.server.replies[at] = {""};
    talk.probe.server.user = "me";
    talk.probe.server.secret = "a secret";
    talk.probe.server.limit = std::chrono::seconds(1);
    talk.probe.start(talk.server.port());
  }
  auto silence = silences.begin();
  for (Talk& talk : talks) {
    EXPECT_TRUE(waitUntil([&] { return talk.probe.reply.has_value(); }));
    EXPECT_EQ(talk.probe.reply.value_or(MailReply()).words,
              withPlace("The mail server <place> has not taken the mail within 1 second; the last step was "s +
                            silence->second + ".",
                        talk.server.port()));
    EXPECT_TRUE(waitUntil([&] { return talk.server.clientGone(); }));
    ++silence;
  }
}

TEST(OddMailServer, AMailThatIsTornInItsMiddleIsNotDelivered) {
  EsmtpServer server;
  server.manners["DATA"] = Manner::thenClosed;
  MailProbe probe;
  probe.message.text = std::string(8'000'000, 'x');
  EXPECT_EQ(probe.send(server.port()), withPlace(kBrokenOff + "Message."s, server.port()));
  EXPECT_FALSE(probe.delivered());
}

TEST(OddMailServer, LinesOfDotsArriveAsTheyAre) {
  const EsmtpServer server;
  MailProbe probe;
  probe.message.text = ".\n..\n.a\n\n.\n";
  EXPECT_EQ(probe.send(server.port()), kTaken);
  EXPECT_THAT(server.mail(), HasSubstr("\r\n\r\n..\r\n...\r\n..a\r\n\r\n..\r\n"));
}

TEST(OddMailServer, MayBeNamedByAnAddressOfEitherKind) {
  if (QTcpServer six; !six.listen(QHostAddress(QHostAddress::LocalHostIPv6))) {
    GTEST_SKIP() << "this machine has no ::1";
  }
  const EsmtpServer server({}, false, "::1");
  MailProbe probe;
  for (const char* const host : {"::1", "[::1]"}) {
    probe.server.host = host;
    EXPECT_EQ(probe.send(server.port()), kTaken);
  }
}

TEST(OddMailServer, WhatSomebodyPutsBehindTheSwitchToEncryptionIsNotHeard) {
  const TestCertificates certificates;
  if (!certificates.problem().empty()) {
    GTEST_SKIP() << "no certificates can be made: " << certificates.problem();
  }
  EsmtpServer server(certificates.good());
  server.replies["EHLO"] = offering("STARTTLS");
  server.replies["STARTTLS"] = {"220 go on\r\n250-mail.example\r\n250 AUTH PLAIN\r\n235 in\r\n"};
  MailProbe probe;
  probe.server.safety = MailSafety::startTls;
  probe.server.caFile = certificates.authorityFile();
  probe.server.user = "me";
  probe.server.secret = "a secret";
  probe.send(server.port());
  EXPECT_FALSE(probe.delivered());
  EXPECT_THAT(server.inClear(), Not(HasSubstr("AUTH")));
}

/// A mail server in a thread of its own that answers each line with what it says in `replies` in turn, and the last one
/// without an end, as fast as it is read.
class EndlessServer {
 public:
  explicit EndlessServer(std::vector<std::string> replies) {
    std::promise<std::uint16_t> listening;
    std::future<std::uint16_t> port = listening.get_future();
    thread_ = std::thread(
        [this, replies = std::move(replies), listening = std::move(listening)]() mutable { talk(replies, listening); });
    port_ = port.get();
  }
  ~EndlessServer() {
    isOver_ = true;
    thread_.join();
  }
  EndlessServer(const EndlessServer&) = delete;
  EndlessServer& operator=(const EndlessServer&) = delete;

  std::uint16_t port() const { return port_; }

 private:
  void talk(const std::vector<std::string>& replies, std::promise<std::uint16_t>& listening) const {
    constexpr int kWait = 5000;
    QTcpServer server;
    server.listen(QHostAddress(QHostAddress::LocalHost));
    listening.set_value(server.serverPort());
    server.waitForNewConnection(kWait);
    QTcpSocket* const client = server.nextPendingConnection();
    for (std::size_t i = 0; client != nullptr && i + 1 < replies.size(); ++i) {
      client->write(replies[i].c_str());
      client->waitForBytesWritten(kWait);
      client->waitForReadyRead(kWait);
      client->readAll();
    }
    while (client != nullptr && !isOver_ && client->state() == QAbstractSocket::ConnectedState) {
      for (int i = 0; i < 2000; ++i) {
        client->write(replies.back().c_str());
      }
      client->waitForBytesWritten(kWait);
    }
  }

  std::atomic_bool isOver_ = false;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

TEST(OddMailServer, AnEndlessReplyEndsTheTalkAndHoldsNothingUp) {
  const std::vector<std::string> all{"220 hi\r\n", "250 well\r\n", "250 well\r\n", "250 well\r\n"};
  struct Case {
    std::size_t after;
    const char* words;
    std::string end;
  };
  for (const Case& each : {Case{2, "250-and so on\r\n", kNoMail}, Case{3, "x", kNoMail},
                           Case{3, "550-5.1.1 no\r\n", "RCPT TO: 550 5.1.1 no no"},
                           Case{1, "250-and so on\r\n", "The mail server <place> "}}) {
    std::vector<std::string> replies(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(each.after));
    replies.emplace_back(each.words);
    const EndlessServer server(replies);
    MailProbe probe;
    probe.server.limit = std::chrono::seconds(2);
    const LoopWatch watch;
    EXPECT_THAT(probe.send(server.port()), ::testing::StartsWith(withPlace(each.end, server.port())));
    EXPECT_FALSE(probe.delivered());
    EXPECT_LE(watch.longest(), std::chrono::milliseconds(500));
  }
}

}  // namespace
}  // namespace tarnwick::testing
