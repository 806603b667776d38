// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// A moment on the wall clock of this machine's time zone, in whole seconds.
using LocalTime = std::chrono::local_seconds;

/// The machine's two clocks: the one on the wall, which people may set, and the one that only goes forward.
class Clock {
 public:
  virtual ~Clock() = default;

  /// The local date and time now.
  virtual LocalTime localNow() const = 0;

  /// The same moment wherever the clock on the wall may stand: it goes on evenly where daylight saving begins or ends.
  virtual std::chrono::sys_seconds now() const;

  /// Time since an arbitrary moment; never goes back. For measuring durations.
  virtual std::chrono::milliseconds steadyNow() const = 0;

  /// The processor time that this process has used; none where nobody counts it.
  virtual std::chrono::milliseconds processorTime() const { return {}; }
};

/// The one date-and-time form of the program: "YYYY-MM-DD HH:MM:SS".
std::string dateTimeText(LocalTime time);

/// The date part of that form: "YYYY-MM-DD".
std::string dateText(LocalTime time);

/// Reads "YYYY-MM-DD HH:MM:SS" or "YYYY-MM-DD" (midnight); nothing when the text is no such date.
std::optional<LocalTime> parseDateTime(std::string_view text);

/// The same of a stamp as other tools write it, too: a `T` for the blank, without seconds, with fractions of them
/// (which are cut off), and with `Z` or the distance from UTC behind it, which leads to the local time of that moment.
std::optional<LocalTime> parseStamp(std::string_view text);

/// What the clock on the wall of this machine's time zone shows at a moment.
LocalTime localTimeAt(std::chrono::sys_seconds moment);

/// The moment at which it shows `time`: the first one where that comes twice, and where it is left out, the one that it
/// would be had the clock not been set.
std::chrono::sys_seconds momentAt(LocalTime time);

/// The clocks of the operating system.
class SystemClock final : public Clock {
 public:
  LocalTime localNow() const override;
  std::chrono::sys_seconds now() const override;
  std::chrono::milliseconds steadyNow() const override;
  std::chrono::milliseconds processorTime() const override;
};

}  // namespace tarnwick
