// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/clock.h"

namespace tarnwick::testing {

/// For its lifetime this process is in one place and at one time on every machine: the names of days are English, the
/// time zone is UTC, and the database takes the time from a clock of the test. One at a time; it outlives the
/// connections that are opened meanwhile.
class SameEverywhere {
 public:
  explicit SameEverywhere(const Clock& clock);
  ~SameEverywhere();
  SameEverywhere(const SameEverywhere&) = delete;
  SameEverywhere& operator=(const SameEverywhere&) = delete;

 private:
  std::string localeBefore_;
  std::optional<std::string> zoneBefore_;
};

}  // namespace tarnwick::testing
