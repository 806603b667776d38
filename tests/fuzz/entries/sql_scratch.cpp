// SPDX-License-Identifier: MIT
#include "fuzz/entries/sql_scratch.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <random>

#include "base/errors.h"
#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kTables =
    "create table sites (idSite integer primary key, url text, error yesno default 0, lastCheck datetime, page text);"
    "create table log (idLog integer primary key autoincrement, idSite smallint, stamp datetime, note text);"
    "create table loose (a, b text collate nocase unique, c integer default (1 + 2), check (c > 0));"
    "create index log_stamp on log (idSite, stamp);"
    "create view failed as select url from sites where error;"
    "insert into sites values (1, 'http://example.com/', 0, '2024-05-17 12:00:00', 'a page');"
    "insert into sites values (2, 'http://example.org/', 1, null, 'it''s another');"
    "insert into log values (1, 1, '2024-05-17 11:59:30', 'checked');"
    "insert into loose values ('x', 'y', 3)";

/// What the hooks of SQLite know of the statement that is being run; they are functions without an object.
struct Watch {
  bool guarding = false;
  int begun = 0;
  int rounds = 0;
};
Watch watch;

constexpr int kStepsInARound = 1000;
constexpr int kMostRounds = 100;

/// Keeps a statement of the input away from other files and from what outlives its transaction.
int allow(void*, int action, const char* first, const char* second, const char*, const char*) {
  if (!watch.guarding) {
    return SQLITE_OK;
  }
  switch (action) {
    case SQLITE_ATTACH:
    case SQLITE_DETACH:
    case SQLITE_TRANSACTION:
    case SQLITE_CREATE_VTABLE:
      return SQLITE_DENY;
    case SQLITE_SAVEPOINT:
      return second != nullptr && std::string_view(second) == "atomic_change" ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_PRAGMA: {
      static constexpr std::array<std::string_view, 2> kHarmless{"index_info", "index_list"};
      return std::ranges::find(kHarmless, std::string_view(first == nullptr ? "" : first)) != kHarmless.end()
                 ? SQLITE_OK
                 : SQLITE_DENY;
    }
    default:
      return SQLITE_OK;
  }
}

int countStatement(unsigned, void*, void*, void* text) {
  // A trigger tells of its statements as comments.
  const bool inTrigger = std::string_view(static_cast<const char*>(text)).starts_with("--");
  watch.begun += watch.guarding && !inTrigger ? 1 : 0;
  return 0;
}

int stopWhenLong(void*) { return watch.guarding && ++watch.rounds > kMostRounds ? 1 : 0; }

/// Hooks into every database that is opened: the connection opens its file again when it has seen damage.
int hookIn(sqlite3* database, char**, const sqlite3_api_routines*) {
  sqlite3_set_authorizer(database, &allow, nullptr);
  sqlite3_trace_v2(database, SQLITE_TRACE_STMT, &countStatement, nullptr);
  sqlite3_progress_handler(database, kStepsInARound, &stopWhenLong, nullptr);
  sqlite3_limit(database, SQLITE_LIMIT_LENGTH, 100'000);
  sqlite3_limit(database, SQLITE_LIMIT_SQL_LENGTH, 100'000);
  sqlite3_limit(database, SQLITE_LIMIT_COLUMN, 50);
  sqlite3_limit(database, SQLITE_LIMIT_EXPR_DEPTH, 100);
  sqlite3_limit(database, SQLITE_LIMIT_COMPOUND_SELECT, 10);
  sqlite3_limit(database, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 20);
  sqlite3_limit(database, SQLITE_LIMIT_TRIGGER_DEPTH, 5);
  return SQLITE_OK;
}

std::filesystem::path newFolder() {
  std::random_device random;
  const auto folder = std::filesystem::temp_directory_path() /
                      ("tarnwick-test-" + std::to_string(random()) + "-" + std::to_string(random()));
  std::filesystem::create_directory(folder);
  return folder;
}

void makeTables(const std::string& path) {
  sqlite3* raw = nullptr;
  const int opened = sqlite3_open(path.c_str(), &raw);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(raw, &sqlite3_close);
  require(opened == SQLITE_OK && sqlite3_exec(raw, kTables, nullptr, nullptr, nullptr) == SQLITE_OK,
          "the scratch database cannot be made");
}

}  // namespace

SqlScratch::SqlScratch() : folder_(newFolder()), conn_(databases_.makeSqlConnection()) {
  const std::string path = (folder_ / "scratch.mdb").string();
  makeTables(path);
  // SQLite's own declaration takes the hook for a function without arguments.
  sqlite3_auto_extension(reinterpret_cast<void (*)()>(&hookIn));
  conn_->open("Data Source=" + path + ";");
}

SqlScratch::~SqlScratch() {
  conn_->close();
  sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&hookIn));
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

SqlScratch::Trial::Trial(SqlScratch& scratch) : scratch_(scratch) {
  scratch_.conn_->begin();
  watch.begun = 0;
}

SqlScratch::Trial::~Trial() {
  watch.guarding = false;
  scratch_.conn_->rollback();
}

void SqlScratch::Trial::run(std::string_view sql) {
  watch.guarding = true;
  watch.rounds = 0;
  try {
    const auto records = scratch_.conn_->execute(sql);
    for (int row = 0; !records->eof() && row < 20; ++row, records->moveNext()) {
      for (std::size_t i = 0; i < records->fieldCount(); ++i) {
        const std::string name = records->fieldName(i);
        require(records->field(i) == records->field(i), "a field is read twice and differs");
        require(records->field(name).toText().size() <= 100'000, "a field is larger than any value");
      }
    }
  } catch (const DataAccessError&) {
    watch.guarding = false;
    throw;
  }
  watch.guarding = false;
}

SqlValue SqlScratch::Trial::value(const std::string& sql) {
  const auto records = scratch_.conn_->execute(sql);
  return records->eof() ? SqlValue() : records->field(std::size_t{0});
}

int SqlScratch::Trial::statements() const { return watch.begun; }

SqlScratch& sqlScratch() {
  static SqlScratch scratch;
  return scratch;
}

}  // namespace tarnwick::testing
