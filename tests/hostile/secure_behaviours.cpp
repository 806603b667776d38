// SPDX-License-Identifier: MIT
// TLS that goes wrong: certificates that prove nothing, and ends at every stage.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kUnanswered = "The server {} closed the connection without an answer.";
constexpr const char* kBroken = "The server {} broke the connection off during its answer.";

HostileOutcome untrusted(const std::string& reason) {
  return fails(TransferFault::certificate, "The certificate of the server {} could not be verified: " + reason + ".");
}
HostileOutcome unsecured(const std::string& reason) {
  return fails(TransferFault::secureConnection, "No secure connection to {} could be made" + reason + ".");
}

HostileBehaviour shows(const std::string& name, const std::string& identity, HostileOutcome outcome) {
  return {.name = name,
          .outcome = std::move(outcome),
          .serve =
              [](HostileVisit& visit) {
                visit.readRequest();
                visit.sendPage(kSteadyPage);
              },
          .scheme = "https",
          .identity = identity,
          .userName = "me",
          .password = "secret",
          .traces = {{.name = name, .text = "GET /", .expected = identity == "good"}}};
}

// Secure from the first byte on, with a certificate that is all right.
HostileBehaviour secure(const std::string& name, HostileOutcome outcome, std::function<void(HostileVisit&)> serve) {
  return {.name = name,
          .outcome = std::move(outcome),
          .serve = std::move(serve),
          .scheme = "https",
          .identity = "good",
          .timeoutSeconds = 3};
}

// Bytes of its own making where TLS is expected.
HostileBehaviour raw(const std::string& name, HostileOutcome outcome, std::function<void(HostileVisit&)> serve) {
  return {.name = name, .outcome = std::move(outcome), .serve = std::move(serve), .scheme = "https"};
}

// The beginning of a handshake record: "server hello" of TLS 1.2 with room for 74 bytes (RFC 5246, section 7.4.1.3).
std::string startOfServerHello() { return {"\x16\x03\x03\x00\x4a\x02\x00\x00\x46\x03\x03", 11}; }

// A whole "server hello" that agrees to SSL 3.0 only.
std::string serverHelloOfSsl3() {
  return std::string("\x16\x03\x00\x00\x31\x02\x00\x00\x2d\x03\x00", 11) + std::string(32, 'r') +
         std::string("\x00\x00\x2f\x00\x00\x05\xff\x01\x00\x01\x00", 11);
}

std::function<void(HostileVisit&)> afterHello(const std::string& bytes) {
  return [bytes](HostileVisit& visit) {
    visit.readSome(100);
    visit.send(bytes);
  };
}

}  // namespace

HostileBehaviours secureBehaviours() {
  return {
      shows("CertificateThatIsGood", "good", takes(kSteadyPage)),
      shows("CertificateThatHasExpired", "expired", untrusted("certificate has expired")),
      shows("CertificateOfTheFuture", "future", untrusted("certificate is not yet valid")),
      shows("CertificateOfItsOwn", "self", untrusted("self-signed certificate")),
      shows("CertificateOfAnotherHost", "other", untrusted("it was issued for another host")),
      shows("CertificateOfAStrangeAuthority", "strange", untrusted("unable to get local issuer certificate")),
      {.name = "SecurePageLeadsToAnOpenOne",
       .outcome = takes(kSteadyPage),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nLocation: " + visit.urlOf("OpenListener") +
                        "\r\nSet-Cookie: safe=yes; Secure\r\nContent-Length: 0\r\n\r\n");
           },
       .scheme = "https",
       .identity = "good",
       .userName = "me",
       .password = "secret",
       .timeoutSeconds = 3,
       .traces = {{.name = "OpenListener", .text = "GET /", .expected = true},
                  {.name = "OpenListener", .text = "safe=yes"},
                  {.name = "OpenListener", .text = "Authorization"}}},
      secure("HangsUpAfterTheHandshake", fails(TransferFault::dropped, kUnanswered),
             [](HostileVisit& visit) {
               visit.hangUp();
               visit.stay();
             }),
      secure("HangsUpAfterTheSecureRequest", fails(TransferFault::dropped, kUnanswered),
             [](HostileVisit& visit) {
               visit.readRequest();
               visit.hangUp();
               visit.stay();
             }),
      secure("HangsUpInTheSecureBody", fails(TransferFault::dropped, kBroken),
             [](HostileVisit& visit) {
               visit.readRequest();
               visit.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf of");
               visit.hangUp();
               visit.stay();
             }),
      secure("EndsASecureBodyWithoutAGoodbye", fails(TransferFault::dropped, kBroken),
             [](HostileVisit& visit) {
               visit.readRequest();
               visit.send("HTTP/1.1 200 OK\r\n\r\nis this all?");
               visit.hangUp();
               visit.stay();
             }),
      secure("ResetsInTheSecureBody", fails(TransferFault::dropped, kBroken),
             [](HostileVisit& visit) {
               visit.readRequest();
               visit.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf of");
               visit.reset();
             }),
      secure("SilentAfterTheHandshake", fails(TransferFault::timeOut, "The request took longer than 3 seconds."),
             [](HostileVisit& visit) { visit.stay(); }),
      raw("SilentInsteadOfTls", fails(TransferFault::timeOut, "The request took longer than 1 second."),
          [](HostileVisit& visit) { visit.stay(); }),
      raw("SilentInTheHandshake", fails(TransferFault::timeOut, "The request took longer than 1 second."),
          [](HostileVisit& visit) {
            visit.readSome(100);
            visit.send(startOfServerHello());
            visit.stay();
          }),
      raw("HangsUpInsteadOfTls", unsecured(": the server closed the connection"), [](HostileVisit&) {}),
      raw("HangsUpAfterTheHello", unsecured(": the server closed the connection"), afterHello("")),
      raw("HangsUpInTheHandshake", unsecured(": the server closed the connection"), afterHello(startOfServerHello())),
      raw("ResetsAfterTheHello", unsecured(": the server closed the connection"),
          [](HostileVisit& visit) {
            visit.readSome(100);
            visit.reset();
          }),
      raw("PlainTextOnASecurePort", unsecured(": wrong version number"),
          afterHello("HTTP/1.1 400 Bad Request\r\nContent-Length: 5\r\n\r\nplain")),
      raw("GarbageInsteadOfTls", unsecured(": wrong version number"), afterHello(std::string(500, '\x7f'))),
      raw("OldSslOnly", unsecured(": unsupported protocol"), afterHello(serverHelloOfSsl3())),
      raw("RefusesTheHandshake", unsecured(": sslv3 alert handshake failure"),
          afterHello(std::string("\x15\x03\x03\x00\x02\x02\x28", 7))),
      raw("AsksForANewerTls", unsecured(": tlsv1 alert protocol version"),
          afterHello(std::string("\x15\x03\x03\x00\x02\x02\x46", 7))),
      raw("HugeTlsRecord", unsecured(": packet length too long"),
          afterHello(std::string("\x16\x03\x03\xff\xff", 5) + std::string(70'000, 'x'))),
      raw("EndlessTlsWarnings", unsecured(": too many warn alerts"),
          [](HostileVisit& visit) {
            visit.readSome(100);
            for (;;) {
              visit.send(std::string("\x15\x03\x03\x00\x02\x01\x70", 7));
            }
          }),
  };
}

}  // namespace tarnwick::testing
