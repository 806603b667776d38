// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/timer.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {

/// Timers that fire when they are cranked. The maker outlives its timers.
class HandTimers final : public TimerMaker {
 public:
  HandTimers() = default;
  /// Moves `clock` along with the timers, so that a tick sees the time at which it is due.
  explicit HandTimers(HandClock& clock) : clock_(&clock) {}
  HandTimers(const HandTimers&) = delete;
  HandTimers& operator=(const HandTimers&) = delete;

  std::unique_ptr<Timer> makeTimer(std::function<void()> tick) override {
    return std::make_unique<HandTimer>(*this, std::move(tick));
  }

  /// Lets `time` pass and fires every enabled timer that falls due, in the order of their times; of two due at the
  /// same time the older timer first. A tick may call this again, and may start, stop or destroy any timer.
  void advance(std::chrono::milliseconds time) {
    const std::chrono::milliseconds end = now_ + time;
    while (HandTimer* timer = nextDue(end)) {
      moveTo(timer->due());
      timer->fire();
    }
    moveTo(end);
  }

 private:
  class HandTimer final : public Timer {
   public:
    HandTimer(HandTimers& crank, std::function<void()> tick) : crank_(crank), tick_(std::move(tick)) {
      crank_.timers_.push_back(this);
    }
    ~HandTimer() override { std::erase(crank_.timers_, this); }
    HandTimer(const HandTimer&) = delete;
    HandTimer& operator=(const HandTimer&) = delete;

    void setInterval(std::chrono::milliseconds interval) override {
      interval_ = interval;
      startWait();
    }
    std::chrono::milliseconds interval() const override { return interval_; }

    void setEnabled(bool enabled) override {
      if (enabled && !enabled_) {
        startWait();
      }
      enabled_ = enabled;
    }
    bool enabled() const override { return enabled_; }

    bool ticks() const { return enabled_ && interval_.count() > 0; }
    std::chrono::milliseconds due() const { return due_; }

    void fire() {
      startWait();
      const std::function<void()> tick = tick_;  // the tick may destroy this timer
      tick();
    }

   private:
    void startWait() { due_ = crank_.now_ + interval_; }

    HandTimers& crank_;
    std::function<void()> tick_;
    std::chrono::milliseconds interval_{0};
    std::chrono::milliseconds due_{0};
    bool enabled_ = false;
  };

  HandTimer* nextDue(std::chrono::milliseconds end) const {
    HandTimer* next = nullptr;
    for (HandTimer* timer : timers_) {
      if (timer->ticks() && timer->due() <= end && (next == nullptr || timer->due() < next->due())) {
        next = timer;
      }
    }
    return next;
  }

  void moveTo(std::chrono::milliseconds time) {
    if (time <= now_) {
      return;  // a tick has already let more time pass
    }
    if (clock_ != nullptr) {
      clock_->advance(time - now_);
    }
    now_ = time;
  }

  std::chrono::milliseconds now_{0};
  std::vector<HandTimer*> timers_;
  HandClock* clock_ = nullptr;
};

}  // namespace tarnwick::testing
