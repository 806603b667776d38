// SPDX-License-Identifier: MIT
// The files of an open database, taken away or exchanged by others.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

#include "base/errors.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "support/file_bytes.h"
#include "support/hand_clock.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

void add(Database& database, int id) {
  Transaction transaction(database);
  database.execute("insert into sites (idSite) values (" + std::to_string(id) + ")");
  transaction.commit();
}

/// Another program, which shares nothing with this one but the files: SQLite knows the files that its own process has
/// open. So it is made before this one opens any.
class OtherProgram {
 public:
  explicit OtherProgram(const std::string& folder) {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
      throw std::runtime_error("no sockets");
    }
    process_ = fork();
    end_ = ends[process_ == 0 ? 1 : 0];
    ::close(ends[process_ == 0 ? 0 : 1]);
    if (process_ == 0) {
      work(folder);
      _exit(0);
    }
  }
  ~OtherProgram() {
    ::close(end_);
    waitpid(process_, nullptr, 0);
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  /// Opens the database, adds a site, and closes it again unless it `staysOpen`.
  bool adds(char id, bool staysOpen = false) {
    const char order[2] = {id, staysOpen ? '1' : '0'};
    char answer = 0;
    return ::write(end_, order, sizeof order) == sizeof order && ::read(end_, &answer, 1) == 1 && answer == id;
  }

 private:
  void work(const std::string& folder) const {
    HandClock clock;
    SqliteConnections databases(clock);
    std::unique_ptr<Database> database;
    char order[2];
    while (::read(end_, order, sizeof order) == sizeof order) {
      try {
        if (!database) {
          database = std::make_unique<Database>(folder, databases);
        }
        add(*database, order[0]);
      } catch (const DataAccessError&) {
        order[0] = 0;
      }
      if (order[1] == '0') {
        database.reset();
      }
      if (::write(end_, order, 1) != 1) {
        return;
      }
    }
  }

  int end_ = -1;
  pid_t process_ = -1;
};

#ifdef F_OFD_SETLK
/// Whether the next program sees that others share the memory in the file `path`, and so does not cut it off.
bool isSeenAsShared(const std::string& path) {
  constexpr off_t kSharing = 128;
  const pid_t next = fork();
  if (next == 0) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kSharing;
    lock.l_len = 1;
    const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    _exit(::fcntl(file, F_GETLK, &lock) == 0 && lock.l_type == F_RDLCK ? 0 : 1);
  }
  int status = 1;
  return waitpid(next, &status, 0) == next && status == 0;
}
#endif

class SqliteFileWatchTest : public ::testing::Test {
 protected:
  SqliteFileWatchTest() {
    add(*run_, 1);
    add(*run_, 2);
  }

  std::string file(const std::string& ending) const { return folder_.databasePath() + ending; }
  std::unique_ptr<Database> open() { return std::make_unique<Database>(folder_.path(), databases_); }

  /// What a transaction is told, in which nothing is done, when it begins; the files are looked at now and then.
  static std::string faultOfBeginning(Database& database) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (std::chrono::steady_clock::now() < end) {
      try {
        const Transaction transaction(database);
      } catch (const DataAccessError& error) {
        return error.cause();
      }
    }
    return "";
  }
  /// The same of a run that is left alone until it looks again.
  std::string lookSlowly() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(120);
    while (std::chrono::steady_clock::now() < end) {
      try {
        sites(*run_);
      } catch (const DataAccessError& error) {
        return error.cause();
      }
    }
    return "";
  }
  static std::string sites(Database& database) {
    std::string all;
    for (auto rows = database.query("select idSite from sites order by idSite"); !rows->eof(); rows->moveNext()) {
      all += rows->field(0).toText() + " ";
    }
    return all;
  }
  /// The sites as a program sees them that comes later.
  std::string sitesLater() {
    const auto database = open();
    EXPECT_EQ(database->query("pragma integrity_check")->field(0).toText(), "ok");
    return sites(*database);
  }
  void expectToldOnce(const std::string& words) {
    const std::string fault = faultOfBeginning(*run_);
    EXPECT_NE(fault.find(words), std::string::npos) << fault;
    EXPECT_NE(fault.find(folder_.databasePath()), std::string::npos) << fault;
    add(*run_, 9);
  }

  ProgramFolder folder_;
  OtherProgram other_{folder_.path()};
  HandClock clock_;
  SqliteConnections databases_{clock_};
  // Copied before it is open: reading it here a second time would end SQLite's locks.
  bool isCopied_ = fs::copy_file(file(""), file(".other"));
  std::unique_ptr<Database> run_ = open();
};

#ifdef F_OFD_SETLK
// As a library does it that looks what a file is. Memory that is cut off ends who uses it.
TEST_F(SqliteFileWatchTest, MemoryStaysSharedWhenThisProgramOpensAndClosesItsFile) {
  ASSERT_TRUE(isSeenAsShared(file("-shm")));
  std::ifstream(file("-shm")).get();
  EXPECT_TRUE(isSeenAsShared(file("-shm")));
  ASSERT_TRUE(other_.adds(5));
  EXPECT_EQ(sites(*run_), "1 2 5 ");
  run_.reset();
  EXPECT_FALSE(fs::exists(file("-shm")));
  EXPECT_EQ(sitesLater(), "1 2 5 ");
}
#endif

TEST_F(SqliteFileWatchTest, ARemovedLogIsToldAndWhatOthersHaveStoredSinceStays) {
  fs::remove(file("-wal"));
  fs::remove(file("-shm"));
  ASSERT_TRUE(other_.adds(5));
  expectToldOnce("were removed or exchanged");
  EXPECT_EQ(sites(*run_), "5 9 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "5 9 ");
}

TEST_F(SqliteFileWatchTest, ClosingAfterTheLogWasRemovedLeavesWhatOthersHaveStored) {
  fs::remove(file("-wal"));
  fs::remove(file("-shm"));
  ASSERT_TRUE(other_.adds(5, true));
  run_.reset();
  ASSERT_TRUE(other_.adds(6));
  EXPECT_EQ(sitesLater(), "5 6 ");
}

TEST_F(SqliteFileWatchTest, NothingIsLostWithARemovedLogThatNobodyHasMissedYet) {
  fs::remove(file("-wal"));
  fs::remove(file("-shm"));
  expectToldOnce("were removed or exchanged");
  EXPECT_EQ(sites(*run_), "1 2 9 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "1 2 9 ");
}

TEST_F(SqliteFileWatchTest, NothingIsLostWithTheSharedMemoryAlone) {
  fs::remove(file("-shm"));
  ASSERT_TRUE(other_.adds(5));
  expectToldOnce("were removed or exchanged");
  EXPECT_EQ(sites(*run_), "1 2 5 9 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "1 2 5 9 ");
}

TEST_F(SqliteFileWatchTest, AnExchangedDatabaseIsToldAndWorkGoesOnWithTheNewOne) {
  fs::rename(file(".other"), file(""));
  expectToldOnce("was exchanged for another file");
  EXPECT_EQ(sites(*run_), "9 ");
  EXPECT_TRUE(fs::exists(file("-wal.old")));
  run_.reset();
  EXPECT_EQ(sitesLater(), "9 ");
}

TEST_F(SqliteFileWatchTest, ADatabaseMovedOutOfTheWayIsComplete) {
  fs::rename(file(""), file(".kept"));
  fs::rename(file(".other"), file(""));
  expectToldOnce("was exchanged for another file");
  run_.reset();
  fs::rename(file(".kept"), file(""));
  EXPECT_EQ(sitesLater(), "1 2 ");
}

/// A copy is written over the open file, as `cp` does it, whose own log would then go into the copy.
class OverwrittenDatabase : public SqliteFileWatchTest {
 protected:
  OverwrittenDatabase() {
    // As a compaction makes it, and as a closed list is.
    ProgramFolder backup;
    backup.execute("create table further (x); drop table further");
    { const Database made(backup.path(), databases_); }
    fs::copy_file(backup.databasePath(), file(".closed"));
    backup.execute("pragma journal_mode = delete");
    fs::copy_file(backup.databasePath(), file(".backup"));
  }

  /// By another process: reading or writing the file here would end SQLite's locks.
  void overwriteBy(const std::string& copy) const { overwriteBy(copy, file("")); }
  static void overwriteBy(const std::string& copy, const std::string& target) {
    ASSERT_EQ(std::system(("cp '" + copy + "' '" + target + "'").c_str()), 0);
  }
  bool isStill(const std::string& ending) const {
    return std::system(("cmp '" + file("") + "' '" + file(ending) + "'").c_str()) == 0;
  }

  /// Enough for SQLite to bring its log over into the file.
  static void addMuch(Database& database) {
    database.execute(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 600) "
        "insert into log (idSite, content) select 3, randomblob(9000) from n");
  }
};

TEST_F(OverwrittenDatabase, ItIsToldAndWorkGoesOnWithTheCopy) {
  for (const char* copy : {".backup", ".closed"}) {
    SCOPED_TRACE(copy);
    overwriteBy(file(copy));
    expectToldOnce("was exchanged for another file");
    EXPECT_EQ(sites(*run_), "9 ");
    EXPECT_TRUE(fs::exists(file("-wal.old")));
    run_.reset();
    EXPECT_EQ(sitesLater(), "9 ");
    run_ = open();
  }
}

TEST_F(OverwrittenDatabase, NothingOfTheLogGoesIntoTheCopyWhenTheProgramEnds) {
  overwriteBy(file(".closed"));
  run_.reset();
  EXPECT_TRUE(isStill(".closed"));
  EXPECT_FALSE(fs::exists(file("-wal")));
  EXPECT_FALSE(fs::exists(file("-shm")));
  EXPECT_EQ(sitesLater(), "");
}

TEST_F(OverwrittenDatabase, NothingOfTheLogGoesIntoTheCopyWhenTheLogIsFull) {
  {
    Transaction transaction(*run_);
    addMuch(*run_);
    overwriteBy(file(".closed"));
    transaction.commit();
  }
  EXPECT_TRUE(isStill(".closed"));
  run_.reset();
  EXPECT_TRUE(isStill(".closed"));
  EXPECT_EQ(sitesLater(), "");
}

TEST_F(OverwrittenDatabase, WhoComesBeforeTheRunHasNoticedFindsTheCopy) {
  overwriteBy(file(".closed"));
  EXPECT_TRUE(other_.adds(5));
  expectToldOnce("was exchanged for another file");
  EXPECT_EQ(sites(*run_), "5 9 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "5 9 ");
}

TEST_F(OverwrittenDatabase, SeveralThatHaveItOpenGoOnWithTheCopyTogether) {
  ASSERT_TRUE(other_.adds(5, true));
  overwriteBy(file(".closed"));
  expectToldOnce("was exchanged for another file");
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  for (char id = 20; std::chrono::steady_clock::now() < end && id < 120 && other_.adds(id, true); ++id) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));  // sleeps because it looks only now and then
  }
  EXPECT_LT(std::chrono::steady_clock::now(), end) << "it is told, too";
  EXPECT_TRUE(other_.adds(7));
  EXPECT_EQ(sites(*run_), "7 9 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "7 9 ");
}

TEST_F(OverwrittenDatabase, TheLogOfAKilledProgramDoesNotGoIntoTheCopy) {
  run_.reset();
  std::string log;
  {
    const auto killed = open();
    add(*killed, 3);
    log = bytesOfFile(file("-wal"));
  }
  overwriteBy(file(".closed"));
  fs::copy_file(file(".closed"), file("-wal"));
  std::ofstream(file("-wal"), std::ios::binary | std::ios::trunc) << log;
  EXPECT_EQ(sitesLater(), "");
  EXPECT_EQ(bytesOfFile(file("-wal.old")), log) << "nothing is thrown away";
}

TEST_F(OverwrittenDatabase, ACopyFromBeforeTheLogBeganIsNoticedThoughItBeginsAsTheFileDoes) {
  run_.reset();
  fs::copy_file(file(""), file(".before"));
  run_ = open();
  run_->execute("update sites set url = 'changed' where idSite = 1");
  overwriteBy(file(".before"));
  expectToldOnce("was exchanged for another file");
  EXPECT_EQ(run_->query("select count(*) from sites where url = 'changed'")->field(0).toText(), "0");
}

TEST_F(OverwrittenDatabase, AHalfWrittenCopyIsToldAndTheWholeOneIsUsed) {
  ASSERT_EQ(truncate(file("").c_str(), 0), 0);
  EXPECT_NE(faultOfBeginning(*run_).find("was exchanged"), std::string::npos);
  overwriteBy(file(".closed"));
  add(*run_, 9);
  EXPECT_EQ(sites(*run_), "9 ");
}

TEST_F(OverwrittenDatabase, WhatOtherProgramsBringOverIntoTheFileIsNoExchange) {
  for (int round = 1; round <= 40; ++round) {
    SCOPED_TRACE(round);
    ASSERT_TRUE(other_.adds(static_cast<char>(10 + round), round % 3 == 0));
    if (round % 4 == 0) {
      addMuch(*run_);
      run_->execute("delete from log");
    }
    if (round % 5 == 0) {
      folder_.execute("pragma wal_checkpoint(truncate)");
    }
    if (round % 7 == 0) {
      folder_.execute("vacuum");
    }
    EXPECT_EQ(lookSlowly(), "");
  }
}

TEST_F(SqliteFileWatchTest, AnExchangeIsNoticedByQuestionsToo) {
  fs::rename(file(".other"), file(""));
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  const auto askOn = [&] {
    while (std::chrono::steady_clock::now() < end) {
      sites(*run_);
    }
  };
  EXPECT_THROW(askOn(), DataAccessError);
}

TEST_F(SqliteFileWatchTest, AMissingDatabaseIsToldUntilItIsBackAndNothingIsLost) {
  const std::string away = folder_.path() + ".away";
  fs::rename(folder_.path(), away);
  EXPECT_NE(faultOfBeginning(*run_).find("is missing"), std::string::npos);
  EXPECT_THROW(const Transaction transaction(*run_), DataAccessError) << "at once, it would go where nobody finds it";
  fs::rename(away, folder_.path());
  add(*run_, 3);
  EXPECT_EQ(sites(*run_), "1 2 3 ");
  run_.reset();
  EXPECT_EQ(sitesLater(), "1 2 3 ");
}

TEST_F(SqliteFileWatchTest, WhoIsReadingIsNotInterrupted) {
  const auto rows = run_->query("select idSite from sites order by idSite");
  fs::rename(file(".other"), file(""));
  EXPECT_NE(faultOfBeginning(*run_), "");
  rows->moveNext();
  EXPECT_EQ(rows->field(0).toText(), "2");
  rows->close();
  expectToldOnce("was exchanged");
}

TEST_F(SqliteFileWatchTest, APipeOrACircleOfLinksInPlaceOfTheDatabaseIsAClearError) {
  run_.reset();
  for (const bool isPipe : {true, false}) {
    fs::remove(file(""));
    if (isPipe) {
      ASSERT_EQ(mkfifo(file("").c_str(), 0600), 0);
    } else {
      fs::create_symlink(file(""), file(""));
    }
    try {
      open();
      FAIL() << "opened";
    } catch (const DataAccessError& error) {
      EXPECT_NE(error.cause().find("is no file"), std::string::npos) << error.what();
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
