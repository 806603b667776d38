// SPDX-License-Identifier: MIT
// How many sites are fetched at a time when their user wants more than five, and how a host is spared.
#include <gtest/gtest.h>

#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

struct ParallelPass : ::testing::Test, ProgramFixture {
  ParallelPass() : ProgramFixture(TestServices::Time::byHand) { program.start(); }
};

TEST_F(ParallelPass, AsManyAreInFlightAsTheOptionSays) {
  // Nobody is answered before twelve have asked, and the rest once the twelfth has its answer.
  int asked = 0;
  server.handleOthers([&](const HttpRequest& request) -> HttpResponse {
    if (++asked > 12) {
      server.release();
    }
    return {.body = request.target, .delay = milliseconds(50), .hold = asked < 12};
  });
  for (int i = 0; i < 30; ++i) {
    addSite(server.url("/" + std::to_string(i)));
  }
  program.data().storeOptions(kAllSites, {{"parallel", "12"}, {"perHost", "256"}, {"spacing", "0"}});
  program.run().startChecking();
  EXPECT_EQ(server.greatestInFlight(), 12);
  EXPECT_EQ(folder.queryText("select sum(success) from sites"), "30");
}

TEST_F(ParallelPass, OneHostIsSparedWhileManyAreInFlight) {
  for (int i = 0; i < 9; ++i) {
    const std::string path = "/" + std::to_string(i);
    server.respond(path, {.body = path, .delay = milliseconds(20)});
    addSite(server.url(path));
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
