// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/event_pump.h"
#include "platform/timer.h"

namespace tarnwick {

/// The event loop of the application object, which must exist while this is used.
class QtEventPump final : public EventPump {
 public:
  void pump() override;
  void waitForEvent() override;
  void close() override;
  bool closing() const override { return closing_; }

 private:
  bool closing_ = false;
};

/// Timers of that event loop. They keep their rhythm: a tick that comes late does not delay the next one, and ticks
/// that were missed altogether are not made up for.
class QtTimers final : public TimerMaker {
 public:
  std::unique_ptr<Timer> makeTimer(std::function<void()> tick) override;
};

}  // namespace tarnwick
