// SPDX-License-Identifier: MIT
// Cancelling, reusing and destroying transfer controls, several at once, and what waiting costs.
#include <gtest/gtest.h>

#include "platform/web/curl_transfers.h"
#include "support/http_server.h"
#include "support/system.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

class TransferLifetime : public ::testing::Test {
 protected:
  TransferLifetime() {
    server_.respond("/a", {.body = "hello"});
    server_.respond("/silent", {.hold = true});
    server_.respond("/drip", {.body = std::string(1000, 'x'), .dripBytes = 10});
  }

  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferLifetime, CancelEndsTheRequestAtOnceAndSilently) {
  probe_.start(server_.url("/drip"));
  ASSERT_TRUE(waitUntil([&] { return probe_.reached(transfer_state::receivingResponse); }));
  probe_.control->cancel();
  EXPECT_FALSE(probe_.control->stillExecuting());
  const auto states = probe_.states;
  EXPECT_TRUE(waitUntil([&] { return server_.openConnections() == 0; })) << "the connection is closed";
  EXPECT_EQ(probe_.states, states);
  EXPECT_EQ(probe_.idles, 0);
  EXPECT_EQ(probe_.control->takeResult().page, "");
}

TEST_F(TransferLifetime, CancelledControlCanBeUsedAgain) {
  probe_.start(server_.url("/drip"));
  ASSERT_TRUE(waitUntil([&] { return probe_.reached(transfer_state::receivingResponse); }));
  probe_.control->cancel();
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferLifetime, EventsOfACancelledRequestNeverReachTheNextOne) {
  probe_.start("bad scheme://");
  probe_.control->cancel();
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
  EXPECT_EQ(probe_.states, kAllStates);
}

TEST_F(TransferLifetime, CancelOfAnIdleControlIsHarmless) {
  probe_.control->cancel();
  probe_.start(server_.url("/a"));
  ASSERT_TRUE(waitUntil([&] { return probe_.ended(); }));
  probe_.control->cancel();
  EXPECT_EQ(probe_.page(), "hello");
}

TEST_F(TransferLifetime, CancelWhileTheNameIsLookedUpDoesNotWait) {
  probe_.start("http://nosuch.invalid/");
  waitUntil([&] { return probe_.reached(transfer_state::resolvingHost); });
  const auto start = std::chrono::steady_clock::now();
  probe_.control->cancel();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds{500});
}

TEST_F(TransferLifetime, HandlerMayCancelItsOwnRequest) {
  for (const int when : kAllStates) {
    int last = 0;
    probe_.control->onStateChanged([&](int state) {
      last = state;
      if (state == when) {
        probe_.control->cancel();
      }
    });
    probe_.start(server_.url("/a"));
    EXPECT_TRUE(waitUntil([&] { return probe_.ended(); })) << when;
    EXPECT_EQ(last, when);
    EXPECT_EQ(probe_.idles, 0);
  }
}

TEST_F(TransferLifetime, HandlerMayDestroyTheControl) {
  for (const int when : kAllStates) {
    auto control = transfers_.makeTransferControl();
    bool idle = false;
    control->onIdle([&] { idle = true; });
    control->onStateChanged([&](int state) {
      if (state == when) {
        control.reset();
      }
    });
    control->execute({.url = server_.url("/a")});
    EXPECT_TRUE(waitUntil([&] { return !control; })) << when;
    EXPECT_FALSE(idle);
  }
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello") << "the others go on";
}

TEST_F(TransferLifetime, HandlerMayDestroyTheControlAndWait) {
  auto control = transfers_.makeTransferControl();
  bool done = false;
  control->onStateChanged([&](int state) {
    if (state == transfer_state::connecting) {
      control.reset();
      EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello");
      done = true;
    }
  });
  control->execute({.url = server_.url("/a")});
  EXPECT_TRUE(waitUntil([&] { return done; }));
}

TEST_F(TransferLifetime, IdleHandlerMayDestroyTheControl) {
  auto control = transfers_.makeTransferControl();
  control->onIdle([&] { control.reset(); });
  control->execute({.url = server_.url("/a")});
  EXPECT_TRUE(waitUntil([&] { return !control; }));
}

TEST_F(TransferLifetime, LastHandlerMayStartTheNextRequest) {
  server_.respond("/b", {.body = "second"});
  int completed = 0;
  probe_.control->onStateChanged([&](int state) {
    if (state == transfer_state::responseCompleted && ++completed == 1) {
      probe_.start(server_.url("/b"));
    }
  });
  probe_.start(server_.url("/a"));
  EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
  EXPECT_EQ(completed, 2);
  EXPECT_EQ(probe_.page(), "second");
  EXPECT_EQ(probe_.idles, 1) << "between the two the control was never idle";
}

TEST_F(TransferLifetime, HandlerMayCancelAnotherControl) {
  TransferProbe other(transfers_);
  other.start(server_.url("/silent"));
  ASSERT_TRUE(waitUntil([&] { return other.reached(transfer_state::requestSent); }));
  probe_.control->onStateChanged([&](int) { other.control->cancel(); });
  probe_.fetch(server_.url("/a"));
  EXPECT_TRUE(other.ended());
  EXPECT_EQ(other.idles, 0);
}

TEST_F(TransferLifetime, HandlerMayDestroyEverything) {
  auto transfers = std::make_unique<CurlTransfers>();
  auto control = transfers->makeTransferControl();
  control->onStateChanged([&](int state) {
    if (state == transfer_state::receivingResponse) {
      control.reset();
      transfers.reset();
    }
  });
  control->execute({.url = server_.url("/a")});
  EXPECT_TRUE(waitUntil([&] { return !transfers; }));
}

TEST_F(TransferLifetime, DestroyingARunningControlClosesItsConnection) {
  auto control = transfers_.makeTransferControl();
  control->execute({.url = server_.url("/silent")});
  ASSERT_TRUE(waitUntil([&] { return server_.inFlight() == 1; }));
  control.reset();
  EXPECT_TRUE(waitUntil([&] { return server_.openConnections() == 0; }));
}

TEST_F(TransferLifetime, ControlsMayOutliveTheirMaker) {
  auto transfers = std::make_unique<CurlTransfers>();
  TransferProbe probe(*transfers);
  transfers.reset();
  EXPECT_EQ(probe.fetch(server_.url("/a")), "hello");
}

TEST_F(TransferLifetime, SeveralControlsFetchAtTheSameTime) {
  std::vector<std::unique_ptr<TransferProbe>> probes;
  for (int i = 0; i < 5; ++i) {
    probes.push_back(std::make_unique<TransferProbe>(transfers_));
    probes.back()->start(server_.url("/silent"));
  }
  EXPECT_TRUE(waitUntil([&] { return server_.inFlight() == 5; }));
  EXPECT_EQ(probe_.fetch(server_.url("/a")), "hello") << "one more passes the five that wait";
  EXPECT_EQ(server_.greatestInFlight(), 6);
  server_.release();
  for (const auto& probe : probes) {
    EXPECT_TRUE(waitUntil([&] { return probe->ended(); }));
    EXPECT_EQ(probe->states, kAllStates);
  }
}

TEST_F(TransferLifetime, WaitingForASilentServerUsesNoProcessorTime) {
  probe_.start(server_.url("/silent"));
  ASSERT_TRUE(waitUntil([&] { return server_.inFlight() == 1; }));
  const double before = processorSeconds();
  pumpFor(std::chrono::milliseconds{1000});
  const double used = processorSeconds() - before;
  EXPECT_LT(used, 0.1);
  EXPECT_FALSE(probe_.ended());
}

}  // namespace
}  // namespace tarnwick::testing
