// SPDX-License-Identifier: MIT
// Which certificate authorities are trusted, and how often they are read.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <QTimer>

#include "platform/web/curl_transfers.h"
#include "support/file_bytes.h"
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

TEST_F(TransferAuthorities, AFileThatHasChangedCountsAtOnce) {
  const TlsIdentity strange = certificates_.ofAStranger();
  const std::string folder = certificates_.folderOfStrangers();
  std::string strangers;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    strangers = bytesOfFile(entry.path());
  }
  const std::string file = folder + "/bundle.pem";
  writeFile(file, bytesOfFile(certificates_.authorityFile()));
  CurlTransfers transfers({.caFile = file});
  EXPECT_EQ(fetch(transfers, strange), "");
  writeFile(file, bytesOfFile(certificates_.authorityFile()) + strangers);
  EXPECT_EQ(fetch(transfers, strange), "secret page");
  writeFile(file, strangers);
  EXPECT_EQ(fetch(transfers, certificates_.good()), "");
  writeFile(file, "no certificate");
  EXPECT_EQ(fetch(transfers, strange), "");
  writeFile(file, strangers);
  EXPECT_EQ(fetch(transfers, strange), "secret page");
}

// A system's file takes 25 milliseconds, which can be seen in a window.
TEST_F(TransferAuthorities, OthersAreServedWhileALongFileIsRead) {
  constexpr int kCertificates = 3000;
  const std::string file = certificates_.folderOfStrangers() + "/bundle.pem";
  const std::string one = bytesOfFile(certificates_.authorityFile());
  std::string many;
  for (int i = 0; i < kCertificates; ++i) {
    many += one;
  }
  writeFile(file, many);
  CurlTransfers transfers({.caFile = file});
  HttpServer server(certificates_.good());
  server.respond("/a", {.body = "secret page"});
  TransferProbe given(transfers);
  TransferProbe givenUp(transfers);
  int rounds = 0;
  QTimer others;
  QObject::connect(&others, &QTimer::timeout, [&] { ++rounds; });
  others.start(0);
  given.start(server.url("/a"));
  givenUp.start(server.url("/a"));
  waitUntil([&] { return rounds > 2; });
  givenUp.control->cancel();
  waitUntil([&] { return given.ended(); });
  EXPECT_EQ(given.page(), "secret page");
  EXPECT_GT(rounds, kCertificates / 10);
  EXPECT_EQ(givenUp.idles, 0);
}

TEST_F(TransferAuthorities, ATransferThatWaitsForThemMayGo) {
  const std::string file = certificates_.folderOfStrangers() + "/bundle.pem";
  std::string many;
  for (int i = 0; i < 100; ++i) {
    many += bytesOfFile(certificates_.authorityFile());
  }
  writeFile(file, many);
  CurlTransfers transfers({.caFile = file});
  {
    TransferProbe gone(transfers);
    gone.start("https://127.0.0.1:1/");
  }
  EXPECT_EQ(fetch(transfers, certificates_.good()), "secret page");
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
