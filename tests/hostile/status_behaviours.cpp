// SPDX-License-Identifier: MIT
// First lines that are odd, and answers that come at the wrong time.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

HostileOutcome notHttp() {
  return fails(TransferFault::other, "The server {} did not answer in the language of HTTP.");
}

std::function<void(HostileVisit&)> answers(std::string text) {
  return [text = std::move(text)](HostileVisit& visit) {
    visit.readRequest();
    visit.send(text);
  };
}

// A short page under this status line.
std::function<void(HostileVisit&)> begins(const std::string& statusLine) {
  return answers(statusLine + "\r\nContent-Length: 5\r\n\r\nhello");
}

std::string manyOf(const std::string& text, int times) {
  std::string result;
  for (int time = 0; time < times; ++time) {
    result += text;
  }
  return result;
}

std::string bytesFrom(unsigned seed, std::size_t size) {
  std::string bytes;
  while (bytes.size() < size) {
    seed = seed * 1664525U + 1013904223U;
    bytes += static_cast<char>(seed >> 24U);
  }
  return bytes;
}

}  // namespace

HostileBehaviours statusBehaviours() {
  const std::string page = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";
  return {
      {.name = "GarbageInsteadOfHttp", .outcome = notHttp(), .serve = answers(bytesFrom(7, 5000))},
      {.name = "ZerosInsteadOfHttp", .outcome = notHttp(), .serve = answers(std::string(5000, '\0'))},
      {.name = "AMailServer", .outcome = notHttp(), .serve = answers("220 mail.example ESMTP\r\n")},
      {.name = "VersionZeroPointNine", .outcome = notHttp(), .serve = answers("<html>old and bare</html>")},
      {.name = "VersionNinePointNine", .outcome = notHttp(), .serve = begins("HTTP/9.9 200 OK")},
      {.name = "VersionOnePointZero", .outcome = takes("hello"), .serve = begins("HTTP/1.0 200 OK")},
      {.name = "VersionTwoUnasked", .outcome = takes("hello"), .serve = begins("HTTP/2 200 OK")},
      {.name = "VersionWithoutNumber", .outcome = notHttp(), .serve = begins("HTTP/ 200 OK")},
      {.name = "SecondProtocolFrames",
       .outcome = notHttp(),
       .serve = answers(std::string("\0\0\x12\x04\0\0\0\0\0\0\x03\0\0\0\x64\0\x04\0\x40\0\0\0\x02\0\0\0\0", 27))},
      {.name = "NoReason", .outcome = takes("hello"), .serve = begins("HTTP/1.1 200")},
      {.name = "LineFeedsOnly",
       .outcome = takes("hello"),
       .serve = answers("HTTP/1.1 200 OK\nContent-Length: 5\n\nhello")},
      {.name = "StatusThatIsNoNumber", .outcome = notHttp(), .serve = begins("HTTP/1.1 OK fine")},
      {.name = "StatusZero", .outcome = notHttp(), .serve = begins("HTTP/1.1 000 Nothing")},
      {.name = "StatusOfTwoDigits", .outcome = notHttp(), .serve = begins("HTTP/1.1 20 OK")},
      {.name = "StatusOfFourDigits", .outcome = notHttp(), .serve = begins("HTTP/1.1 2000 OK")},
      {.name = "Status999", .outcome = takes("hello"), .serve = begins("HTTP/1.1 999 Go away")},
      {.name = "Status600", .outcome = takes("hello"), .serve = begins("HTTP/1.1 600 What")},
      {.name = "ErrorPage", .outcome = takes("hello"), .serve = begins("HTTP/1.1 500 Broken")},
      {.name = "EmptyAnswer",
       .outcome = fails(TransferFault::dropped, "The server {} closed the connection without an answer."),
       .serve = answers("")},
      {.name = "NoContentWithABody",
       .outcome = takes(""),
       .serve = answers("HTTP/1.1 204 No Content\r\nContent-Length: 5\r\n\r\nhello")},
      {.name = "NotModifiedWithABody",
       .outcome = takes(""),
       .serve = answers("HTTP/1.1 304 Not Modified\r\nContent-Length: 5\r\n\r\nhello")},
      {.name = "ProxyChallengeFromASite",
       .outcome = takes("hello"),
       .serve =
           answers("HTTP/1.1 407 Proxy\r\nProxy-Authenticate: Basic realm=\"x\"\r\nContent-Length: 5\r\n\r\nhello"),
       .userName = "me",
       .password = "secret"},
      {.name = "AsksToGoOnAHundredTimes",
       .outcome = takes("hello"),
       .serve = answers(manyOf("HTTP/1.1 100 Continue\r\n\r\n", 100) + page)},
      {.name = "HintsAHundredTimes",
       .outcome = takes("hello"),
       .serve = answers(manyOf("HTTP/1.1 103 Early Hints\r\nLink: </a.css>\r\n\r\n", 100) + page)},
      {.name = "AsksToGoOnForEver",
       .outcome = fails(TransferFault::tooLarge, "The header of the answer is too large."),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             for (;;) {
               visit.send(manyOf("HTTP/1.1 100 Continue\r\n\r\n", 500));
             }
           },
       .timeoutSeconds = 10},
      {.name = "SwitchesProtocolsUnasked",
       .outcome = notHttp(),
       .serve = answers("HTTP/1.1 101 Switching Protocols\r\nUpgrade: own\r\nConnection: Upgrade\r\n\r\n" + page)},
      {.name = "AnswersBeforeItIsAsked",
       .outcome = takes("hello"),
       .serve =
           [page](HostileVisit& visit) {
             visit.send(page);
             visit.readRequest();
           }},
      {.name = "AnswersAPostBeforeItIsRead",
       .outcome = takes("hello"),
       .serve = [page](HostileVisit& visit) { visit.send(page); },
       .method = "post"},
      {.name = "AnswersInSinglePackets",
       .outcome = takes("hello"),
       .serve =
           [page](HostileVisit& visit) {
             visit.readRequest();
             for (const char byte : page) {
               visit.send({&byte, 1});
               visit.pause(std::chrono::milliseconds{1});
             }
           },
       .timeoutSeconds = 10},
      {.name = "HeadWithABody", .outcome = takes(""), .serve = answers(page), .method = "head"},
      {.name = "MethodRefused", .outcome = takes("hello"), .serve = begins("HTTP/1.1 405 Not that"), .method = "brew"},
  };
}

}  // namespace tarnwick::testing
