// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "engine/alarm_policy.h"
#include "platform/clock.h"
#include "store/site_certificates.h"
#include "store/site_standing.h"

namespace tarnwick {

/// What there is to be seen of a site's alarm beside up and down. As it is made here, nothing.
struct AlarmView {
  /// The one word for it. Known is one whose wrong page is acknowledged, unconfirmed a site whose failures are too few
  /// yet; unknown is what is found while this machine is offline. A certificate is one that ends soon.
  enum class State { none, unconfirmed, down, unsteady, certificate, slow, unknown, known };
  State state = State::none;
  /// The wrong page of the site is, also while something else is the word for it.
  bool acknowledged = false;
  int failures = 0;                  ///< in a row
  int confirm = 1;                   ///< how many make it down
  std::optional<LocalTime> since{};  ///< the state, where that is known
  std::string firstError{};
  bool slow = false;              ///< it took long, and is up
  std::optional<int> daysLeft{};  ///< of a certificate that ends soon, whatever else the state is
  /// The pause that is on.
  std::optional<Pause> pause{};
  /// What is quiet about the moment, with the pause.
  Quiet quiet = Quiet::no;
};

/// `acknowledged` is whether the wrong page of the site is; `certificate` what is known of it, if anything is.
AlarmView alarmViewOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool acknowledged = false,
                      const SiteCertificate* certificate = nullptr);
/// The same with what is known of all sites.
AlarmView alarmViewOf(const SiteStanding& standing, const AlarmPolicy& policy, LocalTime now, bool acknowledged,
                      const std::map<std::int64_t, SiteCertificate>& certificates, std::int64_t idSite);

/// "unconfirmed (1 of 3)", "down", "unsteady", "12 days", "slow", "unknown", "known", as it is said; empty for none.
std::string wordsOf(const AlarmView& view);

/// Why an active site is not watched as it should be.
enum class Unwatched {
  no,            ///< it is watched, or is not active
  noRun,         ///< no run is on
  neverChecked,  ///< the run that is on does not take it on before its next start
  overdue,       ///< not checked for two of its intervals, though a run is on
  quiet,         ///< it is not to be checked at this time
};

/// What is known of the site and of who might watch it.
struct Watch {
  bool active = false;
  std::optional<LocalTime> lastChecked{};
  std::int64_t interval = 0;  ///< in minutes
  bool runIsOn = false;
  bool newSitesAtOnce = false;
};

/// By the stored times alone. A site that is not due for two intervals counts as watched, whoever watches it.
Unwatched unwatchedOf(const Watch& watch, Quiet quiet, LocalTime now);

}  // namespace tarnwick
