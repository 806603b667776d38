// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/text_in_parts.h"
#include "history/calendar.h"
#include "report/shown_sites.h"
#include "store/history_view.h"
#include "store/site_certificates.h"

namespace tarnwick {

/// How a site has been in a month.
struct MonthOfSite {
  ShownSite site;
  TimeSum sum;
  std::chrono::seconds unknown{0};  ///< neither up nor down, also what was planned
  /// Outages that were on in the month, and how long they were in it, also while nobody looked.
  std::int64_t outages = 0;
  std::chrono::seconds inOutages{0};
};

/// An outage as far as it lies in the month.
struct MonthOutage {
  std::string address;
  Outage outage;
  std::chrono::seconds inMonth{0};
};

/// A certificate, as it was seen last.
struct EndingCertificate {
  std::int64_t idSite = 0;
  std::string address;
  Moment ends;
  std::int64_t daysLeft = 0;  ///< whole ones; below zero once it has ended
};

/// What is told of a month. Per cent are those of the time of which something is known; what is neither up nor down was
/// planned, or nobody looked.
struct MonthReport {
  static constexpr std::size_t kMostSlowest = 10;
  static constexpr std::size_t kMostCertificates = 10;

  Stretch time;               ///< the month; up to the present where that is in it
  Moment made;                ///< as it was known then
  bool isOver = false;        ///< whether the month has ended
  bool isHistoryKept = true;  ///< by the option `history`
  std::vector<MonthOfSite>
      sites;        ///< all of the list, those that were up the least first, then those without known time
  MonthOfSite all;  ///< the sum of them, without a site
  std::vector<MonthOutage> outages;             ///< of these sites, the latest first
  std::vector<MonthOfSite> slowest;             ///< by their medians, the slowest first
  std::vector<EndingCertificate> certificates;  ///< those that end soonest, of the sites where they are looked at
};

/// The report of the month that `month` is in, as it is known `now`. REQUIRES: it has begun. Raises DataAccessError.
MonthReport monthReport(SiteHistory& history, Moment month, Moment now);
/// The same in parts: what is read is put into `report`, a new one; the text says nothing.
TextInParts readMonthReport(SiteHistory& history, MonthReport& report, Moment month, Moment now);

/// The days of the month of a site, cell by cell.
PeriodView daysOfMonth(SiteHistory& history, const ShownSite& site, const MonthReport& report);

}  // namespace tarnwick
