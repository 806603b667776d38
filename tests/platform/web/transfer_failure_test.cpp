// SPDX-License-Identifier: MIT
// Each way in which a transfer fails: its number, its words, and the states that had been reached.
#include "platform/web/transfer_failure.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <QByteArray>

#include "platform/web/curl_transfers.h"
#include "support/ftp_server.h"
#include "support/http_message.h"
#include "support/http_server.h"
#include "support/system.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

using States = std::vector<int>;

class TransferFailures : public ::testing::Test {
 protected:
  std::string place() const { return "127.0.0.1 port " + std::to_string(server_.port()); }

  void expectFailure(const std::string& path, TransferFault fault, const std::string& cause) {
    EXPECT_EQ(probe_.fetch(server_.url(path)), "");
    EXPECT_TRUE(probe_.failed());
    EXPECT_EQ(probe_.fault(), fault);
    EXPECT_EQ(probe_.cause(), cause);
    EXPECT_EQ(probe_.idles, 1);
  }

  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferFailures, UnknownHost) {
  probe_.fetch("http://nosuch.invalid/");
  EXPECT_EQ(probe_.fault(), TransferFault::nameLookup);
  EXPECT_EQ(probe_.cause(), "The name of the host nosuch.invalid could not be found.");
  EXPECT_EQ(probe_.states, (States{1, 11}));
}

TEST_F(TransferFailures, NobodyListens) {
  std::string url;
  {
    const HttpServer gone;
    url = gone.url();
  }
  probe_.fetch(url);
  EXPECT_EQ(probe_.fault(), TransferFault::refused);
  EXPECT_EQ(probe_.cause(),
            "The connection to " + url.substr(7, 9) + " port " + url.substr(17, url.size() - 18) + " was refused.");
  EXPECT_EQ(probe_.states, (States{1, 2, 3, 11}));
}

TEST_F(TransferFailures, InvalidAddresses) {
  const std::vector<std::string> addresses{"http://", "http://a b/", "http://[::1", "http://x:99999/", "http://%zz/"};
  for (const std::string& address : addresses) {
    probe_.fetch(address);
    EXPECT_EQ(probe_.states, States{11}) << address;
    EXPECT_EQ(probe_.fault(), TransferFault::badUrl) << address;
    EXPECT_EQ(probe_.cause(), "The address " + address + " is not valid.");
  }
}

TEST_F(TransferFailures, EmptyAddress) {
  probe_.fetch("");
  EXPECT_EQ(probe_.states, States{11});
  EXPECT_EQ(probe_.fault(), TransferFault::badUrl);
  EXPECT_EQ(probe_.cause(), "The address is empty.");
}

TEST_F(TransferFailures, SchemesThatAreNotFetched) {
  for (const std::string scheme : {"file", "gopher", "javascript", "smb", "nosuch"}) {
    probe_.fetch(scheme + "://127.0.0.1/etc/hostname");
    EXPECT_EQ(probe_.states, States{11}) << scheme;
    EXPECT_EQ(probe_.fault(), TransferFault::badUrl) << scheme;
    EXPECT_EQ(probe_.cause(), "Addresses of the kind " + scheme + " are not fetched, only http, https, ftp and ftps.");
  }
}

TEST_F(TransferFailures, RedirectToASchemeThatIsNotFetched) {
  server_.respond("/a", HttpResponse::redirect("file:///etc/hostname"));
  expectFailure("/a", TransferFault::badUrl,
                "Addresses of the kind file are not fetched, only http, https, ftp and ftps.");
  EXPECT_EQ(probe_.states, (States{1, 2, 3, 4, 5, 6, 7, 11}));
}

TEST_F(TransferFailures, RedirectInACircle) {
  server_.respond("/a", HttpResponse::redirect("/a"));
  expectFailure("/a", TransferFault::tooManyRedirects, "The server redirected more than 20 times.");
  EXPECT_EQ(server_.requests().size(), 21U);
}

TEST_F(TransferFailures, TwentyRedirectsAreFollowed) {
  server_.handleOthers([](const HttpRequest& request) {
    const int step = std::stoi(request.target.substr(1));
    return step == 20 ? HttpResponse{.body = "end"} : HttpResponse::redirect("/" + std::to_string(step + 1));
  });
  EXPECT_EQ(probe_.fetch(server_.url("/0")), "end");
}

TEST_F(TransferFailures, SilentServerEndsAtTheTimeOut) {
  server_.respond("/silent", {.hold = true});
  probe_.request.timeout = std::chrono::seconds{1};
  const auto start = std::chrono::steady_clock::now();
  expectFailure("/silent", TransferFault::timeOut, "The request took longer than 1 second.");
  const auto taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(taken, std::chrono::milliseconds{900});
  EXPECT_LT(taken, std::chrono::seconds{5});
  EXPECT_EQ(probe_.states, (States{1, 2, 3, 4, 5, 6, 11}));
}

TEST_F(TransferFailures, TimeOutBoundsTheWholeRequestNotItsSilence) {
  server_.respond("/drip", {.body = std::string(1000, 'x'), .dripBytes = 1});
  probe_.request.timeout = std::chrono::seconds{2};
  const auto start = std::chrono::steady_clock::now();
  expectFailure("/drip", TransferFault::timeOut, "The request took longer than 2 seconds.");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{6});
  EXPECT_EQ(probe_.states, (States{1, 2, 3, 4, 5, 6, 7, 11}));
}

TEST_F(TransferFailures, TimeOutBoundsAllRedirectsTogether) {
  server_.handleOthers([](const HttpRequest&) {
    HttpResponse next = HttpResponse::redirect("/again");
    next.delay = std::chrono::milliseconds{400};
    return next;
  });
  probe_.request.timeout = std::chrono::seconds{1};
  expectFailure("/a", TransferFault::timeOut, "The request took longer than 1 second.");
}

TEST_F(TransferFailures, TimeOutOfNothingIsTheDefault) {
  server_.respond("/a", {.body = "hello"});
  for (const int seconds : {0, -5}) {
    probe_.request.timeout = std::chrono::seconds{seconds};
    EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  }
}

TEST_F(TransferFailures, VeryLongTimeOutIsNoError) {
  probe_.request.timeout = std::chrono::seconds{4'000'000'000};
  server_.respond("/a", {.body = "hello"});
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
}

TEST_F(TransferFailures, ConnectionClosedWithoutAnAnswer) {
  server_.respond("/a", {.drop = true});
  expectFailure("/a", TransferFault::dropped, "The server " + place() + " closed the connection without an answer.");
}

TEST_F(TransferFailures, PageShorterThanAnnounced) {
  server_.respond("/a", {.body = "hello world", .missingBytes = 3});
  expectFailure("/a", TransferFault::dropped, "The server " + place() + " broke the connection off during its answer.");
}

TEST_F(TransferFailures, ChunkedPageCutShort) {
  server_.respond("/a", {.body = std::string(5000, 'x'), .chunked = true, .missingBytes = 700});
  expectFailure("/a", TransferFault::dropped, "The server " + place() + " broke the connection off during its answer.");
}

TEST_F(TransferFailures, ConnectionClosedInsideTheHeader) {
  for (const std::string start : {"HTTP/1.1 200 OK\r\n", "HTTP/1.1 200 OK\r\nContent-Le"}) {
    server_.respond("/a", {.raw = start});
    expectFailure("/a", TransferFault::dropped,
                  "The server " + place() + " broke the connection off during its answer.");
    EXPECT_EQ(probe_.states, (States{1, 2, 3, 4, 5, 6, 7, 11}));
  }
}

TEST_F(TransferFailures, LengthsThatDiffer) {
  server_.respond("/a", {.raw = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\nContent-Length: 6\r\n\r\nhello!"});
  expectFailure("/a", TransferFault::dropped,
                "The answer of the server " + place() + " is damaged: its length is not clear.");
}

TEST_F(TransferFailures, RedirectToAnInvalidAddress) {
  server_.respond("/a", HttpResponse::redirect("http://127.0.0.1:99999/"));
  expectFailure("/a", TransferFault::badUrl, "The server " + place() + " redirected to an address that is not valid.");
}

TEST_F(TransferFailures, RedirectToAFileTransferWithACommandInItsPath) {
  const FtpServer files;
  server_.respond("/a", HttpResponse::redirect(files.url("/a%0d%0aDELE%20x")));
  expectFailure("/a", TransferFault::badUrl, "The server " + place() + " redirected to an address that is not valid.");
}

TEST_F(TransferFailures, RedirectToAHostWhoseNameIsNone) {
  server_.respond("/a", HttpResponse::redirect("http://xn--\x80.invalid/"));
  expectFailure("/a", TransferFault::badUrl, "The server " + place() + " redirected to an address that is not valid.");
}

TEST_F(TransferFailures, RedirectToAScript) {
  server_.respond("/a", HttpResponse::redirect("javascript://alert(1)"));
  expectFailure("/a", TransferFault::badUrl,
                "The server " + place() +
                    " redirected to an address of a kind that is not fetched; only http, https, ftp and ftps are.");
}

TEST_F(TransferFailures, BadChunk) {
  server_.respond("/a", {.raw = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nhello\r\n0\r\n\r\n"});
  expectFailure("/a", TransferFault::dropped, "The answer of the server " + place() + " is damaged: bad chunk.");
}

TEST_F(TransferFailures, BadTrailer) {
  for (const std::string trailer : {"HTTP/1.1 302 Found\r\n", "no colon\r\n\r\n"}) {
    server_.respond("/a",
                    {.raw = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n0\r\n" + trailer});
    expectFailure("/a", TransferFault::dropped, "The answer of the server " + place() + " is damaged: bad trailer.");
  }
}

TEST_F(TransferFailures, GarbageInsteadOfHttp) {
  server_.respond("/a", {.raw = "220 mail.example ESMTP\r\n"});
  expectFailure("/a", TransferFault::other, "The server " + place() + " did not answer in the language of HTTP.");
}

TEST_F(TransferFailures, CompressedPageThatIsNone) {
  server_.respond("/a", {.headers = {{"Content-Encoding", "gzip"}}, .body = "this is not gzip at all"});
  expectFailure("/a", TransferFault::badContentCoding,
                "The compressed answer of the server " + place() + " could not be decoded.");
}

TEST_F(TransferFailures, CompressedPageWithAWrongChecksumOrATail) {
  const std::string packed = compressed(std::string(5000, 'x'), HttpCoding::gzip);
  std::string flipped = packed;
  flipped[flipped.size() - 6] = static_cast<char>(~flipped[flipped.size() - 6]);
  for (const std::string& body : {flipped, packed + "and a tail that is long enough"}) {
    server_.respond("/a", {.headers = {{"Content-Encoding", "gzip"}}, .body = body});
    expectFailure("/a", TransferFault::badContentCoding,
                  "The compressed answer of the server " + place() + " could not be decoded.");
  }
}

TEST_F(TransferFailures, CompressedPageThatIsCut) {
  for (const HttpCoding coding : {HttpCoding::gzip, HttpCoding::deflate}) {
    const std::string packed = compressed(std::string(5000, 'x'), coding);
    for (const std::size_t length : {std::size_t{10}, packed.size() / 2, packed.size() - 1}) {
      server_.respond("/a", {.headers = {{"Content-Encoding", coding == HttpCoding::gzip ? "gzip" : "deflate"}},
                             .body = packed.substr(0, length)});
      expectFailure("/a", TransferFault::badContentCoding,
                    "The compressed answer of the server " + place() + " is incomplete.");
    }
  }
}

TEST_F(TransferFailures, UnknownContentCoding) {
  server_.respond("/a", {.headers = {{"Content-Encoding", "x-own"}}, .body = "coded"});
  expectFailure("/a", TransferFault::badContentCoding,
                "The compressed answer of the server " + place() + " could not be decoded.");
}

TEST_F(TransferFailures, PlainServerAskedForHttps) {
  server_.respond("/a", {.body = "plain"});
  probe_.fetch("https" + server_.url("/a").substr(4));
  EXPECT_EQ(probe_.fault(), TransferFault::secureConnection);
  // Windows' own library gives no reason, nor tells when it begins.
  EXPECT_EQ(probe_.cause(), "No secure connection to " + place() + " could be made" +
                                (tarnwick::testing::kOnWindows ? "." : ": wrong version number."));
  if (!tarnwick::testing::kOnWindows) {
    EXPECT_EQ(probe_.states, (States{1, 2, 3, 4, 11}));
  }
}

TEST_F(TransferFailures, ProxyThatMakesNoWay) {
  const QByteArray direct = qgetenv("no_proxy");
  const QByteArray alsoDirect = qgetenv("NO_PROXY");
  qunsetenv("no_proxy");
  qunsetenv("NO_PROXY");
  qputenv("https_proxy", QByteArray::fromStdString(server_.url("/")));
  for (const HttpResponse& answer : {HttpResponse{.drop = true}, HttpResponse{.status = 403, .body = "no"}}) {
    server_.handleOthers([&answer](const HttpRequest&) { return answer; });
    probe_.fetch("https://example.test/a");
    EXPECT_EQ(probe_.fault(), TransferFault::refused);
    EXPECT_EQ(probe_.cause(), "The proxy server " + place() + " made no connection to example.test port 443.");
  }
  qunsetenv("https_proxy");
  qputenv("no_proxy", direct);
  qputenv("NO_PROXY", alsoDirect);
}

TEST_F(TransferFailures, NextRequestForgetsTheFailure) {
  server_.respond("/a", {.body = "hello"});
  probe_.fetch("http://nosuch.invalid/");
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  EXPECT_EQ(probe_.fault(), TransferFault::none);
  EXPECT_EQ(probe_.cause(), "");
}

TEST_F(TransferFailures, SameFailureHasTheSameWordsEachTime) {
  server_.respond("/a", {.body = "hello world", .missingBytes = 3});
  probe_.fetch(server_.url("/a"));
  const std::string first = probe_.cause();
  server_.respond("/a", {.body = "hello world", .missingBytes = 8});
  probe_.fetch(server_.url("/a"));
  EXPECT_EQ(probe_.cause(), first);
}

// Faults that no server on this machine can provoke.

TransferResult failureWith(CURLcode result, int systemError = 0, const std::string& detail = {}) {
  return failureOf({.result = result,
                    .detail = detail,
                    .url = "https://example.test/a",
                    .systemError = systemError,
                    .timeout = std::chrono::seconds{30}});
}

TEST(TransferFailureWords, UnreachableHost) {
  const auto failure = failureWith(CURLE_COULDNT_CONNECT, EHOSTUNREACH);
  EXPECT_EQ(failure.fault, TransferFault::refused);
  EXPECT_EQ(failure.cause, "The host example.test cannot be reached from this machine.");
  EXPECT_EQ(failureWith(CURLE_COULDNT_CONNECT, ENETUNREACH).cause, failure.cause);
  EXPECT_EQ(failureWith(CURLE_COULDNT_CONNECT).cause, "No connection to example.test port 443 could be made.");
}

TEST(TransferFailureWords, ResetBeforeAnyAnswer) {
  const std::string words = "The server example.test port 443 closed the connection without an answer.";
  EXPECT_EQ(failureWith(CURLE_RECV_ERROR).cause, words);
  const auto whileConnecting = failureWith(CURLE_COULDNT_CONNECT, ECONNRESET);
  EXPECT_EQ(whileConnecting.fault, TransferFault::dropped);
  EXPECT_EQ(whileConnecting.cause, words);
}

TEST(TransferFailureWords, ServerThatHangsUpOnAHandshake) {
  const std::string words =
      "No secure connection to example.test port 443 could be made: the server closed the connection.";
  const auto unexplained =
      failureOf({.result = CURLE_SSL_CONNECT_ERROR, .url = "https://example.test/a", .handshaking = true});
  EXPECT_EQ(unexplained.fault, TransferFault::secureConnection);
  EXPECT_EQ(unexplained.cause, words);
  EXPECT_EQ(failureWith(CURLE_SSL_CONNECT_ERROR, ECONNRESET).cause, words);
  EXPECT_EQ(failureWith(CURLE_SSL_CONNECT_ERROR, 0, "error:0A000126:SSL routines::unexpected eof while reading").cause,
            words);
}

TEST(TransferFailureWords, FtpServerThatIsTooBusyIsNoTimeOut) {
  const auto failure = failureOf({.result = CURLE_OPERATION_TIMEDOUT, .url = "ftp://example.test/a", .status = 421});
  EXPECT_EQ(failure.fault, TransferFault::dropped);
  EXPECT_EQ(failure.cause, "The server example.test port 21 is not available for now.");
}

TEST(TransferFailureWords, EndlessChallengeIsNoRedirect) {
  const auto failure = failureOf({.result = CURLE_TOO_MANY_REDIRECTS, .url = "http://example.test/a", .status = 401});
  EXPECT_EQ(failure.fault, TransferFault::other);
  EXPECT_EQ(failure.cause, "The server example.test port 80 asked for the user name and the password again and again.");
}

TEST(TransferFailureWords, LacksOfThisMachineAreNoFaultOfTheServer) {
  for (const int error : {EMFILE, ENFILE}) {
    const auto failure = failureWith(CURLE_COULDNT_CONNECT, error);
    EXPECT_EQ(failure.fault, TransferFault::shortage);
    EXPECT_EQ(failure.cause, "This machine has no more file handles for Tarnwick.");
  }
  for (const int error : {ENOBUFS, ENOMEM}) {
    EXPECT_EQ(failureWith(CURLE_COULDNT_CONNECT, error).cause,
              "This machine has not enough memory for another connection.");
  }
  const auto ofTheSecondConnection = failureOf(
      {.result = CURLE_COULDNT_CONNECT, .url = "ftp://example.test/a", .refusedSocket = EMFILE, .status = 227});
  EXPECT_EQ(ofTheSecondConnection.cause, "This machine has no more file handles for Tarnwick.");
}

TEST(TransferFailureWords, ServerThatRefusesTheVisitorAfterTheHandshake) {
  const auto failure = failureWith(CURLE_RECV_ERROR, 0,
                                   "OpenSSL SSL_read: error:0A00045C:SSL routines::tlsv13 alert certificate required, "
                                   "errno 0");
  EXPECT_EQ(failure.fault, TransferFault::secureConnection);
  EXPECT_EQ(failure.cause,
            "No secure connection to example.test port 443 could be made: tlsv13 alert certificate required.");
  EXPECT_EQ(
      failureWith(CURLE_RECV_ERROR, 0, "OpenSSL SSL_read: error:0A000126:SSL routines::unexpected eof, errno 0").fault,
      TransferFault::dropped);
}

TEST(TransferFailureWords, NumberWithoutAWordIsLeftOut) {
  EXPECT_EQ(failureWith(CURLE_SSL_CONNECT_ERROR, 0, "error:0A0004D6:SSL routines::reason(1238)").cause,
            "No secure connection to example.test port 443 could be made.");
}

TEST(TransferFailureWords, ProxyThatDoesNotAnswer) {
  qputenv("ftp_proxy", QByteArrayLiteral("http://10.0.0.1:3128/"));
  const auto causeOf = [](const std::string& asked) {
    return failureOf({.result = CURLE_COULDNT_CONNECT,
                      .detail = "Failed to connect to " + asked + " after 0 ms: Couldn't connect to server",
                      .url = "ftp://example.test/a",
                      .systemError = ECONNREFUSED})
        .cause;
  };
  EXPECT_EQ(causeOf("10.0.0.1 port 3128"), "No connection to the proxy server 10.0.0.1 port 3128 could be made.");
  EXPECT_EQ(causeOf("example.test port 21"), "The connection to example.test port 21 was refused.");
  qunsetenv("ftp_proxy");
}

TEST(TransferFailureWords, FileTransferThatARedirectLedToAndThatIsNotThere) {
  const auto failure = failureOf({.result = CURLE_COULDNT_CONNECT,
                                  .url = "ftp://example.test:2121/a",
                                  .systemError = ECONNREFUSED,
                                  .status = 302,
                                  .redirectedBy = "http://example.test/"});
  EXPECT_EQ(failure.cause, "The connection to example.test port 2121 was refused.");
}

TEST(TransferFailureWords, AddressThatNobodyRedirectedToIsTheSitesOwn) {
  const auto failure = failureOf({.result = CURLE_URL_MALFORMAT, .url = "ftp://example.test/a"});
  EXPECT_EQ(failure.fault, TransferFault::badUrl);
  EXPECT_EQ(failure.cause, "The address ftp://example.test/a is not valid.");
}

TEST(TransferFailureWords, AServerThatHangsUpDoesTheSameToTheRequestAsToItsAnswer) {
  const auto failure = failureWith(CURLE_SEND_ERROR);
  EXPECT_EQ(failure.fault, TransferFault::dropped);
  EXPECT_EQ(failure.cause, failureWith(CURLE_RECV_ERROR).cause);
}

TEST(TransferFailureWords, EveryResultHasWordsThatNameTheServer) {
  for (int code = 1; code < CURL_LAST; ++code) {
    const auto failure = failureWith(static_cast<CURLcode>(code));
    EXPECT_NE(failure.fault, TransferFault::none) << code;
    EXPECT_TRUE(failure.cause.ends_with(".")) << failure.cause;
  }
}

TEST(TransferFailureWords, LongAndOddAddressesAreShownReadably) {
  EXPECT_EQ(badAddress("a\r\nb").cause, "The address a??b is not valid.");
  EXPECT_LT(badAddress(std::string(100'000, 'x')).cause.size(), 300U);
}

TEST(TransferFailureWords, SizesAreNamedInWholeUnits) {
  const auto words = [](std::size_t largest) {
    return failureOf({.result = CURLE_WRITE_ERROR, .aborted = AbortReason::page, .largestPage = largest}).cause;
  };
  EXPECT_EQ(words(kLargestPage), "The page is larger than 64 MiB.");
  EXPECT_EQ(words(3 * 1024), "The page is larger than 3 KiB.");
  EXPECT_EQ(words(100), "The page is larger than 100 bytes.");
}

}  // namespace
}  // namespace tarnwick::testing
