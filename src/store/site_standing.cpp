// SPDX-License-Identifier: MIT
#include "store/site_standing.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

using Parameters = std::span<const SqlValue>;

constexpr const char* kColumns =
    "failures, downSince, firstError, told, toldAt, lastToldAt, outageSince, outageChecks, outageError, changes, "
    "unsteady, slow, toldSlow, unknownSince, owed";

constexpr std::array<std::string_view, 7> kKinds{"down", "stillDown",   "up",    "unsteady",
                                                 "slow", "certificate", "issuer"};
constexpr std::array<std::string_view, 3> kTold{"up", "down", "unsteady"};

SqlValue stored(const std::optional<LocalTime>& time) { return time ? SqlValue(dateTimeText(*time)) : SqlValue(); }
SqlValue stored(int number) { return SqlValue(std::int64_t{number}); }
SqlValue stored(bool flag) { return SqlValue(std::int64_t{flag ? 1 : 0}); }

template <typename Value, typename ToText>
SqlValue storedList(const std::vector<Value>& values, ToText toText) {
  std::string text;
  for (const Value& value : values) {
    text.append(text.empty() ? "" : ",").append(toText(value));
  }
  return SqlValue(std::move(text));
}

template <typename Take>
void eachOf(const std::string& list, Take take) {
  for (std::size_t begin = 0; begin < list.size();) {
    const std::size_t end = std::min(list.find(',', begin), list.size());
    take(std::string_view(list).substr(begin, end - begin));
    begin = end + 1;
  }
}

/// What another tool has written counts as far as it is understood.
SiteStanding standingIn(const Recordset& rows) {
  const auto text = [&](std::string_view name) { return rows.field(name).toText(); };
  const auto number = [&](std::string_view name) {
    return static_cast<int>(std::clamp<std::int64_t>(rows.field(name).toInt64(), 0, 1'000'000'000));
  };
  SiteStanding site;
  site.failures = number("failures");
  site.downSince = parseDateTime(text("downSince"));
  site.firstError = text("firstError");
  const auto told = std::ranges::find(kTold, text("told"));
  site.told = told == kTold.end() ? SiteStanding::Told::up : static_cast<SiteStanding::Told>(told - kTold.begin());
  site.toldAt = parseDateTime(text("toldAt"));
  site.lastToldAt = parseDateTime(text("lastToldAt"));
  site.outageSince = parseDateTime(text("outageSince"));
  site.outageChecks = number("outageChecks");
  site.outageError = text("outageError");
  eachOf(text("changes"), [&](std::string_view change) {
    if (const auto time = parseDateTime(change)) {
      site.changes.push_back(*time);
    }
  });
  site.unsteady = number("unsteady") != 0;
  site.slow = number("slow") != 0;
  site.toldSlow = number("toldSlow") != 0;
  site.unknownSince = parseDateTime(text("unknownSince"));
  eachOf(text("owed"), [&](std::string_view word) {
    if (const auto kind = std::ranges::find(kKinds, word); kind != kKinds.end()) {
      site.owed.push_back(static_cast<AlertKind>(kind - kKinds.begin()));
    }
  });
  return site;
}

bool hasTable(Database& database) { return hasTable(database, "siteState"); }

}  // namespace

bool SiteStandings::canBeKept() {
  if (!hasTable(db_)) {
    requireTodaysForm(db_.conn(), db_.dbPath());
  }
  return hasTable(db_);
}

SiteStanding SiteStandings::standingOf(std::int16_t idSite) {
  const SqlValue id(std::int64_t{idSite});
  const auto rows =
      db_.conn().execute(std::string("select ") + kColumns + " from siteState where idSite = ?1", {&id, 1});
  SiteStanding site = rows->eof() ? SiteStanding{} : standingIn(*rows);
  rows->close();
  return site;
}

std::map<std::int64_t, SiteStanding> SiteStandings::standings(std::int64_t first, std::int64_t last) {
  std::map<std::int64_t, SiteStanding> sites;
  if (!hasTable(db_)) {
    return sites;
  }
  const std::array<SqlValue, 2> ids{SqlValue(first), SqlValue(last)};
  const auto rows = db_.conn().execute(
      std::string("select idSite, ") + kColumns + " from siteState where idSite >= ?1 and idSite <= ?2", ids);
  for (; !rows->eof(); rows->moveNext()) {
    sites.emplace(rows->field(std::size_t{0}).toInt64(), standingIn(*rows));
  }
  rows->close();
  return sites;
}

void SiteStandings::storeStanding(std::int16_t idSite, const SiteStanding& site) {
  const std::array<SqlValue, 16> values{
      SqlValue(std::int64_t{idSite}),
      stored(site.failures),
      stored(site.downSince),
      SqlValue(site.firstError),
      SqlValue(std::string(kTold[static_cast<std::size_t>(site.told)])),
      stored(site.toldAt),
      stored(site.lastToldAt),
      stored(site.outageSince),
      stored(site.outageChecks),
      SqlValue(site.outageError),
      storedList(site.changes, &dateTimeText),
      stored(site.unsteady),
      stored(site.slow),
      stored(site.toldSlow),
      stored(site.unknownSince),
      storedList(site.owed, [](AlertKind kind) { return kKinds[static_cast<std::size_t>(kind)]; }),
  };
  db_.conn()
      .execute(std::string("insert or replace into siteState (idSite, ") + kColumns +
                   ") values (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16)",
               values)
      ->close();
}

void SiteStandings::setUnknown(const std::vector<std::int16_t>& sites, LocalTime since) {
  if (!hasTable(db_)) {
    return;
  }
  Transaction whole(db_);
  for (const std::int16_t id : sites) {
    const std::array<SqlValue, 2> row{SqlValue(std::int64_t{id}), SqlValue(dateTimeText(since))};
    db_.conn()
        .execute(
            "insert into siteState (idSite, unknownSince) values (?1, ?2) on conflict (idSite) do update set "
            "unknownSince = coalesce(unknownSince, excluded.unknownSince)",
            row)
        ->close();
  }
  whole.commit();
}

void SiteStandings::clearUnknown() {
  if (hasTable(db_)) {
    db_.conn()
        .execute("update siteState set unknownSince = null where unknownSince is not null", Parameters())
        ->close();
  }
}

void SiteStandings::removeStanding(std::int64_t idSite) {
  if (hasTable(db_)) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from siteState where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
