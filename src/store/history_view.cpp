// SPDX-License-Identifier: MIT
#include "store/history_view.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>
#include <span>
#include <utility>

#include "store/history_rows.h"
#include "store/table_there.h"

namespace tarnwick {

using namespace std::chrono;

namespace {

/// Of which the answer times of many sites are told.
constexpr std::size_t kWeek = 1;

PeriodView viewOf(const Period& period, std::vector<Moment> edges,
                  std::initializer_list<std::span<const KeptSum>> rows) {
  PeriodView view{period, std::move(edges), {}};
  view.cells.resize(view.edges.size() - 1);
  for (const std::span<const KeptSum> some : rows) {
    for (const KeptSum& row : some) {
      const auto behind = std::upper_bound(view.edges.begin(), view.edges.end() - 1, row.began);
      if (behind != view.edges.begin() && row.began < view.edges.back()) {
        view.cells[static_cast<std::size_t>(behind - view.edges.begin()) - 1].add(row.sum);
      }
    }
  }
  for (std::size_t i = 0; i < view.cells.size(); ++i) {
    // More can be known only where the clock was set back.
    TimeSum& cell = view.cells[i];
    cell.up = std::min<seconds>(cell.up, view.lengthOf(i));
    cell.down = std::min<seconds>(cell.down, view.lengthOf(i) - cell.up);
  }
  return view;
}

/// What the latest check says of the time since.
std::vector<KeptSum> sinceTheLatest(const LatestCheck& latest, seconds interval, Moment now) {
  std::vector<KeptSum> rows;
  for (const HourShare& share : sharesAfter(latest, interval, {}, now)) {
    KeptSum& row = rows.emplace_back();
    row.began = share.hour;
    row.sum.up = share.up;
    row.sum.down = share.down;
  }
  return rows;
}

/// The hours that are in none of the days: a day has its sum once a check comes after it, so they are of the day of the
/// latest check.
Stretch timeWithoutSum(const LatestCheck& latest, const std::vector<KeptSum>& days) {
  const Moment day = dayOf(latest.at);
  return {days.empty() ? day : std::max(day, dayFrom(days.back().began, 1)), dayFrom(day, 1)};
}

/// The sums of many sites, being put together.
class ManySums {
 public:
  /// Of the sites whose ids are from `first` to `last`.
  ManySums(SiteHistory& history, std::int64_t first, std::int64_t last, Moment now)
      : db_(history.database()), first_(first), last_(last), now_(now) {
    for (const Period& period : periods()) {
      beginnings_.push_back(edgesOf(period, now).front());
    }
  }

  /// What the latest check says of the time since.
  void addTail(std::int64_t idSite, const LatestCheck& latest, seconds interval) {
    PeriodSums& own = sums_.emplace(idSite, PeriodSums(periods().size())).first->second;
    for (const HourShare& share : sharesAfter(latest, interval, {}, now_)) {
      for (std::size_t period = 0; period < own.size(); ++period) {
        if (share.hour >= beginnings_[period]) {
          own[period].up += share.up;
          own[period].down += share.down;
        }
      }
    }
  }

  /// Adds what the rows of a table say whose beginnings are in that time, to the sums of all periods that begin no
  /// later, from `first` to `last`.
  void addRows(const std::string& sql, Stretch time, std::size_t first, std::size_t last) {
    each(sql, time, [&](PeriodSums& own, const Recordset& rows) {
      for (std::size_t period = first; period <= last; ++period) {
        if (beginnings_[period] > time.from) {
          continue;
        }
        TimeSum& sum = own[period];
        sum.up += seconds(rows.field(std::size_t{1}).toInt64());
        sum.down += seconds(rows.field(std::size_t{2}).toInt64());
        sum.checks += rows.field(std::size_t{3}).toInt64();
        sum.tookInAll += milliseconds(rows.field(std::size_t{4}).toInt64());
        sum.slowest = std::max(sum.slowest, milliseconds(rows.field(std::size_t{5}).toInt64()));
      }
    });
  }
  /// Adds the answer times of the week.
  void addLatency(const std::string& sql, Stretch time) {
    if (time.from >= beginnings_[kWeek]) {
      each(sql, time, [](PeriodSums& own, const Recordset& rows) {
        own[kWeek].latency.add(Latency::unpacked(rows.field(std::size_t{1}).toText()));
      });
    }
  }

  Moment beginning(std::size_t period) const { return beginnings_[period]; }
  std::map<std::int64_t, PeriodSums> taken() && { return std::move(sums_); }

 private:
  template <typename Take>
  void each(const std::string& sql, Stretch time, Take take) {
    if (time.from >= time.until) {
      return;
    }
    const std::array<SqlValue, 4> key{history_rows::of(time.from), history_rows::of(time.until), SqlValue(first_),
                                      SqlValue(last_)};
    const auto rows = db_.conn().execute(sql, key);
    for (; !rows->eof(); rows->moveNext()) {
      if (const auto own = sums_.find(rows->field(std::size_t{0}).toInt64()); own != sums_.end()) {
        take(own->second, *rows);
      }
    }
  }

  Database& db_;
  std::int64_t first_;
  std::int64_t last_;
  Moment now_;
  std::vector<Moment> beginnings_;
  std::map<std::int64_t, PeriodSums> sums_;
};

std::string figuresOf(const std::string& seconds) {
  return "select s.idSite, sum(t.up), sum(" + seconds +
         " - t.up - t.unknown), sum(t.checks), sum(t.msSum), max(t.msMax)";
}

/// For each site the sum of the rows whose beginning is in a time: site by site where the table is ordered so.
std::string sumOf(const std::string& table, const std::string& beginning, const std::string& sites = "") {
  return figuresOf("t.seconds") + " from latestChecks s cross join " + table + " t on t.idSite = s.idSite and t." +
         beginning + " >= ?1 and t." + beginning + " < ?2 where s.idSite >= ?3 and s.idSite <= ?4 " + sites +
         "group by s.idSite";
}

/// That the latest check of the site is in the time, which so has no sum yet.
constexpr const char* kEndsThere = "and s.at >= ?1 and s.at < ?2 ";

/// The hours in the time of the sites of which that holds.
constexpr const char* kHoursThatEndThere =
    " from latestChecks s cross join slot cross join hours t on t.hour = slot.hour and t.idSite = s.idSite where "
    "s.idSite >= ?3 and s.idSite <= ?4 and s.at >= ?1 and s.at < ?2 and slot.hour < ?2";
constexpr const char* kSlots =
    "with recursive slot (hour) as materialized (select min(hour) from hours where hour >= ?1 union all select (select "
    "min(hour) from hours where hour > slot.hour) from slot where slot.hour < ?2) ";

}  // namespace

TimeSum PeriodView::whole() const {
  TimeSum sum;
  for (const TimeSum& cell : cells) {
    sum.add(cell);
  }
  return sum;
}

CheckedSite checkedSite(SiteHistory& history, std::int64_t idSite) {
  const SqlValue id(idSite);
  const auto rows = history.database().conn().execute("select url, tInterval from sites where idSite = ?1", {&id, 1});
  if (rows->eof()) {
    return {};
  }
  return {rows->field(std::size_t{0}).toText(),
          minutes(std::max<std::int64_t>(1, rows->field(std::size_t{1}).toInt64()))};
}

PeriodsOfSites::PeriodsOfSites(SiteHistory& history, const std::vector<std::int64_t>& sites, Moment now)
    : history_(history), now_(now) {
  for (const Period& period : periods()) {
    edges_.push_back(edgesOf(period, now));
  }
  hoursOfWeek_ = history.keptHours(sites, {edges_[kWeek].front(), now});
}

std::vector<PeriodView> PeriodsOfSites::of(std::int64_t idSite, seconds interval) {
  const std::vector<KeptSum> days = history_.keptDays(idSite, {edges_.back().front(), now_});
  const std::vector<KeptSum>& hours = hoursOfWeek_[idSite];
  std::vector<KeptSum> rest;
  std::vector<KeptSum> tail;
  if (const auto latest = history_.latestCheck(idSite)) {
    rest = history_.keptHours(idSite, timeWithoutSum(*latest, days));
    tail = sinceTheLatest(*latest, interval, now_);
  }
  std::vector<PeriodView> views;
  for (std::size_t i = 0; i < edges_.size(); ++i) {
    const Period& period = periods()[i];
    views.push_back(period.days > 0 ? viewOf(period, edges_[i], {days, rest, tail})
                                    : viewOf(period, edges_[i], {hours, tail}));
  }
  return views;
}

std::vector<PeriodView> periodsOf(SiteHistory& history, std::int64_t idSite, seconds interval, Moment now) {
  return PeriodsOfSites(history, {idSite}, now).of(idSite, interval);
}

namespace {

/// That of the days between the edges, as it is known `now`.
PeriodView viewOfDays(SiteHistory& history, const SiteToShow& site, const Period& period, std::vector<Moment> edges,
                      Moment now) {
  const std::vector<KeptSum> days = history.keptDays(site.idSite, {edges.front(), edges.back()});
  const auto latest = history.latestCheck(site.idSite);
  if (!latest) {
    return viewOf(period, std::move(edges), {days});
  }
  const std::vector<KeptSum> rest = history.keptHours(site.idSite, timeWithoutSum(*latest, days));
  return viewOf(period, std::move(edges), {days, rest, sinceTheLatest(*latest, site.interval, now)});
}

}  // namespace

PeriodView periodOfDays(SiteHistory& history, std::int64_t idSite, seconds interval, const Period& period, Moment now) {
  return viewOfDays(history, {idSite, interval}, period, edgesOf(period, now), now);
}

PeriodView daysOf(SiteHistory& history, const SiteToShow& site, Stretch time, Moment now) {
  std::vector<Moment> edges;
  for (Moment day = dayOf(time.from); day < time.until; day = dayFrom(day, 1)) {
    edges.push_back(day);
  }
  edges.push_back(time.until);
  return viewOfDays(history, site, {.days = 1, .cells = static_cast<int>(edges.size()) - 1}, edges, now);
}

std::map<std::int64_t, TimeSum> sumsOfMonth(SiteHistory& history, const std::vector<SiteToShow>& sites, Stretch time,
                                            Moment now) {
  std::map<std::int64_t, TimeSum> sums;
  if (!sites.empty() && hasTable(history.database(), "months")) {
    const std::array<SqlValue, 3> key{history_rows::of(time.from), SqlValue(sites.front().idSite),
                                      SqlValue(sites.back().idSite)};
    const auto rows = history.database().conn().execute(
        "select idSite, seconds, checks, up, unknown, msSum, msMax, buckets from months where month = ?1 and "
        "idSite between ?2 and ?3",
        key);
    for (; !rows->eof(); rows->moveNext()) {
      sums.emplace(rows->field(std::size_t{0}).toInt64(),
                   history_rows::sumIn(*rows, 2, seconds(rows->field(std::size_t{1}).toInt64())));
    }
    rows->close();
  }
  for (const SiteToShow& site : sites) {
    if (!sums.contains(site.idSite)) {
      sums.emplace(site.idSite, daysOf(history, site, time, now).whole());
    }
  }
  return sums;
}

std::map<std::int64_t, CheckTimings> latestTimings(SiteHistory& history) {
  std::map<std::int64_t, CheckTimings> all;
  if (!hasTable(history.database(), "latestChecks")) {
    return all;
  }
  const auto rows =
      history.database().conn().execute("select idSite, lookUp, connect, tls, firstByte, whole from latestChecks", {});
  for (; !rows->eof(); rows->moveNext()) {
    CheckTimings& timings = all[rows->field(std::size_t{0}).toInt64()];
    std::size_t field = 0;
    for (auto* time : {&timings.lookUp, &timings.connect, &timings.tls, &timings.firstByte, &timings.whole}) {
      const SqlValue value = rows->field(++field);
      *time = value.isNull() ? std::nullopt : std::optional(milliseconds(value.toInt64()));
    }
  }
  return all;
}

// Each day before that of a site's latest check has its sum, and so has each month; what comes after them is read in
// smaller parts, for all sites together whose latest checks are of the same day, or month.
std::map<std::int64_t, PeriodSums> sumsOfPeriods(SiteHistory& history, const std::map<std::int64_t, seconds>& intervals,
                                                 Moment now) {
  if (intervals.empty()) {
    return {};
  }
  const std::int64_t first = intervals.begin()->first;
  const std::int64_t lastSite = intervals.rbegin()->first;
  ManySums sums(history, first, lastSite, now);
  std::set<Moment> lastDays;
  std::set<Moment> lastMonths;
  for (const auto& [id, latest] : history.latestChecks(first, lastSite)) {
    if (const auto interval = intervals.find(id); interval != intervals.end()) {
      sums.addTail(id, latest, interval->second);
      lastDays.insert(dayOf(latest.at));
      lastMonths.insert(monthOf(latest.at));
    }
  }
  if (lastDays.empty()) {
    return {};
  }
  const std::size_t last = periods().size() - 1;
  const std::string days = sumOf("days", "day");
  const std::string months = sumOf("months", "month");
  sums.addRows(
      kSlots +
          std::string("select t.idSite, sum(t.up), sum(3600 - t.up - t.unknown), sum(t.checks), sum(t.msSum), "
                      "max(t.msMax) from slot cross join hours t on t.hour = slot.hour and t.idSite >= ?3 and t.idSite "
                      "<= ?4 where slot.hour < ?2 group by t.idSite"),
      {sums.beginning(0), now}, 0, 0);
  for (std::size_t period = kWeek; period <= last; ++period) {
    const Moment from = sums.beginning(period);
    const Moment month = monthOf(from) == from ? from : monthAfter(from);
    const Moment present = monthOf(now);
    if (month >= present) {
      sums.addRows(days, {from, now}, period, period);
      continue;
    }
    sums.addRows(days, {from, month}, period, period);
    sums.addRows(months, {month, present}, period, period);
    sums.addRows(days, {present, now}, period, period);
    for (const Moment lastMonth : lastMonths) {
      if (lastMonth >= month && lastMonth < present) {
        sums.addRows(sumOf("days", "day", kEndsThere), {lastMonth, monthAfter(lastMonth)}, period, period);
      }
    }
  }
  for (const Moment day : lastDays) {
    if (day >= sums.beginning(last)) {
      const Stretch time{day, dayFrom(day, 1)};
      sums.addRows(kSlots + figuresOf("3600") + kHoursThatEndThere + " group by s.idSite", time, kWeek, last);
      sums.addLatency(std::string(kSlots) + "select s.idSite, t.buckets" + kHoursThatEndThere, time);
    }
  }
  sums.addLatency(
      "select s.idSite, d.buckets from latestChecks s cross join days d on d.idSite = s.idSite and d.day >= ?1 and "
      "d.day < ?2 where s.idSite >= ?3 and s.idSite <= ?4",
      {sums.beginning(kWeek), now});
  return std::move(sums).taken();
}

}  // namespace tarnwick
