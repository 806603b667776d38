// SPDX-License-Identifier: MIT
// The page that a transfer control gives out: every byte, decoded, bounded.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_message.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kSmallLimit = 64 * 1024;

class TransferPage : public ::testing::Test {
 protected:
  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
  CurlTransfers boundedTransfers_{CurlTransfers::Options{.largestPage = kSmallLimit}};
  TransferProbe bounded_{boundedTransfers_};
};

TEST_F(TransferPage, EveryByteArrivesUnchanged) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    all += static_cast<char>(byte);
  }
  all += "\r\n\n\r\xff\xfe\xc3'\"";
  server_.respond("/a", {.body = all});
  EXPECT_EQ(probe_.fetch(server_.url("/a")), all);
}

TEST_F(TransferPage, CompressedAndChunkedAnswersAreDecoded) {
  std::string body;
  for (int line = 0; line < 5000; ++line) {
    body += "line " + std::to_string(line) + "\n";
  }
  server_.respond("/gzip", {.body = body, .coding = HttpCoding::gzip});
  server_.respond("/deflate", {.body = body, .coding = HttpCoding::deflate});
  server_.respond("/chunked", {.body = body, .chunked = true});
  server_.respond("/both", {.body = body, .coding = HttpCoding::gzip, .chunked = true});
  for (const std::string path : {"/gzip", "/deflate", "/chunked", "/both"}) {
    EXPECT_EQ(probe_.fetch(server_.url(path)), body) << path;
  }
  EXPECT_NE(server_.requests().at(0).header("Accept-Encoding").find("gzip"), std::string::npos);
}

TEST_F(TransferPage, CompressionIsOfThePageAlone) {
  server_.respond("/head", {.body = "a page", .coding = HttpCoding::gzip});
  server_.respond("/none", {.status = 204, .headers = {{"Content-Encoding", "gzip"}}});
  server_.respond("/empty", {.headers = {{"Content-Encoding", "br, x-own"}}});
  server_.respond("/moved", {.status = 302,
                             .headers = {{"Location", server_.url("/plain")}, {"Content-Encoding", "gzip"}},
                             .body = "neither the page nor compressed"});
  server_.respond("/plain", {.body = "plain"});
  EXPECT_EQ(probe_.fetch(server_.url("/head"), "HEAD"), "");
  EXPECT_TRUE(probe_.succeeded());
  for (const std::string path : {"/none", "/empty"}) {
    EXPECT_EQ(probe_.fetch(server_.url(path)), "") << path;
    EXPECT_TRUE(probe_.succeeded()) << path;
  }
  EXPECT_EQ(probe_.fetch(server_.url("/moved")), "plain");
}

TEST_F(TransferPage, CompressionOfTheWayIsTakenOff) {
  const std::string packed = compressed("a page", HttpCoding::gzip);
  server_.respond("/a", {.headers = {{"Transfer-Encoding", "gzip"}}, .body = packed, .chunked = true});
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "a page");
}

TEST_F(TransferPage, AnswerThatEndsWithTheConnectionIsWhole) {
  server_.respond("/old", {.raw = "HTTP/1.0 200 OK\r\n\r\nold style"});
  EXPECT_EQ(probe_.fetch(server_.url("/old")), "old style");
  EXPECT_TRUE(probe_.succeeded());
}

TEST_F(TransferPage, ResultIsHandedOverOnce) {
  server_.respond("/a", {.body = "0123456789"});
  probe_.start(server_.url("/a"));
  ASSERT_TRUE(waitUntil([&] { return probe_.ended(); }));
  EXPECT_EQ(probe_.control->takeResult().page, "0123456789");
  EXPECT_EQ(probe_.control->takeResult().page, "");
}

TEST_F(TransferPage, UntakenPageIsGoneAtTheNextRequest) {
  server_.respond("/a", {.body = "first"});
  server_.respond("/silent", {.hold = true});
  probe_.start(server_.url("/a"));
  ASSERT_TRUE(waitUntil([&] { return probe_.ended(); }));
  probe_.start(server_.url("/silent"));
  EXPECT_EQ(probe_.control->takeResult().page, "");
}

TEST_F(TransferPage, PageOfTheLargestSizeIsTaken) {
  server_.respond("/a", {.body = std::string(kSmallLimit, 'x')});
  EXPECT_EQ(bounded_.fetch(server_.url("/a")).size(), kSmallLimit);
}

TEST_F(TransferPage, OneByteMoreIsTooLarge) {
  server_.respond("/announced", {.body = std::string(kSmallLimit + 1, 'x')});
  server_.respond("/chunked", {.body = std::string(kSmallLimit + 1, 'x'), .chunked = true});
  for (const std::string path : {"/announced", "/chunked"}) {
    EXPECT_EQ(bounded_.fetch(server_.url(path)), "") << path;
    EXPECT_EQ(bounded_.states.back(), transfer_state::error) << path;
    EXPECT_EQ(bounded_.fault(), TransferFault::tooLarge) << path;
    EXPECT_EQ(bounded_.cause(), "The page is larger than 64 KiB.");
  }
}

TEST_F(TransferPage, SizeCountsAfterDecoding) {
  server_.respond("/bomb", {.body = std::string(20'000'000, '\0'), .coding = HttpCoding::gzip});
  EXPECT_EQ(bounded_.fetch(server_.url("/bomb")), "");
  EXPECT_EQ(bounded_.fault(), TransferFault::tooLarge);
}

TEST_F(TransferPage, HeadOfALargePageIsNoError) {
  server_.respond("/a", {.body = std::string(kSmallLimit * 2, 'x')});
  EXPECT_EQ(bounded_.fetch(server_.url("/a"), "HEAD"), "");
  EXPECT_TRUE(bounded_.succeeded());
}

TEST_F(TransferPage, HeaderWithoutEndIsTooLarge) {
  std::string many = "HTTP/1.1 200 OK\r\n";
  for (int line = 0; line < 200; ++line) {
    many += "X-Fill-" + std::to_string(line) + ": " + std::string(9000, 'x') + "\r\n";
  }
  server_.respond("/many", {.raw = many + "\r\nbody"});
  server_.respond("/long", {.raw = "HTTP/1.1 200 OK\r\nX-Fill: " + std::string(2'000'000, 'x') + "\r\n\r\nbody"});
  for (const std::string path : {"/many", "/long"}) {
    EXPECT_EQ(probe_.fetch(server_.url(path)), "") << path;
    EXPECT_EQ(probe_.fault(), TransferFault::tooLarge) << path;
    EXPECT_EQ(probe_.cause(), "The header of the answer is too large.");
  }
}

TEST_F(TransferPage, PageOf64MebibytesIsTaken) {
  server_.respond("/large", {.body = std::string(kLargestPage, 'x')});
  EXPECT_EQ(probe_.fetch(server_.url("/large")).size(), kLargestPage);
}

}  // namespace
}  // namespace tarnwick::testing
