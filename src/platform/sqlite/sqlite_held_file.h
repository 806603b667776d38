// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/sql_connection.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

/// Hands all bytes of the file that `database` has open to `sink`; `path` is for the error, a DataAccessError.
void readWhole(sqlite3* database, const std::string& path, const ByteSink& sink);

/// A file that is locked as SQLite locks a database, whatever it holds.
class SqliteHeldFile final : public HeldFile {
 public:
  /// Raises DataAccessError when the file is missing, and when any connection has it open. Another program's short lock
  /// is waited for.
  explicit SqliteHeldFile(std::string path);

  void read(const ByteSink& sink) override { readWhole(handle_.get(), path_, sink); }

 private:
  void lock() const;

  std::string path_;
  SqliteHandle handle_;
};

}  // namespace tarnwick
