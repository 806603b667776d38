// SPDX-License-Identifier: MIT
// The files of an open database, taken away or exchanged by others.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "base/errors.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
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
