// SPDX-License-Identifier: MIT
// Connections that end at the wrong moment.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

HostileOutcome withoutAnswer() {
  return fails(TransferFault::dropped, "The server {} closed the connection without an answer.");
}
HostileOutcome cutShort() {
  return fails(TransferFault::dropped, "The server {} broke the connection off during its answer.");
}

std::function<void(HostileVisit&)> closesAfter(const std::string& text) {
  return [text](HostileVisit& visit) {
    visit.readRequest();
    visit.send(text);
  };
}

std::function<void(HostileVisit&)> resetsAfter(const std::string& text) {
  return [text](HostileVisit& visit) {
    visit.readRequest();
    visit.send(text);
    if (!text.empty()) {
      // A reset throws away what the other side has not read yet.
      visit.pause(std::chrono::milliseconds{100});
    }
    visit.reset();
  };
}

}  // namespace

HostileBehaviours brokenBehaviours() {
  return {
      {.name = "NobodyListens",
       .outcome = fails(TransferFault::refused, "The connection to {} was refused."),
       .door = HostileDoor::closed},
      {.name = "ClosesAtOnce", .outcome = withoutAnswer(), .serve = [](HostileVisit&) {}},
      {.name = "ResetsAtOnce", .outcome = withoutAnswer(), .serve = [](HostileVisit& visit) { visit.reset(); }},
      {.name = "ClosesInTheRequest",
       .outcome = withoutAnswer(),
       .serve =
           [](HostileVisit& visit) {
             visit.readSome(4);
             visit.hangUp();
           }},
      {.name = "ResetsInTheRequest",
       .outcome = withoutAnswer(),
       .serve =
           [](HostileVisit& visit) {
             visit.readSome(4);
             visit.reset();
           }},
      {.name = "ResetsAfterTheRequest", .outcome = withoutAnswer(), .serve = resetsAfter("")},
      {.name = "ClosesInTheStatusLine", .outcome = withoutAnswer(), .serve = closesAfter("HTTP/1.1 2")},
      {.name = "ResetsInTheStatusLine", .outcome = withoutAnswer(), .serve = resetsAfter("HTTP/1.1 2")},
      {.name = "ClosesAfterTheStatusLine", .outcome = cutShort(), .serve = closesAfter("HTTP/1.1 200 OK\r\n")},
      {.name = "ClosesInTheHeader", .outcome = cutShort(), .serve = closesAfter("HTTP/1.1 200 OK\r\nContent-Le")},
      {.name = "ClosesBeforeTheEndOfTheHeader",
       .outcome = cutShort(),
       .serve = closesAfter("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n")},
      {.name = "ResetsInTheHeader", .outcome = cutShort(), .serve = resetsAfter("HTTP/1.1 200 OK\r\nContent-Le")},
      {.name = "ClosesInTheBody",
       .outcome = cutShort(),
       .serve = closesAfter("HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhello")},
      {.name = "ResetsInTheBody",
       .outcome = cutShort(),
       .serve = resetsAfter("HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhello")},
      {.name = "ResetsABodyWithoutLength", .outcome = cutShort(), .serve = resetsAfter("HTTP/1.1 200 OK\r\n\r\nhello")},
      {.name = "ResetsInAChunk",
       .outcome = cutShort(),
       .serve = resetsAfter("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n64\r\nhello")},
      {.name = "ClosesAfterAskingToGoOn",
       .outcome = withoutAnswer(),
       .serve = closesAfter("HTTP/1.1 100 Continue\r\n\r\n")},
      {.name = "EndsABodyWithoutLength",
       .outcome = takes("hello"),
       .serve = closesAfter("HTTP/1.1 200 OK\r\n\r\nhello")},
      {.name = "ResetsAfterAWholePage",
       .outcome = takes("hello"),
       .serve = resetsAfter("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello")},
      {.name = "HangsUpOnAPost",
       .outcome = withoutAnswer(),
       .serve = [](HostileVisit& visit) { visit.readRequest(); },
       .method = "post"},
  };
}

}  // namespace tarnwick::testing
