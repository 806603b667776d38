// SPDX-License-Identifier: MIT
#include "engine/alarm_view.h"

#include "engine/certificate_rule.h"

namespace tarnwick {
namespace {

AlarmView::State stateOf(const SiteStanding& standing, const AlarmPolicy& policy, bool acknowledged, bool endsSoon) {
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
  return endsSoon ? certificate : policy.slow && standing.slow ? slow : none;
}

}  // namespace

AlarmView alarmViewOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool acknowledged,
                      const SiteCertificate* certificate) {
  AlarmView view{.acknowledged = acknowledged, .quiet = quietAt(policy, now)};
  if (policy.certificate && certificate != nullptr && reachedLimit(*policy.certificate, *certificate, momentAt(now))) {
    view.daysLeft = daysLeft(*certificate, momentAt(now));
  }
  view.state = stateOf(standing, policy, acknowledged, view.daysLeft.has_value());
  view.slow = policy.slow && standing.slow && standing.failures == 0;
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
    case AlarmView::State::certificate:
    case AlarmView::State::slow:
    case AlarmView::State::none:
      break;
  }
  return view;
}

AlarmView alarmViewOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool acknowledged,
                      const std::map<std::int64_t, SiteCertificate>& certificates, std::int64_t idSite) {
  const auto known = certificates.find(idSite);
  return alarmViewOf(standing, policy, now, acknowledged, known == certificates.end() ? nullptr : &known->second);
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
    case AlarmView::State::certificate:
      return daysText(view.daysLeft.value_or(0));
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
