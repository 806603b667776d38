// SPDX-License-Identifier: MIT
// Another program has the database locked while a pass has results to record.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The longest time for which the event loop has not come round.
class Stall {
 public:
  explicit Stall(TestServices& machine)
      : clock_(machine.clock()), timer_(machine.timers().makeTimer([this] { note(); })) {
    timer_->setInterval(milliseconds(5));
    timer_->setEnabled(true);
  }
  milliseconds longest() const { return longest_; }

 private:
  void note() {
    const milliseconds now = clock_.steadyNow();
    longest_ = std::max(longest_, now - last_);
    last_ = now;
  }

  const Clock& clock_;
  milliseconds last_{clock_.steadyNow()};
  milliseconds longest_{0};
  std::unique_ptr<Timer> timer_;
};

class WriteLock : public ::testing::Test {
 protected:
  WriteLock() : program(folder.path(), machine.services().with({.databases = &patient}), view) {
    program.start();
    for (const char* path : {"/a", "/b", "/c"}) {
      server.respond(path, {.body = path});
      const std::int16_t id = program.data().addSite();
      program.data().updateSites(id, server.url(path), "get", true, 10, false, "", "", "");
    }
    lock.emplace(others);
  }

  /// Once, in `time`, from an event of the loop.
  void after(milliseconds time, std::function<void()> action) {
    timers.push_back(machine.timers().makeTimer([action = std::move(action), done = false]() mutable {
      if (!std::exchange(done, true)) {
        action();
      }
    }));
    timers.back()->setInterval(time);
    timers.back()->setEnabled(true);
  }

  ProgramFolder folder;
  TestServices machine{TestServices::Time::real};
  SqliteConnections patient{machine.clock(), milliseconds(100)};
  HttpServer server;
  RecordingView view;
  Program program;
  Database others{folder.path(), machine.databases};
  std::optional<Transaction> lock;
  std::vector<std::unique_ptr<Timer>> timers;
};

TEST_F(WriteLock, IsWaitedForWithoutHoldingTheLoopAndNoResultIsLost) {
  after(milliseconds(700), [&] { lock.reset(); });
  const Stall stall(machine);
  program.startRun();
  EXPECT_EQ(folder.queryText("select count(*) from log where status = 1"), "3");
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "3");
  EXPECT_THAT(server.requests(), ::testing::SizeIs(3));
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
  EXPECT_LT(stall.longest(), milliseconds(500));
}

TEST_F(WriteLock, IsToldOnceWhenItLasts) {
  after(milliseconds(2600), [&] { lock.reset(); });
  program.startRun();
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "3");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("in use by another program")));
}

TEST_F(WriteLock, IsWaitedForNoLongerThanTheRunGoesOn) {
  after(milliseconds(300), [&] { program.stopRun(); });
  program.startRun();
  EXPECT_FALSE(program.run().busy());
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("in use by another program")));
  lock.reset();
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
}

}  // namespace
}  // namespace tarnwick::testing
