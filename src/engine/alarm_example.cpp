// SPDX-License-Identifier: MIT
#include "engine/alarm_example.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "engine/alarm_rule.h"

namespace tarnwick {
namespace {

using std::chrono::minutes;

constexpr LocalTime kBegin = std::chrono::local_days(std::chrono::year(2026) / 1 / 5) + std::chrono::hours(14);

/// Plays the checks through.
class Play {
 public:
  Play(AlarmPolicy policy, minutes interval)
      : policy_(std::move(policy)), from_(kBegin + interval), until_(from_ + AlarmExample::kOutage) {}

  bool isOver(LocalTime now) const { return now >= until_; }
  /// The check, and those that may confirm it; the time of the last one.
  LocalTime check(LocalTime now) {
    auto repeatAfter = step(now, false);
    while (repeatAfter) {
      now += *repeatAfter;
      repeatAfter = step(now, true);
    }
    return now;
  }
  AlarmExample example;

 private:
  std::optional<std::chrono::seconds> step(LocalTime now, bool isRepeat) {
    const bool passed = now < from_ || isOver(now);
    AlarmStep step = decideAlarm(std::move(standing_), CheckOutcome{passed, {}, {}}, policy_, now);
    standing_ = std::move(step.standing);
    standing_.owed.clear();
    const auto told = static_cast<int>(step.alerts.size());
    example.checks.push_back({now, passed, isRepeat, told});
    example.told += told;
    return step.repeatAfter;
  }

  AlarmPolicy policy_;
  LocalTime from_;
  LocalTime until_;
  SiteStanding standing_;
};

}  // namespace

AlarmExample alarmExampleOf(AlarmPolicy policy, minutes interval) {
  interval = std::max(interval, minutes(1));
  policy.quiet.reset();
  policy.maintenance.clear();
  policy.pause = {};
  Play play(std::move(policy), interval);
  LocalTime next = kBegin;
  for (LocalTime last = next; !play.isOver(last);) {
    last = play.check(next);
    while (next <= last) {
      next += interval;
    }
  }
  return std::move(play.example);
}

}  // namespace tarnwick
