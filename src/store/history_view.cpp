// SPDX-License-Identifier: MIT
#include "store/history_view.h"

#include <algorithm>
#include <array>

#include "store/history_rows.h"

namespace tarnwick {

using namespace std::chrono;

namespace {

/// Of which the answer times of many sites are told.
constexpr std::size_t kWeek = 1;

PeriodView viewOf(const Period& period, const std::vector<const std::vector<KeptSum>*>& rows, Moment now) {
  PeriodView view{period, edgesOf(period, now), {}};
  view.cells.resize(view.edges.size() - 1);
  for (const std::vector<KeptSum>* const some : rows) {
    for (const KeptSum& row : *some) {
      const auto behind = std::upper_bound(view.edges.begin(), view.edges.end() - 1, row.began);
      if (behind != view.edges.begin()) {
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
std::vector<KeptSum> sinceTheLatest(SiteHistory& history, std::int64_t idSite, seconds interval, Moment now) {
  std::vector<KeptSum> rows;
  if (const auto latest = history.latestCheck(idSite)) {
    for (const HourShare& share : sharesAfter(*latest, interval, {}, now)) {
      KeptSum& row = rows.emplace_back();
      row.began = share.hour;
      row.sum.up = share.up;
      row.sum.down = share.down;
    }
  }
  return rows;
}

/// Adds the sums of rows of one table and time to those of their sites.
template <typename Take>
void each(SiteHistory& history, const std::string& sql, Stretch time, Take take) {
  if (time.from >= time.until) {
    return;
  }
  const std::array<SqlValue, 2> key{history_rows::of(time.from), history_rows::of(time.until)};
  const auto rows = history.database().conn().execute(sql, key);
  for (; !rows->eof(); rows->moveNext()) {
    take(*rows);
  }
}

/// For each site the sum of the rows whose beginning is in a time: site by site where the table is ordered so.
std::string sumOf(const std::string& table, const std::string& beginning, const std::string& seconds) {
  return "select s.idSite, sum(t.up), sum(" + seconds +
         " - t.up - t.unknown), sum(t.checks), sum(t.msSum), max(t.msMax) "
         "from latestChecks s cross join " +
         table + " t on t.idSite = s.idSite and t." + beginning + " >= ?1 and t." + beginning +
         " < ?2 group by s.idSite";
}

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

std::vector<PeriodView> periodsOf(SiteHistory& history, std::int64_t idSite, seconds interval, Moment now) {
  const Moment week = dayFrom(now, 1 - periods()[kWeek].length);
  const Moment year = dayFrom(now, 1 - periods().back().length);
  const std::vector<KeptSum> days = history.keptDays(idSite, {year, now});
  // A day has its sum once a check comes after it.
  const Moment summed = days.empty() ? year : dayFrom(days.back().began, 1);
  const std::vector<KeptSum> rest = history.keptHours(idSite, {summed, now});
  const std::vector<KeptSum> hours = history.keptHours(idSite, {week, now});
  const std::vector<KeptSum> tail = sinceTheLatest(history, idSite, interval, now);
  std::vector<PeriodView> views;
  for (const Period& period : periods()) {
    views.push_back(period.days > 0 ? viewOf(period, {&days, &rest, &tail}, now)
                                    : viewOf(period, {&hours, &tail}, now));
  }
  return views;
}

std::map<std::int64_t, PeriodSums> sumsOfPeriods(SiteHistory& history, const std::map<std::int64_t, seconds>& intervals,
                                                 Moment now) {
  std::map<std::int64_t, PeriodSums> sums;
  const Moment today = dayOf(now);
  std::vector<std::int64_t> current;
  for (const auto& [id, interval] : intervals) {
    const auto latest = history.latestCheck(id);
    if (!latest) {
      continue;
    }
    PeriodSums& own = sums[id];
    if (latest->at < today) {
      // Its last day and month have no sum yet.
      for (const PeriodView& view : periodsOf(history, id, interval, now)) {
        own.push_back(view.whole());
      }
      continue;
    }
    current.push_back(id);
    TimeSum tail;
    for (const HourShare& share : sharesAfter(*latest, interval, {}, now)) {
      tail.up += share.up;
      tail.down += share.down;
    }
    own.assign(periods().size(), tail);
  }
  if (current.empty()) {
    return sums;
  }
  const auto isCurrent = [&](std::int64_t id) { return std::ranges::binary_search(current, id); };
  const auto addTo = [&](std::size_t first, std::size_t last) {
    return [&, first, last](const Recordset& rows) {
      const std::int64_t id = rows.field(std::size_t{0}).toInt64();
      if (!isCurrent(id)) {
        return;
      }
      for (std::size_t period = first; period <= last; ++period) {
        TimeSum& sum = sums[id][period];
        sum.up += seconds(rows.field(std::size_t{1}).toInt64());
        sum.down += seconds(rows.field(std::size_t{2}).toInt64());
        sum.checks += rows.field(std::size_t{3}).toInt64();
        sum.tookInAll += milliseconds(rows.field(std::size_t{4}).toInt64());
        sum.slowest = std::max(sum.slowest, milliseconds(rows.field(std::size_t{5}).toInt64()));
      }
    };
  };
  const std::string days = sumOf("days", "day", "t.seconds");
  const std::string months = sumOf("months", "month", "t.seconds");
  const std::string hours =
      "select idSite, sum(up), sum(3600 - up - unknown), sum(checks), sum(msSum), max(msMax) from hours where hour >= "
      "?1 "
      "and hour < ?2 group by idSite";
  const std::size_t last = periods().size() - 1;
  each(history, hours, {hourOf(now) - std::chrono::hours(23), now}, addTo(0, 0));
  each(history, hours, {today, now}, addTo(1, last));
  for (std::size_t period = kWeek; period <= last; ++period) {
    const Moment from = dayFrom(now, 1 - periods()[period].length);
    const Moment month = monthOf(from) == from ? from : monthAfter(from);
    const Moment present = monthOf(now);
    if (month >= present) {
      each(history, days, {from, today}, addTo(period, period));
    } else {
      each(history, days, {from, month}, addTo(period, period));
      each(history, months, {month, present}, addTo(period, period));
      each(history, days, {present, today}, addTo(period, period));
    }
  }
  const auto addLatency = [&](const Recordset& rows) {
    if (const std::int64_t id = rows.field(std::size_t{0}).toInt64(); isCurrent(id)) {
      sums[id][kWeek].latency.add(Latency::unpacked(rows.field(std::size_t{1}).toText()));
    }
  };
  each(history,
       "select s.idSite, d.buckets from latestChecks s cross join days d on d.idSite = s.idSite and d.day >= ?1 and "
       "d.day < ?2",
       {dayFrom(now, 1 - periods()[kWeek].length), today}, addLatency);
  each(history, "select idSite, buckets from hours where hour >= ?1 and hour < ?2", {today, now}, addLatency);
  return sums;
}

}  // namespace tarnwick
