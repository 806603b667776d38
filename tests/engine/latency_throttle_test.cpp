// SPDX-License-Identifier: MIT
#include "engine/latency_throttle.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

/// A server that takes `latency` for an answer, asked by as many at a time as the throttle allows.
class LatencyThrottleTest : public ::testing::Test {
 protected:
  void round(milliseconds latency, milliseconds processorTime = milliseconds(0)) {
    now_ += latency;
    processorTime_ += processorTime;
    for (std::size_t answers = throttle_.limit(); answers > 0; --answers) {
      throttle_.answered(latency, now_, processorTime_);
    }
  }

  void rounds(int many, milliseconds latency) {
    for (int i = 0; i < many; ++i) {
      round(latency);
    }
  }

  LatencyThrottle throttle_{5, 256};

 private:
  milliseconds now_{0};
  milliseconds processorTime_{0};
};

TEST_F(LatencyThrottleTest, AllowsOneMoreAfterEachRound) {
  EXPECT_EQ(throttle_.limit(), 5U);
  rounds(20, milliseconds(200));
  EXPECT_EQ(throttle_.limit(), 25U);
  rounds(400, milliseconds(200));
  EXPECT_EQ(throttle_.limit(), 256U);
}

TEST_F(LatencyThrottleTest, GrowsNoMoreWhereAnswersTakeLonger) {
  rounds(20, milliseconds(200));
  rounds(4, milliseconds(260));  // until they are the usual ones
  const std::size_t limit = throttle_.limit();
  rounds(3, milliseconds(260));
  EXPECT_EQ(throttle_.limit(), limit);
  rounds(6, milliseconds(205));
  EXPECT_GT(throttle_.limit(), limit);
}

TEST_F(LatencyThrottleTest, TakesAFewMillisecondsForNoise) {
  rounds(5, milliseconds(1));
  rounds(5, milliseconds(3));
  EXPECT_EQ(throttle_.limit(), 15U);
}

TEST_F(LatencyThrottleTest, LeavesHalfACoreToOthers) {
  for (int i = 0; i < 10; ++i) {
    round(milliseconds(100), milliseconds(60));
  }
  EXPECT_LE(throttle_.limit(), 6U);
}

TEST_F(LatencyThrottleTest, IsHalvedOnceARoundAndNeverBelowItsBeginning) {
  rounds(35, milliseconds(200));
  EXPECT_EQ(throttle_.limit(), 40U);
  throttle_.overloaded();
  throttle_.overloaded();
  EXPECT_EQ(throttle_.limit(), 20U);
  round(milliseconds(200));
  EXPECT_EQ(throttle_.limit(), 20U) << "the round of the trouble does not count for more";
  round(milliseconds(200));
  EXPECT_EQ(throttle_.limit(), 21U);
  for (int i = 0; i < 5; ++i) {
    throttle_.overloaded();
    round(milliseconds(200));
  }
  EXPECT_EQ(throttle_.limit(), 5U);
}

}  // namespace
}  // namespace tarnwick::testing
