// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "holes/hole.h"
#include "platform/clock.h"

namespace tarnwick {

/// What several copies of a page, fetched one after the other, say about what varies in it.
struct Lesson {
  /// The smallest that explain the copies: places of the first of them.
  Holes holes;
  /// What nobody can know from these copies, in words for people: a date that may be another one tomorrow, too much
  /// that varies, a copy that is another page altogether.
  std::vector<std::string> warnings;
};

/// Learns from at least two copies, as `pageText` gives them. `now` is when they were fetched: by it a date of today
/// that has not changed meanwhile is known for one. Takes time nearly in proportion to the copies' length; from copies
/// that have too little in common one hole "anything" is learnt, with a warning.
Lesson learn(std::span<const std::string> copies, LocalTime now);

/// What is left to be said of copies that it takes too long to learn from: one hole "anything" between what all of them
/// begin with and what all of them end with, and a warning. Takes time in proportion to their length, and little of it.
Lesson learnRoughly(std::span<const std::string> copies);

}  // namespace tarnwick
