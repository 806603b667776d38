// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>
#include <thread>

#include "store/compaction_fixture.h"
#include "support/child_process.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

/// The helper program, started in `mode` on a program folder.
struct Helper : ChildProcess {
  Helper(const char* mode, const std::string& folder) : ChildProcess(TARNWICK_COMPACTION_HELPER, {mode, folder}) {}
};

class CompactionKillTest : public CompactionFixture {};

TEST_F(CompactionKillTest, KilledAtAnyMomentItLeavesAWholeDatabaseWithEveryRow) {
  constexpr int kKills = 60;
  database.close();
  const std::string logBefore = folder.queryText("select count(*) || '/' || sum(length(content)) from log");
  std::mt19937 random(20240517);  // the same moments at each run, as far as a machine can repeat them
  std::uniform_int_distribution<int> microseconds(0, 60000);
  int stored = 0;
  for (int round = 0; round < kKills; ++round) {
    Helper helper("compact", folder.path());
    ASSERT_TRUE(helper.waitForLine());
    ++stored;
    const std::chrono::microseconds moment(microseconds(random));
    std::this_thread::sleep_for(moment);  // sleeps because the moment of the kill is the point, and any will do
    helper.kill();
    while (helper.waitForLine()) {
      ++stored;
    }
    ASSERT_TRUE(exists("tarnwick.mdb")) << "round " << round;
    ASSERT_EQ(folder.queryText("pragma integrity_check"), "ok") << "round " << round;
    ASSERT_EQ(folder.queryText("select count(*) || '/' || sum(length(content)) from log"), logBefore);
    const int rows = std::stoi(folder.queryText("select count(*) from methods"));
    // The newest row may be stored though the helper was killed before it could say so.
    ASSERT_GE(rows - 1, stored) << "round " << round;
    stored = rows - 1;
    if (exists("backup.mdb")) {
      ASSERT_THAT(contents("backup.mdb"), HasSubstr("\nok|")) << "round " << round;
    }
  }
}

TEST_F(CompactionKillTest, AfterAKillTheNextCompactionLeavesNothingUnfinished) {
  database.close();
  for (int round = 0; round < 10; ++round) {
    Helper helper("compact", folder.path());
    ASSERT_TRUE(helper.waitForLine());
    std::this_thread::sleep_for(std::chrono::milliseconds(3 * round));  // sleeps because the moment of the kill differs
    helper.kill();
    EXPECT_TRUE(Compaction(database, connections, files, prompts).compact());
    EXPECT_EQ(others(), "backup.mdb temp.mdb");
    database.close();
  }
}

TEST_F(CompactionKillTest, AnotherProgramsOpenDatabaseIsRefused) {
  Helper helper("hold", folder.path());
  ASSERT_TRUE(helper.waitForLine());
  Compaction compaction(database, connections, files, prompts);
  EXPECT_FALSE(compaction.compact());
  EXPECT_EQ(others(), "");
  helper.kill();
  EXPECT_TRUE(compaction.compact());
}

}  // namespace
}  // namespace tarnwick::testing
