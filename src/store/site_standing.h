// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "store/database.h"

namespace tarnwick {

/// What somebody is told of a site.
enum class AlertKind {
  down,
  stillDown,
  up,  ///< again
  unsteady,
  slow,
  certificate,  ///< ends soon
  issuer,       ///< another one has issued the certificate
};

constexpr bool isOfCertificate(AlertKind kind) { return kind == AlertKind::certificate || kind == AlertKind::issuer; }

/// How a site stands, as far as what is told depends on it. As it is made here, one of which nothing is known.
struct SiteStanding {
  /// What was told last.
  enum class Told { up, down, unsteady };

  /// Of the row of failures that is on; none where the last check passed.
  int failures = 0;
  std::optional<LocalTime> downSince;
  std::string firstError;

  Told told = Told::up;
  std::optional<LocalTime> toldAt;      ///< the first time, of what is no more than a failure or unsteady
  std::optional<LocalTime> lastToldAt;  ///< the last time, with the reminders
  /// Of the latest outage that was told, for who is told of its end.
  std::optional<LocalTime> outageSince;
  int outageChecks = 0;
  std::string outageError;

  /// When the site has changed between up and down, as long as that matters.
  std::vector<LocalTime> changes;
  bool unsteady = false;
  bool slow = false;
  bool toldSlow = false;

  /// Since when its checks have come to nothing because this machine is offline.
  std::optional<LocalTime> unknownSince;

  /// What was decided and is not known to have left; whoever finds it here tells it once more.
  std::vector<AlertKind> owed;

  bool operator==(const SiteStanding&) const = default;
};

/// Table `siteState`: how the sites stand whose options make that matter. Every failed statement raises
/// DataAccessError.
class SiteStandings {
 public:
  explicit SiteStandings(Database& database) : db_(database) {}

  Database& database() { return db_; }

  /// Whether the list can hold them. One that lacks the table, and could not be given it, is judged by the original
  /// rule.
  bool canBeKept();
  /// Nothing known of it where there is no row.
  SiteStanding standingOf(std::int16_t idSite);
  /// All that there are, or those of the ids from `first` to `last`; none in a list without the table.
  std::map<std::int64_t, SiteStanding> standings(std::int64_t first = std::numeric_limits<std::int64_t>::min(),
                                                 std::int64_t last = std::numeric_limits<std::int64_t>::max());
  void storeStanding(std::int16_t idSite, const SiteStanding& standing);
  /// The checks of these sites have come to nothing since `since`; one of which that is known stays. Nothing in a list
  /// without the table.
  void setUnknown(const std::vector<std::int16_t>& sites, LocalTime since);
  void clearUnknown();
  /// Forgets the site. Nothing when there is no row, or no table.
  void removeStanding(std::int64_t idSite);

 private:
  Database& db_;
};

}  // namespace tarnwick
