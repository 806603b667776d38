// SPDX-License-Identifier: MIT
#include "engine/history_recording.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/errors.h"
#include "engine/site_alarms.h"

namespace tarnwick {

using namespace std::chrono;

std::vector<Stretch> plannedWithin(const AlarmPolicy& policy, Stretch time) {
  std::vector<Stretch> parts;
  const auto add = [&](Moment from, Moment until) {
    from = std::max(from, time.from);
    until = std::min(until, time.until);
    if (from < until) {
      parts.push_back({from, until});
    }
  };
  if (policy.pause.isOn) {
    // Since when is not known: the check before was told, or would have been.
    add(time.from, policy.pause.until ? momentAt(*policy.pause.until) : time.until);
  }
  for (const DatedWindow& window : policy.maintenance) {
    add(momentAt(window.from), momentAt(window.until));
  }
  if (policy.quietKind == QuietKind::noChecks && policy.quiet.any()) {
    for (Moment hour = hourOf(time.from); hour < time.until; hour += hours{1}) {
      if (policy.quiet.test(hourOfWeek(localTimeAt(hour)))) {
        add(hour, hour + hours{1});
      }
    }
  }
  std::ranges::sort(parts, {}, &Stretch::from);
  std::vector<Stretch> joined;
  for (const Stretch& part : parts) {
    if (!joined.empty() && part.from <= joined.back().until) {
      joined.back().until = std::max(joined.back().until, part.until);
    } else {
      joined.push_back(part);
    }
  }
  return joined;
}

void HistoryRecording::setOptions(const OptionsInForce& options) {
  isWanted_ = options.valueOf(kAllSites, option_name::history) == option_value::on;
  takes_ = takes_ && isWanted_;
  const auto days = options.valueOf(kAllSites, option_name::historyHours);
  const std::optional<int> before = std::exchange(daysOfHours_, days ? std::optional(std::stoi(*days)) : std::nullopt);
  if (daysOfHours_ != before) {
    thinned_.reset();
    thinnedBefore_.reset();
  }
}

// A list that has no room for its history is watched without.
void HistoryRecording::beginPass(const std::function<bool()>& goesOn) {
  takes_ = false;
  if (!isWanted_) {
    return;
  }
  try {
    takes_ = history_.canBeKept() && history_.takeLog(clock_.now(), goesOn);
    if (takes_ && daysOfHours_) {
      thin();
    }
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
  }
}

// Once a day from the first hour on; nothing is waited for.
void HistoryRecording::thin() {
  const Moment before = dayFrom(clock_.now(), -*daysOfHours_);
  if (thinnedBefore_ == before) {
    return;
  }
  if (auto whole = Transaction::tryBegin(history_.database())) {
    thinned_ = history_.thin(thinned_, before);
    whole->commit();
    if (!thinned_) {
      thinnedBefore_ = before;
    }
  }
}

void HistoryRecording::take(std::int16_t idSite, const SiteHistory::Entry& entry) {
  SiteHistory::Entry taken = entry;
  taken.check.at = clock_.now();
  if (const AlarmPolicy* const policy = alarms_.policyOf(idSite)) {
    taken.planned = [policy](Stretch time) { return plannedWithin(*policy, time); };
  }
  history_.take(idSite, taken);
}

void HistoryRecording::endKnowledge() noexcept {
  if (!takes_) {
    return;
  }
  try {
    if (auto whole = Transaction::tryBegin(history_.database())) {
      history_.endKnowledge(clock_.now());
      whole->commit();
    }
  } catch (const std::exception&) {
    // As it says in the header.
  }
}

}  // namespace tarnwick
