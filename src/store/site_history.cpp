// SPDX-License-Identifier: MIT
#include "store/site_history.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "store/history_rows.h"
#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {

using namespace std::chrono;
using history_rows::of;

namespace {

using Parameters = std::span<const SqlValue>;

/// What stands in table `latestChecks` for the log that was read.
constexpr std::int64_t kLogRead = 0;

std::optional<milliseconds> timeIn(const SqlValue& value) {
  return value.isNull() ? std::nullopt : std::optional(milliseconds(value.toInt64()));
}

SqlValue of(const std::optional<milliseconds>& time) {
  return time ? SqlValue(std::int64_t{time->count()}) : SqlValue();
}

std::optional<LatestCheck> latestIn(const Recordset& rows) {
  if (rows.eof() || rows.field(std::size_t{0}).isNull()) {
    return std::nullopt;
  }
  LatestCheck latest{history_rows::momentIn(rows.field(std::size_t{0})), rows.field(std::size_t{1}).toInt64() != 0};
  if (const SqlValue until = rows.field(std::size_t{2}); !until.isNull()) {
    latest.until = history_rows::momentIn(until);
  }
  return latest;
}

/// An hour has no more than an hour, also when the clock was set back and parts of it come once more.
void addShare(TimeSum& hour, const HourShare& share) {
  hour.up += std::min<seconds>(share.up, hours{1} - hour.known());
  hour.down += std::min<seconds>(share.down, hours{1} - hour.known());
}

}  // namespace

bool SiteHistory::hasTables() { return hasTable(db_, "latestChecks"); }

bool SiteHistory::canBeKept() {
  if (!hasTables()) {
    requireTodaysForm(db_.conn(), db_.dbPath());
  }
  return hasTables();
}

void SiteHistory::take(std::int16_t idSite, const Entry& entry) {
  const TakenCheck& check = entry.check;
  const Moment hour = hourOf(check.at);
  const std::array<SqlValue, 2> key{SqlValue(std::int64_t{idSite}), of(hour)};
  std::optional<LatestCheck> before;
  TimeSum present;
  {
    const auto rows = db_.conn().execute(
        "select at, l.up, until, checks, h.up, unknown, msSum, msMax, buckets from (select 1) left join latestChecks l "
        "on l.idSite = ?1 left join hours h on h.idSite = ?1 and h.hour = ?2",
        key);
    before = latestIn(*rows);
    present = history_rows::sumIn(*rows, 3, hours{1});
    rows->close();
  }
  std::vector<HourShare> shares;
  if (before) {
    std::vector<Stretch> planned;
    if (const auto known = knownAfter(*before, entry.interval, check.at); known && entry.planned) {
      planned = entry.planned(*known);
    }
    shares = sharesAfter(*before, entry.interval, planned, check.at);
  }
  const auto own = std::ranges::find(shares, hour, &HourShare::hour);
  if (own != shares.end()) {
    addShare(present, *own);
    shares.erase(own);
  }
  takeShares(idSite, shares);
  ++present.checks;
  if (check.took) {
    present.tookInAll += *check.took;
    present.slowest = std::max(present.slowest, *check.took);
    present.latency.add(*check.took);
  }
  db_.conn().execute(history_rows::kStoreHour, history_rows::hourRow(idSite, hour, present))->close();
  takeOutage(idSite, outageAfter(before, entry.interval, check), check.cause);
  const CheckTimings& timings = entry.timings;
  const std::array<SqlValue, 8> latest{key[0],
                                       of(check.at),
                                       SqlValue(std::int64_t{check.up ? 1 : 0}),
                                       of(timings.lookUp),
                                       of(timings.connect),
                                       of(timings.tls),
                                       of(timings.firstByte),
                                       of(timings.whole)};
  db_.conn()
      .execute(
          "insert or replace into latestChecks (idSite, at, up, until, lookUp, connect, tls, firstByte, whole) values "
          "(?1, ?2, ?3, null, ?4, ?5, ?6, ?7, ?8)",
          latest)
      ->close();
  if (before && before->at < hour) {
    sumUp(idSite, before->at, check.at);
  }
}

void SiteHistory::takeShares(std::int64_t idSite, std::span<const HourShare> shares) {
  for (const HourShare& share : shares) {
    const std::array<SqlValue, 2> key{SqlValue(idSite), of(share.hour)};
    const auto rows = db_.conn().execute(
        "select checks, up, unknown, msSum, msMax, buckets from hours where hour = ?2 and idSite = ?1", key);
    TimeSum hour = rows->eof() ? TimeSum{} : history_rows::sumIn(*rows, 0, hours{1});
    rows->close();
    addShare(hour, share);
    db_.conn().execute(history_rows::kStoreHour, history_rows::hourRow(idSite, share.hour, hour))->close();
  }
}

void SiteHistory::takeOutage(std::int64_t idSite, const OutageChange& change, const std::string& cause) {
  const SqlValue id(idSite);
  switch (change.kind) {
    case OutageChange::Kind::none:
      return;
    case OutageChange::Kind::begins: {
      const std::array<SqlValue, 3> row{id, of(change.at), SqlValue(cause)};
      db_.conn()
          .execute("insert or replace into outages (idSite, began, ended, checks, cause) values (?1, ?2, null, 1, ?3)",
                   row)
          ->close();
      return;
    }
    case OutageChange::Kind::goesOn:
      db_.conn()
          .execute("update outages set checks = checks + 1 where idSite = ?1 and ended is null", {&id, 1})
          ->close();
      return;
    case OutageChange::Kind::ends: {
      const std::array<SqlValue, 2> row{id, of(change.at)};
      db_.conn().execute("update outages set ended = max(began, ?2) where idSite = ?1 and ended is null", row)->close();
      return;
    }
  }
}

void SiteHistory::endKnowledge(Moment now) {
  if (hasTables()) {
    const SqlValue until = of(now);
    db_.conn().execute("update latestChecks set until = ?1 where until is null and idSite <> 0", {&until, 1})->close();
  }
}

std::optional<SiteHistory::HourPlace> SiteHistory::thin(const std::optional<HourPlace>& after, Moment before) {
  const HourPlace from = after.value_or(HourPlace{});
  const std::array<SqlValue, 3> begin{of(from.hour), SqlValue(from.idSite), of(before)};
  const auto rows = db_.conn().execute(
      "select hour, idSite from (select hour, idSite from hours where (hour, idSite) > (?1, ?2) and hour < ?3 order by "
      "hour, idSite limit 2000) order by hour desc, idSite desc limit 1",
      begin);
  if (rows->eof()) {
    return std::nullopt;
  }
  const HourPlace until{history_rows::momentIn(rows->field(std::size_t{0})), rows->field(std::size_t{1}).toInt64()};
  rows->close();
  const std::array<SqlValue, 4> part{begin[0], begin[1], of(until.hour), SqlValue(until.idSite)};
  // No day is longer than 25 hours.
  db_.conn()
      .execute(
          "delete from hours where (hour, idSite) > (?1, ?2) and (hour, idSite) <= (?3, ?4) and exists (select 1 from "
          "days d where d.idSite = hours.idSite and d.day > hours.hour - 90000 and d.day <= hours.hour and hours.hour "
          "< "
          "d.day + d.seconds)",
          part)
      ->close();
  return until;
}

// Each day that has ended between the two becomes the sum of its hours, and each month that of its days.
void SiteHistory::sumUp(std::int64_t idSite, Moment from, Moment now) {
  const auto store = [&](const char* sql, Stretch time, const std::vector<KeptSum>& parts) {
    TimeSum sum;
    for (const KeptSum& part : parts) {
      sum.add(part.sum);
    }
    if (!parts.empty()) {
      db_.conn().execute(sql, history_rows::rowOfLength(idSite, time, sum))->close();
    }
  };
  for (Moment day = dayOf(from); day < dayOf(now); day = dayFrom(day, 1)) {
    const Stretch time{day, dayFrom(day, 1)};
    store(history_rows::kStoreDay, time, keptHours(idSite, time));
  }
  for (Moment month = monthOf(from); month < monthOf(now); month = monthAfter(month)) {
    const Stretch time{month, monthAfter(month)};
    store(history_rows::kStoreMonth, time, keptDays(idSite, time));
  }
}

bool SiteHistory::hasTakenLog() {
  const SqlValue id(kLogRead);
  return !db_.conn().execute("select 1 from latestChecks where idSite = ?1", {&id, 1})->eof();
}

std::optional<LatestCheck> SiteHistory::latestCheck(std::int64_t idSite) {
  if (!hasTables()) {
    return std::nullopt;
  }
  const SqlValue id(idSite);
  const auto rows = db_.conn().execute("select at, up, until from latestChecks where idSite = ?1", {&id, 1});
  return latestIn(*rows);
}

std::map<std::int64_t, LatestCheck> SiteHistory::latestChecks(std::int64_t first, std::int64_t last) {
  std::map<std::int64_t, LatestCheck> checks;
  if (!hasTables()) {
    return checks;
  }
  const std::array<SqlValue, 3> key{SqlValue(kLogRead), SqlValue(first), SqlValue(last)};
  const auto rows = db_.conn().execute(
      "select at, up, until, idSite from latestChecks where idSite <> ?1 and idSite >= ?2 and idSite <= ?3", key);
  for (; !rows->eof(); rows->moveNext()) {
    if (const auto latest = latestIn(*rows)) {
      checks.emplace(rows->field(std::size_t{3}).toInt64(), *latest);
    }
  }
  return checks;
}

std::optional<CheckTimings> SiteHistory::timings(std::int64_t idSite) {
  if (!hasTables()) {
    return std::nullopt;
  }
  const SqlValue id(idSite);
  const auto rows =
      db_.conn().execute("select lookUp, connect, tls, firstByte, whole from latestChecks where idSite = ?1", {&id, 1});
  if (rows->eof()) {
    return std::nullopt;
  }
  std::size_t field = 0;
  CheckTimings timings;
  for (auto* time : {&timings.lookUp, &timings.connect, &timings.tls, &timings.firstByte, &timings.whole}) {
    *time = timeIn(rows->field(field++));
  }
  return timings;
}

// Hour by hour: the table is ordered by hours.
std::vector<KeptSum> SiteHistory::keptHours(std::int64_t idSite, Stretch time) {
  return std::move(keptHours(std::vector{idSite}, time)[idSite]);
}

// The hours lie in the order of time. Those of nearly all sites are read as they lie; for few of many each hour is
// looked up, and its sites in it.
std::map<std::int64_t, std::vector<KeptSum>> SiteHistory::keptHours(const std::vector<std::int64_t>& sites,
                                                                    Stretch time) {
  std::map<std::int64_t, std::vector<KeptSum>> found;
  if (!hasTables()) {
    return found;
  }
  std::string ids;
  for (const std::int64_t id : sites) {
    ids += (ids.empty() ? "[" : ",") + std::to_string(id);
    found[id];
  }
  const std::array<SqlValue, 3> key{SqlValue(ids + "]"), of(time.from), of(time.until)};
  static constexpr std::string_view kFields =
      "select h.idSite, h.hour, 3600, checks, up, unknown, msSum, msMax, buckets from ";
  const auto rows =
      sites.size() > 1 && areMostOfAll(sites.size())
          ? db_.conn().execute(
                std::string(kFields) + "hours h where ?1 is not null and hour >= ?2 and hour < ?3 order by hour", key)
          : db_.conn().execute(
                "with recursive slot (hour) as (select min(hour) from hours where hour >= ?2 union all select (select "
                "min(hour) from hours where hour > slot.hour) from slot where slot.hour < ?3) " +
                    std::string(kFields) +
                    "slot cross join hours h on h.hour = slot.hour and h.idSite in (select value from json_each(?1)) "
                    "where slot.hour < ?3",
                key);
  for (; !rows->eof(); rows->moveNext()) {
    if (const auto own = found.find(rows->field(std::size_t{0}).toInt64()); own != found.end()) {
      own->second.push_back(history_rows::sumFrom(*rows, 1));
    }
  }
  return found;
}

bool SiteHistory::areMostOfAll(std::size_t sites) {
  const SqlValue count(std::int64_t(2 * sites));
  return db_.conn().execute("select 1 from latestChecks limit 1 offset ?1", {&count, 1})->eof();
}

std::vector<KeptSum> SiteHistory::keptDays(std::int64_t idSite, Stretch time) {
  if (!hasTables()) {
    return {};
  }
  const std::array<SqlValue, 3> key{SqlValue(idSite), of(time.from), of(time.until)};
  const auto rows = db_.conn().execute(
      "select day, seconds, checks, up, unknown, msSum, msMax, buckets from days where idSite = ?1 and day >= ?2 and "
      "day < ?3 order by day",
      key);
  return history_rows::sumsIn(*rows);
}

std::vector<Outage> SiteHistory::outages(std::optional<std::int64_t> idSite, Stretch time) {
  std::vector<Outage> found;
  if (!hasTables()) {
    return found;
  }
  const std::array<SqlValue, 3> key{idSite ? SqlValue(*idSite) : SqlValue(), of(time.from), of(time.until)};
  const auto rows =
      db_.conn().execute(std::string("select idSite, began, ended, checks, cause from outages where ") +
                             (idSite ? "idSite = ?1" : "?1 is null") +
                             " and began < ?3 and (ended is null or ended >= ?2) order by began desc, idSite",
                         key);
  for (; !rows->eof(); rows->moveNext()) {
    const SqlValue ended = rows->field(std::size_t{2});
    found.push_back({rows->field(std::size_t{0}).toInt64(), history_rows::momentIn(rows->field(std::size_t{1})),
                     ended.isNull() ? std::nullopt : std::optional(history_rows::momentIn(ended)),
                     rows->field(std::size_t{3}).toInt64(), rows->field(std::size_t{4}).toText()});
  }
  return found;
}

void SiteHistory::removeHistory(std::int64_t idSite) {
  if (idSite == kLogRead || !hasTables()) {
    return;
  }
  const SqlValue id(idSite);
  db_.conn().execute(std::string("delete") + kHoursOfSite, {&id, 1})->close();
  for (const char* const table : {"days", "months", "outages", "latestChecks", "certificates"}) {
    db_.conn().execute(std::string("delete from ") + table + " where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
