// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_errors.h"

#include <sqlite3.h>

#include <algorithm>
#include <optional>

#include "platform/sqlite/shown_statement.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kShownValueLength = 40;
constexpr int kPrimaryCodeMask = 0xff;
constexpr std::string_view kNothingStored = ". Nothing was stored.";

/// A slip of the fingers is short and plain; anything else may be what was meant for another place.
bool isFitToShow(std::string_view value) {
  return value.size() <= kShownValueLength && std::ranges::all_of(value, [](char c) { return c >= ' ' && c <= '~'; });
}

/// A failed check names its rule, which the schema words as a sentence about a column: "timeout takes a whole number".
std::string brokenRule(const std::string& message) {
  static constexpr std::string_view kPrefix = "CHECK constraint failed: ";
  return message.substr(message.starts_with(kPrefix) ? kPrefix.size() : 0).append(kNothingStored);
}

std::string constraintCause(int code, const std::string& message) {
  switch (code) {
    case SQLITE_CONSTRAINT_CHECK:
      return brokenRule(message);
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
    case SQLITE_CONSTRAINT_UNIQUE:
      return "A record with this key is there already; nothing was stored. (" + message + ")";
    default:
      return "The database does not allow this value; nothing was stored. (" + message + ")";
  }
}

std::string cause(int code, const std::string& message, const std::string& path) {
  const std::string detail = " (" + message + ")";
  switch (code & kPrimaryCodeMask) {
    case SQLITE_BUSY:
      return "The database " + path +
             " is in use by another program, which has locked it. Close that program, or wait " +
             "until it is done, and try again." + detail;
    case SQLITE_PROTOCOL:
      return "The database " + path +
             " could not be locked. Try again; if it lies on a network disk, move it to one of this machine." + detail;
    case SQLITE_LOCKED:
      return "A table of the database is still being read; the change cannot be made now. Try again." + detail;
    case SQLITE_READONLY:
      for (const std::string& companion : {path + "-shm", path + "-wal"}) {
        if (!mayWrite(companion)) {
          return std::string("The database ")
              .append(path)
              .append(" cannot be changed: the file ")
              .append(companion)
              .append(", which belongs to it, is read-only. Allow writing to it.")
              .append(detail);
        }
      }
      return "The database " + path +
             " cannot be changed: the file or its folder is read-only. Allow writing to both." + detail;
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:
      return "The database " + path + " cannot be opened. Allow reading and writing the file and its folder." + detail;
    case SQLITE_FULL:
      return "The disk is full: the database " + path + " could not store this. Free some space and try again." +
             detail;
    case SQLITE_IOERR:
      if (code == SQLITE_IOERR_SHMSIZE) {
        return "The disk is full: even reading the database " + path +
               " needs room for a small file beside it. Free some space and try again." + detail;
      }
      return "Reading or writing the database " + path + " failed. Check the disk it lies on, and its free space." +
             detail;
    case SQLITE_TOOBIG:
      return "The text is too large for the database; nothing was stored." + detail;
    case SQLITE_NOMEM:
      return kNotEnoughMemory + detail;
    case SQLITE_MISMATCH:
      return "The record's number must be a whole number; nothing was stored." + detail;
    case SQLITE_CONSTRAINT:
      return constraintCause(code, message);
    default:
      return "The database refused the statement: " + message;
  }
}

}  // namespace

DataAccessError damagedDatabase(const std::string& path, const std::string& message) {
  return {"The file " + path + " is damaged or is no database. Put back a good copy, for instance backup.mdb. (" +
              message + ")",
          "", DataAccessError::Kind::damaged};
}

DataAccessError lastSqliteError(sqlite3* database, const std::string& path) {
  const int told = sqlite3_extended_errcode(database);
  const int code = causeBehind(told, database);
  std::string message = code == told ? sqlite3_errmsg(database) : sqlite3_errstr(code);
  // By the name that everybody knows them by.
  static constexpr std::string_view kBehindSites = ": siteRows.";
  if (const std::size_t table = message.find(kBehindSites); table != std::string::npos) {
    message.replace(table, kBehindSites.size(), ": sites.");
  }
  return sqliteError(code, message, path);
}

namespace {

DataAccessError::Kind kindOf(int code) {
  using enum DataAccessError::Kind;
  if (code == SQLITE_IOERR_SHMSIZE) {
    return noRoom;
  }
  switch (code & kPrimaryCodeMask) {
    case SQLITE_FULL:
      return noRoom;
    case SQLITE_NOMEM:
      return noMemory;
    case SQLITE_BUSY:
      return inUse;
    default:
      return other;
  }
}

}  // namespace

DataAccessError sqliteError(int code, const std::string& message, const std::string& path) {
  const int primary = code & kPrimaryCodeMask;
  if (primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB) {
    return damagedDatabase(path, message);
  }
  return {cause(code, message, path), "", kindOf(code)};
}

DataAccessError inStatement(const DataAccessError& error, std::string_view sql) {
  std::string cause = error.cause();
  if (cause.ends_with(kNothingStored)) {
    const std::string_view column = std::string_view(cause).substr(0, cause.find(' '));
    if (const std::optional<std::string_view> value = assignedText(sql, column)) {
      cause.resize(cause.size() - kNothingStored.size());
      cause.append("; ").append(isFitToShow(*value) ? *value : "'...'").append(" was not stored.");
    }
  }
  return {cause, shownStatement(sql), error.kind()};
}

}  // namespace tarnwick
