// SPDX-License-Identifier: MIT
// What is told of the certificates of a server: those of the chain that was verified, and nothing else.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/test_certificates.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

using std::chrono::days;
using std::chrono::sys_seconds;

using Names = std::vector<std::string>;

class TransferCertificate : public ::testing::Test {
 protected:
  // "inner" and those that begin so are one authority with one key, to which several ways lead.
  static void SetUpTestSuite() {
    made_ = std::make_unique<TestCertificates>();
    made_->makeAuthority("second");
    makeInner("inner", "authority", 300);
    makeInner("inner-short", "authority", 30);
    makeInner("inner-second", "second", 40);
    makeInner("inner-ended", "second", -10);
    makeSite("site", "inner", 90);
    makeSite("site-plain", "authority", 50);
    makeSite("site-nearly", "authority", 1);
    makeSite("site-late", "inner", 600);
  }
  static void TearDownTestSuite() { made_.reset(); }

  void SetUp() override {
    if (!made_->problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << made_->problem();
    }
    trust({"authority"});
  }

  static sys_seconds in(int count) { return now_ + days(count); }
  static void makeInner(const std::string& name, const std::string& authority, int ends) {
    made_->make({.name = name,
                 .subject = "/O=Inner-Trust/CN=Inner-1",
                 .authority = authority,
                 .begins = in(-20),
                 .ends = in(ends),
                 .signs = true,
                 .keyOf = name == "inner" ? "" : "inner"});
  }
  static void makeSite(const std::string& name, const std::string& authority, int ends) {
    made_->make({.name = name,
                 .subject = "/CN=" + name,
                 .authority = authority,
                 .begins = in(-10),
                 .ends = in(ends),
                 .keyOf = name == "site" ? "" : "site"});
  }

  void trust(const Names& names) {
    transfers_ = std::make_unique<CurlTransfers>(CurlTransfers::Options{.caFile = made_->authoritiesFile(names)});
  }
  TransferResult resultOf(const std::string& url, bool wants = true) {
    TransferProbe probe(*transfers_);
    probe.request.wantsCertificate = wants;
    probe.request.userName = "me";
    probe.request.password = "secret";
    probe.start(url);
    waitUntil([&] { return probe.ended(); }, std::chrono::seconds{30});
    return probe.control->takeResult();
  }
  TransferResult resultOf(const TlsIdentity& identity, bool wants = true) {
    HttpServer server(identity);
    server.respond("/a", {.body = "secret page"});
    return resultOf(server.url("/a"), wants);
  }
  // In how many days what the server with these certificates has ends, with nothing for a fetch that fails.
  std::optional<int> ends(const Names& sent) {
    const TransferResult result = resultOf(made_->chain(sent));
    EXPECT_EQ(result.fault == TransferFault::none, result.certificate.has_value()) << result.cause;
    return result.certificate ? std::optional(daysUntil(*result.certificate)) : std::nullopt;
  }
  static int daysUntil(const ServerCertificate& certificate) {
    return static_cast<int>(std::chrono::round<days>(certificate.ends - now_).count());
  }

  static std::unique_ptr<TestCertificates> made_;
  static const sys_seconds now_;
  std::unique_ptr<CurlTransfers> transfers_;
};

std::unique_ptr<TestCertificates> TransferCertificate::made_;
const sys_seconds TransferCertificate::now_ =
    std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());

TEST_F(TransferCertificate, EndsWithTheFirstOfTheChainAndNotWithTheAuthorityThatIsTrusted) {
  const TransferResult plain = resultOf(made_->chain({"site-plain"}));
  ASSERT_TRUE(plain.certificate) << plain.cause;
  EXPECT_EQ(plain.certificate->ends, in(50)) << "that of the authority is here for two days";
  EXPECT_EQ(plain.certificate->began, in(-10));
  EXPECT_EQ(plain.certificate->issuer, "Test-Authority") << "the name of one that has no organisation";

  const TransferResult longer = resultOf(made_->chain({"site", "inner"}));
  ASSERT_TRUE(longer.certificate) << longer.cause;
  EXPECT_EQ(longer.certificate->ends, in(90));
  EXPECT_EQ(longer.certificate->issuer, "Inner-Trust");

  EXPECT_EQ(ends({"site", "inner-short"}), 30) << "the one in between ends first";
  EXPECT_EQ(ends({"site-nearly"}), 1);
  EXPECT_EQ(ends({"site-late", "inner"}), 300);
}

TEST_F(TransferCertificate, OfSeveralWaysTheOneCountsThatWasVerified) {
  EXPECT_EQ(ends({"site", "inner", "inner-second"}), 90);
  EXPECT_EQ(ends({"site", "inner-ended", "inner"}), 90);
  trust({"second"});
  EXPECT_EQ(ends({"site", "inner-second", "inner"}), 40);
  EXPECT_EQ(ends({"site", "inner-ended"}), std::nullopt);
  trust({"authority", "second"});
  EXPECT_EQ(ends({"site", "inner", "inner-second"}), 90);
  EXPECT_EQ(ends({"site", "inner-second", "inner"}), 40) << "the way that was taken";
  EXPECT_EQ(ends({"site", "inner-ended", "inner"}), 90) << "a way that has ended is none";
  EXPECT_EQ(ends({"site", "inner", "inner-ended"}), 90);
}

TEST_F(TransferCertificate, WhatIsSentAlongDoesNotCount) {
  EXPECT_EQ(ends({"site", "inner", "expired"}), 90);
  EXPECT_EQ(ends({"site", "expired", "inner"}), 90);
  EXPECT_EQ(ends({"site", "authority", "expired", "inner"}), 90) << "in another order";
  EXPECT_EQ(ends({"site-plain", "inner-short", "other"}), 50);
}

TEST_F(TransferCertificate, OneThatIsTrustedByItselfCounts) {
  trust({"self"});
  EXPECT_EQ(ends({"self"}), 2);
  trust({"inner"});
  EXPECT_EQ(ends({"site", "inner-short"}), 90) << "whom this machine trusts need not be sent";
}

TEST_F(TransferCertificate, ARefusedOneSaysNothing) {
  for (const char* refused : {"expired", "self", "other"}) {
    const TransferResult result = resultOf(made_->chain({refused}));
    EXPECT_EQ(result.fault, TransferFault::certificate) << refused;
    EXPECT_FALSE(result.certificate) << refused;
  }
}

TEST_F(TransferCertificate, NothingIsToldUnasked) {
  const TransferResult unasked = resultOf(made_->chain({"site-plain"}), false);
  EXPECT_EQ(unasked.fault, TransferFault::none);
  EXPECT_FALSE(unasked.certificate);
  HttpServer plain;
  plain.respond("/a", {.body = "hello"});
  EXPECT_FALSE(resultOf(plain.url("/a")).certificate) << "there is none";
}

TEST_F(TransferCertificate, EachServerOnTheWayHasToHold) {
  HttpServer last(made_->chain({"site", "inner-short"}));
  last.respond("/b", {.body = "page"});
  HttpServer first(made_->chain({"site-plain"}));
  first.respond("/a", HttpResponse::redirect(last.url("/b")));
  HttpServer plain;
  plain.respond("/a", HttpResponse::redirect(first.url("/a")));
  for (const std::string& url : {first.url("/a"), plain.url("/a")}) {
    const TransferResult result = resultOf(url);
    ASSERT_TRUE(result.certificate) << result.cause;
    EXPECT_EQ(daysUntil(*result.certificate), 30);
    EXPECT_EQ(result.certificate->issuer, "Test-Authority") << "that of the address that was asked for";
  }
}

TEST_F(TransferCertificate, IsThereAlsoOfAConnectionThatIsUsedAgainAndOfAPageThatDoesNotCome) {
  HttpServer server(made_->chain({"site-plain"}));
  server.requireBasic("/a", "me", "secret", {.body = "page"});
  server.respond("/cut", {.body = "page", .missingBytes = 2});
  const TransferResult challenged = resultOf(server.url("/a"));
  ASSERT_TRUE(challenged.certificate);
  EXPECT_EQ(daysUntil(*challenged.certificate), 50);
  const TransferResult cut = resultOf(server.url("/cut"));
  EXPECT_NE(cut.fault, TransferFault::none);
  ASSERT_TRUE(cut.certificate);
  EXPECT_EQ(daysUntil(*cut.certificate), 50);
}

}  // namespace
}  // namespace tarnwick::testing
