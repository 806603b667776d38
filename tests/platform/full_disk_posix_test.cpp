#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/errors.h"
#include "platform/local_files.h"
#include "platform/sqlite_connection.h"
#include "store/database.h"
#include "support/hand_clock.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

/// Makes files of this process end at `size` bytes, for this object's life.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

TEST(FullDisk, FileThatFindsNoRoomIsAnErrorThatNamesItAndLeavesNothing) {
  const ProgramFolder folder;
  const auto at = [&](const std::string& name) { return folder.file(name); };
  std::ofstream(at("from"), std::ios::binary) << std::string(1 << 20, 'x');
  LocalFiles files;
  const FileSizeLimit limit(100000);
  try {
    files.copy(at("from"), at("to"));
    FAIL() << "No error was raised.";
  } catch (const FileError& error) {
    EXPECT_EQ(error.path(), at("to"));
  }
  EXPECT_FALSE(std::filesystem::exists(at("to")));
}

TEST(FullDisk, DatabaseThatFindsNoRoomForTheMemoryItSharesSaysSo) {
  const ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases(clock);
  Database(folder.path(), databases).execute("insert into sites (idSite) values (1)");
  const FileSizeLimit limit(1000);
  try {
    const Database database(folder.path(), databases);
    FAIL() << "No error was raised.";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("The disk is full"), std::string::npos) << error.what();
  }
}

}  // namespace
}  // namespace tarnwick::testing
