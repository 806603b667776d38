// SPDX-License-Identifier: MIT
// Header lines with what does not belong in them.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

HostileOutcome largeHeader() { return fails(TransferFault::tooLarge, "The header of the answer is too large."); }
HostileOutcome notHttp() {
  return fails(TransferFault::other, "The server {} did not answer in the language of HTTP.");
}

// A short page with these header lines.
std::function<void(HostileVisit&)> heads(const std::string& lines) {
  return [lines](HostileVisit& visit) {
    visit.readRequest();
    visit.send("HTTP/1.1 200 OK\r\n" + lines + "\r\nContent-Length: 5\r\n\r\nhello");
  };
}

std::function<void(HostileVisit&)> serves(const std::string& headers, const std::string& body) {
  return [headers, body](HostileVisit& visit) {
    visit.readRequest();
    visit.sendPage(body, headers);
  };
}

const std::string& everyByte() {
  static const std::string bytes = [] {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
      all += static_cast<char>(byte);
    }
    return all + "\xc3\x28\xf8\x88\x80\x80\x80 it's '); drop table sites; --";
  }();
  return bytes;
}

}  // namespace

HostileBehaviours headerBehaviours() {
  const std::string html = "<html>not a picture</html>";
  return {
      {.name = "EndlessHeaders",
       .outcome = largeHeader(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\n");
             for (long line = 0;; ++line) {
               visit.send("X-" + std::to_string(line) + ": " + std::string(1000, 'x') + "\r\n");
             }
           },
       .timeoutSeconds = 10},
      {.name = "OneEndlessHeaderLine",
       .outcome = largeHeader(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nX-Long: ");
             for (;;) {
               visit.send(std::string(10'000, 'x'));
             }
           },
       .timeoutSeconds = 10},
      {.name = "EndlessStatusLine",
       .outcome = largeHeader(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 ");
             for (;;) {
               visit.send(std::string(10'000, 'O'));
             }
           },
       .timeoutSeconds = 10},
      {.name = "EndlessTextWithoutHttp",
       .outcome = notHttp(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             for (;;) {
               visit.send(std::string(10'000, 'x'));
             }
           },
       .timeoutSeconds = 10},
      {.name = "FoldedHeader", .outcome = takes("hello"), .serve = heads("X-Folded: one\r\n two\r\n\tthree")},
      {.name = "FoldedLength",
       .outcome = fails(TransferFault::dropped, "The answer of the server {} is damaged: its length is not clear."),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Length:\r\n 5\r\n\r\nhello");
           }},
      {.name = "LineOfACarriageReturn", .outcome = takes("hello"), .serve = heads("X-A: b\rX-C: d")},
      {.name = "NulInAHeader", .outcome = notHttp(), .serve = heads(std::string("X-A: b\0c", 8))},
      {.name = "InvalidTextInAHeader", .outcome = takes("hello"), .serve = heads("X-A: \xff\xfe\xc3\x28\x01\x02\x7f")},
      {.name = "HeaderWithoutColon", .outcome = notHttp(), .serve = heads("this is no header")},
      {.name = "HeaderWithoutName", .outcome = takes("hello"), .serve = heads(": no name")},
      {.name = "BlankBeforeTheColon", .outcome = takes("hello"), .serve = heads("X-A : b")},
      {.name = "FirstHeaderIsFolded", .outcome = notHttp(), .serve = heads(" folded onto nothing")},
      {.name = "CookieOf100Kilobytes",
       .outcome = takes("hello"),
       .serve = heads("Set-Cookie: huge=" + std::string(100'000, 'c'))},
      {.name = "AThousandCookies",
       .outcome = takes("hello"),
       .serve =
           [](HostileVisit& visit) {
             std::string cookies;
             for (int cookie = 0; cookie < 1000; ++cookie) {
               cookies += "Set-Cookie: c" + std::to_string(cookie) + "=" + std::string(100, 'v') + "\r\n";
             }
             visit.readRequest();
             visit.sendPage("hello", cookies);
           },
       .timeoutSeconds = 10},
      {.name = "CookieForAnotherHost",
       .outcome = takes(kSteadyPage),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nSet-Cookie: tracked=yes; Domain=127.0.0.2\r\nLocation: " +
                        visit.urlOf("CookieCollector") + "\r\nContent-Length: 0\r\n\r\n");
           },
       .traces = {{.name = "CookieCollector", .text = "GET /", .expected = true},
                  {.name = "CookieCollector", .text = "tracked"}}},
      {.name = "TypeThatLies", .outcome = takes(html), .serve = serves("Content-Type: image/png\r\n", html)},
      {.name = "TypeOfGarbage",
       .outcome = takes(html),
       .serve = serves("Content-Type: ;;;charset=\xff\xff; charset=utf-7\r\n", html)},
      {.name = "EveryByteInTheBody", .outcome = takes(everyByte()), .serve = serves("", everyByte())},
      {.name = "NulBytesOnly",
       .outcome = takes(std::string(4096, '\0')),
       .serve = serves("Content-Type: text/plain; charset=utf-8\r\n", std::string(4096, '\0'))},
      {.name = "RefreshAndOtherOrders",
       .outcome = takes("hello"),
       .serve = heads("Refresh: 0; url=http://127.0.0.2:1/\r\nStrict-Transport-Security: max-age=99999999\r\n"
                      "Alt-Svc: h2=\"127.0.0.2:1\"\r\nRetry-After: 99999\r\nKeep-Alive: timeout=99999")},
      {.name = "RangeNobodyAskedFor",
       .outcome = takes("hello"),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send(
                 "HTTP/1.1 206 Partial Content\r\nContent-Range: bytes 1000-1004/9999\r\n"
                 "Content-Length: 5\r\n\r\nhello");
           }},
  };
}

}  // namespace tarnwick::testing
