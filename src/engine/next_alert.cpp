// SPDX-License-Identifier: MIT
#include "engine/next_alert.h"

#include <algorithm>

#include "engine/alarm_rule.h"

namespace tarnwick {
namespace {

using When = NextAlert::When;

NextAlert whileDown(const SiteStanding& standing, const AlarmPolicy& policy) {
  NextAlert next{.tellsBack = policy.recovery};
  switch (policy.remind.kind) {
    case Reminders::Kind::everyCheck:
      next.when = When::eachFailure;
      break;
    case Reminders::Kind::never:
      next.when = policy.recovery ? When::back : When::nextOutage;
      break;
    case Reminders::Kind::regular:
    case Reminders::Kind::growing:
      next.when = When::reminder;
      next.at = nextReminder(standing, policy.remind);
      break;
  }
  return next;
}

}  // namespace

NextAlert nextAlertOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool isKnown) {
  using Told = SiteStanding::Told;
  if (!policy.alerts) {
    return {.when = When::never};
  }
  if (isKnown) {
    return {.when = When::otherPage};
  }
  if (policy.isOriginal()) {
    return {.when = When::eachFailure};
  }
  if (standing.unsteady && standing.told == Told::unsteady) {
    return {.when = When::steady};
  }
  if (quietAt(policy, now) != Quiet::no && waitsForTime(standing, policy)) {
    return {.when = When::quietTimeEnds};
  }
  if (standing.failures >= policy.confirm && standing.told == Told::down) {
    return whileDown(standing, policy);
  }
  return {.when = When::failures, .failures = std::max(policy.confirm - standing.failures, 1)};
}

}  // namespace tarnwick
