// SPDX-License-Identifier: MIT
// How long the parts of a request took.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/test_certificates.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kDelay{150};
// A server that is held up answers a little before a clock has said so.
constexpr milliseconds kAlmost{140};

struct TransferTimings : ::testing::Test {
  CheckTimings fetch(const std::string& url) {
    TransferProbe probe(*transfers);
    probe.start(url);
    waitUntil([&] { return probe.ended(); }, std::chrono::seconds{30});
    return probe.control->takeResult().timings;
  }

  std::unique_ptr<CurlTransfers> transfers = std::make_unique<CurlTransfers>();
};

TEST_F(TransferTimings, APlainPageHasNoHandshake) {
  HttpServer server;
  server.respond("/a", {.body = "hello", .delay = kDelay});
  const CheckTimings took = fetch(server.url("/a", "localhost"));
  EXPECT_TRUE(took.lookUp && took.connect);
  EXPECT_EQ(took.tls, std::nullopt);
  ASSERT_TRUE(took.firstByte && took.whole);
  EXPECT_GE(*took.firstByte, kAlmost);
  EXPECT_GE(*took.whole, *took.firstByte);
  EXPECT_LT(*took.lookUp + *took.connect, kDelay) << "the wait for the answer is none of them";
}

TEST_F(TransferTimings, RedirectsAreAdded) {
  HttpServer server;
  HttpResponse elsewhere = HttpResponse::redirect("/b");
  elsewhere.delay = kDelay;
  server.respond("/a", elsewhere);
  server.respond("/b", {.body = "hello", .delay = kDelay});
  const CheckTimings took = fetch(server.url("/a"));
  ASSERT_TRUE(took.firstByte && took.connect);
  EXPECT_GE(*took.firstByte, 2 * kAlmost);
  EXPECT_LT(*took.connect, kDelay) << "the wait for the first answer is no part of the second connection";
}

TEST_F(TransferTimings, WhereNobodyAnswersNothingIsKnownOfWhatNeverCame) {
  HttpServer silent;
  silent.respond("/a", {.drop = true});
  EXPECT_EQ(fetch(silent.url("/a")).firstByte, std::nullopt);
  const CheckTimings took = fetch("http://127.0.0.1:1/");
  EXPECT_EQ(took.connect, std::nullopt);
  EXPECT_EQ(took.firstByte, std::nullopt);
  EXPECT_TRUE(took.whole);
}

TEST_F(TransferTimings, TheHandshakeIsToldApartAlsoBehindARedirect) {
  const TestCertificates certificates;
  if (!certificates.problem().empty()) {
    GTEST_SKIP() << "no certificates can be made: " << certificates.problem();
  }
  transfers = std::make_unique<CurlTransfers>(CurlTransfers::Options{.caFile = certificates.authorityFile()});
  HttpServer secured(certificates.good());
  secured.respond("/a", {.body = "hello"});
  HttpServer plain;
  HttpResponse elsewhere = HttpResponse::redirect(secured.url("/a"));
  elsewhere.delay = kDelay;
  plain.respond("/a", elsewhere);
  for (const std::string& url : {secured.url("/a"), plain.url("/a")}) {
    const CheckTimings took = fetch(url);
    ASSERT_TRUE(took.tls && took.connect && took.whole) << url;
    EXPECT_GE(*took.tls, milliseconds(1)) << url;
    EXPECT_LE(*took.lookUp + *took.connect + *took.tls + *took.firstByte, *took.whole + milliseconds(2)) << url;
  }
}

}  // namespace
}  // namespace tarnwick::testing
