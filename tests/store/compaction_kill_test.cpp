#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "store/compaction_fixture.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// The helper program, started in `mode` on a program folder; killed at the end of this object's life at the latest.
class Helper {
 public:
  Helper(const char* mode, const std::string& folder) {
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    if (pipe(input.data()) != 0 || pipe(output.data()) != 0) {
      throw std::runtime_error("no pipe");
    }
    child_ = fork();
    if (child_ == 0) {
      dup2(input[0], STDIN_FILENO);
      dup2(output[1], STDOUT_FILENO);
      for (const int end : {input[0], input[1], output[0], output[1]}) {
        close(end);
      }
      execl(TARNWICK_COMPACTION_HELPER, "compaction_helper", mode, folder.c_str(), static_cast<char*>(nullptr));
      _exit(127);
    }
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    output_ = output[0];
  }
  ~Helper() {
    kill();
    close(input_);
    close(output_);
  }
  Helper(const Helper&) = delete;
  Helper& operator=(const Helper&) = delete;

  /// Waits for a line; false when the helper has ended without one.
  bool waitForLine() {
    char byte = 0;
    while (read(output_, &byte, 1) == 1) {
      if (byte == '\n') {
        return true;
      }
    }
    return false;
  }

  void kill() {
    if (child_ > 0) {
      ::kill(child_, SIGKILL);
      waitpid(child_, nullptr, 0);
      child_ = 0;
    }
  }

 private:
  pid_t child_ = 0;
  int input_ = -1;
  int output_ = -1;
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
