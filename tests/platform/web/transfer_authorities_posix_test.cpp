// SPDX-License-Identifier: MIT
// Which certificate authorities are trusted, and how often they are read.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/test_certificates.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

/// How many events an inotify handle has for us.
int eventsOf(int watch) {
  alignas(inotify_event) std::array<char, 4096> buffer{};
  int events = 0;
  for (ssize_t length = 0; (length = ::read(watch, buffer.data(), buffer.size())) > 0;) {
    for (ssize_t at = 0; at < length; ++events) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + at, sizeof event);
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
  }
  return events;
}

class TransferAuthorities : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!certificates_.problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << certificates_.problem();
    }
  }

  static std::string fetch(CurlTransfers& transfers, const TlsIdentity& identity) {
    HttpServer server(identity);
    server.respond("/a", {.body = "secret page"});
    TransferProbe probe(transfers);
    return probe.fetch(server.url("/a"));
  }

  TestCertificates certificates_;
};

// Reading all the authorities of a system takes ten times as long as everything else that a check of a page does.
TEST_F(TransferAuthorities, FileIsReadOnceForAllTransfers) {
  const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  ASSERT_GE(::inotify_add_watch(watch, certificates_.authorityFile().c_str(), IN_OPEN), 0);
  CurlTransfers transfers({.caFile = certificates_.authorityFile()});
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(fetch(transfers, certificates_.good()), "secret page");
  }
  EXPECT_EQ(eventsOf(watch), 1);
  ::close(watch);
}

TEST_F(TransferAuthorities, FolderIsTrustedToo) {
  const TlsIdentity strange = certificates_.ofAStranger();
  CurlTransfers without({.caFile = certificates_.authorityFile()});
  EXPECT_EQ(fetch(without, strange), "");

  CurlTransfers with({.caFile = certificates_.authorityFile(), .caFolder = certificates_.folderOfStrangers()});
  EXPECT_EQ(fetch(with, strange), "secret page");
  EXPECT_EQ(fetch(with, certificates_.good()), "secret page");
}

}  // namespace
}  // namespace tarnwick::testing
