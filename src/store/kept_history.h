// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include "store/database.h"
#include "store/site_history.h"

namespace tarnwick {

/// A row of table `hours`, `days` or `months`.
struct KnownTime {
  Stretch time;
  TimeSum sum;
};

/// All that is kept of the history of a site, the earliest first, as it moves from one list to another: without how
/// long the parts of its latest check took, and without its certificate, which the next check tells.
struct KeptHistory {
  std::optional<LatestCheck> latest{};
  std::vector<KnownTime> hours{};
  std::vector<KnownTime> days{};
  std::vector<KnownTime> months{};
  /// Of no particular site.
  std::vector<Outage> outages{};

  bool none() const { return !latest && hours.empty() && days.empty() && months.empty() && outages.empty(); }
};

/// What the list holds; nothing where it lacks the tables. Raises DataAccessError.
KeptHistory readHistory(Database& db, std::int64_t idSite);

/// Stores it beside what is there; a row that begins at the same time is replaced. A list without the tables is given
/// them. REQUIRES: a transaction. Raises DataAccessError.
void storeHistory(Database& db, std::int64_t idSite, const KeptHistory& history);

/// What a list that holds `own` of a site is to store so that it knows all that `other` knows, without counting any
/// time or outage twice. Of two that tell of the same hour, day or month the one that knows more of it counts, the own
/// one when both know as much; days and months become the sums of their hours again where those tell more. The same
/// once more, stored, leads to nothing. Outages that were on at the same time are one, the own one. `interval` is the
/// time between two checks of the site.
KeptHistory missingIn(const KeptHistory& own, const KeptHistory& other, std::chrono::seconds interval);

}  // namespace tarnwick
