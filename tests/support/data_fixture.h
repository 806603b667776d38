// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "support/hand_clock.h"
#include "support/program_folder.h"
#include "support/watched_sql.h"

namespace tarnwick::testing {

/// A case with an open database in a program folder of its own, on a clock moved by hand.
class DataFixture : public ::testing::Test {
 protected:
  /// The statements run since the last call.
  std::vector<std::string> takeStatements() { return std::exchange(watch().statements, {}); }
  SqlWatch& watch() { return connections_.watch; }

  ProgramFolder folder;
  HandClock clock;

 private:
  SqliteConnections real_{clock};
  WatchedConnections connections_{real_};

 protected:
  Database database{folder.path(), connections_};
};

/// What `action` raises as an `Error`, as its text; fails the test when it raises nothing.
template <typename Error, typename Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.what();
  }
  ADD_FAILURE() << "The expected error was not raised.";
  return {};
}

/// Texts that are easily changed on their way into a database and back.
inline std::vector<std::string> trickyTexts() {
  return {"",
          "it's 'quoted' ''twice''",
          "'",
          "a|b||c",
          "007",
          "1e5",
          " blanks around ",
          "lines\r\nof\rall\nkinds",
          std::string("NUL\0in the middle\0", 18),
          "invalid \xff\xfe\x80 UTF-8 \xc3",
          "\xc3\xa4\xe2\x82\xac\xf0\x9f\x8c\x8d",
          "\"double\" [brackets] -- ; /* no comment */ ? :name @name $name",
          "True",
          "NULL",
          "now() datediff('n',[lastChecked],now())"};
}

}  // namespace tarnwick::testing
