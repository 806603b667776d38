// SPDX-License-Identifier: MIT
#include "engine/alarm_rule.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

namespace tarnwick {
namespace {

using std::chrono::hours;
using std::chrono::seconds;

using Told = SiteStanding::Told;

bool isDown(const SiteStanding& standing, const AlarmPolicy& policy) { return standing.failures >= policy.confirm; }

/// How many reminders there are until so long after the first alert of an outage.
int remindersUntil(seconds sinceAlert, const Reminders& remind) {
  switch (remind.kind) {
    case Reminders::Kind::everyCheck:
    case Reminders::Kind::never:
      return 0;
    case Reminders::Kind::regular:
      return static_cast<int>(std::min<seconds::rep>(sinceAlert / remind.every, std::numeric_limits<int>::max()));
    case Reminders::Kind::growing:  // one, and one more with each doubling
      return static_cast<int>(std::bit_width(static_cast<std::uint64_t>(sinceAlert / hours(1))));
  }
  return 0;
}

/// A clock that was set back leaves moments that lie ahead: they count as now.
void takeTime(SiteStanding& standing, LocalTime now) {
  for (LocalTime& change : standing.changes) {
    change = std::min(change, now);
  }
  if (standing.told != Told::up) {
    standing.toldAt = std::min(standing.toldAt.value_or(now), now);
    standing.lastToldAt = std::clamp(standing.lastToldAt.value_or(now), *standing.toldAt, now);
  }
}

bool isUnsteady(const SiteStanding& standing, const AlarmPolicy& policy) {
  return policy.unsteady && (standing.changes.size() > static_cast<std::size_t>(policy.unsteady->changes) ||
                             (standing.unsteady && !standing.changes.empty()));
}

void forgetOldChanges(SiteStanding& standing, const AlarmPolicy& policy, LocalTime now) {
  std::erase_if(standing.changes,
                [&](LocalTime change) { return !policy.unsteady || now - change >= policy.unsteady->within; });
  standing.unsteady = isUnsteady(standing, policy);
}

void take(SiteStanding& standing, const CheckOutcome& outcome, const AlarmPolicy& policy, LocalTime now) {
  standing.unknownSince.reset();
  if (outcome.passed) {
    standing.failures = 0;
    standing.downSince.reset();
    standing.firstError.clear();
    standing.slow = policy.slow && outcome.took > *policy.slow;
    standing.toldSlow = standing.toldSlow && standing.slow;
    return;
  }
  if (standing.failures == 0) {
    standing.downSince = now;
    standing.firstError = outcome.error;
  }
  ++standing.failures;
  if (standing.told != Told::up) {
    ++standing.outageChecks;
  }
}

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
  standing.lastToldAt = now;
}

/// However many were missed, they are one.
bool isReminderDue(const SiteStanding& standing, const Reminders& remind, LocalTime now) {
  return remindersUntil(now - *standing.toldAt, remind) >
         remindersUntil(*standing.lastToldAt - *standing.toldAt, remind);
}

void tellOutage(AlarmStep& step, const AlarmPolicy& policy, bool isCheck, LocalTime now) {
  SiteStanding& site = step.standing;
  const bool eachIsTold = policy.remind.kind == Reminders::Kind::everyCheck;
  if (isDown(site, policy) && site.told != Told::down) {
    beginOutage(site, Told::down, now);
    tell(step, AlertKind::down);
  } else if (isDown(site, policy) && isCheck && (eachIsTold || isReminderDue(site, policy.remind, now))) {
    site.lastToldAt = now;
    tell(step, eachIsTold ? AlertKind::down : AlertKind::stillDown);
  } else if (site.failures == 0 && site.told != Told::up) {
    site.told = Told::up;
    site.toldAt.reset();
    site.lastToldAt.reset();
    if (policy.recovery) {
      tell(step, AlertKind::up);
    }
  }
}

bool isSlowNews(const SiteStanding& site, const AlarmPolicy& policy) {
  return policy.slow && site.slow && !site.toldSlow;
}

}  // namespace

AlarmStep decideAlarm(SiteStanding standing, const std::optional<CheckOutcome>& outcome, const AlarmPolicy& policy,
                      LocalTime now) {
  AlarmStep step{std::move(standing), {}, 0, std::nullopt};
  SiteStanding& site = step.standing;
  takeTime(site, now);
  if (outcome) {
    const bool wasDown = isDown(site, policy);
    take(site, *outcome, policy, now);
    if (policy.unsteady && isDown(site, policy) != wasDown) {
      site.changes.push_back(now);
    }
  }
  forgetOldChanges(site, policy, now);
  if (outcome && outcome->known) {
    site.owed.clear();
    return step;
  }
  if (outcome && outcome->other && site.told == Told::down) {
    site.told = Told::up;
    site.toldAt.reset();
    site.lastToldAt.reset();
  }
  if (outcome && site.failures > 0 && !isDown(site, policy)) {
    step.repeatAfter = policy.repeatAfter(site.failures);
  }
  if (!policy.alerts || quietAt(policy, now) != Quiet::no) {
    return step;
  }
  step.alerts = std::exchange(site.owed, {});
  step.owedBefore = step.alerts.size();
  if (site.unsteady) {
    if (site.told != Told::unsteady) {
      beginOutage(site, Told::unsteady, now);
      tell(step, AlertKind::unsteady);
    }
  } else {
    tellOutage(step, policy, outcome.has_value(), now);
  }
  if (isSlowNews(site, policy)) {
    site.toldSlow = true;
    tell(step, AlertKind::slow);
  }
  if (outcome) {
    for (const AlertKind kind : outcome->news) {
      tell(step, kind);
    }
  }
  site.owed = step.alerts;
  return step;
}

bool mayTell(const CheckOutcome& outcome, const AlarmPolicy& policy, LocalTime now) {
  return policy.alerts && !outcome.known && quietAt(policy, now) == Quiet::no;
}

std::optional<LocalTime> nextReminder(const SiteStanding& standing, const Reminders& remind) {
  if (!standing.toldAt || !standing.lastToldAt) {
    return std::nullopt;
  }
  const int told = remindersUntil(*standing.lastToldAt - *standing.toldAt, remind);
  switch (remind.kind) {
    case Reminders::Kind::everyCheck:
    case Reminders::Kind::never:
      break;
    case Reminders::Kind::regular:
      return *standing.toldAt + remind.every * (std::int64_t{told} + 1);
    case Reminders::Kind::growing:
      return *standing.toldAt + hours(std::int64_t{1} << std::min(told, 20));
  }
  return std::nullopt;
}

bool waitsForTime(const SiteStanding& site, const AlarmPolicy& policy) {
  const bool wantsDown = isDown(site, policy) && site.told != Told::down;
  const bool wantsUp = site.failures == 0 && site.told != Told::up;
  return policy.alerts && (!site.owed.empty() || site.unsteady || isUnsteady(site, policy) || wantsDown || wantsUp ||
                           isSlowNews(site, policy));
}

}  // namespace tarnwick
