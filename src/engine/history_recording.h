// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/alarm_policy.h"
#include "platform/clock.h"
#include "store/site_history.h"
#include "store/site_options.h"

namespace tarnwick {

class SiteAlarms;

/// What of a time is paused, under maintenance, or quiet and spent without checks, by the policy of a site: in rising
/// order, without overlap.
std::vector<Stretch> plannedWithin(const AlarmPolicy& policy, Stretch time);

/// Keeps the history of the sites where the option `history` wants it. Every failed statement raises DataAccessError.
class HistoryRecording {
 public:
  HistoryRecording(SiteHistory& history, SiteAlarms& alarms, const Clock& clock)
      : history_(history), alarms_(alarms), clock_(clock) {}

  /// What holds from now on.
  void setOptions(const OptionsInForce& options);
  /// Gets ready for a pass: reads the log of the list, once, and removes some of the hours that are older than the
  /// option `historyHours` wants them. `goesOn` takes events in, and is false when the pass ends.
  void beginPass(const std::function<bool()>& goesOn);
  /// Whether the checks of this pass are taken.
  bool takesChecks() const { return takes_; }
  /// Takes one. REQUIRES: the transaction of its result, and `takesChecks()`.
  void take(std::int16_t idSite, const SiteHistory::Entry& entry);
  /// The checks so far say nothing of what comes now. Nothing where the database is in use or at fault: then that ends
  /// by itself, with the interval of each site.
  void endKnowledge() noexcept;

 private:
  void thin();

  SiteHistory& history_;
  SiteAlarms& alarms_;
  const Clock& clock_;
  bool isWanted_ = false;
  bool takes_ = false;
  // After how many days an hour is only part of its day; where its removal has come to, and which days it is over.
  std::optional<int> daysOfHours_;
  std::optional<SiteHistory::HourPlace> thinned_;
  std::optional<Moment> thinnedBefore_;
};

}  // namespace tarnwick
