// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace tarnwick {

// What the options of the alarm hold, read from the texts that people write. Each `...Text` gives the one form in which
// it is stored; each reading gives nothing for a text that is none.

/// Pauses before a failed check is repeated: "5 s, 20 s", "90" (seconds), "2 min". Each is from 1 second to 5 minutes,
/// and there are at most ten.
std::optional<std::vector<std::chrono::seconds>> readPauses(std::string_view text);
std::string pausesText(const std::vector<std::chrono::seconds>& pauses);

/// How many changes of a site between up and down are borne within a time: "5 in 30 min".
struct UnsteadyLimit {
  int changes = 0;                ///< 1 to 100; one more is unsteady
  std::chrono::minutes within{};  ///< 1 minute to a day
};
std::optional<UnsteadyLimit> readUnsteadyLimit(std::string_view text);
std::string unsteadyLimitText(const UnsteadyLimit& limit);

/// When a certificate is told before its end: so many days, or when a third of its lifetime is left: "21, 7, 1",
/// "third", "third, 7".
struct CertificateLimits {
  std::vector<int> days{};  ///< 1 to 3650, the greatest first, at most ten
  bool third = false;
};
std::optional<CertificateLimits> readCertificateLimits(std::string_view text);
std::string certificateLimitsText(const CertificateLimits& limits);

/// The hours of a week, from Monday 0:00 on; by the clock on the wall, so that an hour that comes twice counts twice.
using WeekHours = std::bitset<168>;

/// "daily 22-6", "Mon-Fri 18:00-8:00, Sat, Sun 0-24", "none": days, whole hours from and until; an end that is not
/// behind the beginning is on the next day.
std::optional<WeekHours> readWeekHours(std::string_view text);
std::string weekHoursText(const WeekHours& hours);
/// Which of them `time` belongs to.
std::size_t hourOfWeek(LocalTime time);

/// What is done about checks and alerts meanwhile.
enum class QuietKind {
  keepAlerts,  ///< checks go on, and what there is to be told then is told afterwards
  noChecks,
};

/// A time that stands in a calendar: "2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server".
struct DatedWindow {
  LocalTime from;
  LocalTime until;  ///< the first moment behind it
  /// Nothing: as the option for the quiet hours says.
  std::optional<QuietKind> kind;
  std::string note;  ///< without a semicolon
};

/// Several are parted by semicolons; "none" are none. One whose end is not behind its beginning is no window.
std::optional<std::vector<DatedWindow>> readDatedWindows(std::string_view text);
std::string datedWindowsText(const std::vector<DatedWindow>& windows);

/// How long the alerts are paused: "until 2026-12-01 08:00:00", "for good", "no".
struct Pause {
  bool isOn = false;
  std::optional<LocalTime> until;  ///< nothing: for good
};
std::optional<Pause> readPause(std::string_view text);
std::string pauseText(const Pause& pause);
bool isPaused(const Pause& pause, LocalTime now);

/// Hosts, each perhaps with a port, parted by commas: "example.org, 192.0.2.1:53". "none" are none.
std::optional<std::vector<std::string>> readHosts(std::string_view text);
std::string hostsText(const std::vector<std::string>& hosts);

/// A time of the day, "8", "8:05" or "20:30", as the span since midnight.
std::optional<std::chrono::seconds> readTimeOfDay(std::string_view text);
std::string timeOfDayText(std::chrono::seconds time);

/// One line that begins with http:// or https://.
std::optional<std::string> readWebAddress(std::string_view text);
std::string webAddressText(const std::string& address);

/// Names parted by commas; "none" for no name.
std::optional<std::vector<std::string>> readNames(std::string_view text);
std::string namesText(const std::vector<std::string>& names);

}  // namespace tarnwick
