// SPDX-License-Identifier: MIT
#include "engine/certificate_rule.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

using std::chrono::days;
using std::chrono::floor;

constexpr int kThird = 3;

void learn(CertificatesSeen& seen, const SiteCertificate& kept, Moment now) {
  std::erase_if(seen.told, [&](const auto& one) { return one.first < now; });
  seen.issuers.insert(kept.issuer);
  if (kept.told) {
    seen.told.insert_or_assign(kept.ends, *kept.told);
  } else {
    seen.told.erase(kept.ends);
  }
}

/// The least limit that was told of this certificate.
std::optional<int> toldOf(const SiteCertificate& certificate, const CertificatesSeen& seen) {
  const auto known = seen.told.find(certificate.ends);
  return known == seen.told.end() ? std::nullopt : std::optional(known->second);
}

}  // namespace

int daysLeft(const SiteCertificate& certificate, Moment now) {
  return static_cast<int>(std::max(floor<days>(certificate.ends - now), days(0)).count());
}

std::optional<int> reachedLimit(const CertificateLimits& limits, const SiteCertificate& certificate, Moment now) {
  std::optional<int> reached;
  const auto look = [&](int limit) {
    if (certificate.ends - now <= days(limit)) {
      reached = std::min(reached.value_or(limit), limit);
    }
  };
  std::ranges::for_each(limits.days, look);
  if (limits.third) {
    look(static_cast<int>(std::max(floor<days>((certificate.ends - certificate.began) / kThird), days(1)).count()));
  }
  return reached;
}

CertificateStep decideCertificate(const std::optional<SiteCertificate>& before, SiteCertificate found,
                                  const CertificateLimits& limits, Moment now, Telling telling,
                                  CertificatesSeen& seen) {
  if (before) {
    learn(seen, *before, now);
  }
  CertificateStep step{std::move(found), {}};
  SiteCertificate& kept = step.kept;
  const auto reached = reachedLimit(limits, kept, now);
  kept.told = reached ? toldOf(kept, seen) : std::nullopt;
  if (reached && (!kept.told || *reached < *kept.told) && telling == Telling::now) {
    kept.told = reached;
    step.alerts.push_back(AlertKind::certificate);
  }
  if (before && !seen.issuers.contains(kept.issuer)) {
    if (telling == Telling::now) {
      seen.formerIssuer = before->issuer;
      step.alerts.push_back(AlertKind::issuer);
    } else if (telling == Telling::later) {
      kept.issuer = before->issuer;
    }
  }
  return step;
}

std::string daysText(int count) { return std::to_string(count) + (count == 1 ? " day" : " days"); }

std::string certificateText(const SiteCertificate& certificate, Moment now, const std::string& formerIssuer) {
  std::string text = "It holds for " + daysText(daysLeft(certificate, now)) + " more, until " +
                     dateTimeText(localTimeAt(certificate.ends)) + ".";
  if (!certificate.issuer.empty()) {
    text += " It was issued by " + certificate.issuer +
            (formerIssuer.empty() ? "." : ", the one before by " + formerIssuer + ".");
  }
  return text;
}

}  // namespace tarnwick
