// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/timer.h"
#include "simulation/agenda.h"
#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

/// The two clocks of the machine: one goes with the agenda, the other one can be set.
class SimulatedClock final : public Clock {
 public:
  SimulatedClock(const Agenda& agenda, LocalTime start) : agenda_(agenda), wall_(start.time_since_epoch()) {}

  LocalTime localNow() const override { return LocalTime(std::chrono::floor<std::chrono::seconds>(wall_ + steady())); }
  std::chrono::milliseconds steadyNow() const override { return kSinceTheMachineStarted + steady(); }

  /// Sets the clock on the wall forward, or back.
  void setBy(std::chrono::milliseconds change) { wall_ += change; }

 private:
  static constexpr std::chrono::milliseconds kSinceTheMachineStarted{1'000'000};
  std::chrono::milliseconds steady() const { return agenda_.now(); }

  const Agenda& agenda_;
  std::chrono::milliseconds wall_;
};

/// Timers of the agenda. The lamps blink more slowly than they are asked to: a year has 63 million of their ticks, and
/// a desktop that is busy tells several of them at once, too.
class SimulatedTimers final : public TimerMaker {
 public:
  SimulatedTimers(Agenda& agenda, Time lamps) : agenda_(agenda), lamps_(lamps) {}

  std::unique_ptr<Timer> makeTimer(std::function<void()> tick) override {
    return std::make_unique<SimulatedTimer>(*this, std::move(tick));
  }

  class SimulatedTimer;
  static SimulatedTimer& of(Timer& timer);

  /// From now on timers tick at even milliseconds, where no mail ends (see `SimulatedMail::endsApart`).
  bool ticksApart = false;

  class SimulatedTimer final : public Timer {
   public:
    SimulatedTimer(SimulatedTimers& maker, std::function<void()> tick)
        : maker_(maker), next_(maker.agenda_), tick_(std::make_shared<std::function<void()>>(std::move(tick))) {}

    void setInterval(std::chrono::milliseconds interval) override {
      interval_ = interval;
      wait();
    }
    std::chrono::milliseconds interval() const override { return interval_; }
    void setEnabled(bool enabled) override {
      if (enabled_ != enabled) {
        enabled_ = enabled;
        wait();
      }
    }
    bool enabled() const override { return enabled_; }

    /// Called before each tick.
    std::function<void()> before;

   private:
    void wait() {
      const SimulatedMemory::OfWorld ours;
      next_.cancel();
      if (enabled_ && interval_.count() > 0) {
        const Time pause = interval_ == kLamps ? maker_.lamps_ : interval_;
        const bool odd = maker_.ticksApart && (maker_.agenda_.now() + pause).count() % 2 != 0;
        next_.in(odd ? pause + Time(1) : pause, [this] {
          wait();
          if (before) {
            before();
          }
          const auto tick = tick_;  // the tick may destroy this timer
          const SimulatedMemory::OfProgram program;
          (*tick)();
        });
      }
    }

    static constexpr std::chrono::milliseconds kLamps{500};
    SimulatedTimers& maker_;
    Appointment next_;
    std::shared_ptr<std::function<void()>> tick_;
    std::chrono::milliseconds interval_{0};
    bool enabled_ = false;
  };

 private:
  Agenda& agenda_;
  Time lamps_;
};

inline SimulatedTimers::SimulatedTimer& SimulatedTimers::of(Timer& timer) {
  return dynamic_cast<SimulatedTimer&>(timer);
}

/// The event loop of one simulated process: what it waits for is what the agenda has next.
class SimulatedPump final : public EventPump {
 public:
  explicit SimulatedPump(Agenda& agenda) : agenda_(agenda) {}

  void pump() override {
    if (!closing_) {
      agenda_.happenNow();
    }
    if (!closing_ && onPumped) {
      const SimulatedMemory::OfWorld ours;
      onPumped();
    }
  }
  void waitForEvent() override {
    if (!closing_ && onWait) {
      const SimulatedMemory::OfWorld ours;
      onWait();
    }
    if (!closing_) {
      agenda_.happen();
    }
  }
  void close() override { closing_ = true; }
  bool closing() const override { return closing_; }

  /// Called at the beginning of each wait.
  std::function<void()> onWait;
  /// Called when all that was due has happened and the caller goes on.
  std::function<void()> onPumped;

 private:
  Agenda& agenda_;
  bool closing_ = false;
};

}  // namespace tarnwick::simulation
