// SPDX-License-Identifier: MIT
#include "behaviours.h"

#include <iterator>
#include <utility>

namespace tarnwick::testing {
namespace {

void serveSteadily(HostileVisit& visit) {
  visit.readRequest();
  visit.sendPage(kSteadyPage, "Content-Type: text/plain\r\n");
}

// Wants the password of whoever comes.
HostileBehaviour thief(const std::string& name, const std::string& host, const std::string& challenge) {
  return {.name = name,
          .outcome = takes("who are you?"),
          .serve =
              [challenge](HostileVisit& visit) {
                visit.readRequest();
                visit.send("HTTP/1.1 401 Who\r\nWWW-Authenticate: " + challenge +
                           "\r\nContent-Length: 12\r\n\r\nwho are you?");
              },
          .host = host};
}

}  // namespace

HostileBehaviours helpfulBehaviours() {
  constexpr const char* kElsewhere = "127.0.0.2";
  return {
      {.name = "Steady", .outcome = takes(kSteadyPage), .serve = serveSteadily},
      {.name = "Listener", .outcome = takes(kSteadyPage), .serve = serveSteadily, .host = kElsewhere},
      {.name = "OpenListener", .outcome = takes(kSteadyPage), .serve = serveSteadily, .host = kElsewhere},
      {.name = "CookieCollector", .outcome = takes(kSteadyPage), .serve = serveSteadily, .host = kElsewhere},
      {.name = "ClosedPort",
       .outcome = fails(TransferFault::refused, "The connection to {} was refused."),
       .door = HostileDoor::closed},
      thief("BasicThief", kElsewhere, "Basic realm=\"x\""),
      thief("DigestThief", kElsewhere, "Digest realm=\"x\", nonce=\"1\", qop=\"auth\""),
      thief("NtlmThief", kElsewhere, "NTLM"),
      thief("NearThief", "127.0.0.1", "Basic realm=\"x\""),
  };
}

HostileBehaviours allBehaviours() {
  HostileBehaviours all;
  for (auto group : {silentBehaviours(), lengthBehaviours(), codingBehaviours(), statusBehaviours(), headerBehaviours(),
                     redirectBehaviours(), challengeBehaviours(), secureBehaviours(), brokenBehaviours(),
                     largeBehaviours(), ftpBehaviours(), helpfulBehaviours()}) {
    all.insert(all.end(), std::make_move_iterator(group.begin()), std::make_move_iterator(group.end()));
  }
  return all;
}

}  // namespace tarnwick::testing
