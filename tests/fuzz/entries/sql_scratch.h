// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/sql_connection.h"
#include "platform/sqlite/sqlite_connection.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {

/// A small database in a folder of its own, on which any statement can be run: nothing that it does stays or goes on
/// for long, and it reaches no other file.
class SqlScratch {
 public:
  SqlScratch();
  ~SqlScratch();
  SqlScratch(const SqlScratch&) = delete;
  SqlScratch& operator=(const SqlScratch&) = delete;

  /// Begins a transaction that is taken back at the end of the object.
  class Trial {
   public:
    explicit Trial(SqlScratch& scratch);
    ~Trial();
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    /// Runs a statement that the input has made and reads all that it returns. Raises DataAccessError.
    void run(std::string_view sql);
    /// Runs a statement of the test's own and gives the first field of its first row.
    SqlValue value(const std::string& sql);
    /// How many statements SQLite has begun since the trial began.
    int statements() const;

   private:
    SqlScratch& scratch_;
  };

 private:
  std::filesystem::path folder_;
  HandClock clock_;
  SqliteConnections databases_{clock_};
  std::unique_ptr<SqlConnection> conn_;
};

/// The one of this program.
SqlScratch& sqlScratch();

}  // namespace tarnwick::testing
