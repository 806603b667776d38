// SPDX-License-Identifier: MIT
#include "engine/due_sites.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "platform/transfer_control.h"
#include "store/site_table.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

constexpr const char* kIsDue = " datediff('n',[lastChecked],now()) >= tInterval ";
constexpr const char* kIsActive = " active = true";
// Nor was one, as far as can be told, whose stamp cannot be read: it would never be due.
constexpr const char* kWasNeverChecked = " where datediff('s', lastChecked, '2000-01-01') is null and active <> 0";
constexpr const char* kById = " ORDER BY idSite";
/// About 5 ms of work.
constexpr std::size_t kSlice = 4096;

// A last check of another age, as a file from elsewhere or a wrong clock leaves behind, must not end the countdown: a
// site that is overdue beyond all counting is simply due.
std::int32_t withinCountdown(std::int64_t seconds) {
  constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(seconds, -kLongest, kLongest));
}

}  // namespace

TextTable DueSites::getArraySitesActiveTrue(std::int16_t mode, const std::function<void()>& between) {
  const auto where = [&](const std::string& condition) {
    return readSites(joinSql("SELECT ", kSiteFields, " from sites where ", condition, " ", kById), condition, between);
  };
  switch (mode) {
    case site_choice::due:
      return where(joinSql(kIsDue, " AND ", kIsActive));
    case site_choice::active:
      return where(kIsActive);
    case site_choice::all:
      return readSites(joinSql("SELECT ", kSiteFields, " from sites ", " ", kById), "true", between);
    default:
      throw std::invalid_argument("There is no choice of sites with the number " + std::to_string(mode) + ".");
  }
}

// The rows behind a slice are asked for anew, since meanwhile the file may have been closed or become another one.
TextTable DueSites::readSites(std::string sql, const std::string& condition, const std::function<void()>& between) {
  TextTable sites(site_column::last);
  while (addSites(sites, *db_.query(std::move(sql)), kSlice) == kSlice) {
    const std::string last = sites.at(site_column::idSite, sites.lastRow());
    between();
    sql = joinSql("SELECT ", kSiteFields, " from sites where idSite > ", last, " AND (", condition, ")", kById);
  }
  return sites;
}

TextTable DueSites::getSitesDueOrNeverChecked(const std::function<void()>& between) {
  const std::string condition = joinSql("([lastChecked] is null or ", kIsDue, ") AND ", kIsActive);
  TextTable sites =
      readSites(joinSql("SELECT ", kSiteFields, " from sites where ", condition, " ", kById), condition, between);
  const TextTable further = siteTableOf(*db_.conn().execute(
      joinSql("select ", kSiteFields, " from sites", kWasNeverChecked, " and lastChecked is not null", kById), {}));
  for (std::size_t row = 1; row <= further.lastRow(); ++row) {
    const std::size_t added = sites.addRow();
    for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
      sites.at(column, added) = further.at(column, row);
    }
  }
  return sites;
}

TextTable DueSites::asStored(std::int16_t idSite) {
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute(joinSql("select ", kSiteFields, " from sites where idSite = ?1"), {&id, 1});
  return siteTableOf(*rows);
}

SomeSites DueSites::countOf(const char* condition) {
  const auto rows = db_.conn().execute(joinSql("select count(*), min(idSite) from sites", condition), {});
  if (rows->eof()) {
    return {};
  }
  return {rows->field(std::size_t{0}).toInt64(), rows->field(std::size_t{1}).toInt64()};
}

SomeSites DueSites::activeSites() { return countOf(" where active <> 0"); }

DueSites::Figures DueSites::figures() {
  return {.active = activeSites().count,
          .inactive = countOf(" where not active <> 0").count,
          .up = countOf(" where active <> 0 and lastChecked is not null and status <> 0").count,
          .down = countOf(" where active <> 0 and lastChecked is not null and status = 0").count,
          .unchecked = neverChecked().count};
}

SomeSites DueSites::neverChecked() { return countOf(kWasNeverChecked); }

SomeSites DueSites::overdue(LocalTime since) {
  const std::string stamp = "'" + dateTimeText(since) + "'";
  const auto rows =
      db_.query(joinSql("select count(*) as [found], min(idSite) as [first] from sites where active = True ",
                        "and lastChecked is not null and tInterval > 0 and datediff('n', case when ", "lastChecked > ",
                        stamp, " then lastChecked else ", stamp, " end, now()) >= 2 * tInterval"));
  const SomeSites found =
      rows->eof() ? SomeSites{} : SomeSites{rows->field("found").toInt64(), rows->field("first").toInt64()};
  rows->close();
  return found;
}

std::vector<std::int64_t> DueSites::idsNeverChecked() {
  const auto rows = db_.conn().execute(joinSql("select idSite from sites", kWasNeverChecked, " order by idSite"), {});
  std::vector<std::int64_t> ids;
  for (; !rows->eof(); rows->moveNext()) {
    ids.push_back(rows->field(std::size_t{0}).toInt64());
  }
  return ids;
}

std::unordered_set<std::int64_t> DueSites::idsThatTookTooLong() {
  // The pattern stands in the text: SQLite would prepare a statement anew for each that is bound.
  const auto rows = db_.conn().execute(
      joinSql("select idSite from sites where status = 0 and content_runtime like '11:", kTookTooLong, "%'"), {});
  std::unordered_set<std::int64_t> ids;
  for (; !rows->eof(); rows->moveNext()) {
    ids.insert(rows->field(std::size_t{0}).toInt64());
  }
  return ids;
}

bool DueSites::wasChecked(std::int16_t idSite) {
  const TextTable site = asStored(idSite);
  return site.lastRow() > 0 && !site.isNull(site_column::lastChecked, 1);
}

MinWaitTime DueSites::getMinWaitTime() {
  const auto rows =
      db_.query(joinSql("SELECT TOP 1 idsite,url,tInterval*60 AS tlc, "
                        "(tinterval*60)-datediff('s',[lastChecked],now()) AS mlc ",
                        " From sites ", " Where ", " Active = True ", " ",
                        " ORDER BY (tinterval*60)-datediff('s',[lastChecked],now()) "));
  MinWaitTime soonest;
  if (!rows->eof()) {
    const std::string id = rows->field("idsite").toText();
    soonest.idsite = siteIdFromText(id);
    soonest.url = rows->field("url").toText();
    soonest.tlc = rows->field("tlc").toInt32("the check interval of site " + id + " in seconds");
    soonest.mlc = withinCountdown(rows->field("mlc").toInt64());
  }
  rows->close();
  return soonest;
}

std::vector<std::int16_t> DueSites::getSitesToTest() {
  return readIds(joinSql("SELECT idsite from sites ", " where ", kIsDue, " AND ", kIsActive, " ", kById));
}

std::vector<std::int16_t> DueSites::xgetSitesToTest() {
  return readIds(joinSql("SELECT idsite from sites where ", kIsDue, " AND ", kIsActive, " ", kById));
}

std::vector<std::int16_t> DueSites::readIds(std::string sql) {
  const auto rows = db_.query(std::move(sql));
  std::vector<std::int16_t> ids;
  for (; !rows->eof(); rows->moveNext()) {
    ids.push_back(siteIdFromText(rows->field("idsite").toText()));
  }
  rows->close();
  return ids;
}

}  // namespace tarnwick
