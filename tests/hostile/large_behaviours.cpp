// SPDX-License-Identifier: MIT
// Pages at the bound of what is taken, and beyond.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kPiece = 65536;

HostileOutcome tooLarge() { return fails(TransferFault::tooLarge, "The page is larger than 64 MiB."); }

void sendMuch(HostileVisit& visit, std::size_t bytes) {
  const std::string piece(kPiece, 'x');
  for (std::size_t sent = 0; sent < bytes; sent += kPiece) {
    visit.send(std::string_view(piece).substr(0, bytes - sent));
  }
}

// A page of so many bytes that either announces its length or ends with the connection.
std::function<void(HostileVisit&)> sendsPageOf(std::size_t bytes, bool announced) {
  return [bytes, announced](HostileVisit& visit) {
    visit.readRequest();
    visit.send("HTTP/1.1 200 OK\r\n" +
               (announced ? "Content-Length: " + std::to_string(bytes) + "\r\n" : std::string()) + "\r\n");
    sendMuch(visit, bytes);
  };
}

}  // namespace

HostileBehaviours largeBehaviours() {
  return {
      {.name = "PageOf64Mebibytes",
       .outcome = takes("x", kLargestPage),
       .serve = sendsPageOf(kLargestPage, false),
       .timeoutSeconds = 30,
       .mebibytes = 600},
      {.name = "PageOfOneByteMore",
       .outcome = tooLarge(),
       .serve = sendsPageOf(kLargestPage + 1, false),
       .timeoutSeconds = 30,
       .mebibytes = 160},
      {.name = "PageOfOneByteMoreAnnounced",
       .outcome = tooLarge(),
       .serve = sendsPageOf(kLargestPage + 1, true),
       .timeoutSeconds = 30},
      {.name = "EndlessBody",
       .outcome = tooLarge(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\n\r\n");
             for (;;) {
               sendMuch(visit, kPiece);
             }
           },
       .timeoutSeconds = 30,
       .mebibytes = 160},
      {.name = "EndlessChunks",
       .outcome = tooLarge(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
             for (;;) {
               visit.send("10000\r\n");
               sendMuch(visit, kPiece);
               visit.send("\r\n");
             }
           },
       .timeoutSeconds = 30,
       .mebibytes = 160},
      {.name = "EndlessRedirectPage",
       .outcome = fails(TransferFault::tooManyRedirects, "The server redirected more than 20 times."),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nLocation: /next\r\n\r\n");
             for (;;) {
               sendMuch(visit, kPiece);
             }
           },
       .timeoutSeconds = 30},
  };
}

}  // namespace tarnwick::testing
