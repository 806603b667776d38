// SPDX-License-Identifier: MIT
#include "report/month_figures.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "base/text.h"
#include "store/site_options.h"

namespace tarnwick {

using std::chrono::seconds;

namespace {

SiteToShow shownAs(const ShownSite& site) { return {site.idSite, site.interval}; }

// Those of which nothing is known come last.
auto rankOf(const MonthOfSite& month) {
  constexpr double kUnknown = 101;
  return std::tuple(month.sum.uptime().value_or(kUnknown), -month.inOutages.count(), month.site.idSite);
}

/// An outage that ended where the time begins is none of it.
bool isIn(const Outage& outage, Stretch time) {
  return !outage.ended || *outage.ended > time.from || outage.began >= time.from;
}

void takeOutages(SiteHistory& history, MonthReport& report) {
  std::map<std::int64_t, MonthOfSite*> sites;
  for (MonthOfSite& month : report.sites) {
    sites.emplace(month.site.idSite, &month);
  }
  for (Outage& outage : history.outages(std::nullopt, report.time)) {
    const auto own = sites.find(outage.idSite);
    if (own == sites.end() || !isIn(outage, report.time)) {
      continue;
    }
    const seconds length = std::min(outage.ended.value_or(report.time.until), report.time.until) -
                           std::max(outage.began, report.time.from);
    for (MonthOfSite* const month : {own->second, &report.all}) {
      ++month->outages;
      month->inOutages += length;
    }
    report.outages.push_back({own->second->site.address, std::move(outage), length});
  }
}

std::vector<MonthOfSite> slowestOf(const std::vector<MonthOfSite>& sites) {
  std::vector<const MonthOfSite*> answered;
  for (const MonthOfSite& month : sites) {
    if (month.sum.latency.count() > 0) {
      answered.push_back(&month);
    }
  }
  std::ranges::stable_sort(answered, {}, [](const MonthOfSite* month) {
    constexpr double kHalf = 0.5;
    constexpr double kMost = 0.95;
    return std::tuple(-month->sum.latency.quantile(kHalf)->count(), -month->sum.latency.quantile(kMost)->count(),
                      month->site.idSite);
  });
  std::vector<MonthOfSite> slowest;
  for (std::size_t i = 0; i < std::min(MonthReport::kMostSlowest, answered.size()); ++i) {
    slowest.push_back(*answered[i]);
  }
  return slowest;
}

std::vector<EndingCertificate> certificatesOf(Database& database, const OptionsInForce& options,
                                              const std::vector<MonthOfSite>& sites, Moment now) {
  const auto known = SiteCertificates(database).certificates(options);
  std::vector<EndingCertificate> ending;
  for (const MonthOfSite& month : sites) {
    if (const auto own = known.find(month.site.idSite); own != known.end() && month.site.active) {
      const Moment ends = own->second.ends;
      ending.push_back(
          {month.site.idSite, month.site.address, ends, std::chrono::floor<std::chrono::days>(ends - now).count()});
    }
  }
  std::ranges::sort(ending, {}, [](const EndingCertificate& one) { return std::tuple(one.ends, one.idSite); });
  ending.resize(std::min(MonthReport::kMostCertificates, ending.size()));
  return ending;
}

}  // namespace

MonthReport monthReport(SiteHistory& history, Moment month, Moment now) {
  MonthReport report;
  report.time = {monthOf(month), std::min(monthAfter(month), now)};
  report.made = now;
  report.isOver = monthAfter(month) <= now;
  const OptionsInForce options = readOptions(history.database());
  report.isHistoryKept = options.valueOf(kAllSites, option_name::history) == option_value::on;
  std::vector<SiteToShow> wanted;
  for (ShownSite& site : shownSites(history.database())) {
    wanted.push_back(shownAs(site));
    report.sites.emplace_back().site = std::move(site);
  }
  const auto sums = sumsOfMonth(history, wanted, report.time, now);
  for (MonthOfSite& own : report.sites) {
    own.sum = sums.at(own.site.idSite);
    own.unknown = report.time.until - report.time.from - own.sum.known();
    report.all.sum.add(own.sum);
    report.all.unknown += own.unknown;
  }
  takeOutages(history, report);
  std::ranges::sort(report.sites, {}, &rankOf);
  report.slowest = slowestOf(report.sites);
  report.certificates = certificatesOf(history.database(), options, report.sites, now);
  return report;
}

PeriodView daysOfMonth(SiteHistory& history, const ShownSite& site, const MonthReport& report) {
  return daysOf(history, shownAs(site), report.time, report.made);
}

}  // namespace tarnwick
