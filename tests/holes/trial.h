// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "holes/defacements.h"
#include "holes/generated_page.h"
#include "holes/judge.h"
#include "holes/learn.h"

namespace tarnwick::generated {

inline constexpr std::size_t kLearningFetches = 5;
inline constexpr std::size_t kDefacements = 2277;

/// A page with what was learnt of it from five fetches, one to three seconds apart.
class Trial {
 public:
  /// Each round is at another moment and draws other values.
  explicit Trial(const Generator& generator, std::size_t round = 0);

  const Generator& generator() const { return *generator_; }
  const Lesson& lesson() const { return lesson_; }
  const std::string& baseline() const { return baseline_; }
  const std::vector<Made>& copies() const { return copies_; }

  /// The n-th of the further fetches, which are spread over four hundred days and all hours.
  Made further(std::size_t n) const;
  Judgement judged(std::string_view page) const;

  /// How many of the further fetches are judged to be the same.
  std::size_t sameFetches() const;
  /// The first that is not.
  std::optional<std::size_t> firstDifferent() const;
  /// The defacements that were not seen among that many.
  std::vector<Defaced> missedDefacements(std::size_t count) const;
  /// The broken classes that were not seen.
  std::vector<Defaced> missedBreaks() const;

 private:
  const Generator* generator_;
  std::string seed_;
  LocalTime start_;
  std::vector<Made> copies_;
  Lesson lesson_;
  std::string baseline_;
};

/// How many of all defacements a page gets: as many as the others, but none where nothing is fixed.
std::size_t defacementsOf(const Generator& generator);

/// What was learnt, in a line for each hole.
std::string describe(const Trial& trial);

}  // namespace tarnwick::generated
