// SPDX-License-Identifier: MIT
#include "history/latency.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;

Latency of(const std::vector<std::int64_t>& times) {
  Latency latency;
  for (const std::int64_t time : times) {
    latency.add(milliseconds(time));
  }
  return latency;
}

/// The one that is exceeded by no more than the rest.
std::int64_t exact(std::vector<std::int64_t> times, double part) {
  std::ranges::sort(times);
  const auto rank = static_cast<std::size_t>(std::ceil(part * static_cast<double>(times.size())));
  return times[std::max<std::size_t>(rank, 1) - 1];
}

TEST(LatencyTest, TellsEveryQuantileWithinTheErrorThatItStates) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    std::vector<std::int64_t> times;
    std::lognormal_distribution<double> spread(std::uniform_real_distribution<double>(0, 12)(random), 1.5);
    for (int i = std::uniform_int_distribution<int>(1, 300)(random); i > 0; --i) {
      times.push_back(std::min<std::int64_t>(std::llround(spread(random)), 2'000'000'000));
    }
    for (const double part : {0.01, 0.5, 0.95, 1.0}) {
      const double told = static_cast<double>(of(times).quantile(part)->count());
      const auto real = static_cast<double>(exact(times, part));
      EXPECT_LE(std::abs(told - real), real * Latency::kLargestError + 0.5) << real;
    }
  }
}

TEST(LatencyTest, IsTheSameHoweverItIsPutTogether) {
  std::mt19937 random(8);
  std::vector<std::int64_t> times;
  Latency parts;
  for (int hour = 0; hour < 24; ++hour) {
    std::vector<std::int64_t> some;
    for (int i = 0; i < 60; ++i) {
      some.push_back(std::uniform_int_distribution<std::int64_t>(0, 60'000)(random));
    }
    times.insert(times.end(), some.begin(), some.end());
    parts.add(Latency::unpacked(of(some).packed()));
  }
  EXPECT_EQ(parts, of(times));
  EXPECT_EQ(parts.count(), times.size());
}

TEST(LatencyTest, IsShort) {
  EXPECT_EQ(Latency().packed(), "");
  EXPECT_EQ(of(std::vector<std::int64_t>(60, 120)).packed().size(), 2U);
  EXPECT_EQ(of(std::vector<std::int64_t>(100'000, 120)).packed().size(), 4U);
  std::vector<std::int64_t> spread;
  for (int i = 0; i < 60; ++i) {
    spread.push_back(80 + 3 * i);
  }
  EXPECT_LT(of(spread).packed().size(), 40U);
}

TEST(LatencyTest, TellsNothingOfNothing) {
  EXPECT_EQ(Latency().quantile(0.5), std::nullopt);
  EXPECT_EQ(of({0}).quantile(0.5), milliseconds(0));
  EXPECT_EQ(of({-5}).quantile(0.5), milliseconds(0));
  EXPECT_EQ(of({1}).quantile(1), milliseconds(1));
}

TEST(LatencyTest, ReadsWhateverAnotherToolHasWritten) {
  std::mt19937 random(9);
  for (int round = 0; round < 10'000; ++round) {
    std::string bytes;
    for (int i = std::uniform_int_distribution<int>(0, 20)(random); i > 0; --i) {
      bytes += static_cast<char>(std::uniform_int_distribution<int>(0, 255)(random));
    }
    const Latency read = Latency::unpacked(bytes);
    EXPECT_EQ(Latency::unpacked(read.packed()), read);
  }
}

}  // namespace
}  // namespace tarnwick::testing
