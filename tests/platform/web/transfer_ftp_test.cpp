// SPDX-License-Identifier: MIT
// Files of FTP servers.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/ftp_server.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

class TransferFtp : public ::testing::Test {
 protected:
  TransferFtp() { server_.files["page.txt"] = std::string("line\r\n\0end", 10); }

  FtpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferFtp, FileIsFetchedUnchanged) {
  EXPECT_EQ(probe_.fetch(server_.url("/page.txt")), server_.files["page.txt"]);
  EXPECT_EQ(probe_.states, kAllStates);
  EXPECT_EQ(server_.commands().front(), "USER anonymous");
}

TEST_F(TransferFtp, FileBehindACompressedRedirectIsWhatItIs) {
  HttpServer web;
  web.respond("/moved", {.status = 302,
                         .headers = {{"Location", server_.url("/page.txt")}, {"Content-Encoding", "gzip"}},
                         .body = "neither a page nor compressed"});
  EXPECT_EQ(probe_.fetch(web.url("/moved")), server_.files["page.txt"]);
  EXPECT_TRUE(probe_.succeeded());
}

TEST_F(TransferFtp, CredentialsAreUsed) {
  server_.userName = "me";
  server_.password = "secret";
  probe_.request.userName = "me";
  probe_.request.password = "secret";
  EXPECT_EQ(probe_.fetch(server_.url("/page.txt")), server_.files["page.txt"]);
}

TEST_F(TransferFtp, WrongCredentialsAreAFailure) {
  server_.userName = "me";
  EXPECT_EQ(probe_.fetch(server_.url("/page.txt")), "");
  EXPECT_EQ(probe_.fault(), TransferFault::other);
  EXPECT_NE(probe_.cause().find("refused the user name or the password"), std::string::npos) << probe_.cause();
}

TEST_F(TransferFtp, CredentialsCannotSmuggleALine) {
  using namespace std::string_literals;
  for (const std::string& odd : {"me\r\nMAIL FROM:<a@b.cd>"s, "me\n"s, "m\re"s, "m\0e"s}) {
    for (std::string Request::*field : {&Request::userName, &Request::password}) {
      probe_.request.userName = "me";
      probe_.request.password = "secret";
      probe_.request.*field = odd;
      EXPECT_EQ(probe_.fetch(server_.url("/page.txt")), "");
      EXPECT_EQ(probe_.cause(), "The user name or the password holds a line end, and a file server takes none.");
    }
  }
  EXPECT_TRUE(server_.commands().empty());
}

TEST_F(TransferFtp, MissingFileIsAFailure) {
  EXPECT_EQ(probe_.fetch(server_.url("/none.txt")), "");
  EXPECT_EQ(probe_.fault(), TransferFault::other);
  EXPECT_NE(probe_.cause().find("does not give the file out"), std::string::npos) << probe_.cause();
}

TEST_F(TransferFtp, RedirectFromTheWebIsFollowed) {
  HttpServer web;
  web.respond("/a", HttpResponse::redirect(server_.url("/page.txt")));
  EXPECT_EQ(probe_.fetch(web.url("/a")), server_.files["page.txt"]);
}

TEST_F(TransferFtp, ServerThatFallsSilentAtTheEndDoesNotFreezeTheProgram) {
  server_.confirmsEnd = false;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(probe_.fetch(server_.url("/page.txt")), "");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{5});
  EXPECT_EQ(probe_.fault(), TransferFault::dropped);
  EXPECT_NE(probe_.cause().find("did not confirm the end of the transfer"), std::string::npos) << probe_.cause();
}

}  // namespace
}  // namespace tarnwick::testing
