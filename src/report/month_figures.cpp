// SPDX-License-Identifier: MIT
#include "report/month_figures.h"

#include <algorithm>
#include <span>
#include <tuple>
#include <utility>

#include "base/text.h"
#include "store/site_options.h"

namespace tarnwick {

using std::chrono::seconds;

namespace {

// So many are read together: some milliseconds.
constexpr std::size_t kPiece = 20;

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

void takeOutages(SiteHistory& history, MonthReport& report, MonthOfSite& own) {
  for (Outage& outage : history.outages(own.site.idSite, report.time)) {
    if (!isIn(outage, report.time)) {
      continue;
    }
    const seconds length = std::min(outage.ended.value_or(report.time.until), report.time.until) -
                           std::max(outage.began, report.time.from);
    for (MonthOfSite* const month : {&own, &report.all}) {
      ++month->outages;
      month->inOutages += length;
    }
    report.outages.push_back({own.site.address, std::move(outage), length});
  }
}

void takeSums(SiteHistory& history, MonthReport& report, std::span<MonthOfSite> piece) {
  std::vector<SiteToShow> wanted;
  for (const MonthOfSite& own : piece) {
    wanted.push_back(shownAs(own.site));
  }
  const auto sums = sumsOfMonth(history, wanted, report.time, report.made);
  for (MonthOfSite& own : piece) {
    own.sum = sums.at(own.site.idSite);
    own.unknown = report.time.until - report.time.from - own.sum.known();
    report.all.sum.add(own.sum);
    report.all.unknown += own.unknown;
  }
}

std::vector<MonthOfSite> slowestOf(const std::vector<MonthOfSite>& sites) {
  constexpr double kHalf = 0.5;
  constexpr double kMost = 0.95;
  using Rank = std::tuple<std::int64_t, std::int64_t, std::int64_t, const MonthOfSite*>;
  std::vector<Rank> answered;
  for (const MonthOfSite& month : sites) {
    if (const Latency& took = month.sum.latency; took.count() > 0) {
      answered.emplace_back(-took.quantile(kHalf)->count(), -took.quantile(kMost)->count(), month.site.idSite, &month);
    }
  }
  std::ranges::sort(answered);
  std::vector<MonthOfSite> slowest;
  for (std::size_t i = 0; i < std::min(MonthReport::kMostSlowest, answered.size()); ++i) {
    slowest.push_back(*std::get<const MonthOfSite*>(answered[i]));
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

TextInParts readMonthReport(SiteHistory& history, MonthReport& report, Moment month, Moment now) {
  report.time = {monthOf(month), std::min(monthAfter(month), now)};
  report.made = now;
  report.isOver = monthAfter(month) <= now;
  std::vector<ShownSite> listed;
  while (readMoreSites(history.database(), listed)) {
    co_await letOthersGoOn;
  }
  for (ShownSite& site : listed) {
    report.sites.emplace_back().site = std::move(site);
  }
  for (std::size_t first = 0; first < report.sites.size(); first += kPiece) {
    const std::span piece(&report.sites[first], std::min(kPiece, report.sites.size() - first));
    takeSums(history, report, piece);
    for (MonthOfSite& own : piece) {
      takeOutages(history, report, own);
    }
    co_await letOthersGoOn;
  }
  std::ranges::sort(report.outages, {}, [](const MonthOutage& one) {
    return std::tuple(-one.outage.began.time_since_epoch().count(), one.outage.idSite);
  });
  std::ranges::sort(report.sites, {}, &rankOf);
  co_await letOthersGoOn;
  report.slowest = slowestOf(report.sites);
  co_await letOthersGoOn;
  const OptionsInForce options = readOptions(history.database());
  report.isHistoryKept = options.valueOf(kAllSites, option_name::history) == option_value::on;
  report.certificates = certificatesOf(history.database(), options, report.sites, now);
  co_return {};
}

MonthReport monthReport(SiteHistory& history, Moment month, Moment now) {
  MonthReport report;
  std::ignore = readMonthReport(history, report, month, now).whole();
  return report;
}

PeriodView daysOfMonth(SiteHistory& history, const ShownSite& site, const MonthReport& report) {
  return daysOf(history, shownAs(site), report.time, report.made);
}

}  // namespace tarnwick
