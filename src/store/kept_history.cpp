// SPDX-License-Identifier: MIT
#include "store/kept_history.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <string>
#include <utility>

#include "store/history_rows.h"
#include "store/table_there.h"

namespace tarnwick {

using namespace std::chrono;
using history_rows::of;

namespace {

constexpr Stretch kAllTime{Moment::min(), Moment::max()};

std::vector<KnownTime> rowsOf(Database& db, const char* sql, std::int64_t idSite) {
  std::vector<KnownTime> found;
  const SqlValue id(idSite);
  const auto rows = db.conn().execute(sql, {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    const KeptSum row = history_rows::sumFrom(*rows, 0);
    found.push_back({{row.began, row.began + seconds(rows->field(std::size_t{1}).toInt64())}, row.sum});
  }
  return found;
}

/// Rows that do not overlap, by their beginnings, and which of them are new among them.
class Rows {
 public:
  explicit Rows(const std::vector<KnownTime>& own) {
    for (const KnownTime& row : own) {
      all_.emplace(row.time.from, row);
    }
  }

  void offer(const KnownTime& row) {
    const auto there = all_.find(row.time.from);
    if (there != all_.end() ? !tellsMore(row, there->second) : overlaps(row.time)) {
      return;
    }
    all_.insert_or_assign(row.time.from, row);
    fresh_.insert_or_assign(row.time.from, row);
  }

  /// The sum of those that begin in that time.
  KnownTime sumOf(Stretch time) const {
    KnownTime sum{time, {}};
    for (auto row = all_.lower_bound(time.from); row != all_.end() && row->first < time.until; ++row) {
      sum.sum.add(row->second.sum);
    }
    return sum;
  }

  std::vector<KnownTime> fresh() const {
    std::vector<KnownTime> rows;
    for (const auto& [from, row] : fresh_) {
      rows.push_back(row);
    }
    return rows;
  }

 private:
  static bool tellsMore(const KnownTime& row, const KnownTime& than) {
    return std::pair(row.sum.known(), row.sum.checks) > std::pair(than.sum.known(), than.sum.checks);
  }
  bool overlaps(Stretch time) const {
    const auto next = all_.lower_bound(time.from);
    return (next != all_.end() && next->first < time.until) ||
           (next != all_.begin() && std::prev(next)->second.time.until > time.from);
  }

  std::map<Moment, KnownTime> all_;
  std::map<Moment, KnownTime> fresh_;
};

void offerAll(Rows& rows, const std::vector<KnownTime>& others) {
  for (const KnownTime& row : others) {
    rows.offer(row);
  }
}

/// Takes in the days, or months, of another list, and sums up those that `parts` are new in and that were over at the
/// latest check. Days of another time zone are not the days here: the sums go before them.
void offerWholes(Rows& wholes, const std::vector<KnownTime>& others, const Rows& parts, Moment (*beginningOf)(Moment),
                 Moment (*endOf)(Moment), Moment latest) {
  for (const KnownTime& row : others) {
    if (beginningOf(row.time.from) == row.time.from) {
      wholes.offer(row);
    }
  }
  const Moment present = beginningOf(latest);
  Moment end = Moment::min();
  for (const KnownTime& part : parts.fresh()) {
    if (part.time.from < end || part.time.from >= present) {
      continue;
    }
    const Moment beginning = beginningOf(part.time.from);
    end = endOf(beginning);
    wholes.offer(parts.sumOf({beginning, end}));
  }
  offerAll(wholes, others);
}

Moment dayAfter(Moment day) { return dayFrom(day, 1); }

/// How long what is kept tells anything of the site.
Moment endOf(const KeptHistory& history, seconds interval) {
  if (history.latest) {
    return history.latest->until.value_or(history.latest->at + interval);
  }
  return history.hours.empty() ? Moment::min() : history.hours.back().time.until;
}

Moment lastCheckOf(const KeptHistory& history) {
  return history.latest ? history.latest->at : history.hours.empty() ? Moment{} : history.hours.back().time.from;
}

/// Outages that do not overlap, by their beginnings, and which of them are new or changed.
class Outages {
 public:
  explicit Outages(const std::vector<Outage>& own) {
    for (const Outage& outage : own) {
      all_.emplace(outage.began, outage);
    }
  }

  void put(const Outage& outage) {
    all_.insert_or_assign(outage.began, outage);
    fresh_.insert_or_assign(outage.began, outage);
  }
  void offer(const Outage& outage) {
    const auto next = all_.lower_bound(outage.began);
    const bool overlapsNext = next != all_.end() && (next->first == outage.began || next->first < endOf(outage));
    if (!overlapsNext && (next == all_.begin() || endOf(std::prev(next)->second) <= outage.began)) {
      put(outage);
    }
  }
  /// The one that is on, which is the last.
  const Outage* open() const { return all_.empty() || all_.rbegin()->second.ended ? nullptr : &all_.rbegin()->second; }
  bool has(Moment began) const { return all_.contains(began); }
  Moment lastEnd() const { return all_.empty() ? Moment::min() : endOf(all_.rbegin()->second); }

  std::vector<Outage> fresh() const {
    std::vector<Outage> outages;
    for (const auto& [began, outage] : fresh_) {
      outages.push_back(outage);
    }
    return outages;
  }

 private:
  // One that ended as soon as it began was on all the same.
  static Moment endOf(const Outage& outage) {
    return outage.ended ? std::max(*outage.ended, outage.began + seconds(1)) : Moment::max();
  }

  std::map<Moment, Outage> all_;
  std::map<Moment, Outage> fresh_;
};

std::vector<Outage> missingOutages(const KeptHistory& own, const KeptHistory& other, bool otherIsLater,
                                   seconds interval) {
  Outages outages(own.outages);
  const bool goesOn = otherIsLater && !other.latest->up;
  if (const Outage* const open = outages.open(); open != nullptr && otherIsLater) {
    const auto same = std::ranges::find(other.outages, open->began, &Outage::began);
    if (same != other.outages.end()) {
      outages.put(*same);
    } else if (!goesOn) {
      Outage ended = *open;
      ended.ended = std::max(ended.began, endOf(own, interval));
      outages.put(ended);
    }
  }
  for (Outage outage : other.outages) {
    if (outage.ended || !goesOn) {
      outage.ended = outage.ended.value_or(std::max(outage.began, endOf(other, interval)));
      outages.offer(outage);
    } else if (outages.open() == nullptr) {
      const bool wasUpSince = own.latest && own.latest->up && own.latest->at > outage.began;
      outage.began = std::max({outage.began, outages.lastEnd(), wasUpSince ? own.latest->at : outage.began});
      outages.put(outage);
    }
  }
  return outages.fresh();
}

}  // namespace

KeptHistory readHistory(Database& db, std::int64_t idSite) {
  KeptHistory history;
  if (!hasTable(db, "latestChecks")) {
    return history;
  }
  SiteHistory stored(db);
  history.latest = stored.latestCheck(idSite);
  for (KeptSum& hour : stored.keptHours(idSite, kAllTime)) {
    history.hours.push_back({{hour.began, hour.began + hours{1}}, std::move(hour.sum)});
  }
  history.days = rowsOf(
      db, "select day, seconds, checks, up, unknown, msSum, msMax, buckets from days where idSite = ?1 order by day",
      idSite);
  history.months = rowsOf(
      db,
      "select month, seconds, checks, up, unknown, msSum, msMax, buckets from months where idSite = ?1 order by month",
      idSite);
  history.outages = stored.outages(idSite, kAllTime);
  std::ranges::reverse(history.outages);
  return history;
}

void storeHistory(Database& db, std::int64_t idSite, const KeptHistory& history) {
  if (history.none() || !SiteHistory(db).canBeKept()) {
    return;
  }
  const auto store = [&](const char* sql, const auto& row) { db.conn().execute(sql, row)->close(); };
  for (const KnownTime& hour : history.hours) {
    store(history_rows::kStoreHour, history_rows::hourRow(idSite, hour.time.from, hour.sum));
  }
  for (const KnownTime& day : history.days) {
    store(history_rows::kStoreDay, history_rows::rowOfLength(idSite, day.time, day.sum));
  }
  for (const KnownTime& month : history.months) {
    store(history_rows::kStoreMonth, history_rows::rowOfLength(idSite, month.time, month.sum));
  }
  for (const Outage& outage : history.outages) {
    store("insert or replace into outages (idSite, began, ended, checks, cause) values (?1, ?2, ?3, ?4, ?5)",
          std::array{SqlValue(idSite), of(outage.began), outage.ended ? of(*outage.ended) : SqlValue(),
                     SqlValue(outage.checks), SqlValue(outage.cause)});
  }
  if (history.latest) {
    const LatestCheck& latest = *history.latest;
    store("insert or replace into latestChecks (idSite, at, up, until) values (?1, ?2, ?3, ?4)",
          std::array{SqlValue(idSite), of(latest.at), SqlValue(std::int64_t{latest.up ? 1 : 0}),
                     latest.until ? of(*latest.until) : SqlValue()});
  }
}

KeptHistory missingIn(const KeptHistory& own, const KeptHistory& other, seconds interval) {
  const bool otherIsLater = other.latest && (!own.latest || own.latest->at < other.latest->at);
  const Moment latest = std::max(lastCheckOf(own), lastCheckOf(other));
  Rows hours(own.hours);
  offerAll(hours, other.hours);
  Rows days(own.days);
  offerWholes(days, other.days, hours, &dayOf, &dayAfter, latest);
  Rows months(own.months);
  offerWholes(months, other.months, days, &monthOf, &monthAfter, latest);
  return {.latest = otherIsLater ? other.latest : std::nullopt,
          .hours = hours.fresh(),
          .days = days.fresh(),
          .months = months.fresh(),
          .outages = missingOutages(own, other, otherIsLater, interval)};
}

}  // namespace tarnwick
