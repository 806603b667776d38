// SPDX-License-Identifier: MIT
#include "engine/alarm_rule.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

using Told = SiteStanding::Told;

/// Doublings beyond it make no difference to anybody: more than half a year.
constexpr int kMostDoublings = 12;

void noteChange(SiteStanding& standing, const AlarmPolicy& policy, LocalTime now) {
  if (policy.unsteady) {
    standing.changes.push_back(now);
  }
}

/// A clock that was set back leaves changes that lie ahead: those are as old as they can be.
void forgetOldChanges(SiteStanding& standing, const AlarmPolicy& policy, LocalTime now) {
  std::erase_if(standing.changes, [&](LocalTime change) {
    return !policy.unsteady || change > now || now - change >= policy.unsteady->within;
  });
  if (policy.unsteady && standing.changes.size() > static_cast<std::size_t>(policy.unsteady->changes)) {
    standing.unsteady = true;
  } else if (standing.changes.empty()) {
    standing.unsteady = false;
  }
}

void take(SiteStanding& standing, const CheckOutcome& outcome, const AlarmPolicy& policy, LocalTime now) {
  standing.unknownSince.reset();
  if (outcome.passed) {
    if (standing.failures > 0) {
      noteChange(standing, policy, now);
    }
    standing.failures = 0;
    standing.downSince.reset();
    standing.firstError.clear();
    standing.slow = policy.slow && outcome.took > *policy.slow;
    standing.toldSlow = standing.toldSlow && standing.slow;
    return;
  }
  if (standing.failures == 0) {
    noteChange(standing, policy, now);
    standing.downSince = now;
    standing.firstError = outcome.error;
  }
  ++standing.failures;
  if (standing.told != Told::up) {
    ++standing.outageChecks;
  }
}

bool isDown(const SiteStanding& standing, const AlarmPolicy& policy) { return standing.failures >= policy.confirm; }

void tell(AlarmStep& step, AlertKind kind) {
  const AlertKind* const last = step.alerts.empty() ? nullptr : &step.alerts.back();
  // What is still owed need not be told twice.
  if (last == nullptr || (*last != kind && !(kind == AlertKind::stillDown && *last == AlertKind::down))) {
    step.alerts.push_back(kind);
  }
}

/// Keeps what is told with the end of it.
void beginOutage(SiteStanding& standing, Told told, LocalTime now) {
  if (standing.told == Told::up) {
    standing.outageSince = standing.downSince.value_or(now);
    standing.outageChecks = standing.failures;
    standing.outageError = standing.firstError;
  }
  standing.told = told;
  standing.toldAt = now;
  standing.reminders = 0;
}

bool isReminderDue(const SiteStanding& standing, const AlarmPolicy& policy, bool isCheck, LocalTime now) {
  switch (policy.remind.kind) {
    case Reminders::Kind::everyCheck:
      return isCheck;
    case Reminders::Kind::never:
      return false;
    case Reminders::Kind::regular:
      return isCheck && now - *standing.toldAt >= policy.remind.every * (standing.reminders + 1);
    case Reminders::Kind::growing:
      return isCheck && now - *standing.toldAt >= hours(1 << std::min(standing.reminders, kMostDoublings));
  }
  return false;
}

/// The reminders whose time has gone by count as told, so that a night brings one and not all of them.
void countReminders(SiteStanding& standing, const AlarmPolicy& policy, LocalTime now) {
  do {
    ++standing.reminders;
  } while (policy.remind.kind != Reminders::Kind::everyCheck && standing.reminders < 1 << 20 &&
           isReminderDue(standing, policy, true, now));
}

void tellOutage(AlarmStep& step, const AlarmPolicy& policy, bool isCheck, LocalTime now) {
  SiteStanding& site = step.standing;
  if (isDown(site, policy) && site.told != Told::down) {
    beginOutage(site, Told::down, now);
    tell(step, AlertKind::down);
  } else if (isDown(site, policy) && isReminderDue(site, policy, isCheck, now)) {
    countReminders(site, policy, now);
    tell(step, policy.remind.kind == Reminders::Kind::everyCheck ? AlertKind::down : AlertKind::stillDown);
  } else if (site.failures == 0 && site.told != Told::up) {
    site.told = Told::up;
    site.toldAt.reset();
    site.reminders = 0;
    if (policy.recovery) {
      tell(step, AlertKind::up);
    }
  }
}

}  // namespace

AlarmStep decideAlarm(SiteStanding standing, const std::optional<CheckOutcome>& outcome, const AlarmPolicy& policy,
                      LocalTime now) {
  AlarmStep step{std::move(standing), {}, std::nullopt};
  SiteStanding& site = step.standing;
  if (outcome) {
    take(site, *outcome, policy, now);
  }
  forgetOldChanges(site, policy, now);
  if (outcome && site.failures > 0 && !isDown(site, policy)) {
    step.repeatAfter = policy.repeatAfter(site.failures);
  }
  if (!policy.alerts || quietAt(policy, now) != Quiet::no) {
    return step;
  }
  if (site.toldAt) {
    site.toldAt = std::min(*site.toldAt, now);  // the clock may have been set back
  }
  step.alerts = std::exchange(site.owed, {});
  if (site.unsteady) {
    if (site.told != Told::unsteady) {
      beginOutage(site, Told::unsteady, now);
      tell(step, AlertKind::unsteady);
    }
  } else {
    tellOutage(step, policy, outcome.has_value(), now);
  }
  if (site.slow && !site.toldSlow) {
    site.toldSlow = true;
    tell(step, AlertKind::slow);
  }
  site.owed = step.alerts;
  return step;
}

bool waitsForTime(const SiteStanding& site, const AlarmPolicy& policy) {
  const bool wantsDown = isDown(site, policy) && site.told != Told::down;
  const bool wantsUp = site.failures == 0 && site.told != Told::up;
  return policy.alerts &&
         (!site.owed.empty() || site.unsteady || wantsDown || wantsUp || (site.slow && !site.toldSlow));
}

}  // namespace tarnwick
