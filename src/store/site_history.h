// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "history/history_rule.h"
#include "platform/check_timings.h"
#include "store/database.h"

namespace tarnwick {

/// Why a site is down whose page came.
inline constexpr const char* kPageDiffers = "the page differs from the baseline";

/// A time in which each check of a site has failed.
struct Outage {
  std::int64_t idSite = 0;
  Moment began;
  std::optional<Moment> ended;  ///< nothing while it is on
  std::int64_t checks = 0;      ///< that have failed
  std::string cause;            ///< of the first of them

  bool operator==(const Outage&) const = default;
};

/// What is known of a stretch of time, with its beginning.
struct KeptSum {
  Moment began;
  TimeSum sum;
};

/// Tables `hours`, `days`, `months`, `outages` and `latestChecks`: what was known of the sites, for years. An hour has
/// a row as soon as there is something to say of it, and all of it that is not up and not unknown is down; a day and a
/// month have one, the sum of their hours, as soon as a check is taken after them. A list without the tables reads as
/// if they were empty. Every failed statement raises DataAccessError.
class SiteHistory {
 public:
  explicit SiteHistory(Database& database) : db_(database) {}

  Database& database() { return db_; }

  /// What a check adds.
  struct Entry {
    TakenCheck check;
    CheckTimings timings{};
    std::chrono::seconds interval{};
    /// What of the time since the check before was planned, and so counts for neither.
    std::function<std::vector<Stretch>(Stretch)> planned{};
  };

  /// Whether the list can hold it. One that lacks the tables is given them, where it can be written.
  bool canBeKept();
  /// Takes a check into the history. REQUIRES: the transaction of its result, and `canBeKept()`.
  void take(std::int16_t idSite, const Entry& entry);
  /// A place in table `hours`, which is ordered so.
  struct HourPlace {
    Moment hour;
    std::int64_t idSite = 0;
  };
  /// Looks at the next hours after that place, or from the first on, that began before `before`: some thousand, and
  /// removes those whose day has its sum. How far it came; nothing when there are no more. REQUIRES: a transaction, and
  /// `canBeKept()`.
  std::optional<HourPlace> thin(const std::optional<HourPlace>& after, Moment before);
  /// From `now` on the checks so far say nothing any more: the run was stopped, or this machine is offline. Nothing
  /// in a list without the tables.
  void endKnowledge(Moment now);

  /// Whether the log of the list has been read into the history.
  bool hasTakenLog();
  /// Reads the log of the sites that are there, once, with events taken in by `between`; false, with nothing written,
  /// when that says that it is to end. Later calls do nothing. REQUIRES: no transaction, and `canBeKept()`.
  bool takeLog(Moment now, const std::function<bool()>& between);

  /// The latest check of a site; nothing where none was taken.
  std::optional<LatestCheck> latestCheck(std::int64_t idSite);
  /// Those of all sites, or of the ones whose ids are from `first` to `last`.
  std::map<std::int64_t, LatestCheck> latestChecks(std::int64_t first = std::numeric_limits<std::int64_t>::min(),
                                                   std::int64_t last = std::numeric_limits<std::int64_t>::max());
  std::optional<CheckTimings> timings(std::int64_t idSite);
  /// The hours of a site that begin in that time, or its days, in rising order.
  std::vector<KeptSum> keptHours(std::int64_t idSite, Stretch time);
  /// The hours of several sites in one reading.
  std::map<std::int64_t, std::vector<KeptSum>> keptHours(const std::vector<std::int64_t>& sites, Stretch time);
  std::vector<KeptSum> keptDays(std::int64_t idSite, Stretch time);
  /// The outages that were on in that time, of one site, or of all; the latest first.
  std::vector<Outage> outages(std::optional<std::int64_t> idSite, Stretch time);

  /// Removes what is there of a site. Nothing where there is no table.
  void removeHistory(std::int64_t idSite);

 private:
  /// Whether half of all sites, or more, are no more than so many.
  bool areMostOfAll(std::size_t sites);
  bool hasTables();
  void takeShares(std::int64_t idSite, std::span<const HourShare> shares);
  void takeOutage(std::int64_t idSite, const OutageChange& change, const std::string& cause);
  void sumUp(std::int64_t idSite, Moment from, Moment now);

  Database& db_;
};

/// Where the rows of the site ?1 are in table `hours`: it is ordered by hours, of which there are fewer than rows.
inline constexpr const char* kHoursOfSite =
    " from hours where idSite = ?1 and hour in (with recursive slot (hour) as (select min(hour) from hours union all "
    "select (select min(hour) from hours where hour > slot.hour) from slot where slot.hour is not null) select hour "
    "from slot where hour is not null)";

}  // namespace tarnwick
