// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "engine/alarm_policy.h"
#include "platform/clock.h"
#include "store/site_standing.h"

namespace tarnwick {

/// What a check came to. None where only time has gone by.
struct CheckOutcome {
  bool passed = false;
  std::string error;  ///< why not, in a few words
  std::chrono::milliseconds took{0};
  bool known = false;  ///< the wrong page is acknowledged, so nothing is told of it
  bool other = false;  ///< it is another one than the acknowledged one, and so is told as if nothing had been
  std::vector<AlertKind> news{};  ///< what else there is to be told of it now, as `mayTell` says
};

/// What follows.
struct AlarmStep {
  SiteStanding standing;
  /// To be told now, in this order; also what is still owed.
  std::vector<AlertKind> alerts;
  /// How many of them, from the first on, were owed before: they are decided no more, only still to be told.
  std::size_t owedBefore = 0;
  /// The check that may confirm the failure is to be made so long from now.
  std::optional<std::chrono::seconds> repeatAfter;
};

/// Decides what is told of a site after a check, or as time goes by. Everything that it needs to know it is given.
///
/// - Down for real is a site after `confirm` failed checks in a row. That is told once, and then as `remind` says.
/// - Up again it is with the first check that passes; `recovery` tells that, if it was told to be down.
/// - While a moment is quiet, or `alerts` is off, nothing is told; what is still so afterwards is told then.
/// - More changes between up and down for real than `unsteady` bears are told as one alert; then nothing, until there
///   was no change for as long.
/// - While an acknowledged page stays nothing is told. Another wrong page is told at once, as the first of an outage.
/// - What lies ahead since the clock was set back counts as of now.
/// - A page that took longer than `slow` is told once, until one comes in time.
AlarmStep decideAlarm(SiteStanding standing, const std::optional<CheckOutcome>& outcome, const AlarmPolicy& policy,
                      LocalTime now);

/// Whether what a check has found is told at once.
bool mayTell(const CheckOutcome& outcome, const AlarmPolicy& policy, LocalTime now);

/// Whether time alone may bring something to be told of the site, so that it is to be asked about now and then.
bool waitsForTime(const SiteStanding& standing, const AlarmPolicy& policy);

/// When the next reminder of the outage that was told last is due. Nothing where there is none.
std::optional<LocalTime> nextReminder(const SiteStanding& standing, const Reminders& remind);

}  // namespace tarnwick
