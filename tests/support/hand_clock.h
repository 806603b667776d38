// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string_view>

#include "platform/clock.h"

namespace tarnwick::testing {

/// A clock that stands still until a test moves it.
class HandClock final : public Clock {
 public:
  HandClock() = default;
  /// Starts at `now`, for instance `HandClock::at("2024-05-17 12:00:30")`.
  explicit HandClock(LocalTime now) : localNow_(now) {}

  /// The moment that a "YYYY-MM-DD HH:MM:SS" text names.
  static LocalTime at(std::string_view dateTime) { return parseDateTime(dateTime).value(); }

  LocalTime localNow() const override { return std::chrono::floor<std::chrono::seconds>(localNow_); }
  std::chrono::milliseconds steadyNow() const override { return steadyNow_; }

  /// Lets time pass: both clocks move.
  void advance(std::chrono::milliseconds time) {
    localNow_ += time;
    steadyNow_ += time;
  }

  /// Sets the clock on the wall alone, as a person or daylight saving does.
  void setLocal(LocalTime now) { localNow_ = now; }

 private:
  std::chrono::local_time<std::chrono::milliseconds> localNow_ = at("2024-05-17 12:00:00");
  std::chrono::milliseconds steadyNow_{1000};
};

}  // namespace tarnwick::testing
