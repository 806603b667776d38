// SPDX-License-Identifier: MIT
// What a transfer control sends: method, body, headers, redirects, credentials, cookies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTcpServer>
#include <QTcpSocket>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kFormHeader = "Content-Type: application/x-www-form-urlencoded";

class TransferRequest : public ::testing::Test {
 protected:
  TransferRequest() {
    server_.handleOthers([](const HttpRequest& request) { return HttpResponse{.body = "page of " + request.target}; });
  }

  const HttpRequest& sent(std::size_t index = 0) const { return server_.requests().at(index); }

  void setCredentials(const std::string& userName, const std::string& password) {
    probe_.request.userName = userName;
    probe_.request.password = password;
  }

  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferRequest, AnotherAddressOfTheHostComesFirstWhereThereIsOne) {
  server_.respond("/a", {.body = "a page"});
  QTcpServer broken;
  if (!broken.listen(QHostAddress::LocalHostIPv6, server_.port())) {
    GTEST_SKIP() << "This machine has no second address of its own.";
  }
  QObject::connect(&broken, &QTcpServer::newConnection, &broken, [&] { broken.nextPendingConnection()->abort(); });
  probe_.request.otherThan = "127.0.0.1";
  EXPECT_EQ(probe_.fetch(server_.url("/a", "localhost")), "");
  probe_.request.otherThan = "::1";
  EXPECT_EQ(probe_.fetch(server_.url("/a", "localhost")), "a page");
}

TEST_F(TransferRequest, TheOnlyAddressOfAHostIsAskedAgain) {
  server_.respond("/a", {.body = "a page"});
  probe_.request.otherThan = "127.0.0.1";
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "a page");
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferRequest, EmptyMethodIsGet) {
  probe_.fetch(server_.url("/a"), "");
  EXPECT_EQ(sent().method, "GET");
  EXPECT_EQ(sent().target, "/a");
  EXPECT_EQ(sent().body, "");
  EXPECT_EQ(sent().header("User-Agent"), "Tarnwick/1.0");
  EXPECT_FALSE(sent().hasHeader("Content-Type"));
}

TEST_F(TransferRequest, PostCarriesItsBodyAndHeader) {
  probe_.fetch(server_.url("/a"), "POST", "a%20b=x%26y&n=", kFormHeader);
  EXPECT_EQ(sent().method, "POST");
  EXPECT_EQ(sent().body, "a%20b=x%26y&n=");
  EXPECT_EQ(sent().header("Content-Type"), "application/x-www-form-urlencoded");
  EXPECT_EQ(sent().header("Content-Length"), "14");
}

TEST_F(TransferRequest, PostBodyMayHoldAnyBytes) {
  const std::string body("a\0b\r\n\xff\xfe\x80", 8);
  probe_.fetch(server_.url("/a"), "POST", body, kFormHeader);
  EXPECT_EQ(sent().body, body);
}

TEST_F(TransferRequest, EmptyPostIsStillAPost) {
  probe_.fetch(server_.url("/a"), "POST", "", kFormHeader);
  EXPECT_EQ(sent().method, "POST");
  EXPECT_EQ(sent().header("Content-Length"), "0");
}

TEST_F(TransferRequest, LargePostDoesNotWaitForLeaveToSend) {
  const std::string body(2'000'000, 'p');
  probe_.fetch(server_.url("/a"), "POST", body);
  EXPECT_EQ(sent().body, body);
  EXPECT_FALSE(sent().hasHeader("Expect"));
}

TEST_F(TransferRequest, OtherMethodsAreSentAsTheyAreWithoutBody) {
  for (const std::string method : {"PUT", "DELETE", "OPTIONS", "X-ODD!METHOD", "get"}) {
    server_.clearRecords();
    EXPECT_EQ(probe_.fetch(server_.url("/a"), method, "not sent"), "page of /a") << method;
    EXPECT_EQ(sent().method, method);
    EXPECT_EQ(sent().body, "");
  }
}

TEST_F(TransferRequest, HeadHasNoPage) {
  EXPECT_EQ(probe_.fetch(server_.url("/a"), "HEAD"), "");
  EXPECT_TRUE(probe_.succeeded());
  EXPECT_EQ(sent().method, "HEAD");
}

TEST_F(TransferRequest, SeveralHeaderLinesAreSent) {
  probe_.fetch(server_.url("/a"), "GET", "", "X-One: 1\r\nX-Two: 2\r\n");
  EXPECT_EQ(sent().header("X-One"), "1");
  EXPECT_EQ(sent().header("X-Two"), "2");
}

TEST_F(TransferRequest, MethodCannotSmuggleALine) {
  for (const std::string method : {"GET / HTTP/1.1\r\nX-Bad: 1", "GE T", "G\nT", "GET\t", "(GET)"}) {
    probe_.fetch(server_.url("/a"), method);
    EXPECT_TRUE(probe_.failed()) << method;
    EXPECT_EQ(probe_.fault(), TransferFault::badMethod) << method;
  }
  EXPECT_TRUE(server_.requests().empty());
}

TEST_F(TransferRequest, AddressCannotSmuggleALine) {
  using namespace std::string_literals;
  for (const std::string& tail : {"/a\r\nX-Bad: 1"s, "/a\nb"s, "/a\0b"s, "/a\tb"s}) {
    probe_.fetch(server_.url(tail));
    EXPECT_TRUE(probe_.failed());
    EXPECT_EQ(probe_.fault(), TransferFault::badUrl);
  }
  EXPECT_TRUE(server_.requests().empty());
}

TEST_F(TransferRequest, BlanksAroundTheAddressDoNotCountAndInnerOnesAreEncoded) {
  EXPECT_EQ(probe_.fetch("  " + server_.url("/a b?q=c d") + " \r\n"), "page of /a%20b?q=c%20d");
}

TEST_F(TransferRequest, AddressWithoutSchemeIsHttp) {
  EXPECT_EQ(probe_.fetch(server_.url("/a").substr(std::string("http://").size())), "page of /a");
}

TEST_F(TransferRequest, HttpErrorPageIsAPage) {
  server_.respond("/gone", {.status = 404, .body = "gone"});
  server_.respond("/broken", {.status = 500, .body = "broken"});
  EXPECT_EQ(probe_.fetch(server_.url("/gone")), "gone");
  EXPECT_TRUE(probe_.succeeded());
  EXPECT_EQ(probe_.fault(), TransferFault::none);
  EXPECT_EQ(probe_.cause(), "");
  EXPECT_EQ(probe_.fetch(server_.url("/broken")), "broken");
}

TEST_F(TransferRequest, PostTurnsIntoGetOnTheOldRedirects) {
  for (const int status : {301, 302, 303}) {
    server_.clearRecords();
    server_.respond("/form", HttpResponse::redirect("/result", status));
    EXPECT_EQ(probe_.fetch(server_.url("/form"), "POST", "a=1", kFormHeader), "page of /result") << status;
    EXPECT_EQ(sent(1).method, "GET") << status;
    EXPECT_EQ(sent(1).body, "") << status;
    EXPECT_FALSE(sent(1).hasHeader("Content-Type")) << status;
  }
}

TEST_F(TransferRequest, PostStaysAPostOnTheNewRedirects) {
  for (const int status : {307, 308}) {
    server_.clearRecords();
    server_.respond("/form", HttpResponse::redirect("/result", status));
    EXPECT_EQ(probe_.fetch(server_.url("/form"), "POST", "a=1", kFormHeader), "page of /result") << status;
    EXPECT_EQ(sent(1).method, "POST") << status;
    EXPECT_EQ(sent(1).body, "a=1") << status;
    EXPECT_TRUE(sent(1).hasHeader("Content-Type")) << status;
  }
}

TEST_F(TransferRequest, SeeOtherTurnsAnyMethodIntoGet) {
  server_.respond("/form", HttpResponse::redirect("/result", 303));
  EXPECT_EQ(probe_.fetch(server_.url("/form"), "PUT"), "page of /result");
  EXPECT_EQ(sent(1).method, "GET");
}

TEST_F(TransferRequest, BodyGoesWithAnyMethodWhereThatIsAskedFor) {
  for (const char* method : {"PUT", "PATCH", "DELETE"}) {
    server_.clearRecords();
    probe_.request.sendsBodyAlways = false;
    probe_.fetch(server_.url("/hook"), method, "a=1", kFormHeader);
    EXPECT_EQ(sent(0).body, "") << method;
    probe_.request.sendsBodyAlways = true;
    EXPECT_EQ(probe_.fetch(server_.url("/hook"), method, "a=1", kFormHeader), "page of /hook") << method;
    EXPECT_EQ(probe_.states, kAllStates) << method;
    EXPECT_EQ(sent(1).method, method);
    EXPECT_EQ(sent(1).body, "a=1") << method;
    EXPECT_EQ(sent(1).header("Content-Length"), "3") << method;
  }
  for (const char* method : {"GET", "HEAD", ""}) {
    server_.clearRecords();
    probe_.fetch(server_.url("/hook"), method, "a=1");
    EXPECT_EQ(sent(0).body, "") << method;
    EXPECT_FALSE(sent(0).hasHeader("Content-Length")) << method;
  }
}

TEST_F(TransferRequest, MethodAndBodySurviveARedirectThatDoesNotChangeThem) {
  probe_.request.sendsBodyAlways = true;
  for (const int status : {301, 302, 307, 308}) {
    server_.clearRecords();
    server_.respond("/form", HttpResponse::redirect("/result", status));
    EXPECT_EQ(probe_.fetch(server_.url("/form"), "PUT", "a=1", kFormHeader), "page of /result") << status;
    EXPECT_EQ(sent(1).method, "PUT") << status;
    EXPECT_EQ(sent(1).body, "a=1") << status;
    EXPECT_TRUE(sent(1).hasHeader("Content-Type")) << status;
  }
  server_.clearRecords();
  server_.respond("/form", HttpResponse::redirect("/result", 303));
  EXPECT_EQ(probe_.fetch(server_.url("/form"), "PUT", "a=1", kFormHeader), "page of /result");
  EXPECT_EQ(sent(1).method, "GET");
  EXPECT_EQ(sent(1).body, "");
}

TEST_F(TransferRequest, NothingGoesToAnotherPlaceWhereRedirectsAreNotFollowed) {
  HttpServer other;
  for (const int status : {301, 302, 303, 307, 308}) {
    HttpResponse answer = HttpResponse::redirect(other.url("/stolen"), status);
    answer.body = "moved";
    server_.respond("/hook", answer);
    probe_.request.followsRedirects = false;
    EXPECT_EQ(probe_.fetch(server_.url("/hook"), "POST", "{}", "Authorization: Bearer secret"), "moved") << status;
    EXPECT_TRUE(probe_.succeeded()) << status;
  }
  EXPECT_EQ(other.connections(), 0);
}

TEST_F(TransferRequest, CookiesLiveForOneRequestsRedirectsOnly) {
  server_.respond("/login", {.status = 302, .headers = {{"Set-Cookie", "key=1; Path=/"}, {"Location", "/inside"}}});
  probe_.fetch(server_.url("/login"));
  EXPECT_EQ(sent(1).header("Cookie"), "key=1");
  probe_.fetch(server_.url("/inside"));
  EXPECT_FALSE(sent(2).hasHeader("Cookie"));
}

TEST_F(TransferRequest, EveryRequestHasAConnectionOfItsOwn) {
  probe_.fetch(server_.url("/a"));
  probe_.fetch(server_.url("/a"));
  EXPECT_EQ(server_.connections(), 2);
  EXPECT_TRUE(waitUntil([&] { return server_.openConnections() == 0; }));
}

TEST_F(TransferRequest, BasicChallengeIsAnswered) {
  server_.requireBasic("/in", "me", "p:w", {.body = "welcome"});
  setCredentials("me", "p:w");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "welcome");
  EXPECT_FALSE(sent(0).hasHeader("Authorization")) << "nothing is sent before the server asks";
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferRequest, DigestChallengeIsAnsweredWithoutTellingThePassword) {
  server_.requireDigest("/in", "me", "secret", {.body = "welcome"});
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "welcome");
  EXPECT_EQ(probe_.fetch(server_.url("/in"), "POST", "a=1", kFormHeader), "welcome");
  EXPECT_EQ(server_.requests().back().body, "a=1");
}

TEST_F(TransferRequest, NtlmHandshakeStaysOnOneConnection) {
  // The server's part of the handshake: type 2 with an 8 byte challenge, no target.
  const std::string challenge = "TlRMTVNTUAACAAAAAAAAADgAAAAGggEAASNFZ4mrze8AAAAAAAAAAAAAAAA4AAAA";
  server_.handle("/in", [&](const HttpRequest& request) {
    const std::string given = request.header("Authorization");
    if (given.starts_with("NTLM TlRMTVNTUAAB")) {
      return HttpResponse{.status = 401, .headers = {{"WWW-Authenticate", "NTLM " + challenge}}};
    }
    return given.starts_with("NTLM TlRMTVNTUAAD")
               ? HttpResponse{.body = "welcome"}
               : HttpResponse{.status = 401, .headers = {{"WWW-Authenticate", "NTLM"}}};
  });
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/in"), "POST", "a=1", kFormHeader), "welcome");
  const auto& requests = server_.requests();
  EXPECT_EQ(requests.back().body, "a=1");
  EXPECT_EQ(requests.back().connection, requests.at(requests.size() - 2).connection);
}

TEST_F(TransferRequest, WrongCredentialsGiveTheServersPage) {
  server_.requireBasic("/in", "me", "right", {.body = "welcome"});
  setCredentials("me", "wrong");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "credentials, please");
  EXPECT_TRUE(probe_.succeeded());
}

TEST_F(TransferRequest, NullTextIsPassedOnLikeAnyOther) {
  server_.requireBasic("/in", "NULL", "NULL", {.body = "welcome"});
  setCredentials("NULL", "NULL");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "welcome");
}

TEST_F(TransferRequest, EmptyCredentialsAreNotSent) {
  server_.requireBasic("/in", "me", "right", {.body = "welcome"});
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "credentials, please");
  EXPECT_EQ(server_.requests().size(), 1U);
}

TEST_F(TransferRequest, CredentialsNeverLeaveForAnotherHost) {
  server_.requireBasic("/in", "me", "secret", HttpResponse::redirect(server_.url("/other", "localhost")));
  server_.requireBasic("/other", "me", "secret", {.body = "leaked"});
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "credentials, please");
  for (const auto& request : server_.requestsFor("/other")) {
    EXPECT_FALSE(request.hasHeader("Authorization"));
  }
  EXPECT_FALSE(server_.requestsFor("/other").empty());
}

TEST_F(TransferRequest, CredentialsNeverLeaveForAnotherPort) {
  HttpServer other;
  other.requireBasic("/other", "me", "secret", {.body = "leaked"});
  server_.requireBasic("/in", "me", "secret", HttpResponse::redirect(other.url("/other")));
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "credentials, please");
}

TEST_F(TransferRequest, CredentialsFollowARedirectOnTheSameHost) {
  server_.respond("/start", HttpResponse::redirect("/in"));
  server_.requireBasic("/in", "me", "secret", {.body = "welcome"});
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/start")), "welcome");
}

/// What a redirect's address may hold before its host.
class CredentialsOfARedirect : public TransferRequest, public ::testing::WithParamInterface<const char*> {
 protected:
  CredentialsOfARedirect() {
    for (const char* kind : {"NTLM", "Digest realm=\"r\", nonce=\"n\"", "Basic realm=\"r\""}) {
      server_.handle("/" + std::string(kind).substr(0, 4), [kind](const HttpRequest&) {
        return HttpResponse{.status = 401, .headers = {{"WWW-Authenticate", kind}}, .body = "asked"};
      });
    }
  }

  std::string withCredentials(const HttpServer& server, const std::string& target) const {
    std::string url = server.url(target);
    return url.insert(std::string("http://").size(), std::string(GetParam()) + "@");
  }

  void expectNoAuthorization(const HttpServer& server) const {
    for (const HttpRequest& request : server.requests()) {
      EXPECT_FALSE(request.hasHeader("Authorization")) << request.wire;
    }
  }
};

TEST_P(CredentialsOfARedirect, StartNoLogInWhereNoneIsStored) {
  for (const std::string target : {"/NTLM", "/Dige", "/Basi"}) {
    server_.respond("/start", HttpResponse::redirect(withCredentials(server_, target)));
    EXPECT_EQ(probe_.fetch(server_.url("/start")), "asked") << target;
    EXPECT_EQ(server_.requestsFor(target).size(), 1U) << target;
  }
  expectNoAuthorization(server_);
}

TEST_P(CredentialsOfARedirect, StartNoLogInAtAnotherServer) {
  HttpServer other;
  other.respond("/back", HttpResponse::redirect(withCredentials(server_, "/NTLM")));
  server_.respond("/start", HttpResponse::redirect(withCredentials(other, "/back")));
  EXPECT_EQ(probe_.fetch(server_.url("/start")), "asked");
  expectNoAuthorization(server_);
  expectNoAuthorization(other);
}

TEST_P(CredentialsOfARedirect, LeaveTheStoredOnesAsTheyAre) {
  server_.respond("/start", HttpResponse::redirect(withCredentials(server_, "/in")));
  server_.requireBasic("/in", "me", "secret", {.body = "welcome"});
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/start")), "welcome");
}

TEST_P(CredentialsOfARedirect, DoNotTakeThePlaceOfTheStoredOnesOnTheWayBack) {
  HttpServer other;
  server_.respond("/start", HttpResponse::redirect(withCredentials(other, "/back")));
  other.respond("/back", HttpResponse::redirect(withCredentials(server_, "/NTLM")));
  setCredentials("me", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/start")), "");
  EXPECT_EQ(probe_.fault(), TransferFault::badUrl);
  EXPECT_THAT(probe_.cause(), ::testing::EndsWith(" redirected to an address that holds a name and a password."));
  EXPECT_TRUE(server_.requestsFor("/NTLM").empty());
  expectNoAuthorization(server_);
  expectNoAuthorization(other);
}

INSTANTIATE_TEST_SUITE_P(All, CredentialsOfARedirect, ::testing::Values(":", "user:pw", "user", ":pw"));

TEST_F(TransferRequest, CredentialsOfTheFirstAddressAnswerItsServerAlone) {
  server_.respond("/start", HttpResponse::redirect("/in"));
  server_.requireBasic("/in", "m@e", "p:w", HttpResponse::redirect(server_.url("/in", "localhost")));
  std::string url = server_.url("/start");
  EXPECT_EQ(probe_.fetch(url.insert(std::string("http://").size(), "m%40e:p%3Aw@")), "credentials, please");
  const auto asked = server_.requestsFor("/in");
  ASSERT_EQ(asked.size(), 3U);
  EXPECT_TRUE(asked.at(1).hasHeader("Authorization"));
  EXPECT_FALSE(asked.at(2).hasHeader("Authorization")) << "another host";
}

TEST_F(TransferRequest, APasswordWithoutANameAnswersBasicAlone) {
  server_.requireBasic("/in", "", "secret", {.body = "welcome"});
  setCredentials("", "secret");
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "welcome");
  EXPECT_FALSE(sent(0).hasHeader("Authorization")) << "nothing is sent before the server asks";
  server_.clearRecords();
  server_.respond("/in", {.status = 401, .headers = {{"WWW-Authenticate", "NTLM"}}, .body = "asked"});
  EXPECT_EQ(probe_.fetch(server_.url("/in")), "asked");
  EXPECT_EQ(server_.requests().size(), 1U);
}

}  // namespace
}  // namespace tarnwick::testing
