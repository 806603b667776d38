// SPDX-License-Identifier: MIT
#include "store/migrations.h"

#include <array>

#include "base/errors.h"
#include "store/dense_sites.h"

namespace tarnwick {
namespace {

/// Makes the next form; false where that has to wait.
using Step = bool (*)(SqlConnection& connection, const std::string& path);

bool addSiteOptions(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists siteOptions (idSite INTEGER NOT NULL, name TEXT NOT NULL, value TEXT NOT NULL, "
      "primary key (idSite, name)) without rowid",
      {});
  return true;
}

bool addSiteState(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists siteState (idSite INTEGER PRIMARY KEY, failures INTEGER, downSince TEXT, "
      "firstError TEXT, told TEXT, toldAt TEXT, lastToldAt TEXT, outageSince TEXT, outageChecks INTEGER, "
      "outageError TEXT, changes TEXT, unsteady INTEGER, slow INTEGER, toldSlow INTEGER, unknownSince TEXT, owed TEXT)",
      {});
  return true;
}

bool addRules(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists rules (idSite INTEGER NOT NULL, ord INTEGER NOT NULL, kind TEXT NOT NULL, rule TEXT "
      "NOT NULL, primary key (idSite, ord)) without rowid",
      {});
  return true;
}

bool addChannels(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists channels (idChannel INTEGER NOT NULL, name TEXT NOT NULL, value TEXT NOT NULL, "
      "primary key (idChannel, name)) without rowid",
      {});
  connection.execute(
      "create table if not exists outbox (idAlert INTEGER PRIMARY KEY, idChannel INTEGER NOT NULL, idSite INTEGER NOT "
      "NULL, pass TEXT NOT NULL, made TEXT NOT NULL, event TEXT NOT NULL, url TEXT NOT NULL, cause TEXT NOT NULL, "
      "downSince TEXT NOT NULL, downFor TEXT NOT NULL, checks TEXT NOT NULL, firstError TEXT NOT NULL, difference TEXT "
      "NOT NULL, page BLOB, state TEXT NOT NULL, tries INTEGER NOT NULL, nextTry TEXT NOT NULL, lastTry TEXT NOT NULL, "
      "deadline TEXT NOT NULL, answer TEXT NOT NULL)",
      {});
  connection.execute("create index if not exists outboxByState on outbox (state, idChannel, idAlert)", {});
  return true;
}

bool addSettling(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists baselines (idBaseline INTEGER PRIMARY KEY, idSite INTEGER NOT NULL, taken TEXT NOT "
      "NULL, origin TEXT NOT NULL, content TEXT NOT NULL)",
      {});
  connection.execute("create index if not exists baselinesOfSite on baselines (idSite, origin, idBaseline)", {});
  connection.execute(
      "create table if not exists siteTags (idSite INTEGER NOT NULL, tag TEXT NOT NULL, primary key (idSite, tag)) "
      "without rowid",
      {});
  connection.execute(
      "create table if not exists acknowledged (idSite INTEGER PRIMARY KEY, page TEXT NOT NULL, since TEXT NOT NULL)",
      {});
  return true;
}

bool addHistory(SqlConnection& connection, const std::string&) {
  connection.execute(
      "create table if not exists hours (idSite INTEGER NOT NULL, hour INTEGER NOT NULL, checks INTEGER NOT NULL, up "
      "INTEGER NOT NULL, unknown INTEGER NOT NULL, msSum INTEGER NOT NULL, msMax INTEGER NOT NULL, buckets BLOB NOT "
      "NULL, primary key (hour, idSite)) without rowid",
      {});
  connection.execute(
      "create table if not exists days (idSite INTEGER NOT NULL, day INTEGER NOT NULL, seconds INTEGER NOT NULL, "
      "checks INTEGER NOT NULL, up INTEGER NOT NULL, unknown INTEGER NOT NULL, msSum INTEGER NOT NULL, msMax INTEGER "
      "NOT NULL, buckets BLOB NOT NULL, primary key (idSite, day)) without rowid",
      {});
  connection.execute(
      "create table if not exists months (idSite INTEGER NOT NULL, month INTEGER NOT NULL, seconds INTEGER NOT NULL, "
      "checks INTEGER NOT NULL, up INTEGER NOT NULL, unknown INTEGER NOT NULL, msSum INTEGER NOT NULL, msMax INTEGER "
      "NOT NULL, buckets BLOB NOT NULL, primary key (idSite, month)) without rowid",
      {});
  connection.execute(
      "create table if not exists outages (idSite INTEGER NOT NULL, began INTEGER NOT NULL, ended INTEGER, checks "
      "INTEGER NOT NULL, cause TEXT NOT NULL, primary key (idSite, began)) without rowid",
      {});
  connection.execute(
      "create table if not exists latestChecks (idSite INTEGER PRIMARY KEY, at INTEGER NOT NULL, up INTEGER NOT NULL, "
      "until INTEGER, lookUp INTEGER, connect INTEGER, tls INTEGER, firstByte INTEGER, whole INTEGER)",
      {});
  connection.execute(
      "create table if not exists certificates (idSite INTEGER PRIMARY KEY, began INTEGER NOT NULL, ends INTEGER NOT "
      "NULL, issuer TEXT NOT NULL, told INTEGER)",
      {});
  return true;
}

bool addMonthReports(SqlConnection& connection, const std::string&) {
  connection.execute("create table if not exists monthReports (month TEXT NOT NULL PRIMARY KEY) without rowid", {});
  return true;
}

/// What leads from each form to the next; the first makes form 1 of form 0. A step that has been in a release never
/// changes: lists that have gone through it are in people's hands.
constexpr std::array<Step, kFormOfTables> kSteps = {&addSiteOptions, &makeSitesDense, &addSiteState, &addRules,
                                                    &addChannels,    &addSettling,    &addHistory,   &addMonthReports};

void refuseNewer(std::int64_t form, const std::string& path) {
  if (form > kFormOfTables) {
    throw DataAccessError("The database " + path + " was written by a newer Tarnwick: its tables have form " +
                              std::to_string(form) + ", and this program knows forms up to " +
                              std::to_string(kFormOfTables) +
                              ". Use the newer program, or put back a copy from before, for instance backup.mdb.",
                          "");
  }
}

/// REQUIRES: a transaction, in which nobody else can do the same.
void takeSteps(SqlConnection& connection, const std::string& path) {
  std::int64_t form = connection.formOfTables();
  refuseNewer(form, path);
  while (form >= 0 && form < kFormOfTables && kSteps[static_cast<std::size_t>(form)](connection, path)) {
    connection.setFormOfTables(++form);
  }
}

}  // namespace

void bringUpToDate(SqlConnection& connection, const std::string& path) {
  refuseNewer(connection.formOfTables(), path);
  try {
    requireTodaysForm(connection, path);
  } catch (const DataAccessError&) {
    // Whoever wants to store something in a newer table is told why that cannot be; reading goes on.
    refuseNewer(connection.formOfTables(), path);
  }
}

void requireTodaysForm(SqlConnection& connection, const std::string& path) {
  if (connection.formOfTables() == kFormOfTables) {
    return;
  }
  if (connection.inTransaction()) {
    takeSteps(connection, path);
    return;
  }
  connection.begin();
  try {
    takeSteps(connection, path);
    connection.commit();
  } catch (...) {
    connection.rollback();
    throw;
  }
}

}  // namespace tarnwick
