// SPDX-License-Identifier: MIT
// Servers that ask for a name and a password, and what comes of it.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kRefusal = "who are you?";

// Asks everyone in this way, whatever they answer.
std::function<void(HostileVisit&)> asks(const std::string& lines) {
  return [lines](HostileVisit& visit) {
    for (;;) {
      visit.readRequest();
      visit.send("HTTP/1.1 401 Who\r\n" + lines + "\r\nContent-Length: 12\r\n\r\n" + kRefusal);
    }
  };
}

HostileBehaviour challenge(const std::string& name, const std::string& line, std::vector<HostileTrace> traces = {}) {
  return {.name = name,
          .outcome = takes(kRefusal),
          .serve = asks("WWW-Authenticate: " + line),
          .userName = "me",
          .password = "secret",
          .traces = std::move(traces)};
}

// The client tries again each time, and gives up in the end.
HostileBehaviour asksForEver(const std::string& name, const std::string& line) {
  HostileBehaviour behaviour = challenge(name, line, {{.name = name, .text = "secret"}});
  behaviour.outcome =
      fails(TransferFault::other, "The server {} asked for the user name and the password again and again.");
  return behaviour;
}

}  // namespace

HostileBehaviours challengeBehaviours() {
  return {
      challenge("BasicForEver", "Basic realm=\"x\"",
                {{.name = "BasicForEver", .text = "Authorization: Basic bWU6c2VjcmV0", .expected = true}}),
      challenge("DigestForEver", "Digest realm=\"x\", nonce=\"1\", qop=\"auth\"",
                {{.name = "DigestForEver", .text = "Authorization: Digest", .expected = true},
                 {.name = "DigestForEver", .text = "secret"}}),
      asksForEver("NtlmForEver", "NTLM"),
      challenge("NtlmOfGarbage", "NTLM !!!!not base64!!!!"),
      challenge("NtlmOfATruncatedMessage", "NTLM TlRMTVNTUAACAAAA"),
      asksForEver("NtlmWithAFarOffset", "NTLM TlRMTVNTUAACAAAA////f////38BAoKA////////////////////f////38="),
      challenge("NegotiateIsNotAnswered", "Negotiate", {{.name = "NegotiateIsNotAnswered", .text = "Authorization"}}),
      challenge("BearerIsNotAnswered", "Bearer realm=\"x\"",
                {{.name = "BearerIsNotAnswered", .text = "Authorization"}}),
      challenge("UnknownSchemeIsNotAnswered", "X-Own realm=\"x\"",
                {{.name = "UnknownSchemeIsNotAnswered", .text = "Authorization"}}),
      challenge("SeveralSchemesTakeTheSafest", "Basic realm=\"x\", Digest realm=\"x\", nonce=\"1\", qop=\"auth\"",
                {{.name = "SeveralSchemesTakeTheSafest", .text = "Authorization: Digest", .expected = true},
                 {.name = "SeveralSchemesTakeTheSafest", .text = "Authorization: Basic"}}),
      challenge("ChallengeWithoutWords", ""),
      challenge("ChallengeOfGarbage", ",,,=\"\\\"\x01\xff,Basic"),
      challenge("DigestWithoutNonce", "Digest realm=\"x\""),
      challenge("DigestOfAnUnknownKind", "Digest realm=\"x\", nonce=\"1\", algorithm=OWN-9",
                {{.name = "DigestOfAnUnknownKind", .text = "secret"}}),
      challenge("DigestWithAHugeNonce", "Digest realm=\"x\", nonce=\"" + std::string(50'000, 'n') + "\", qop=\"auth\""),
      asksForEver("DigestThatIsAlwaysStale", "Digest realm=\"x\", nonce=\"1\", qop=\"auth\", stale=true"),
      {.name = "ChallengeWithoutHeader",
       .outcome = takes(kRefusal),
       .serve = asks("X-Nothing: here"),
       .userName = "me",
       .password = "secret"},
      {.name = "ChallengeToAStranger",
       .outcome = takes(kRefusal),
       .serve = asks("WWW-Authenticate: Basic realm=\"x\""),
       .traces = {{.name = "ChallengeToAStranger", .text = "Authorization"}}},
      {.name = "HangsUpOnTheAnswerToItsChallenge",
       .outcome = fails(TransferFault::dropped, "The server {} closed the connection without an answer."),
       .serve =
           [](HostileVisit& visit) {
             if (visit.readRequest().find("Authorization") == std::string::npos) {
               visit.send(
                   "HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"x\"\r\nConnection: close\r\n"
                   "Content-Length: 0\r\n\r\n");
             }
           },
       .userName = "me",
       .password = "secret"},
      {.name = "ChallengeWithAnEndlessPage",
       .outcome = fails(TransferFault::timeOut, "The request took longer than 1 second."),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"x\"\r\n\r\n");
             for (;;) {
               visit.send(std::string(100, 'x'));
               visit.pause(std::chrono::milliseconds{20});
             }
           },
       .userName = "me",
       .password = "secret"},
  };
}

}  // namespace tarnwick::testing
