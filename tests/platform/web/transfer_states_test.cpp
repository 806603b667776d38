// SPDX-License-Identifier: MIT
// The order and the timing of a transfer control's events.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

class TransferStates : public ::testing::Test {
 protected:
  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferStates, SuccessReportsEveryStateOnceInOrder) {
  server_.respond("/a", {.body = "hello"});
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  EXPECT_EQ(probe_.states, kAllStates);
  EXPECT_EQ(probe_.fault(), TransferFault::none);
  EXPECT_EQ(probe_.cause(), "");
  EXPECT_EQ(probe_.idles, 1);
}

TEST_F(TransferStates, RedirectsReportNoStateTwice) {
  server_.respond("/a", HttpResponse::redirect("/b"));
  server_.respond("/b", HttpResponse::redirect(server_.url("/c", "localhost")));
  server_.respond("/c", {.body = "there"});
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "there");
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferStates, HeadAndEmptyPagesReachEveryStateToo) {
  server_.respond("/a", {.body = "hello"});
  server_.respond("/none", {.status = 204});
  EXPECT_EQ(probe_.fetch(server_.url("/a"), "HEAD"), "");
  EXPECT_EQ(probe_.states, kAllStates);
  EXPECT_EQ(probe_.fetch(server_.url("/none")), "");
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferStates, NothingIsReportedFromInsideExecute) {
  probe_.start("no such scheme://");
  EXPECT_TRUE(probe_.states.empty());
  EXPECT_TRUE(probe_.control->stillExecuting());
  EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
  EXPECT_EQ(probe_.states, std::vector<int>{transfer_state::error});
  EXPECT_EQ(probe_.idles, 1);
}

TEST_F(TransferStates, SilentServerIsSeenAtRequestSent) {
  server_.respond("/silent", {.hold = true});
  probe_.start(server_.url("/silent"));
  EXPECT_TRUE(waitUntil([&] { return probe_.reached(transfer_state::requestSent); }));
  EXPECT_EQ(probe_.states, (std::vector<int>{1, 2, 3, 4, 5, 6}));
  server_.release();
  EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferStates, LargePostIsSentOnlyWhenItsBodyIs) {
  server_.respond("/silent", {.hold = true});
  probe_.start(server_.url("/silent"), "POST", std::string(3'000'000, 'x'));
  EXPECT_TRUE(waitUntil([&] { return probe_.reached(transfer_state::requestSent); }));
  EXPECT_TRUE(waitUntil([&] { return !server_.requests().empty(); }));
  EXPECT_EQ(server_.requests().at(0).body.size(), 3'000'000U);
}

TEST_F(TransferStates, AnswerUnderWayIsReceivingResponse) {
  server_.respond("/drip", {.body = "slowly", .dripBytes = 1, .dripInterval = std::chrono::milliseconds{30}});
  probe_.start(server_.url("/drip"));
  EXPECT_TRUE(waitUntil([&] { return probe_.reached(transfer_state::receivingResponse); }));
  EXPECT_EQ(probe_.states.back(), transfer_state::receivingResponse);
  EXPECT_EQ(probe_.control->takeResult().page, "") << "the page is given out after the last state only";
  EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
  EXPECT_EQ(probe_.page(), "slowly");
}

TEST_F(TransferStates, ControlStillExecutesWhileItsLastHandlerRuns) {
  server_.respond("/a", {.body = "hello"});
  bool executingInside = false;
  std::string pageInside;
  probe_.control->onStateChanged([&](int state) {
    if (state == transfer_state::responseCompleted) {
      executingInside = probe_.control->stillExecuting();
      pageInside = probe_.page();
      EXPECT_EQ(probe_.idles, 0);
    }
  });
  bool executingWhenIdle = true;
  probe_.control->onIdle([&] { executingWhenIdle = probe_.control->stillExecuting(); });
  probe_.fetch(server_.url("/a"));
  EXPECT_TRUE(executingInside);
  EXPECT_EQ(pageInside, "hello");
  EXPECT_FALSE(executingWhenIdle);
}

TEST_F(TransferStates, HandlerMayWaitForTheRestOfItsOwnRequest) {
  server_.respond("/a", {.body = "hello"});
  std::vector<int> states;
  probe_.control->onStateChanged([&](int state) {
    states.push_back(state);
    if (state == transfer_state::connecting) {
      EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
    }
  });
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  EXPECT_EQ(states, kAllStates);
}

}  // namespace
}  // namespace tarnwick::testing
