// A machine that gives the program no more files: no fault of any server.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "platform/curl_transfers.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

/// Lets this process open nothing more.
class NoMoreFiles {
 public:
  NoMoreFiles() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const int lowestFree = dup(0);
    close(lowestFree);
    rlimit lower = before_;
    lower.rlim_cur = static_cast<rlim_t>(lowestFree);
    setrlimit(RLIMIT_NOFILE, &lower);
  }
  ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &before_); }
  NoMoreFiles(const NoMoreFiles&) = delete;
  NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
  rlimit before_{};
};

TEST(TransferShortage, OfFileHandlesIsToldAsSuch) {
  HttpServer server;
  server.respond("/a", {.body = "hello"});
  CurlTransfers transfers;
  TransferProbe probe(transfers);
  ASSERT_EQ(probe.fetch(server.url("/a")), "hello");
  for (const std::string host : {"127.0.0.1", "[::1]", "localhost"}) {
    const NoMoreFiles none;
    EXPECT_EQ(probe.fetch(server.url("/a", host)), "");
    EXPECT_EQ(probe.fault(), TransferFault::other) << host;
    EXPECT_EQ(probe.cause(), "This machine has no more file handles for Tarnwick.") << host;
  }
  EXPECT_EQ(probe.fetch(server.url("/a")), "hello") << "and the next one is well";
}

}  // namespace
}  // namespace tarnwick::testing
