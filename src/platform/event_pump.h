// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// The event loop as seen by code that waits in the middle of its work.
///
/// A wait is written `while (!done && !pump.closing()) pump.waitForEvent();`: it handles the timers, network events
/// and clicks that come, uses no processor time between them, and ends when the program is being closed.
class EventPump {
 public:
  virtual ~EventPump() = default;

  /// Handles the events that are pending now and returns at once.
  virtual void pump() = 0;

  /// Blocks until at least one event has been handled; returns at once when the program is being closed.
  virtual void waitForEvent() = 0;

  /// Tells every wait, present and future, to end because the program is being closed. Cannot be undone.
  virtual void close() = 0;
  virtual bool closing() const = 0;
};

}  // namespace tarnwick
