// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/sqlite/sqlite_connection.h"
#include "support/hand_clock.h"
#include "support/program_folder.h"

namespace tarnwick::testing {

/// A fresh database in a folder of its own, and a connection to it under a clock set by hand.
struct OpenDatabase {
  OpenDatabase() : conn(databases.makeSqlConnection()) { conn->open(connString()); }

  std::string connString() const { return connStringFor(folder.databasePath()); }
  static std::string connStringFor(const std::string& path) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";Jet OLEDB:Engine Type=4;";
  }

  void run(const std::string& sql) const { conn->execute(sql)->close(); }

  /// All rows: fields joined with "|", Null as "NULL", each row ended with ";".
  std::string rows(const std::string& sql) const {
    const auto records = conn->execute(sql);
    std::string all;
    for (; !records->eof(); records->moveNext()) {
      for (std::size_t i = 0; i < records->fieldCount(); ++i) {
        all += i == 0 ? "" : "|";
        all += records->field(i).toTableText();
      }
      all += ";";
    }
    return all;
  }

  /// The first field of the first row.
  SqlValue value(const std::string& sql) const { return conn->execute(sql)->field(std::size_t{0}); }

  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
  std::unique_ptr<SqlConnection> conn;
};

}  // namespace tarnwick::testing
