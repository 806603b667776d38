// SPDX-License-Identifier: MIT
// Texts that are made between the events.
#include "report/parted_work.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/hand_clock.h"
#include "support/hand_timers.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using std::chrono::milliseconds;

class PartedWorkTest : public ::testing::Test {
 protected:
  /// So many parts, each of which takes that long; a last one that fails, where it is to.
  TextInParts parts(int count, milliseconds each, bool fails = false) {
    for (int part = 1; part <= count; ++part) {
      done = part;
      clock.advance(each);
      co_await letOthersGoOn;
    }
    if (fails) {
      throw std::runtime_error("It cannot be done.");
    }
    ended.push_back(std::to_string(count) + " parts");
    co_return {};
  }

  HandClock clock;
  HandTimers timers{clock};
  int done = 0;
  std::vector<std::string> ended;
  std::vector<std::string> errors;
  PartedWork work{timers, clock, [this](const std::function<void()>& action) {
                    try {
                      action();
                    } catch (const std::exception& error) {
                      errors.emplace_back(error.what());
                    }
                  }};
};

TEST_F(PartedWorkTest, WhatTakesAMomentIsDoneAtOnce) {
  work.begin(parts(3, milliseconds(1)));
  EXPECT_THAT(ended, ElementsAre("3 parts"));
  EXPECT_FALSE(work.isOn());
}

TEST_F(PartedWorkTest, OfWhatTakesLongerEventsComeInBetween) {
  work.begin(parts(3, milliseconds(20)));
  EXPECT_EQ(done, 1);
  EXPECT_TRUE(work.isOn());
  timers.advance(milliseconds(5));
  EXPECT_EQ(done, 2);
  EXPECT_THAT(ended, IsEmpty());
  timers.advance(std::chrono::seconds(1));
  EXPECT_THAT(ended, ElementsAre("3 parts"));
  EXPECT_FALSE(work.isOn());
  EXPECT_EQ(work.spent(), milliseconds(60));
}

TEST_F(PartedWorkTest, AnErrorAtOnceIsTheCallersAndALaterOneTheGuards) {
  EXPECT_THROW(work.begin(parts(1, milliseconds(1), true)), std::runtime_error);
  work.begin(parts(1, milliseconds(20), true));
  EXPECT_THAT(errors, IsEmpty());
  timers.advance(std::chrono::seconds(1));
  EXPECT_THAT(errors, ElementsAre("It cannot be done."));
  EXPECT_FALSE(work.isOn());
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(PartedWorkTest, TheLatestTakesThePlaceOfOneThatHasNotEnded) {
  work.begin(parts(9, milliseconds(20)));
  work.begin(parts(2, milliseconds(20)));
  timers.advance(std::chrono::seconds(1));
  EXPECT_THAT(ended, ElementsAre("2 parts"));
}

}  // namespace
}  // namespace tarnwick::testing
