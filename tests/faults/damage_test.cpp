// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/errors.h"
#include "faults/faults_fixture.h"
#include "support/file_bytes.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;
using ::testing::HasSubstr;

constexpr std::size_t kPage = 4096;

class Damage : public ::testing::Test {
 protected:
  std::string live() const { return used.folder.databasePath(); }
  static std::string bytesOf(const std::string& path) { return bytesOfFile(path); }
  static void write(const std::string& path, const std::string& bytes) { writeFile(path, bytes, FileRest::kept); }

  /// The number of the page on which the table's rows begin.
  std::size_t rootOf(const std::string& table) const {
    return std::stoul(used.text("select rootpage from sqlite_master where name = '" + table + "'"));
  }
  void spoilPage(std::size_t number) const {
    std::string bytes = bytesOf(live());
    bytes.replace((number - 1) * kPage, kPage, std::string(kPage, '\xEE'));
    write(live(), bytes);
  }

  UsedFolder used;
};

TEST_F(Damage, ADamagedPageIsToldOnceAndAGoodCopyPutBackIsFoundByTheRun) {
  SKIP_ON_WINDOWS("There nobody can put a file in the place of one that is open.");
  const std::string before = used.valuables();
  const std::string good = used.folder.file("backup.mdb");
  fs::copy_file(live(), good);
  spoilPage(rootOf("log"));
  {
    RunningProgram running(used);
    running.program.startRun();
    running.letPass(seconds(30));
    EXPECT_EQ(running.boxes(), 1u) << running.boxTexts();
    EXPECT_THAT(running.boxTexts(), HasSubstr("is damaged"));
    EXPECT_THAT(running.boxTexts(), HasSubstr(live()));
    EXPECT_LE(used.server.requests().size(), 7 * 4u);
    EXPECT_EQ(used.text("select count(*) from sites where status = 0"), "0");

    fs::rename(good, live());
    running.letPass(seconds(62));
    EXPECT_EQ(running.boxes(), 1u) << running.boxTexts();
    used.expectAllRecordedOnce(running.boxTexts());
  }
  EXPECT_EQ(used.valuables(), before);
  EXPECT_EQ(used.integrity(), "ok");
}

TEST_F(Damage, ADamagedSiteTableIsNeverTakenForSitesThatAreDown) {
  spoilPage(rootOf("siteRows"));
  RunningProgram* running = nullptr;
  TestServices machine;
  try {
    RunningProgram started(used);
    running = &started;
    started.program.startRun();
    started.letPass(seconds(10));
    EXPECT_EQ(started.boxes(), 1u) << started.boxTexts();
  } catch (const DataAccessError& error) {
    EXPECT_EQ(running, nullptr);
    EXPECT_THAT(error.what(), HasSubstr("is damaged"));
  }
  EXPECT_EQ(used.text("select count(*) from log where dateStamp >= '2024-05-17'"), "0");
}

/// A database whose last changes wait in the log beside it, as a killed program leaves them: one row of `methods` a
/// transaction.
class TornLog : public Damage {
 protected:
  static constexpr int kRows = 12;

  TornLog() {
    const HandClock clock;
    SqliteConnections databases(clock);
    Database database(used.folder.path(), databases);
    for (int row = 1; row <= kRows; ++row) {
      database.execute("insert into methods values (" + std::to_string(row) + ",'GET')");
    }
    main_ = bytesOf(live());
    log_ = bytesOf(live() + "-wal");
  }

  /// Puts both files back with another log, opens them as a program does, and closes them again.
  void reopenWith(const std::string& log) const {
    write(live(), main_);
    fs::remove(live() + "-shm");
    write(live() + "-wal", log);
    const HandClock clock;
    SqliteConnections databases(clock);
    const Database database(used.folder.path(), databases);
  }
  /// Whether the rows are the first so many of those stored, without a gap.
  void expectABeginning(const std::string& before) const {
    EXPECT_EQ(used.integrity(), "ok");
    EXPECT_EQ(used.valuables(), before);
    EXPECT_EQ(used.text("select coalesce(max(idSite), 0) - count(*) from methods"), "0");
  }

  std::string main_;
  std::string log_;
};

TEST_F(TornLog, WhereverItEndsTheChangesBeforeAreThere) {
  const std::string before = used.valuables();
  reopenWith(log_);
  ASSERT_EQ(used.number("select count(*) from methods"), kRows);
  int fewest = kRows;
  for (std::size_t length = log_.size(); length > 1500; length -= 1500) {
    SCOPED_TRACE(length);
    reopenWith(log_.substr(0, length));
    expectABeginning(before);
    const int rows = used.number("select count(*) from methods");
    EXPECT_LE(rows, fewest);
    fewest = rows;
  }
  EXPECT_LE(fewest, 1);
}

TEST_F(TornLog, WhereverItIsDamagedTheChangesBeforeAreThere) {
  const std::string before = used.valuables();
  for (std::size_t at = 40; at < log_.size(); at += 1777) {
    SCOPED_TRACE(at);
    std::string log = log_;
    log[at] = static_cast<char>(log[at] ^ 0x55);
    reopenWith(log);
    expectABeginning(before);
  }
}

TEST_F(TornLog, IsNotMarriedToABackupThatTakesTheDatabasesPlace) {
  reopenWith(log_);
  used.folder.execute("pragma journal_mode = delete; delete from methods; vacuum");
  const std::string backup = bytesOf(live());
  const std::string before = used.valuables();
  write(live() + "-wal", log_);
  {
    const RunningProgram running(used);
    EXPECT_EQ(bytesOf(live() + "-wal.old"), log_) << "nothing is thrown away";
  }
  EXPECT_EQ(used.valuables(), before);
  EXPECT_EQ(used.number("select count(*) from methods"), 0);
  EXPECT_EQ(used.integrity(), "ok");
}

}  // namespace
}  // namespace tarnwick::testing
