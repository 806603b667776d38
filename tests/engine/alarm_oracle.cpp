// SPDX-License-Identifier: MIT
#include "engine/alarm_oracle.h"

#include <algorithm>
#include <array>

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

/// How many of the moments at which a reminder may follow the first alert have come when it is so long ago.
int remindersWithin(seconds sinceAlert, const Reminders& remind) {
  int count = 0;
  if (remind.kind == Reminders::Kind::regular) {
    count = static_cast<int>(sinceAlert / remind.every);
  } else if (remind.kind == Reminders::Kind::growing) {
    for (seconds next = hours(1); next <= sinceAlert; next *= 2) {
      ++count;
    }
  }
  return count;
}

/// Monday at midnight is 0; the first of all days was a Thursday.
std::size_t hourInTheWeek(LocalTime time) {
  constexpr std::int64_t kWeek = 7 * 24;
  const std::int64_t hour = std::chrono::floor<hours>(time).time_since_epoch().count() + std::int64_t{3} * 24;
  return static_cast<std::size_t>((hour % kWeek + kWeek) % kWeek);
}

}  // namespace

bool AlarmOracle::Moment::says(AlertKind kind) const { return std::ranges::count(news, kind) > 0; }

/// How many checks up to this moment, itself among them, have failed since the last one that passed.
int AlarmOracle::failedInARow(std::size_t until) const {
  int failed = 0;
  for (std::size_t i = until + 1; i-- > 0 && !(story_[i].check && story_[i].check->passed);) {
    failed += story_[i].check ? 1 : 0;
  }
  return failed;
}

AlarmOracle::Side AlarmOracle::sideAt(std::size_t moment) const {
  const int failed = failedInARow(moment);
  if (failed == 0) {
    return Side::up;
  }
  return failed < story_[moment].policy.confirm ? Side::between : Side::down;
}

bool AlarmOracle::isQuiet(const Moment& moment) const {
  const AlarmPolicy& policy = moment.policy;
  return !policy.alerts || policy.quiet[hourInTheWeek(moment.at)] ||
         (policy.pause.isOn && (!policy.pause.until || moment.at < *policy.pause.until)) ||
         std::ranges::any_of(policy.maintenance, [&](const DatedWindow& window) {
           return window.from <= moment.at && moment.at < window.until;
         });
}

/// Whether the check has taken the site from up to down for real, or back.
bool AlarmOracle::isChange(std::size_t moment) const {
  if (!story_[moment].check) {
    return false;
  }
  const int confirm = story_[moment].policy.confirm;
  const bool wasDown = moment > 0 && failedInARow(moment - 1) >= confirm;
  return wasDown != (failedInARow(moment) >= confirm);
}

/// Whether the change has been within the time that the policy looks back, at each moment since. A clock that was set
/// back makes it no later than it has been.
bool AlarmOracle::isRemembered(std::size_t change) const {
  LocalTime at = story_[change].at;
  for (std::size_t i = change; i < story_.size(); ++i) {
    at = std::min(at, story_[i].at);
    if (!story_[i].policy.unsteady || story_[i].at - at >= story_[i].policy.unsteady->within) {
      return false;
    }
  }
  return true;
}

bool AlarmOracle::isUnsteadyNow() const {
  if (!now().policy.unsteady) {
    return false;
  }
  int changes = 0;
  for (std::size_t i = 0; i < story_.size(); ++i) {
    changes += isChange(i) && isRemembered(i) ? 1 : 0;
  }
  const bool wasUnsteady = story_.size() > 1 && story_[story_.size() - 2].isUnsteady;
  return changes > now().policy.unsteady->changes || (wasUnsteady && changes > 0);
}

/// What people know of the site before this moment: the last that they were told, or that nobody had to tell them,
/// since they do not ask to be told of it.
AlarmOracle::Known AlarmOracle::known() const {
  for (std::size_t i = story_.size() - 1; i-- > 0;) {
    const Moment& past = story_[i];
    if (past.says(AlertKind::down) || past.says(AlertKind::stillDown)) {
      return Known::down;
    }
    if (past.says(AlertKind::unsteady)) {
      return Known::unsteady;
    }
    if (!isQuiet(past) && !past.isUnsteady && sideAt(i) == Side::up) {
      return Known::up;
    }
  }
  return Known::up;
}

/// What time it was then by the clock of today: one that was set back since then makes it no later than it has been.
LocalTime AlarmOracle::earliestSince(std::size_t moment) const {
  LocalTime earliest = story_[moment].at;
  for (std::size_t i = moment; i < story_.size(); ++i) {
    earliest = std::min(earliest, story_[i].at);
  }
  return earliest;
}

/// Whether a moment has come, since the last alert of the outage, at which people want to hear of it again.
bool AlarmOracle::isReminderDue() const {
  // The first alert of the outage that is known, and the last one.
  std::size_t last = story_.size() - 2;
  while (!story_[last].says(AlertKind::down) && !story_[last].says(AlertKind::stillDown)) {
    --last;
  }
  std::size_t first = last;
  for (std::size_t i = last; i-- > 0;) {
    const Moment& past = story_[i];
    if (past.says(AlertKind::unsteady) || (!isQuiet(past) && !past.isUnsteady && sideAt(i) == Side::up)) {
      break;
    }
    if (past.says(AlertKind::down) || past.says(AlertKind::stillDown)) {
      first = i;
    }
  }
  const LocalTime begin = earliestSince(first);
  return remindersWithin(now().at - begin, now().policy.remind) >
         remindersWithin(earliestSince(last) - begin, now().policy.remind);
}

/// Whether the page last came late, and that was not told since one came in time.
bool AlarmOracle::isSlowNews() const {
  if (!now().policy.slow) {
    return false;
  }
  bool isLate = false;
  bool isKnown = false;
  for (const Moment& moment : story_) {
    if (moment.check && moment.check->passed) {
      isLate = moment.policy.slow && moment.check->took > *moment.policy.slow;
      isKnown = isKnown && isLate;
    }
    isKnown = isKnown || moment.says(AlertKind::slow);
  }
  return isLate && !isKnown;
}

std::vector<AlertKind> AlarmOracle::news() const {
  if (isQuiet(now())) {
    return {};
  }
  std::vector<AlertKind> news;
  const Side side = sideAt(story_.size() - 1);
  const Known before = known();
  const bool failed = now().check && !now().check->passed;
  if (now().isUnsteady) {
    if (before != Known::unsteady) {
      news.push_back(AlertKind::unsteady);
    }
  } else if (side == Side::down) {
    if (before != Known::down) {
      news.push_back(AlertKind::down);
    } else if (failed && now().policy.remind.kind == Reminders::Kind::everyCheck) {
      news.push_back(AlertKind::down);
    } else if (failed && isReminderDue()) {
      news.push_back(AlertKind::stillDown);
    }
  } else if (side == Side::up && before != Known::up && now().policy.recovery) {
    news.push_back(AlertKind::up);
  }
  if (isSlowNews()) {
    news.push_back(AlertKind::slow);
  }
  return news;
}

AlarmOracle::Answer AlarmOracle::ask(const std::optional<CheckOutcome>& check, const AlarmPolicy& policy,
                                     LocalTime now) {
  story_.push_back({.at = now, .check = check, .policy = policy});
  Moment& moment = story_.back();
  moment.isUnsteady = isUnsteadyNow();
  moment.news = news();

  for (const AlertKind kind : moment.news) {
    // What people are about to be told need not be told twice.
    const bool isOwed =
        !owed_.empty() && (owed_.back() == kind || (owed_.back() == AlertKind::down && kind == AlertKind::stillDown));
    if (!isOwed) {
      owed_.push_back(kind);
    }
  }
  Answer answer{.alerts = isQuiet(moment) ? std::vector<AlertKind>() : owed_, .owed = owed_, .repeatAfter = {}};
  const int failures = failedInARow(story_.size() - 1);
  if (check && !check->passed && failures < policy.confirm) {
    const std::vector<seconds> usual{seconds(5), seconds(20)};
    const std::vector<seconds>& pauses = policy.confirmAfter.empty() ? usual : policy.confirmAfter;
    answer.repeatAfter = pauses[std::min(pauses.size(), static_cast<std::size_t>(failures)) - 1];
  }
  return answer;
}

}  // namespace tarnwick::testing
