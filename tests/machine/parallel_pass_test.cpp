// SPDX-License-Identifier: MIT
// How many sites are fetched at a time when their user wants more than five, and how a host is spared.
#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

struct ParallelPass : ::testing::Test, ProgramFixture {
  ParallelPass() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  /// Nobody is answered before so many have asked, and the others once the last of them has its answer: however slow
  /// the machine is, they are in flight together.
  void answerWhenAsked(int times) {
    server.handleOthers([this, times](const HttpRequest& request) -> HttpResponse {
      if (++asked > times) {
        server.release();
      }
      return {.body = request.target, .delay = milliseconds(50), .hold = asked < times};
    });
  }

  int asked = 0;
};

TEST_F(ParallelPass, AsManyAreInFlightAsTheOptionSays) {
  answerWhenAsked(12);
  for (int i = 0; i < 30; ++i) {
    addSite(server.url("/" + std::to_string(i)));
  }
  program.data().storeOptions(kAllSites, {{"parallel", "12"}, {"perHost", "256"}, {"spacing", "0"}});
  program.run().startChecking();
  EXPECT_EQ(server.greatestInFlight(), 12);
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "30");
}

TEST_F(ParallelPass, OneHostIsSparedWhileManyAreInFlight) {
  answerWhenAsked(2);
  for (int i = 0; i < 9; ++i) {
    addSite(server.url("/" + std::to_string(i)));
  }
  program.data().storeOptions(kAllSites, {{"parallel", "auto"}, {"spacing", "0"}});
  program.run().startChecking();
  EXPECT_EQ(server.greatestInFlight(), 2);
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "9");
}

TEST(ParallelPassInRealTime, KeepsItsPauseAtAHostAndGoesOnByItself) {
  ProgramFixture fixture(TestServices::Time::real);
  fixture.program.start();
  for (const char* path : {"/a", "/b", "/c"}) {
    fixture.addPage(path, path);
  }
  fixture.program.data().setOption(kAllSites, "spacing", "200");
  const milliseconds before = fixture.machine.clock().steadyNow();
  fixture.program.startRun();
  EXPECT_GE(fixture.machine.clock().steadyNow() - before, milliseconds(400));
  EXPECT_EQ(fixture.folder.queryText("select sum(success) from sites"), "3");
}

}  // namespace
}  // namespace tarnwick::testing
