// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/sql_connection.h"
#include "platform/sqlite/sqlite_database.h"
#include "platform/sqlite/sqlite_held_file.h"

namespace tarnwick {

/// A SQLite file that this object has locked for itself, out of the write-ahead log: the file alone is the database.
class SqliteHold final : public HeldDatabase {
 public:
  /// Raises DataAccessError when the file is missing or damaged, or when any connection has it open for longer than the
  /// two seconds that are waited.
  explicit SqliteHold(std::string path);

  void read(const ByteSink& sink) override { readWhole(handle_.get(), path_, sink); }
  void compactInto(const std::string& destination) override;

 private:
  /// False where another connection has the file open.
  bool lock();
  void leaveLogAndLock(sqlite3* database) const;
  /// Runs a statement; the first field of its last row, empty without one.
  std::string run(sqlite3* database, const std::string& sql) const;
  void removeUnusedPages();
  void vacuumInto(const std::string& path);
  void check(const std::string& path) const;
  [[noreturn]] void fail(sqlite3* database, std::string_view sql) const;

  std::string path_;
  SqliteHandle handle_;
};

}  // namespace tarnwick
