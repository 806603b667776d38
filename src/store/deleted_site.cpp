// SPDX-License-Identifier: MIT
#include "store/deleted_site.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "base/errors.h"
#include "store/migrations.h"
#include "store/site_history.h"
#include "store/site_records.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

/// What a site has rows in. The log stays where it is, and so does what other tools keep.
constexpr std::array<std::string_view, 14> kTables{"postVars",  "siteOptions", "siteState",    "rules",       "outbox",
                                                   "baselines", "siteTags",    "acknowledged", "hours",       "days",
                                                   "months",    "outages",     "latestChecks", "certificates"};

DeletedSite::Rows rowsIn(Database& database, std::string_view table, std::int64_t idSite) {
  DeletedSite::Rows taken{std::string(table), {}, {}};
  const SqlValue id(idSite);
  const std::string sql =
      table == "hours" ? std::string("select *") + kHoursOfSite : "select * from " + taken.table + " where idSite = ?1";
  const auto rows = database.conn().execute(sql, {&id, 1});
  for (std::size_t i = 0; i < rows->fieldCount(); ++i) {
    taken.columns.push_back(rows->fieldName(i));
  }
  for (; !rows->eof(); rows->moveNext()) {
    std::vector<SqlValue>& row = taken.rows.emplace_back();
    for (std::size_t i = 0; i < taken.columns.size(); ++i) {
      row.push_back(rows->field(i));
    }
  }
  rows->close();
  return taken;
}

/// The column by which a table counts its rows, which may have been given to others since; none where it has no such.
std::string counterOf(std::string_view table) {
  return table == "postVars" ? "idPostVars" : table == "baselines" ? "idBaseline" : table == "outbox" ? "idAlert" : "";
}

/// Leaves the numbers out where one is in use: all of them, so that their order stays.
void renumberIfInUse(Database& database, DeletedSite::Rows& rows) {
  const auto counter = std::ranges::find(rows.columns, counterOf(rows.table));
  if (counter == rows.columns.end()) {
    return;
  }
  const auto column = static_cast<std::size_t>(counter - rows.columns.begin());
  const std::string sql = "select 1 from " + rows.table + " where " + *counter + " = ?1";
  const bool isInUse = std::ranges::any_of(rows.rows, [&](const std::vector<SqlValue>& row) {
    return !database.conn().execute(sql, {&row[column], 1})->eof();
  });
  for (std::vector<SqlValue>& row : rows.rows) {
    row[column] = isInUse ? SqlValue() : row[column];
  }
}

void insert(Database& database, DeletedSite::Rows rows) {
  renumberIfInUse(database, rows);
  std::string names;
  std::string values;
  for (std::size_t i = 0; i < rows.columns.size(); ++i) {
    names += (i == 0 ? "" : ", ") + rows.columns[i];
    values += (i == 0 ? "?" : ", ?") + std::to_string(i + 1);
  }
  const std::string sql = "insert into " + rows.table + " (" + names + ") values (" + values + ")";
  for (const std::vector<SqlValue>& row : rows.rows) {
    database.conn().execute(sql, row)->close();
  }
}

}  // namespace

std::size_t sizeOf(const DeletedSite& site) {
  std::size_t size = 0;
  for (const DeletedSite::Rows& table : site.tables) {
    for (const std::vector<SqlValue>& row : table.rows) {
      for (const SqlValue& value : row) {
        const auto* const text = std::get_if<std::string>(&value.held());
        size += sizeof(SqlValue) + (text == nullptr ? 0 : text->size());
      }
    }
  }
  return size;
}

DeletedSite takeSiteOut(Database& database, std::int64_t idSite) {
  DeletedSite site{idSite, {}, {}};
  Transaction whole(database);
  DeletedSite::Rows itself = rowsIn(database, "sites", idSite);
  if (itself.rows.empty()) {
    return site;
  }
  const SqlValue id(idSite);
  site.url = database.conn().execute("select url from sites where idSite = ?1", {&id, 1})->field("url").toText();
  site.tables.push_back(std::move(itself));
  for (const std::string_view table : kTables) {
    if (hasTable(database, table)) {
      site.tables.push_back(rowsIn(database, table, idSite));
    }
  }
  SiteRecords(database).deleteSiteOfAnyId(idSite);
  whole.commit();
  return site;
}

void putSiteBack(Database& database, const DeletedSite& site) {
  requireTodaysForm(database.conn(), database.dbPath());
  Transaction whole(database);
  SiteRecords records(database);
  if (records.anyIdExists(site.idSite)) {
    throw DataAccessError("Site " + std::to_string(site.idSite) +
                              " cannot be put back, since another site has its id meanwhile. Delete that one first, or "
                              "add the address anew.",
                          "");
  }
  for (const DeletedSite::Rows& rows : site.tables) {
    insert(database, rows);
  }
  whole.commit();
}

}  // namespace tarnwick
