// SPDX-License-Identifier: MIT
// A machine that gives the program no more files: no fault of any server.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/resource_limit_posix.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

TEST(TransferShortage, OfFileHandlesIsToldAsSuch) {
  HttpServer server;
  server.respond("/a", {.body = "hello"});
  CurlTransfers transfers;
  TransferProbe probe(transfers);
  ASSERT_EQ(probe.fetch(server.url("/a")), "hello");
  for (const std::string host : {"127.0.0.1", "[::1]", "localhost"}) {
    const ResourceLimit noMore(RLIMIT_NOFILE, filesOpen());
    EXPECT_EQ(probe.fetch(server.url("/a", host)), "");
    EXPECT_EQ(probe.fault(), TransferFault::shortage) << host;
    EXPECT_EQ(probe.cause(), "This machine has no more file handles for Tarnwick.") << host;
  }
  EXPECT_EQ(probe.fetch(server.url("/a")), "hello") << "and the next one is well";
}

}  // namespace
}  // namespace tarnwick::testing
