// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "history/calendar.h"
#include "history/latency.h"

namespace tarnwick {

/// The latest check of a site, as far as what comes after it depends on it.
struct LatestCheck {
  Moment at{};
  bool up = false;
  /// When it ceased to say anything of the site, as its run was stopped or this machine went offline.
  std::optional<Moment> until{};

  bool operator==(const LatestCheck&) const = default;
};

/// A stretch of time, its end not included.
struct Stretch {
  Moment from;
  Moment until;
};

/// What is known of a stretch of time, or of several together. What of their time is neither up nor down is not known,
/// or was planned.
struct TimeSum {
  std::int64_t checks = 0;
  std::chrono::seconds up{0};
  std::chrono::seconds down{0};
  /// Of the checks that were answered.
  std::chrono::milliseconds tookInAll{0};
  std::chrono::milliseconds slowest{0};
  Latency latency{};

  std::chrono::seconds known() const { return up + down; }
  /// Up in per cent of the known time; nothing where none is known.
  std::optional<double> uptime() const;
  void add(const TimeSum& other);
  bool operator==(const TimeSum&) const = default;
};

/// A check as it is taken into the history.
struct TakenCheck {
  Moment at{};
  bool up = false;
  std::string cause{};  ///< why it is down, in a few words
  /// How long the answer took; nothing where there was none.
  std::optional<std::chrono::milliseconds> took{};
};

/// The known time of an hour that a check adds.
struct HourShare {
  Moment hour{};
  std::chrono::seconds up{0};
  std::chrono::seconds down{0};

  bool operator==(const HourShare&) const = default;
};

/// What becomes of the outage of a site.
struct OutageChange {
  enum class Kind { none, begins, goesOn, ends };
  Kind kind = Kind::none;
  Moment at{};  ///< where it begins or ends

  bool operator==(const OutageChange&) const = default;
};

/// The time after a check of which it says something, when it is `now`: until the next check; where that has not come
/// within two intervals, for one interval. Nothing where the clock was set back.
std::optional<Stretch> knownAfter(const LatestCheck& check, std::chrono::seconds interval, Moment now);

/// The same as shares of hours, without what was `planned`: stretches in rising order that do not overlap.
std::vector<HourShare> sharesAfter(const LatestCheck& check, std::chrono::seconds interval,
                                   std::span<const Stretch> planned, Moment now);

/// What a check makes of the outage of a site: it begins with the first check that fails, and ends with the first that
/// passes, or where it was last known when nothing was known between the two.
OutageChange outageAfter(const std::optional<LatestCheck>& before, std::chrono::seconds interval,
                         const TakenCheck& check);

}  // namespace tarnwick
