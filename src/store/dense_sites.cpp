// SPDX-License-Identifier: MIT
#include "store/dense_sites.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/errors.h"
#include "platform/file_system.h"

namespace tarnwick {
namespace {

/// As `assets/schema.sql` lays a fresh list, with what is in the old table between the tables and the view.
constexpr std::array<std::string_view, 12> kStatements = {
    R"sql(CREATE TABLE siteRows (
  idSite INTEGER PRIMARY KEY,
  url TEXT,
  method TEXT,
  active YESNO,
  tInterval INTEGER CONSTRAINT "tInterval takes a whole number" CHECK (typeof(tInterval) IN ('integer', 'null')),
  lastChecked DATETIME TEXT,
  alertEmail YESNO,
  email TEXT,
  sUserName TEXT,
  sPassWord TEXT,
  status YESNO,
  success INTEGER CONSTRAINT "success takes a whole number" CHECK (typeof(success) IN ('integer', 'null')),
  failure INTEGER CONSTRAINT "failure takes a whole number" CHECK (typeof(failure) IN ('integer', 'null')),
  comparePage INTEGER,
  runtimePage INTEGER
))sql",
    R"sql(CREATE TABLE pagePieces (piece INTEGER PRIMARY KEY, content TEXT))sql",
    R"sql(INSERT INTO pagePieces SELECT (2 * (idSite - (SELECT min(idSite) FROM sites)) + 1) * 4, CAST(content_compare AS TEXT)
  FROM sites WHERE CAST(content_compare AS TEXT) <> '' ORDER BY idSite)sql",
    R"sql(INSERT INTO pagePieces SELECT (2 * (idSite - (SELECT min(idSite) FROM sites)) + 2) * 4, CAST(content_runtime AS TEXT)
  FROM sites WHERE CAST(content_runtime AS TEXT) <> '' AND content_runtime IS NOT content_compare ORDER BY idSite)sql",
    R"sql(INSERT INTO siteRows SELECT
  idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success,
  failure,
  CASE WHEN CAST(content_compare AS TEXT) = '' THEN 0
    WHEN content_compare IS NOT NULL THEN 2 * (idSite - (SELECT min(idSite) FROM sites)) + 1 END,
  CASE WHEN CAST(content_runtime AS TEXT) = '' THEN 0
    WHEN content_runtime IS NOT NULL
      THEN 2 * (idSite - (SELECT min(idSite) FROM sites)) + 1 + (content_runtime IS NOT content_compare) END
FROM sites ORDER BY idSite)sql",
    R"sql(DROP TABLE sites)sql",
    R"sql(CREATE TRIGGER siteRows_page AFTER UPDATE OF comparePage, runtimePage ON siteRows BEGIN
  DELETE FROM pagePieces WHERE piece >= old.comparePage * 4 AND piece < old.comparePage * 4 + 4
    AND old.comparePage IS NOT new.comparePage AND old.comparePage IS NOT new.runtimePage;
  DELETE FROM pagePieces WHERE piece >= old.runtimePage * 4 AND piece < old.runtimePage * 4 + 4
    AND old.runtimePage IS NOT new.comparePage AND old.runtimePage IS NOT new.runtimePage;
END)sql",
    R"sql(CREATE TRIGGER siteRows_gone AFTER DELETE ON siteRows BEGIN
  DELETE FROM pagePieces WHERE piece >= old.comparePage * 4 AND piece < old.comparePage * 4 + 4;
  DELETE FROM pagePieces WHERE piece >= old.runtimePage * 4 AND piece < old.runtimePage * 4 + 4;
END)sql",
    R"sql(CREATE VIEW sites AS SELECT
  idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success,
  failure,
  CASE comparePage WHEN 0 THEN '' ELSE (SELECT content FROM pagePieces WHERE piece = comparePage * 4) ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 1), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 2), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 3), '') END AS content_compare,
  CASE runtimePage WHEN 0 THEN '' ELSE (SELECT content FROM pagePieces WHERE piece = runtimePage * 4) ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 1), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 2), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 3), '') END AS content_runtime
FROM siteRows)sql",
    R"sql(CREATE TRIGGER sites_insert INSTEAD OF INSERT ON sites BEGIN
  INSERT INTO siteRows (
    idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success,
    failure, comparePage, runtimePage
  ) VALUES (
    new.idSite, new.url, new.method, new.active, new.tInterval, new.lastChecked, new.alertEmail, new.email,
    new.sUserName, new.sPassWord, new.status, new.success, new.failure, -1, -1
  );
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_compare
    WHERE CAST(new.content_compare AS TEXT) <> '' AND EXISTS (
      SELECT 1 FROM siteRows WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND comparePage = -1);
  UPDATE siteRows
    SET comparePage = CASE WHEN CAST(new.content_compare AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_compare IS NOT NULL THEN 0 END
    WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND comparePage = -1;
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_runtime
    WHERE CAST(new.content_runtime AS TEXT) <> '' AND EXISTS (
      SELECT 1 FROM siteRows WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND runtimePage = -1);
  UPDATE siteRows
    SET runtimePage = CASE WHEN CAST(new.content_runtime AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_runtime IS NOT NULL THEN 0 END
    WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND runtimePage = -1;
END)sql",
    R"sql(CREATE TRIGGER sites_update INSTEAD OF UPDATE ON sites BEGIN
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_compare
    WHERE CAST(new.content_compare AS TEXT) <> '' AND new.content_compare IS NOT old.content_compare;
  UPDATE siteRows
    SET comparePage = CASE WHEN CAST(new.content_compare AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_compare IS NOT NULL THEN 0 END
    WHERE idSite = old.idSite AND new.content_compare IS NOT old.content_compare;
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_runtime
    WHERE CAST(new.content_runtime AS TEXT) <> '' AND new.content_runtime IS NOT old.content_runtime;
  UPDATE siteRows
    SET runtimePage = CASE WHEN CAST(new.content_runtime AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_runtime IS NOT NULL THEN 0 END
    WHERE idSite = old.idSite AND new.content_runtime IS NOT old.content_runtime;
  UPDATE siteRows SET
    idSite = new.idSite, url = new.url, method = new.method, active = new.active, tInterval = new.tInterval,
    lastChecked = new.lastChecked, alertEmail = new.alertEmail, email = new.email, sUserName = new.sUserName,
    sPassWord = new.sPassWord, status = new.status, success = new.success, failure = new.failure
    WHERE idSite = old.idSite;
END)sql",
    R"sql(CREATE TRIGGER sites_delete INSTEAD OF DELETE ON sites BEGIN
  DELETE FROM siteRows WHERE idSite = old.idSite;
END)sql",
};

std::int64_t numberOf(SqlConnection& connection, std::string_view sql) {
  return connection.execute(sql, {})->field(std::size_t{0}).toInt64();
}

/// Whether `sites` is a table like the program's own, with nothing on it that would be lost with it. One that another
/// tool has extended stays as it is.
bool isOrdinary(SqlConnection& connection) {
  constexpr std::string_view kOddities =
      "select (select count(*) <> 15 or sum(lower(name) in ('idsite', 'url', 'method', 'active', 'tinterval', "
      "'lastchecked', 'alertemail', 'email', 'susername', 'spassword', 'status', 'success', 'failure', "
      "'content_compare', 'content_runtime')) <> 15 or sum(lower(name) = 'idsite' and pk = 1 and "
      "lower(type) = 'integer') <> 1 or sum(hidden <> 0 or \"notnull\" <> 0 or dflt_value is not null) <> 0 "
      "from pragma_table_xinfo('sites')) "
      "+ (select count(*) from sqlite_master where lower(tbl_name) = 'sites' and lower(name) <> 'sites_list' and "
      "(lower(name) <> 'sites' or type <> 'table')) "
      "+ (select count(*) from sqlite_master where lower(name) = 'sites' and (lower(sql) like '%without%rowid%' or "
      "lower(sql) like '%collate%' or lower(sql) like '%autoincrement%' or "
      "replace(replace(lower(sql), 'lastchecked', ''), 'check (typeof(', '') like '%check%(%')) "
      "+ (select count(*) from sqlite_master where lower(name) = 'sites_list' and "
      "(lower(tbl_name) <> 'sites' or replace(replace(lower(sql), ' ', ''), char(10), '') not like "
      "'createindexsites_listonsites(idsite,url,method,active,tinterval,lastchecked,alertemail,email,susername,"
      "spassword,status,success,failure)')) "
      "+ (select count(*) from sqlite_master where lower(sql) like '%references%sites%') "
      "+ (select count(*) from sqlite_master where lower(name) in ('siterows', 'pagepieces'))";
  // Numbers of pages are made of those of the sites.
  constexpr std::string_view kFarIds =
      "select count(*) from sites where idSite < -1099511627776 or idSite > 1099511627776";
  return numberOf(connection, kOddities) == 0 && numberOf(connection, kFarIds) == 0;
}

/// The pages are in the file twice until the whole is committed, and in the log beside it; and something is to be left.
bool hasRoom(SqlConnection& connection, const std::string& path) {
  std::error_code unknown;
  const auto space = std::filesystem::space(pathOf(path).parent_path(), unknown);
  const auto size = static_cast<std::uintmax_t>(std::max<std::int64_t>(
      numberOf(connection, "select page_count * page_size from pragma_page_count, pragma_page_size"), 0));
  return unknown || space.available / 4 > size;
}

}  // namespace

bool makeSitesDense(SqlConnection& connection, const std::string& path) {
  if (!isOrdinary(connection)) {
    return true;
  }
  if (!hasRoom(connection, path)) {
    return false;
  }
  connection.execute("savepoint dense", {});
  try {
    connection.execute("drop index if exists sites_list", {});
    for (const std::string_view statement : kStatements) {
      connection.execute(statement, {});
    }
  } catch (const DataAccessError& error) {
    if (error.kind() != DataAccessError::Kind::other || !connection.inTransaction()) {
      throw;
    }
    // A value that the tables of today do not take; the list is as good with it where it is.
    connection.execute("rollback to dense", {});
  }
  connection.execute("release dense", {});
  return true;
}

}  // namespace tarnwick
