// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "store/alarm_values.h"
#include "store/site_certificates.h"
#include "store/site_standing.h"

namespace tarnwick {

/// How many whole days are left; none where it has ended.
int daysLeft(const SiteCertificate& certificate, Moment now);

/// The least of the limits that are reached, in days before the end. Nothing as long as none is.
std::optional<int> reachedLimit(const CertificateLimits& limits, const SiteCertificate& certificate, Moment now);

/// What a run has found kept of the certificates of a site. Several servers may answer for one site in turn, each with
/// a certificate of its own: what was told of one of them is not told anew each time that it is back.
struct CertificatesSeen {
  std::map<Moment, int> told{};     ///< the least limit that was told, by the end of the certificate
  std::set<std::string> issuers{};  ///< those that are known
  std::string formerIssuer{};       ///< the one before that is told latest
};

/// What follows.
struct CertificateStep {
  SiteCertificate kept;           ///< as it is to be stored
  std::vector<AlertKind> alerts;  ///< to be told now
};

/// When something may be told.
enum class Telling {
  now,
  later,  ///< it is quiet: what is still so afterwards is told then
  never,
};

/// Decides what is told of the certificate of a site after a check. Everything that it needs to know it is given.
///
/// - Each limit is told once; of several that are reached at once the least alone.
/// - Another certificate, as its end tells, is told anew, and one that is beyond all limits takes back what was told.
/// - Another issuer is told once. Until that can be told the former one stays.
/// - `seen` learns of what was kept, `before`, alone: what is decided here may come to nothing, and be decided again.
CertificateStep decideCertificate(const std::optional<SiteCertificate>& before, SiteCertificate found,
                                  const CertificateLimits& limits, Moment now, Telling telling, CertificatesSeen& seen);

/// "1 day", "12 days".
std::string daysText(int count);

/// "It holds for 12 days more, until 2026-12-05 10:00:00. It was issued by Some Authority.", and by whom the one
/// before.
std::string certificateText(const SiteCertificate& certificate, Moment now, const std::string& formerIssuer = {});

}  // namespace tarnwick
