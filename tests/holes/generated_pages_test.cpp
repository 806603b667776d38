// SPDX-License-Identifier: MIT
// The learner against a hundred pages as the web has them, each of which knows what of it varies.
#include <gtest/gtest.h>

#include "holes/trial.h"

namespace tarnwick::generated {
namespace {

constexpr std::size_t kPages = 100;
constexpr std::size_t kLearnable = 92;
constexpr std::size_t kLearnt = 88;

/// What of a page does not vary, with a mark where something does.
std::string withoutParts(const Made& page) {
  std::string result;
  std::size_t from = 0;
  for (const auto& part : page.parts) {
    EXPECT_GE(part.begin, from);
    result += page.bytes.substr(from, part.begin - from) + "\x01";
    from = part.end();
  }
  return result + page.bytes.substr(from);
}

std::string valuesOf(const Made& page) {
  std::string result;
  for (const auto& part : page.parts) {
    result += page.bytes.substr(part.begin, part.length) + "\n";
  }
  return result;
}

TEST(GeneratedPages, VaryWhereTheySayAndNowhereElse) {
  std::size_t learnable = 0;
  for (const auto& generator : allGenerators()) {
    const Trial trial(generator);
    const auto fixed = withoutParts(trial.copies().front());
    bool varies = false;
    for (const auto& copy : trial.copies()) {
      EXPECT_EQ(withoutParts(copy), fixed) << generator.name;
      varies = varies || valuesOf(copy) != valuesOf(trial.copies().front());
    }
    for (const std::size_t n : {0U, 7U, 19U}) {
      EXPECT_EQ(withoutParts(trial.further(n)), fixed) << generator.name;
      EXPECT_EQ(trial.further(n).bytes, trial.further(n).bytes) << generator.name;
    }
    if (generator.hope == Hope::learnable) {
      ++learnable;
      EXPECT_TRUE(varies) << generator.name;
    }
  }
  EXPECT_EQ(allGenerators().size(), kPages);
  EXPECT_EQ(learnable, kLearnable);
}

TEST(GeneratedPages, AreTheSameForFourHundredDaysOnceLearnt) {
  std::size_t learnt = 0;
  std::string failed;
  for (const auto& generator : allGenerators()) {
    if (generator.hope == Hope::unknowable) {
      continue;
    }
    const Trial trial(generator);
    const auto different = trial.firstDifferent();
    learnt += different ? 0 : 1;
    if (different) {
      failed += generator.name + ": fetch " + std::to_string(*different) + " differs\n" + describe(trial);
    }
  }
  EXPECT_GE(learnt, kLearnt) << failed;
}

TEST(GeneratedPages, ShapesBeyondThemAreLearntAsOften) {
  std::size_t learnt = 0;
  std::size_t all = 0;
  std::string failed;
  for (const auto& generator : furtherPages()) {
    const Trial trial(generator);
    ++all;
    if (const auto different = trial.firstDifferent()) {
      failed += generator.name + ": fetch " + std::to_string(*different) + " differs\n" + describe(trial);
    } else {
      ++learnt;
    }
    for (const auto& missed : trial.missedDefacements(defacementsOf(generator))) {
      ADD_FAILURE() << generator.name << ": " << missed.how << " is not seen\n" << describe(trial);
    }
    for (const auto& missed : trial.missedBreaks()) {
      ADD_FAILURE() << generator.name << ": " << missed.how << " is not seen\n" << describe(trial);
    }
  }
  EXPECT_GE(learnt * kLearnable, all * kLearnt) << failed;
}

TEST(GeneratedPages, NoDefacementOutsideOfWhatVariesIsMissed) {
  std::size_t made = 0;
  for (const auto& generator : allGenerators()) {
    const Trial trial(generator);
    const auto count = defacementsOf(generator);
    made += count;
    for (const auto& missed : trial.missedDefacements(count)) {
      ADD_FAILURE() << generator.name << ": " << missed.how << " is not seen\n" << describe(trial);
    }
  }
  EXPECT_EQ(made, kDefacements);
}

TEST(GeneratedPages, WhatBreaksTheClassOfAPartIsSeen) {
  for (const auto& generator : allGenerators()) {
    if (generator.hope == Hope::unknowable) {
      continue;
    }
    const Trial trial(generator);
    for (const auto& missed : trial.missedBreaks()) {
      ADD_FAILURE() << generator.name << ": " << missed.how << " is not seen\n" << describe(trial);
    }
  }
}

TEST(GeneratedPages, WhatNobodyCanKnowIsWarnedOfOrSeenLater) {
  for (const auto& generator : allGenerators()) {
    if (generator.hope == Hope::learnable) {
      continue;
    }
    const Trial trial(generator);
    const bool warned = !trial.lesson().warnings.empty();
    const bool seen = trial.lesson().holes.empty() && trial.firstDifferent();
    EXPECT_TRUE(warned || seen) << generator.name << "\n" << describe(trial);
  }
}

}  // namespace
}  // namespace tarnwick::generated
