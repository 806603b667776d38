// SPDX-License-Identifier: MIT
#include "engine/alarm_view.h"

namespace tarnwick {
namespace {

AlarmView::State stateOf(const SiteStanding& standing, const AlarmPolicy& policy, bool acknowledged) {
  using enum AlarmView::State;
  if (standing.unknownSince) {
    return unknown;
  }
  if (acknowledged) {
    return known;
  }
  if (policy.isOriginal()) {
    return none;
  }
  if (policy.unsteady && standing.unsteady) {
    return unsteady;
  }
  if (standing.failures > 0) {
    return standing.failures < policy.confirm ? unconfirmed : down;
  }
  return policy.slow && standing.slow ? slow : none;
}

}  // namespace

AlarmView alarmViewOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool acknowledged) {
  AlarmView view{.state = stateOf(standing, policy, acknowledged), .quiet = quietAt(policy, now)};
  if (isPaused(policy.pause, now)) {
    view.pause = policy.pause;
  }
  switch (view.state) {
    case AlarmView::State::unknown:
      view.since = standing.unknownSince;
      break;
    case AlarmView::State::unconfirmed:
    case AlarmView::State::known:
    case AlarmView::State::down:
      view.failures = standing.failures;
      view.confirm = policy.confirm;
      view.since = standing.downSince;
      view.firstError = standing.firstError;
      break;
    case AlarmView::State::unsteady:
    case AlarmView::State::slow:
    case AlarmView::State::none:
      break;
  }
  return view;
}

std::string wordsOf(const AlarmView& view) {
  switch (view.state) {
    case AlarmView::State::none:
      break;
    case AlarmView::State::unconfirmed:
      return "unconfirmed (" + std::to_string(view.failures) + " of " + std::to_string(view.confirm) + ")";
    case AlarmView::State::down:
      return "down";
    case AlarmView::State::unsteady:
      return "unsteady";
    case AlarmView::State::slow:
      return "slow";
    case AlarmView::State::unknown:
      return "unknown";
    case AlarmView::State::known:
      return "known";
  }
  return {};
}

Unwatched unwatchedOf(const Watch& watch, Quiet quiet, LocalTime now) {
  if (!watch.active) {
    return Unwatched::no;
  }
  if (!watch.lastChecked) {
    return !watch.runIsOn ? Unwatched::noRun : watch.newSitesAtOnce ? Unwatched::no : Unwatched::neverChecked;
  }
  if (watch.interval <= 0 || now - *watch.lastChecked < 2 * std::chrono::minutes(watch.interval)) {
    return Unwatched::no;
  }
  return quiet == Quiet::noChecks ? Unwatched::quiet : watch.runIsOn ? Unwatched::overdue : Unwatched::noRun;
}

}  // namespace tarnwick
