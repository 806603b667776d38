// SPDX-License-Identifier: MIT
// A disk that refuses a read and goes on: what the system says of it must not be taken for damage.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

/// For its own lifetime one read of a database by this process, the `number`th from now on, fails with EIO.
class FailingRead {
 public:
  explicit FailingRead(int number) {
    left_ = number;
    for (const char* name : kNames) {
      replace(name, reinterpret_cast<sqlite3_syscall_ptr>(&FailingRead::readAt));
    }
  }
  ~FailingRead() {
    for (const char* name : kNames) {
      replace(name, nullptr);
    }
  }
  FailingRead(const FailingRead&) = delete;
  FailingRead& operator=(const FailingRead&) = delete;

  bool hasFailed() const { return left_ <= 0; }

 private:
  // Which of them SQLite was built to use differs.
  static constexpr std::array<const char*, 2> kNames{"pread", "pread64"};

  static void replace(const char* name, sqlite3_syscall_ptr function) {
    sqlite3_vfs* const disk = sqlite3_vfs_find(nullptr);
    if (disk->xGetSystemCall(disk, name) != nullptr || function == nullptr) {
      disk->xSetSystemCall(disk, name, function);
    }
  }
  static ssize_t readAt(int file, void* bytes, size_t size, off_t from) {
    if (--left_ == 0) {
      errno = EIO;
      return -1;
    }
    return ::pread(file, bytes, size, from);
  }

  static inline int left_ = 0;
};

void use(const ProgramFolder& folder) {
  HandClock clock;
  SqliteConnections databases(clock);
  const auto conn = databases.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder.databasePath()));
  conn->execute("update sites set url = 'http://after.example/' where idSite = 1")->close();
  const auto rows = conn->execute("select url from sites order by url");
  while (!rows->eof()) {
    rows->moveNext();
  }
}

TEST(FailingReads, AreToldAsSuchWhicheverItIs) {
  const ProgramFolder folder;
  {
    HandClock clock;
    SqliteConnections databases(clock);
    const auto conn = databases.makeSqlConnection();
    conn->open(OpenDatabase::connStringFor(folder.databasePath()));
    conn->execute("insert into sites (idSite, url) values (1, 'http://before.example/')")->close();
  }
  int told = 0;
  bool hasFailed = true;
  for (int number = 1; hasFailed; ++number) {
    ASSERT_LT(number, 1000);
    // Takes in a log that could not be at the last closing: it would grow with each round, and the reads with it.
    use(folder);
    const FailingRead failing(number);
    try {
      use(folder);
    } catch (const DataAccessError& error) {
      ++told;
      EXPECT_NE(error.cause().find("Reading or writing the database"), std::string::npos) << number << error.cause();
      EXPECT_EQ(error.cause().find("good copy"), std::string::npos) << number;
    }
    hasFailed = failing.hasFailed();
  }
  EXPECT_GE(told, 2);
  use(folder);
}

}  // namespace
}  // namespace tarnwick::testing
