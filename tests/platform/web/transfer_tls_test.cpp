// SPDX-License-Identifier: MIT
// Secure transfers: the chain and the host of the certificate are verified.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/test_certificates.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

class TransferTls : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { certificates_ = std::make_unique<TestCertificates>(); }
  static void TearDownTestSuite() { certificates_.reset(); }

  void SetUp() override {
    if (!certificates_->problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << certificates_->problem();
    }
    transfers_ = std::make_unique<CurlTransfers>(CurlTransfers::Options{.caFile = certificates_->authorityFile()});
    probe_ = std::make_unique<TransferProbe>(*transfers_);
  }

  // Fetches a page from a server with this identity.
  std::string fetchFrom(const TlsIdentity& identity, const std::string& host = "127.0.0.1") {
    HttpServer server(identity);
    server.respond("/a", {.body = "secret page"});
    place_ = host + " port " + std::to_string(server.port());
    return probe_->fetch(server.url("/a", host));
  }

  void expectUntrusted(const std::string& reason) {
    EXPECT_TRUE(probe_->failed());
    EXPECT_EQ(probe_->fault(), TransferFault::certificate);
    EXPECT_EQ(probe_->cause(), "The certificate of the server " + place_ + " could not be verified: " + reason + ".");
    EXPECT_EQ(probe_->states, (std::vector<int>{1, 2, 3, 4, 11}));
  }

  static std::unique_ptr<TestCertificates> certificates_;
  std::unique_ptr<CurlTransfers> transfers_;
  std::unique_ptr<TransferProbe> probe_;
  std::string place_;
};

std::unique_ptr<TestCertificates> TransferTls::certificates_;

TEST_F(TransferTls, TrustedServerIsFetched) {
  EXPECT_EQ(fetchFrom(certificates_->good()), "secret page");
  EXPECT_EQ(probe_->states, kAllStates);
  EXPECT_EQ(fetchFrom(certificates_->good(), "localhost"), "secret page");
}

TEST_F(TransferTls, UnknownAuthorityIsRefused) {
  CurlTransfers systems;
  probe_ = std::make_unique<TransferProbe>(systems);
  EXPECT_EQ(fetchFrom(certificates_->good()), "");
  expectUntrusted("unable to get local issuer certificate");
}

TEST_F(TransferTls, SelfSignedCertificateIsRefused) {
  EXPECT_EQ(fetchFrom(certificates_->selfSigned()), "");
  expectUntrusted("self-signed certificate");
}

TEST_F(TransferTls, ExpiredCertificateIsRefused) {
  EXPECT_EQ(fetchFrom(certificates_->expired()), "");
  expectUntrusted("certificate has expired");
}

TEST_F(TransferTls, CertificateOfAnotherHostIsRefused) {
  EXPECT_EQ(fetchFrom(certificates_->wrongHost()), "");
  expectUntrusted("it was issued for another host");
  EXPECT_EQ(fetchFrom(certificates_->wrongHost(), "localhost"), "");
  expectUntrusted("it was issued for another host");
}

TEST_F(TransferTls, MissingFileOfAuthoritiesIsNamed) {
  CurlTransfers transfers(CurlTransfers::Options{.caFile = "/nowhere/authorities.pem"});
  probe_ = std::make_unique<TransferProbe>(transfers);
  EXPECT_EQ(fetchFrom(certificates_->good()), "");
  EXPECT_EQ(probe_->fault(), TransferFault::certificate);
  EXPECT_EQ(probe_->cause(), "The file of trusted certificates /nowhere/authorities.pem could not be read.");
}

TEST_F(TransferTls, RedirectFromPlainToSecureIsFollowed) {
  HttpServer secure(certificates_->good());
  secure.respond("/b", {.body = "secret page"});
  HttpServer plain;
  plain.respond("/a", HttpResponse::redirect(secure.url("/b")));
  EXPECT_EQ(probe_->fetch(plain.url("/a")), "secret page");
}

}  // namespace
}  // namespace tarnwick::testing
