// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/process/unwanted_signals.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "support/hand_clock.h"
#include "support/program_folder.h"
#include "support/resource_limit_posix.h"

namespace tarnwick::testing {
namespace {

TEST(FullDisk, FileThatFindsNoRoomIsAnErrorThatNamesItAndLeavesNothing) {
  const ProgramFolder folder;
  const auto at = [&](const std::string& name) { return folder.file(name); };
  std::ofstream(at("from"), std::ios::binary) << std::string(1 << 20, 'x');
  LocalFiles files;
  ignoreUnwantedSignals();
  const ResourceLimit limit(RLIMIT_FSIZE, 100000);
  try {
    files.copy(at("from"), at("to"));
    FAIL() << "No error was raised.";
  } catch (const FileError& error) {
    EXPECT_EQ(error.path(), at("to"));
  }
  EXPECT_FALSE(std::filesystem::exists(at("to")));
}

TEST(FullDisk, DatabaseThatFindsNoRoomForTheMemoryItSharesIsReadAndSaysSoWhenWritten) {
  const ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases(clock);
  Database(folder.path(), databases).execute("insert into sites (idSite) values (1)");
  ignoreUnwantedSignals();
  const ResourceLimit limit(RLIMIT_FSIZE, 1000);
  Database database(folder.path(), databases);
  EXPECT_EQ(database.query("select count(*) as sites from sites")->field("sites").toInt64(), 1);
  try {
    database.execute("insert into sites (idSite) values (2)");
    FAIL() << "No error was raised.";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("The disk is full"), std::string::npos) << error.what();
  }
}

}  // namespace
}  // namespace tarnwick::testing
