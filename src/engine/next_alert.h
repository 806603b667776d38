// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "engine/alarm_policy.h"
#include "platform/clock.h"
#include "store/site_standing.h"

namespace tarnwick {

/// When somebody is told of a site the next time, as things stand.
struct NextAlert {
  enum class When {
    never,          ///< its alerts are off
    failures,       ///< with failed check number `failures` in a row from now on
    eachFailure,    ///< with each check that fails
    reminder,       ///< with the first check that fails from `at` on
    back,           ///< when it is up again, and not before
    nextOutage,     ///< not before it has been up again, of which nothing is told
    otherPage,      ///< when another wrong page comes, or none
    steady,         ///< when it has not changed between up and down for a while
    quietTimeEnds,  ///< what is still so then
  };

  When when = When::eachFailure;
  int failures = 0;
  std::optional<LocalTime> at{};
  /// It is also told that the site is up again.
  bool tellsBack = false;

  bool operator==(const NextAlert&) const = default;
};

/// What `decideAlarm` would do next. Quiet times that lie ahead are left out. `isKnown` is whether the wrong page of
/// the site is acknowledged.
NextAlert nextAlertOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool isKnown);

}  // namespace tarnwick
