// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_hold.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/sqlite/sqlite_connection.h"
#include "platform/sqlite/sqlite_errors.h"
#include "platform/sqlite/sqlite_file.h"
#include "platform/sqlite/sqlite_file_watch.h"
#include "platform/sqlite/sqlite_log.h"
#include "platform/sqlite/sqlite_pages.h"

namespace tarnwick {
namespace {

constexpr const char* kLeaveLog = "pragma journal_mode = delete";

/// Makes an empty file that may be read by those who may read the file `like`.
void makeEmpty(const std::string& path, const std::string& like) {
  LocalFiles files;
  if (files.exists(path)) {
    throw DataAccessError("The file " + path + " is there already and would be overwritten. Remove it.", "");
  }
  try {
    files.write(path, like, [](const ByteSink&) {});
  } catch (const FileError&) {
    throw DataAccessError("The file " + path + " cannot be written. Allow writing to its folder.", "");
  }
}

}  // namespace

// Who only looks something up is gone in a moment. The file is let go in between: two that wait with it open would wait
// for each other.
SqliteHold::SqliteHold(std::string path) : path_(std::move(path)) {
  constexpr int kPauseMs = 20;
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(kBusyPatienceMs);
  while (!lock()) {
    if (std::chrono::steady_clock::now() >= end) {
      throw inStatement(sqliteError(SQLITE_BUSY, sqlite3_errstr(SQLITE_BUSY), path_), kLeaveLog);
    }
    sqlite3_sleep(kPauseMs);
  }
}

bool SqliteHold::lock() {
  try {
    openInPlace(path_, [this](const auto& before) {
      handle_.reset();
      handle_ = openDatabase(path_, SQLITE_OPEN_READWRITE);
      haveAloneIfNeeded(handle_.get(), path_);
      lockInPlace(handle_.get(), path_, before);
      setForeignLogAside(handle_.get(), path_);
      leaveLogAndLock(handle_.get());
    });
    if (run(handle_.get(), "pragma journal_mode") == "delete") {
      return true;
    }
  } catch (const DataAccessError&) {
    if (!handle_ || (sqlite3_errcode(handle_.get()) & 0xff) != SQLITE_BUSY) {
      throw;
    }
  }
  handle_.reset();
  return false;
}

void SqliteHold::leaveLogAndLock(sqlite3* database) const {
  // Leaving the write-ahead log works only for a connection that is alone, and takes all of it into the file. Whoever
  // comes before the lock is taken begins a log again.
  run(database, kLeaveLog);
  // Once taken, the lock stays until the connection is closed, whatever is done meanwhile.
  run(database, "pragma main.locking_mode = exclusive");
  run(database, "begin exclusive");
  run(database, "commit");
}

std::string SqliteHold::run(sqlite3* database, const std::string& sql) const {
  sqlite3_stmt* raw = nullptr;
  if (sqlite3_prepare_v2(database, sql.c_str(), -1, &raw, nullptr) != SQLITE_OK) {
    fail(database, sql);
  }
  const SqliteStatement statement(raw);
  std::string field;
  int result = sqlite3_step(raw);
  for (; result == SQLITE_ROW; result = sqlite3_step(raw)) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, 0));
    field = text == nullptr ? "" : text;
  }
  if (result != SQLITE_DONE) {
    fail(database, sql);
  }
  return field;
}

void SqliteHold::compactInto(const std::string& destination) {
  const std::string path = dataSource(destination);
  makeEmpty(path, path_);
  removeUnusedPages();
  vacuumInto(path);
  check(path);
}

// Another tool that replaces a site's row leaves its pages behind, a program that was killed those that it had begun.
void SqliteHold::removeUnusedPages() {
  if (run(handle_.get(), "select 1 from sqlite_schema where type = 'table' and name = 'pagePieces'").empty()) {
    return;
  }
  run(handle_.get(), kRemoveUnusedPages);
}

void SqliteHold::vacuumInto(const std::string& path) {
  static constexpr const char* kVacuum = "vacuum main into ?1";
  sqlite3_stmt* raw = nullptr;
  if (sqlite3_prepare_v2(handle_.get(), kVacuum, -1, &raw, nullptr) != SQLITE_OK) {
    fail(handle_.get(), kVacuum);
  }
  const SqliteStatement statement(raw);
  const std::string file = sqliteFileName(path);
  sqlite3_bind_text64(raw, 1, file.data(), file.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (sqlite3_step(raw) != SQLITE_DONE) {
    fail(handle_.get(), kVacuum);
  }
}

void SqliteHold::check(const std::string& path) const {
  const SqliteHandle made = openDatabase(path, SQLITE_OPEN_READONLY);
  const std::string finding = run(made.get(), "pragma quick_check(1)");
  if (finding != "ok") {
    throw damagedDatabase(path, finding);
  }
}

void SqliteHold::fail(sqlite3* database, std::string_view sql) const {
  throw inStatement(lastSqliteError(database, path_), sql);
}

}  // namespace tarnwick
