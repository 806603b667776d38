// SPDX-License-Identifier: MIT
#include <iostream>
#include <memory>
#include <string>

#include "platform/clock.h"
#include "platform/local_files.h"
#include "platform/prompts.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/compaction.h"
#include "store/restoration.h"

// A program of its own for the tests: compaction_helper compact|hold|restore <program folder>
//
// "compact" stores a row and compacts the database, again and again until it is killed. After each row that is stored
// for good it writes a line. "hold" opens the database, writes a line, and waits for the end of its input. "restore"
// writes a line, puts copy.mdb in the place of the database, and waits.

namespace tarnwick {
namespace {

class NoPrompts final : public Prompts {
 public:
  void inform(const Message& message, std::function<void()>) override { std::cerr << message.text << std::endl; }
  void confirm(const Message&, std::function<void(bool yes)>) override {}
  void chooseFile(const FileChoice&, std::function<void(const std::string& path)>) override {}
};

int compactForEver(Database& database, SqlConnectionMaker& databases) {
  LocalFiles files;
  NoPrompts prompts;
  Compaction compaction(database, databases, files, prompts);
  for (;;) {
    database.execute("insert into methods (idSite, method) values (1, 'GET')");
    std::cout << "stored" << std::endl;
    if (!compaction.compact()) {
      return 1;
    }
  }
}

int hold(Database& database) {
  database.execute("select count(*) from sites");
  std::cout << "held" << std::endl;
  std::string line;
  while (std::getline(std::cin, line)) {
  }
  return 0;
}

class NoRuns final : public RunLockMaker {
 public:
  std::unique_ptr<RunLock> makeRunLock(const std::string&) override { return std::make_unique<Lock>(); }

 private:
  struct Lock final : RunLock {
    void take() override {}
    void release() noexcept override {}
  };
};

int restore(const std::string& folder, SqlConnectionMaker& databases, const Clock& clock) {
  LocalFiles files;
  NoRuns runs;
  Restoration restoration(folder, databases, files, clock, runs);
  std::cout << "begun" << std::endl;
  restoration.restore(folder + "/copy.mdb");
  std::string line;
  std::getline(std::cin, line);
  return 0;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: compaction_helper compact|hold|restore <program folder>\n";
    return 2;
  }
  tarnwick::SystemClock clock;
  tarnwick::SqliteConnections databases(clock);
  if (std::string(argv[1]) == "restore") {
    return tarnwick::restore(argv[2], databases, clock);
  }
  tarnwick::Database database(argv[2], databases);
  return std::string(argv[1]) == "hold" ? tarnwick::hold(database) : tarnwick::compactForEver(database, databases);
}
