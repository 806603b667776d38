// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>

#include "history/calendar.h"
#include "store/database.h"
#include "store/site_options.h"

namespace tarnwick {

/// What the latest check that got so far has found of the certificate of a site: of the chain that was verified, not of
/// all that the server sends along, and without the authority that is trusted.
struct SiteCertificate {
  Moment began;               ///< when the last certificate of the chain began to hold
  Moment ends;                ///< when the first of them holds no more
  std::string issuer{};       ///< who has issued the site's own: its organisation, or else its name
  std::optional<int> told{};  ///< the least of the thresholds that were told of this one, in days before its end

  bool operator==(const SiteCertificate&) const = default;
};

/// Whether the certificate of the site is looked at: its option `certificate`.
bool looksAtCertificate(const OptionsInForce& options, std::int64_t idSite);

/// Table `certificates`. A list without it reads as if it were empty. Every failed statement raises DataAccessError.
class SiteCertificates {
 public:
  explicit SiteCertificates(Database& database) : db_(database) {}

  /// Of all sites whose certificate is looked at, or of those among the ids from `first` to `last`, in one query;
  /// nothing is read where there is no such site. A site that is not fetched over TLS, or was not yet, has none.
  std::map<std::int64_t, SiteCertificate> certificates(const OptionsInForce& options,
                                                       std::int64_t first = std::numeric_limits<std::int64_t>::min(),
                                                       std::int64_t last = std::numeric_limits<std::int64_t>::max());
  /// The same of one site.
  std::optional<SiteCertificate> certificateOf(std::int64_t idSite, const OptionsInForce& options);

  /// Whether the list can hold them. One that lacks the table is given it, where it can be written.
  bool canBeKept();
  /// Keeps it in place of what there is. REQUIRES: `canBeKept()`.
  void storeCertificate(std::int64_t idSite, const SiteCertificate& certificate);
  /// Nothing where there is none.
  void forgetCertificate(std::int64_t idSite);

 private:
  Database& db_;
};

}  // namespace tarnwick
