// SPDX-License-Identifier: MIT
#include "engine/inet_pool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "support/http_server.h"
#include "support/program_folder.h"
#include "support/test_services.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InetPoolTest : public ::testing::Test {
 protected:
  std::vector<std::string> urls(std::size_t number) const { return std::vector<std::string>(number, server.url("/a")); }

  void request(std::int16_t slot, std::size_t row, const std::string& path) {
    pool.send(slot, row, {.url = server.url(path)});
  }

  ProgramFolder folder;
  TestServices machine{TestServices::Time::byHand};
  Database database{folder.path(), machine.databases};
  SettingsAndLog settings{database};
  HttpServer server;
  InetPool pool{settings, machine.transfers, machine.timers()};
};

TEST_F(InetPoolTest, HasFiveSlotsForFiveItemsAndMore) {
  pool.initSockets(urls(5));
  EXPECT_EQ(pool.poolSize(), 5);
  pool.initSockets(urls(100));
  EXPECT_EQ(pool.poolSize(), 5);
  EXPECT_EQ(pool.itemCount(), 100U);
}

TEST_F(InetPoolTest, HasASlotPerItemWhenThereAreFewer) {
  pool.initSockets(urls(2));
  EXPECT_EQ(pool.poolSize(), 2);
}

TEST_F(InetPoolTest, FiveItemsAndALargestPoolOfTenGiveFiveSlots) {
  InetPool large(settings, machine.transfers, machine.timers(), 10);
  large.initSockets(urls(5));
  EXPECT_EQ(large.poolSize(), 5);
  large.initSockets(urls(12));
  EXPECT_EQ(large.poolSize(), 10);
}

TEST_F(InetPoolTest, EmptyItemsGetNoSlotAndRowsStayWhereTheyAre) {
  const std::vector<std::string> items{"", server.url("/a"), ""};
  pool.initSockets(items);
  EXPECT_EQ(pool.poolSize(), 1);
  EXPECT_EQ(pool.itemCount(), 1U);
  EXPECT_EQ(pool.siteContent(3), "");
}

TEST_F(InetPoolTest, NothingButEmptyItemsGivesNoSlotAtAll) {
  pool.initSockets(std::vector<std::string>{"", ""});
  EXPECT_EQ(pool.poolSize(), 0);
  EXPECT_EQ(pool.itemCount(), 0U);
  EXPECT_THAT(pool.getAryFreeSockets(), IsEmpty());
}

TEST_F(InetPoolTest, ATimeoutThatCannotBeReadLeavesNoSlot) {
  pool.initSockets(urls(3));
  settings.setControl("timeout", "99999999999");
  EXPECT_THROW(pool.initSockets(urls(3)), OverflowError);
  EXPECT_EQ(pool.poolSize(), 0);
  EXPECT_THAT(pool.getAryFreeSockets(), IsEmpty());
  pool.testInetConnection();
}

TEST_F(InetPoolTest, AFreshPoolIsFreeAndItsTimerSetButOff) {
  pool.initSockets(urls(3));
  EXPECT_THAT(pool.getAryFreeSockets(), ElementsAre(1, 2, 3));
  EXPECT_FALSE(pool.tmrInet().enabled());
  EXPECT_EQ(pool.tmrInet().interval(), milliseconds(1000));
  EXPECT_FALSE(pool.socketDone(1));
}

// Notes the time-out of each request that is sent.
class TimeoutRecorder final : public TransferMaker {
 public:
  std::unique_ptr<TransferControl> makeTransferControl() override { return std::make_unique<Control>(timeouts); }

  std::vector<seconds> timeouts;

 private:
  class Control final : public TransferControl {
   public:
    explicit Control(std::vector<seconds>& timeouts) : timeouts_(timeouts) {}
    void execute(Request request) override { timeouts_.push_back(request.timeout); }
    bool stillExecuting() const override { return false; }
    void cancel() override {}
    TransferResult takeResult() override { return {}; }
    void onStateChanged(std::function<void(int)>) override {}
    void onIdle(std::function<void()>) override {}

   private:
    std::vector<seconds>& timeouts_;
  };
};

TEST_F(InetPoolTest, RequestsTakeTheTimeoutOfTheSettings) {
  TimeoutRecorder recorder;
  InetPool sending(settings, recorder, machine.timers());
  for (const char* value : {"45", "null", "0", "-5"}) {
    folder.execute(std::string("update control set timeout = ") + value);
    sending.initSockets(urls(1));
    sending.send(1, 1, {.url = server.url("/a")});
  }
  EXPECT_THAT(recorder.timeouts, ElementsAre(seconds(45), seconds(60), seconds(60), seconds(60)));
}

TEST_F(InetPoolTest, ACompletedSlotStaysBusyUntilTheNextSweep) {
  server.respond("/a", {.body = "hello"});
  pool.initSockets(urls(2));
  request(1, 1, "/a");
  EXPECT_THAT(pool.getAryFreeSockets(), ElementsAre(2));
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1) && !pool.inet(1).stillExecuting(); }));
  EXPECT_EQ(pool.lastState(1), 12);
  EXPECT_THAT(pool.getAryFreeSockets(), ElementsAre(2));
  pool.testInetConnection();
  EXPECT_EQ(pool.lastState(1), 0);
  EXPECT_THAT(pool.getAryFreeSockets(), ElementsAre(1, 2));
}

TEST_F(InetPoolTest, TheTickOfItsTimerIsASweep) {
  server.respond("/a", {.body = "hello"});
  pool.initSockets(urls(1));
  request(1, 1, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1) && !pool.inet(1).stillExecuting(); }));
  pool.tmrInet().setEnabled(true);
  machine.handTimers.advance(seconds(1));
  EXPECT_THAT(pool.getAryFreeSockets(), ElementsAre(1));
}

TEST_F(InetPoolTest, WithItsTimerOnAFinishedControlAsksForTheSweepAtOnce) {
  server.respond("/a", {.body = "hello"});
  pool.initSockets(urls(1));
  pool.tmrInet().setEnabled(true);
  request(1, 1, "/a");
  EXPECT_TRUE(waitUntil([&] { return pool.getAryFreeSockets().size() == 1; }));
  EXPECT_TRUE(pool.socketDone(1));
}

TEST_F(InetPoolTest, ASweepLeavesAControlThatStillExecutesAlone) {
  server.respond("/silent", {.hold = true});
  pool.initSockets(urls(1));
  request(1, 1, "/silent");
  ASSERT_TRUE(waitUntil([&] { return server.inFlight() == 1; }));
  pool.testInetConnection();
  EXPECT_THAT(pool.getAryFreeSockets(), IsEmpty());
}

TEST_F(InetPoolTest, NothingOfAnEarlierPassIsLeftInAPoolSetUpAnew) {
  server.respond("/a", {.body = "hello"});
  pool.initSockets(urls(1));
  pool.tmrInet().setEnabled(true);
  request(1, 1, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  pool.initSockets(urls(1));
  EXPECT_FALSE(pool.socketDone(1));
  EXPECT_FALSE(pool.tmrInet().enabled());
}

TEST_F(InetPoolTest, TheNextRowOfASlotHasNothingOfTheOneBefore) {
  server.respond("/a", {.body = "hello"});
  pool.initSockets(urls(2));
  request(1, 1, "/a");
  pool.inet(1).cancel();
  pool.send(1, 1, {.url = "no such kind://host/"});
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  pool.saveSocketData(1);
  EXPECT_NE(pool.siteErrDescription(1), "");
  pool.testInetConnection();
  request(1, 2, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  pool.saveSocketData(1);
  EXPECT_EQ(pool.siteContent(2), "hello");
  EXPECT_EQ(pool.siteErrCode(2), 0);
  EXPECT_EQ(pool.siteErrDescription(2), "");
}

TEST_F(InetPoolTest, SavesThePageForItsRow) {
  const std::string page = std::string("a\0b\xFF", 4) + std::string(200000, 'x');
  server.respond("/a", {.body = page});
  pool.initSockets(urls(7));
  request(1, 6, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  pool.saveSocketData(1);
  EXPECT_EQ(pool.socketRow(1), 6U);
  EXPECT_EQ(pool.siteContent(6), page);
  EXPECT_EQ(pool.siteErrCode(6), 0);
  EXPECT_EQ(pool.siteErrDescription(6), "");
  EXPECT_EQ(pool.siteContent(1), "");
  pool.releaseSiteContent(6);
  EXPECT_EQ(pool.siteContent(6), "");
}

TEST_F(InetPoolTest, SavesTheCauseOfAFailureBehindElevenAndAColon) {
  server.respond("/a", {.drop = true});
  pool.initSockets(urls(1));
  request(1, 1, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  EXPECT_EQ(pool.lastState(1), 11);
  pool.saveSocketData(1);
  EXPECT_NE(pool.siteErrCode(1), 0);
  EXPECT_NE(pool.siteErrDescription(1), "");
  EXPECT_EQ(pool.siteContent(1), "11:" + pool.siteErrDescription(1));
}

TEST_F(InetPoolTest, AnAnsweredHttpErrorIsAPageWithoutAnError) {
  server.respond("/a", {.status = 500, .body = "broken"});
  pool.initSockets(urls(1));
  request(1, 1, "/a");
  ASSERT_TRUE(waitUntil([&] { return pool.socketDone(1); }));
  pool.saveSocketData(1);
  EXPECT_EQ(pool.siteContent(1), "broken");
  EXPECT_EQ(pool.siteErrCode(1), 0);
}

TEST_F(InetPoolTest, KillingThePoolCutsItsTransfers) {
  server.respond("/silent", {.hold = true});
  pool.initSockets(urls(3));
  for (std::int16_t slot = 1; slot <= 3; ++slot) {
    request(slot, static_cast<std::size_t>(slot), "/silent");
  }
  ASSERT_TRUE(waitUntil([&] { return server.inFlight() == 3; }));
  pool.killAllSockets();
  EXPECT_EQ(pool.poolSize(), 0);
  EXPECT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
  pool.killAllSockets();
}

TEST(StateDescriptionTest, DescribesEveryState) {
  EXPECT_EQ(InetPool::getStateDescription(0), "No state to report.");
  EXPECT_EQ(InetPool::getStateDescription(1),
            "The control is looking up the IP address of the specified host computer.");
  EXPECT_EQ(InetPool::getStateDescription(8), "The control successfully received a response from the host computer.");
  EXPECT_EQ(InetPool::getStateDescription(11), "An error occurred in communicating with the host computer.");
  EXPECT_EQ(InetPool::getStateDescription(12), "The request has completed and all data has been received.");
}

TEST(StateDescriptionTest, ANumberThatIsNoStateIsUndefined) {
  EXPECT_EQ(InetPool::getStateDescription(13), "undefined state");
  EXPECT_EQ(InetPool::getStateDescription(-1), "undefined state");
  EXPECT_EQ(InetPool::getStateDescription(32767), "undefined state");
  EXPECT_EQ(InetPool::getStateDescription(-32768), "undefined state");
}

}  // namespace
}  // namespace tarnwick::testing
