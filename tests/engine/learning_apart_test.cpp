// SPDX-License-Identifier: MIT
// Learning in a process of its own, and its bound.
#include "engine/learning_apart.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace tarnwick::testing {
namespace {

constexpr LocalTime kNow = std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(22);

std::optional<Learnt> learntApart(const std::vector<std::string>& copies, const std::string& baseline,
                                  std::chrono::seconds most = LearningApart::kMostTime) {
  std::size_t bytes = baseline.size();
  for (const std::string& copy : copies) {
    bytes += copy.size();
  }
  LearningApart learning(
      bytes, [&] { return learntFrom(copies, baseline, kNow); }, [&] { return roughlyLearntFrom(copies, baseline); },
      most);
  while (!learning.take()) {
    std::this_thread::yield();
  }
  return learning.result();
}

TEST(LearningApart, SaysWhatLearningSays) {
  const auto page = [](const std::string& visits, const std::string& rest) {
    return "<p>Today, 2026-11-22, visitor " + visits + "</p>\n<p>" + std::string(300, 'x') + rest + "</p>\n" + "\xFF%";
  };
  const std::vector<std::string> copies = {page("17", ""), page("18", ""), page("204", "")};
  for (const std::string& baseline : {std::string(), page("9", ""), page("9", "more"), std::string("another page")}) {
    const Learnt expected = learntFrom(copies, baseline, kNow);
    const auto learnt = learntApart(copies, baseline);
    ASSERT_TRUE(learnt);
    EXPECT_EQ(learnt->holes, expected.holes);
    EXPECT_EQ(learnt->lost, expected.lost);
    EXPECT_EQ(learnt->warnings, expected.warnings);
    EXPECT_EQ(learnt->watched, expected.watched);
    EXPECT_EQ(learnt->explains, expected.explains);
    EXPECT_EQ(learnt->line, expected.line);
  }
}

TEST(LearningApart, WhatTakesTooLongIsOnePlaceBetweenWhatStays) {
  const auto page = [](unsigned seed) {
    std::mt19937 random(seed);
    std::string noise = "<h1>Always the same</h1>\n";
    while (noise.size() < 12'000'000) {
      noise += static_cast<char>(' ' + static_cast<char>(random() % 95));
    }
    return noise + "\n<p>This as well.</p>\n";
  };
  const std::vector<std::string> copies = {page(1), page(2)};
  const auto learnt = learntApart(copies, "", std::chrono::seconds(1));
  ASSERT_TRUE(learnt);
  ASSERT_EQ(learnt->holes.size(), 1U);
  EXPECT_EQ(learnt->holes.front().kind, HoleClass::anything);
  EXPECT_EQ(learnt->holes.front().begin, std::string("<h1>Always the same</h1>\n").size());
  EXPECT_TRUE(learnt->explains);
  ASSERT_EQ(learnt->warnings.size(), 1U);
  EXPECT_TRUE(learnt->warnings.front().starts_with("So much of the page changes")) << learnt->warnings.front();
}

TEST(LearningApart, WhatIsNotHandedOverWholeIsRefused) {
  for (const char* const bytes : {"hno hole\n", "sx\n", "\n", "d1x"}) {
    EXPECT_FALSE(unpackedLearnt(bytes)) << bytes;
  }
}

}  // namespace
}  // namespace tarnwick::testing
