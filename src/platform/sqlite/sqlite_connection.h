// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/sql_connection.h"

namespace tarnwick {

/// The path that a connection string names; raises DataAccessError when it names none.
std::string dataSource(std::string_view connString);

/// Makes connections to SQLite database files.
///
/// A connection opens the file that stands after "Data Source=" in its connection string, up to the last
/// ";Jet OLEDB:", or else up to the last ";"; the path may hold any other byte. Changes go through a write-ahead log:
/// what is committed survives the process, and closing leaves no file beside the database. Another program's lock is
/// waited for. The statements are SQLite's SQL and the dialect of sql_dialect.h, with the date
/// functions of sqlite_functions.h.
class SqliteConnections final : public SqlConnectionMaker {
 public:
  /// `clock` gives the time that statements call `now()`; it outlives the connections. `patience` is how long a
  /// statement waits for another program's lock.
  explicit SqliteConnections(const Clock& clock, std::chrono::milliseconds patience = std::chrono::seconds(2))
      : clock_(clock), patience_(patience) {}

  std::unique_ptr<SqlConnection> makeSqlConnection() override;
  std::unique_ptr<HeldDatabase> holdDatabase(const std::string& connString) override;
  std::unique_ptr<HeldFile> holdFile(const std::string& connString) override;

 private:
  const Clock& clock_;
  std::chrono::milliseconds patience_;
};

}  // namespace tarnwick
