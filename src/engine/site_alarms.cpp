// SPDX-License-Identifier: MIT
#include "engine/site_alarms.h"

#include <limits>
#include <utility>

#include "alerts/alert_dispatch.h"
#include "store/acknowledgements.h"

namespace tarnwick {

OutageFacts outageOf(const SiteStanding& standing, LocalTime now) {
  return {standing.outageSince, standing.outageChecks, standing.outageError, now};
}

void SiteAlarms::setOptions(OptionsInForce options) {
  options_ = std::move(options);
  policies_.clear();
  watchesTime_ = isAlarmSet(options_);
}

const AlarmPolicy* SiteAlarms::policyOf(std::int64_t idSite) {
  if (!watchesTime_) {
    return nullptr;
  }
  if (!canBeKept_.value_or(false)) {
    canBeKept_ = standings_.canBeKept();
    if (!*canBeKept_) {
      return nullptr;
    }
  }
  auto known = policies_.find(idSite);
  if (known == policies_.end()) {
    AlarmPolicy policy = alarmPolicyOf(options_, idSite);
    known = policies_.emplace(idSite, policy.isOriginal() ? std::nullopt : std::optional(std::move(policy))).first;
  }
  return known->second ? &*known->second : nullptr;
}

SiteStanding SiteAlarms::standingOf(std::int16_t idSite) {
  SiteStanding standing = standings_.standingOf(idSite);
  if (forgiven_.contains(idSite)) {
    standing.owed.clear();
  }
  return standing;
}

bool SiteAlarms::restsNow(std::int16_t idSite) {
  const AlarmPolicy* const policy = policyOf(idSite);
  return policy != nullptr && quietAt(*policy, clock_.localNow()) == Quiet::noChecks;
}

std::vector<AlertKind> SiteAlarms::newsOfCertificate(std::int16_t idSite, const std::optional<ServerCertificate>& found,
                                                     const CheckOutcome& outcome) {
  const AlarmPolicy& policy = *policyOf(idSite);
  if (!policy.certificate) {
    return {};
  }
  const auto before = certificates_.certificateOf(idSite, options_);
  if (!found) {
    if (before && outcome.passed) {
      certificates_.forgetCertificate(idSite);
    }
    return {};
  }
  keepsCertificates_ = keepsCertificates_ || certificates_.canBeKept();
  if (!keepsCertificates_) {
    return {};
  }
  const Telling telling = !policy.alerts                                ? Telling::never
                          : mayTell(outcome, policy, clock_.localNow()) ? Telling::now
                                                                        : Telling::later;
  CertificateStep step = decideCertificate(before, {found->began, found->ends, found->issuer}, *policy.certificate,
                                           clock_.now(), telling, seen_[idSite]);
  if (step.kept != before) {
    certificates_.storeCertificate(idSite, step.kept);
  }
  return std::move(step.alerts);
}

std::string SiteAlarms::certificateOf(std::int16_t idSite) {
  const auto certificate = certificates_.certificateOf(idSite, options_);
  return certificate ? certificateText(*certificate, clock_.now(), seen_[idSite].formerIssuer) : std::string();
}

AlarmStep SiteAlarms::take(std::int16_t idSite, const CheckOutcome& outcome) {
  const SiteStanding before = standings_.standingOf(idSite);
  AlarmStep step = decideAlarm(standingOf(idSite), outcome, *policyOf(idSite), clock_.localNow());
  // A site that stands as it stood, as one that is up, costs no write.
  if (step.standing != before) {
    standings_.storeStanding(idSite, step.standing);
  }
  forgiven_.erase(idSite);
  return step;
}

void SiteAlarms::settle(std::int16_t idSite) {
  SiteStanding standing = standings_.standingOf(idSite);
  if (!standing.owed.empty()) {
    standing.owed.clear();
    standings_.storeStanding(idSite, standing);
  }
  forgiven_.erase(idSite);
}

bool SiteAlarms::raise(std::int16_t idSite, AlertKind kind) {
  const SiteStanding standing = standings_.standingOf(idSite);
  OutageFacts outage = outageOf(standing, clock_.localNow());
  if (isOfCertificate(kind)) {
    outage.certificate = certificateOf(idSite);
  }
  alerts_.sendAlerts(idSite, kind, outage);
  return !alerts_.mailOutcome().lost || alerts_.mailOutcome().otherWay;
}

std::map<std::int16_t, AlarmStep> SiteAlarms::timeHasGoneBy() {
  std::map<std::int16_t, AlarmStep> steps;
  std::optional<std::map<std::int64_t, Acknowledgement>> known;
  for (auto& [id, stored] : standings_.standings()) {
    if (!std::in_range<std::int16_t>(id)) {
      continue;
    }
    const auto idSite = static_cast<std::int16_t>(id);
    const AlarmPolicy* const policy = policyOf(idSite);
    if (policy == nullptr || !waitsForTime(stored, *policy)) {
      continue;
    }
    if (!known) {
      known = Acknowledgements(standings_.database()).acknowledgements();
    }
    if (known->contains(id)) {
      continue;
    }
    AlarmStep step = decideAlarm(standingOf(idSite), std::nullopt, *policy, clock_.localNow());
    if (step.standing != stored) {
      standings_.storeStanding(idSite, step.standing);
    }
    forgiven_.erase(idSite);
    if (!step.alerts.empty()) {
      steps.emplace(idSite, std::move(step));
    }
  }
  return steps;
}

}  // namespace tarnwick
