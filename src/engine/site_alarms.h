// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "alerts/event_texts.h"
#include "engine/alarm_rule.h"
#include "engine/certificate_rule.h"
#include "platform/clock.h"
#include "platform/transfer_control.h"
#include "store/site_certificates.h"
#include "store/site_options.h"
#include "store/site_standing.h"

namespace tarnwick {

class AlertDispatch;

/// What is known of the outage of a site that stands so.
OutageFacts outageOf(const SiteStanding& standing, LocalTime now);

/// Carries out what `decideAlarm` decides: keeps how the sites stand, and tells what there is to be told. A site whose
/// options of the alarm are not set is none of its business; its failures are told as they originally were. Every
/// failed statement raises DataAccessError.
class SiteAlarms {
 public:
  SiteAlarms(SiteStandings& standings, AlertDispatch& alerts, const Clock& clock)
      : standings_(standings), certificates_(standings.database()), alerts_(alerts), clock_(clock) {}

  /// What holds from now on.
  void setOptions(OptionsInForce options);

  /// The policy of the site, as long as the options hold; nothing where the original rule does.
  const AlarmPolicy* policyOf(std::int64_t idSite);
  /// Whether it decides about the site.
  bool decidesAbout(std::int16_t idSite) { return policyOf(idSite) != nullptr; }
  /// Whether the site is not to be checked now, since that is how its quiet time is to be spent.
  bool restsNow(std::int16_t idSite);

  /// What there is to be told of the certificate that a check has found, where it is looked at; keeps it. `outcome` is
  /// what else the check came to. REQUIRES: as `take`, which is to be given it as news.
  std::vector<AlertKind> newsOfCertificate(std::int16_t idSite, const std::optional<ServerCertificate>& found,
                                           const CheckOutcome& outcome);
  /// What is known of the certificate of the site, for people; empty where nothing is.
  std::string certificateOf(std::int16_t idSite);

  /// Decides what follows a check, and keeps it. REQUIRES: the transaction of the check's result, and
  /// `decidesAbout(idSite)`.
  AlarmStep take(std::int16_t idSite, const CheckOutcome& outcome);
  /// What is owed to the site has been told. REQUIRES: a transaction. Where that comes to nothing, `forgive` follows.
  void settle(std::int16_t idSite);
  /// The same for want of a transaction: it is settled with the next one.
  void forgive(std::int16_t idSite) { forgiven_.insert(idSite); }
  /// Tells one alert of the site. Takes events in. False when it should be told once more, since its only way, the
  /// mail, was lost.
  bool raise(std::int16_t idSite, AlertKind kind);

  /// The sites of which time has brought something to be told, with it; it is kept as owed. REQUIRES: a transaction.
  std::map<std::int16_t, AlarmStep> timeHasGoneBy();
  /// Whether it may bring something, without a look at the database: an option of the alarm is set.
  bool watchesTime() const { return watchesTime_; }

 private:
  SiteStanding standingOf(std::int16_t idSite);

  SiteStandings& standings_;
  SiteCertificates certificates_;
  AlertDispatch& alerts_;
  const Clock& clock_;
  OptionsInForce options_;
  bool watchesTime_ = false;
  std::optional<bool> canBeKept_;
  bool keepsCertificates_ = false;
  // By site; none where the original rule holds.
  std::map<std::int64_t, std::optional<AlarmPolicy>> policies_;
  std::set<std::int16_t> forgiven_;
  std::map<std::int16_t, CertificatesSeen> seen_;
};

}  // namespace tarnwick
