// SPDX-License-Identifier: MIT
#include "program/fault_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/recording_desktop.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FaultBoxTest : public ::testing::Test {
 protected:
  static void fail(const std::string& cause, const std::string& statement = "select 1") {
    throw DataAccessError(cause, statement);
  }

  RecordingPrompts prompts;
  FaultBox box{prompts};
};

TEST_F(FaultBoxTest, ShowsWhatTheUserAskedForEveryTime) {
  EXPECT_FALSE(box.run([] { fail("the disk is full"); }));
  EXPECT_FALSE(box.run([] { fail("the disk is full"); }));
  EXPECT_THAT(prompts.texts(), ElementsAre(HasSubstr("the disk is full"), HasSubstr("the disk is full")));
  EXPECT_EQ(prompts.shown()[0].title, "Tarnwick");
}

TEST_F(FaultBoxTest, SaysNothingOfSuccess) {
  EXPECT_TRUE(box.run([] {}));
  EXPECT_TRUE(box.runRepeated("tick", [] {}));
  EXPECT_THAT(prompts.texts(), IsEmpty());
}

TEST_F(FaultBoxTest, ALastingFaultOfATimerIsToldOnce) {
  for (int tick = 0; tick < 5; ++tick) {
    EXPECT_FALSE(box.runRepeated("tick", [&] { fail("locked", "where id = " + std::to_string(tick)); }));
  }
  EXPECT_THAT(prompts.texts(), SizeIs(1));
}

TEST_F(FaultBoxTest, ANumberThatDiffersMakesNoOtherFault) {
  for (int tick = 0; tick < 5; ++tick) {
    box.runRepeated("tick", [&] { throw OverflowError("Overflow: " + std::to_string(40000 + tick)); });
  }
  EXPECT_THAT(prompts.texts(), SizeIs(1));
}

TEST_F(FaultBoxTest, AFaultThatComesBackAfterASuccessIsToldAgain) {
  box.runRepeated("tick", [] { fail("locked"); });
  box.runRepeated("tick", [] {});
  box.runRepeated("tick", [] { fail("locked"); });
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, ANumberThatIsTooLargeIsNotToldAgainBecauseOthersWereFitMeanwhile) {
  const auto tick = [&](bool fit) {
    return box.runRepeated("run", [&] {
      if (!fit) {
        throw OverflowError("The counter of site 1 is full.");
      }
    });
  };
  EXPECT_FALSE(tick(false));
  EXPECT_TRUE(tick(true));
  EXPECT_FALSE(tick(false));
  EXPECT_THAT(prompts.texts(), SizeIs(1));
  EXPECT_TRUE(box.run([] {}, "run")) << "a Start that meets it no more";
  EXPECT_FALSE(tick(false));
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, AnotherFaultOfTheSameTimerIsTold) {
  box.runRepeated("tick", [] { fail("locked"); });
  box.runRepeated("tick", [] { fail("disk full"); });
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, NoTimerAddsABoxToAnOpenOne) {
  prompts.stayOpen = true;
  box.runRepeated("tick", [] { fail("locked"); });
  box.runRepeated("other", [] { fail("another fault"); });
  box.runRepeated("tick", [] { fail("locked"); });
  EXPECT_THAT(prompts.texts(), ElementsAre(HasSubstr("locked")));
}

TEST_F(FaultBoxTest, WhatWasHeldBackByAnOpenBoxIsToldAfterItWhenItLasts) {
  prompts.stayOpen = true;
  box.runRepeated("tick", [] { fail("locked"); });
  box.runRepeated("other", [] { fail("another fault"); });
  prompts.closeBoxes();
  box.runRepeated("other", [] { fail("another fault"); });
  box.runRepeated("other", [] { fail("another fault"); });
  EXPECT_THAT(prompts.texts(), ElementsAre(HasSubstr("locked"), HasSubstr("another fault")));
}

TEST_F(FaultBoxTest, WhatTheUserAsksForIsToldBesideAnOpenBox) {
  prompts.stayOpen = true;
  box.runRepeated("tick", [] { fail("locked"); });
  EXPECT_FALSE(box.run([] { fail("no such site"); }));
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, ABoxMayOutlastTheProgramThatShowedIt) {
  prompts.stayOpen = true;
  std::make_unique<FaultBox>(prompts)->run([] { fail("no database"); });
  prompts.closeBoxes();
  EXPECT_THAT(prompts.texts(), ElementsAre(HasSubstr("no database")));
}

TEST_F(FaultBoxTest, TheSameFaultMetByTwoTimersIsToldOnce) {
  for (int tick = 0; tick < 3; ++tick) {
    box.runRepeated("run", [] { fail("damaged", "select a"); });
    box.runRepeated("report", [] { fail("damaged", "select b"); });
  }
  EXPECT_THAT(prompts.texts(), SizeIs(1));
}

TEST_F(FaultBoxTest, AFaultThatOutlastsTheOneWhoToldItIsToldAgain) {
  box.runRepeated("run", [] { fail("locked"); });
  box.runRepeated("report", [] { fail("locked"); });
  box.runRepeated("run", [] {});
  box.runRepeated("report", [] { fail("locked"); });
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, WhatAClickMetIsStillNewsFromATimer) {
  box.run([] { fail("locked"); });
  box.runRepeated("tick", [] { fail("locked"); });
  EXPECT_THAT(prompts.texts(), SizeIs(2));
}

TEST_F(FaultBoxTest, WhatStoppedTheUsersActionIsNotToldAgainByTheTimerThatGoesOnWithIt) {
  box.run([] { fail("locked"); }, "tick");
  box.runRepeated("tick", [] { fail("locked"); });
  EXPECT_THAT(prompts.texts(), SizeIs(1));
}

TEST_F(FaultBoxTest, AnyKindOfErrorEndsInTheBox) {
  box.run([] { throw std::bad_alloc(); });
  box.run([] { throw OverflowError("Overflow: 40000"); });
  box.run([] { throw FileError("/x/email.txt", "no such file"); });
  EXPECT_THAT(prompts.texts(), ElementsAre(HasSubstr("memory"), HasSubstr("40000"), HasSubstr("/x/email.txt")));
}

}  // namespace
}  // namespace tarnwick::testing
