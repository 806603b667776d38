// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>

#include "platform/clock.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "store/first_field.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

TEST(SnapshotTest, ShowsOneStateWhileOthersWrite) {
  const ProgramFolder folder;
  const SystemClock clock;
  SqliteConnections databases{clock};
  Database database(folder.path(), databases);
  const auto count = [&] { return firstText(database, "select count(*) from sites"); };
  {
    const Snapshot before(database);
    folder.execute("insert into sites (idSite) values (1)");
    EXPECT_EQ(count(), "0");
  }
  EXPECT_EQ(count(), "1");
}

TEST(SnapshotTest, NeedsNoSettings) {
  const ProgramFolder folder;
  const SystemClock clock;
  SqliteConnections databases{clock};
  Database database(folder.path(), databases);
  folder.execute("delete from control");
  const Snapshot before(database);
  folder.execute("insert into sites (idSite) values (1)");
  EXPECT_EQ(firstText(database, "select count(*) from sites"), "0");
}

}  // namespace
}  // namespace tarnwick::testing
