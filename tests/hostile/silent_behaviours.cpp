// SPDX-License-Identifier: MIT
// Servers that keep a visitor waiting.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

HostileOutcome timesOut() { return fails(TransferFault::timeOut, "The request took longer than 1 second."); }

// Sends `piece` again and again, with a pause after each.
std::function<void(HostileVisit&)> drips(std::string start, std::string piece, milliseconds interval) {
  return [start = std::move(start), piece = std::move(piece), interval](HostileVisit& visit) {
    visit.readRequest();
    visit.send(start);
    for (;;) {
      visit.send(piece);
      visit.pause(interval);
    }
  };
}

}  // namespace

HostileBehaviours silentBehaviours() {
  return {
      {.name = "AcceptsNoConnection", .outcome = timesOut(), .door = HostileDoor::full},
      {.name = "LeavesTheConnectionInTheQueue", .outcome = timesOut(), .door = HostileDoor::unanswered},
      {.name = "SaysNothing", .outcome = timesOut(), .serve = [](HostileVisit& visit) { visit.stay(); }},
      {.name = "ReadsNothing",
       .outcome = timesOut(),
       .serve = [](HostileVisit& visit) { visit.pause(std::chrono::minutes{1}); }},
      {.name = "FallsSilentInTheStatusLine",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.");
             visit.stay();
           }},
      {.name = "FallsSilentInTheHeader",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Le");
             visit.stay();
           }},
      {.name = "FallsSilentBeforeTheBody",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n");
             visit.stay();
           }},
      {.name = "FallsSilentInTheBody",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf of");
             visit.stay();
           }},
      {.name = "FallsSilentBeforeTheLastChunk",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n");
             visit.stay();
           }},
      {.name = "AnswersOneByteAtATimeForEver",
       .outcome = timesOut(),
       .serve = drips("HTTP/1.1 200 OK\r\n\r\n", "x", milliseconds{50})},
      {.name = "SpellsItsStatusLineForEver",
       .outcome = timesOut(),
       .serve = drips("HTTP/1.1 200 ", "O", milliseconds{50})},
      {.name = "SendsAHeaderLineNowAndThenForEver",
       .outcome = timesOut(),
       .serve = drips("HTTP/1.1 200 OK\r\n", "X-More: of it\r\n", milliseconds{50})},
      {.name = "SendsALineEndNowAndThenForEver",
       .outcome = fails(TransferFault::other, "The server {} did not answer in the language of HTTP."),
       .serve = drips("", "\r\n", milliseconds{50})},
      {.name = "SendsItsBodyAsSlowlyAsAllowed",
       .outcome = takes("0123456789"),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n");
             for (const char digit : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'}) {
               visit.send({&digit, 1});
               visit.pause(milliseconds{30});
             }
           },
       .timeoutSeconds = 10},
      {.name = "AsksToGoOnForEverButSlowly",
       .outcome = timesOut(),
       .serve = drips("", "HTTP/1.1 100 Continue\r\n\r\n", milliseconds{50})},
      {.name = "AnswersHalfAPostOnly",
       .outcome = timesOut(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.stay();
           },
       .method = "post"},
  };
}

}  // namespace tarnwick::testing
