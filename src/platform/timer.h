// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tarnwick {

/// A repeating timer of the event loop. Its action may pump events; the timer goes on ticking meanwhile.
class Timer {
 public:
  virtual ~Timer() = default;

  /// The time between two ticks. Changing it starts the current wait afresh.
  virtual void setInterval(std::chrono::milliseconds interval) = 0;
  virtual std::chrono::milliseconds interval() const = 0;

  /// A disabled timer never ticks. A timer without an interval does not tick either.
  virtual void setEnabled(bool enabled) = 0;
  virtual bool enabled() const = 0;
};

/// Makes timers: those of the event loop, or in tests those of a clock cranked by hand.
class TimerMaker {
 public:
  virtual ~TimerMaker() = default;

  /// A disabled timer without an interval that runs `tick` each time it fires.
  virtual std::unique_ptr<Timer> makeTimer(std::function<void()> tick) = 0;
};

}  // namespace tarnwick
