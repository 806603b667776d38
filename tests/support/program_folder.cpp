// SPDX-License-Identifier: MIT
#include "support/program_folder.h"

#include <sqlite3.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>

namespace tarnwick::testing {
namespace {

using Handle = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

constexpr int kPatienceMs = 5000;

std::filesystem::path makeFolder() {
  std::random_device random;
  for (;;) {
    const auto folder = std::filesystem::temp_directory_path() /
                        ("tarnwick-test-" + std::to_string(random()) + "-" + std::to_string(random()));
    if (std::filesystem::create_directory(folder)) {
      return folder;
    }
  }
}

Handle openDatabase(const std::string& path, int flags) {
  sqlite3* raw = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &raw, flags, nullptr);
  Handle handle(raw, &sqlite3_close);
  if (code != SQLITE_OK) {
    throw std::runtime_error(path + ": " + sqlite3_errstr(code));
  }
  sqlite3_busy_timeout(raw, kPatienceMs);
  return handle;
}

/// The next statement of `sql` from `position` on, which moves behind it; empty at the end of the text.
Statement nextStatement(sqlite3* database, const std::string& sql, std::size_t& position) {
  while (position < sql.size()) {
    sqlite3_stmt* raw = nullptr;
    const char* tail = nullptr;
    const int length = static_cast<int>(sql.size() - position);
    if (sqlite3_prepare_v2(database, sql.data() + position, length, &raw, &tail) != SQLITE_OK) {
      throw std::runtime_error(std::string(sqlite3_errmsg(database)) + ": " + sql.substr(position, 200));
    }
    position = static_cast<std::size_t>(tail - sql.data());
    if (raw != nullptr) {
      return {raw, &sqlite3_finalize};
    }
  }
  return {nullptr, &sqlite3_finalize};
}

bool stepRow(sqlite3* database, sqlite3_stmt* statement) {
  const int code = sqlite3_step(statement);
  if (code != SQLITE_ROW && code != SQLITE_DONE) {
    throw std::runtime_error(std::string(sqlite3_errmsg(database)) + ": " + sqlite3_sql(statement));
  }
  return code == SQLITE_ROW;
}

void runAll(sqlite3* database, const std::string& sql) {
  std::size_t position = 0;
  while (const Statement statement = nextStatement(database, sql, position)) {
    while (stepRow(database, statement.get())) {
    }
  }
}

std::string columnText(sqlite3_stmt* statement, int column) {
  if (sqlite3_column_type(statement, column) == SQLITE_NULL) {
    return "NULL";
  }
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
  const int length = sqlite3_column_bytes(statement, column);
  return length == 0 ? std::string() : std::string(bytes, static_cast<std::size_t>(length));
}

std::string contentsOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error(std::string(path) + ": cannot be read");
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

ProgramFolder::ProgramFolder(Options options) : folder_(makeFolder()) {
  try {
    const std::string schema = contentsOf(TARNWICK_SCHEMA_FILE);
    runAll(openDatabase(databasePath(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE).get(), schema);
    if (options == Options::none) {
      execute("delete from siteOptions");
    }
  } catch (...) {
    std::filesystem::remove_all(folder_);
    throw;
  }
}

ProgramFolder::~ProgramFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void ProgramFolder::execute(const std::string& sql) const {
  runAll(openDatabase(databasePath(), SQLITE_OPEN_READWRITE).get(), sql);
}

void ProgramFolder::laySitesAsOneTable() const {
  execute(
      "create table oneTable (idSite INTEGER PRIMARY KEY, url TEXT, method TEXT, active YESNO, tInterval INTEGER, "
      "lastChecked DATETIME TEXT, alertEmail YESNO, email TEXT, sUserName TEXT, sPassWord TEXT, status YESNO, "
      "success INTEGER, failure INTEGER, content_compare TEXT, content_runtime TEXT);"
      "insert into oneTable select * from sites");
  const bool apart = queryText("select type from sqlite_master where name = 'sites'") == "view";
  execute(apart ? "drop view sites; drop table siteRows; drop table pagePieces" : "drop table sites");
  execute("alter table oneTable rename to sites");
}

std::string ProgramFolder::queryText(const std::string& sql) const {
  const Handle database = openDatabase(databasePath(), SQLITE_OPEN_READWRITE);
  std::size_t position = 0;
  const Statement statement = nextStatement(database.get(), sql, position);
  return statement && stepRow(database.get(), statement.get()) ? columnText(statement.get(), 0) : std::string();
}

std::string ProgramFolder::queryRows(const std::string& sql) const {
  const Handle database = openDatabase(databasePath(), SQLITE_OPEN_READWRITE);
  std::size_t position = 0;
  const Statement statement = nextStatement(database.get(), sql, position);
  std::string rows;
  while (statement && stepRow(database.get(), statement.get())) {
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
      rows.append(column == 0 ? "" : "|").append(columnText(statement.get(), column));
    }
    rows += "\n";
  }
  return rows;
}

}  // namespace tarnwick::testing
