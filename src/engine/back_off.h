// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace tarnwick {

/// How long something that failed is left alone, counted in ticks. The first failure is followed by another try at the
/// next tick; the longer they fail, the rarer they get, and never is one waited for longer than the fault has lasted.
class BackOff {
 public:
  void failed() {
    constexpr int kLongestWait = 60;
    ticksToWait_ = failures_ == 0 ? 0 : std::min(kLongestWait, 2 * ticksToWait_ + 1);
    ticksLeft_ = ticksToWait_;
    ++failures_;
  }
  void succeeded() { *this = {}; }

  bool isFailing() const { return failures_ > 0; }
  /// Counts a tick; whether it is time to try.
  bool tick() { return ticksLeft_-- <= 0; }

 private:
  int failures_ = 0;  // one after the other
  int ticksToWait_ = 0;
  int ticksLeft_ = 0;
};

}  // namespace tarnwick
