// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "history/calendar.h"
#include "history/history_rule.h"
#include "store/site_history.h"

namespace tarnwick {

/// What is known of a site over one of the `periods()`, cell by cell.
struct PeriodView {
  Period period;
  /// Where the cells begin, and the present.
  std::vector<Moment> edges;
  std::vector<TimeSum> cells;

  std::chrono::seconds lengthOf(std::size_t cell) const { return edges[cell + 1] - edges[cell]; }
  TimeSum whole() const;
  std::chrono::seconds length() const { return edges.back() - edges.front(); }
};

/// What the list says of a site whose history is shown.
struct CheckedSite {
  std::string url{};
  std::chrono::seconds interval{60};
};
/// One that is not there is checked each minute, from nowhere. Raises DataAccessError.
CheckedSite checkedSite(SiteHistory& history, std::int64_t idSite);

/// Reads what is known of several sites over the `periods()`, up to one present.
class PeriodsOfSites {
 public:
  /// Raises DataAccessError.
  PeriodsOfSites(SiteHistory& history, const std::vector<std::int64_t>& sites, Moment now);

  /// One for each of `periods()`, with what the latest check says of the time since, of one of the sites, which is
  /// checked every `interval`. Raises DataAccessError.
  std::vector<PeriodView> of(std::int64_t idSite, std::chrono::seconds interval);

 private:
  SiteHistory& history_;
  Moment now_;
  std::vector<std::vector<Moment>> edges_;
  std::map<std::int64_t, std::vector<KeptSum>> hoursOfWeek_;
};

/// The same of one site alone.
std::vector<PeriodView> periodsOf(SiteHistory& history, std::int64_t idSite, std::chrono::seconds interval, Moment now);

/// The same of one site and one period, whose cells are days or more.
PeriodView periodOfDays(SiteHistory& history, std::int64_t idSite, std::chrono::seconds interval, const Period& period,
                        Moment now);

/// A site and how often it is to be checked.
struct SiteToShow {
  std::int64_t idSite = 0;
  std::chrono::seconds interval{60};
};

/// The days of any time, as it is known `now`; the last cell ends with the time, which is over by then.
PeriodView daysOf(SiteHistory& history, const SiteToShow& site, Stretch time, Moment now);

/// The sums of a month, or of its part up to the present, for these sites. REQUIRES: rising ids. Raises
/// DataAccessError.
std::map<std::int64_t, TimeSum> sumsOfMonth(SiteHistory& history, const std::vector<SiteToShow>& sites, Stretch time,
                                            Moment now);

/// How long the parts of the latest check of each site took. Raises DataAccessError.
std::map<std::int64_t, CheckTimings> latestTimings(SiteHistory& history);

/// The sums of many sites over each of `periods()`, without how long their answers took but for those of 7 days. Empty
/// for a site of which nothing is known. Raises DataAccessError.
using PeriodSums = std::vector<TimeSum>;
std::map<std::int64_t, PeriodSums> sumsOfPeriods(SiteHistory& history,
                                                 const std::map<std::int64_t, std::chrono::seconds>& intervals,
                                                 Moment now);

}  // namespace tarnwick
