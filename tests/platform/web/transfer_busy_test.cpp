// SPDX-License-Identifier: MIT
// A program that is busy elsewhere while its requests are under way: that is no fault of the servers.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/web/curl_transfers.h"
#include "platform/web/transfer_clock.h"
#include "support/http_server.h"
#include "transfer_probe.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr seconds kTimeout{1};

// What storing a large page is for the transfers.
void beBusyFor(milliseconds time) {
  std::this_thread::sleep_for(time);  // sleeps because it plays a program that handles no events for so long
}

class TransferWhileBusy : public ::testing::Test {
 protected:
  TransferWhileBusy() {
    server_.respond("/a", {.body = "hello"});
    server_.respond("/slow", {.body = "hello", .delay = milliseconds{1200}});
    server_.respond("/silent", {.hold = true});
    probe_.request.timeout = kTimeout;
  }

  std::string fetchWithBusyTimes(const std::string& path, int state, int times, milliseconds time) {
    probe_.start(server_.url(path));
    EXPECT_TRUE(waitUntil([&] { return probe_.reached(state) || probe_.ended(); }));
    for (int busy = 0; busy < times; ++busy) {
      beBusyFor(time);
      pumpFor(milliseconds{20});
    }
    EXPECT_TRUE(waitUntil([&] { return probe_.ended(); }));
    return probe_.page();
  }

  HttpServer server_;
  CurlTransfers transfers_;
  TransferProbe probe_{transfers_};
};

TEST_F(TransferWhileBusy, AServerIsNotBlamedForTheTimeBeforeTheConnection) {
  EXPECT_EQ(fetchWithBusyTimes("/a", transfer_state::connecting, 1, milliseconds{1300}), "hello") << probe_.cause();
}

TEST_F(TransferWhileBusy, AServerIsNotBlamedForTheTimeAfterTheRequest) {
  EXPECT_EQ(fetchWithBusyTimes("/slow", transfer_state::requestSent, 1, milliseconds{1300}), "hello") << probe_.cause();
}

TEST_F(TransferWhileBusy, AServerIsNotBlamedForManyShorterTimes) {
  EXPECT_EQ(fetchWithBusyTimes("/slow", transfer_state::requesting, 4, milliseconds{450}), "hello") << probe_.cause();
}

TEST_F(TransferWhileBusy, ASilentServerIsGivenTheTimeBackOnlyOnce) {
  const auto start = steady_clock::now();
  fetchWithBusyTimes("/silent", transfer_state::requesting, 5, milliseconds{450});
  const auto taken = steady_clock::now() - start;
  EXPECT_EQ(probe_.fault(), TransferFault::timeOut);
  EXPECT_EQ(probe_.cause(), "The request took longer than 1 second.");
  EXPECT_LT(taken, 2 * kTimeout + milliseconds{1500});
}

TEST_F(TransferWhileBusy, AnAnswerThatLiesThereIsTakenThoughTheProgramStoodStillForLong) {
  EXPECT_EQ(fetchWithBusyTimes("/slow", transfer_state::requesting, 1, 3 * kTimeout), "hello") << probe_.cause();
}

TEST_F(TransferWhileBusy, ASilentServerIsEndedInTimeWhenNobodyWasBusy) {
  const auto start = steady_clock::now();
  EXPECT_EQ(probe_.fetch(server_.url("/silent")), "");
  const auto taken = steady_clock::now() - start;
  EXPECT_EQ(probe_.cause(), "The request took longer than 1 second.");
  EXPECT_GE(taken, kTimeout);
  EXPECT_LT(taken, kTimeout + milliseconds{500});
}

TEST(TransferClock, GivesBackAtMostTheTimeOutAgain) {
  const TransferClock::Moment start{};
  TransferClock clock(start, seconds{3});
  EXPECT_FALSE(clock.overdueAt(start + milliseconds{2999}));
  EXPECT_TRUE(clock.overdueAt(start + seconds{3}));
  clock.extend(seconds{2}, start + seconds{2});
  EXPECT_EQ(clock.deadline(), start + seconds{5});
  clock.extend(seconds{2}, start + seconds{4});
  clock.extend(seconds{1}, start + seconds{5});
  EXPECT_EQ(clock.deadline(), start + seconds{6});
  EXPECT_EQ(clock.allowed(), seconds{6});
}

TEST(TransferClock, LeavesTimeToReadWhatHasComeAfterAnAbsenceOfAnyLength) {
  const TransferClock::Moment start{};
  TransferClock clock(start, seconds{3});
  const TransferClock::Moment back = start + seconds{100};
  clock.extend(seconds{99}, back);
  EXPECT_FALSE(clock.overdueAt(back + milliseconds{200}));
  EXPECT_TRUE(clock.overdueAt(back + milliseconds{500}));
  EXPECT_GE(start + clock.allowed(), clock.deadline());
}

}  // namespace
}  // namespace tarnwick::testing
