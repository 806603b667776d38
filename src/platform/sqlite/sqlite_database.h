#pragma once

#include <sqlite3.h>

#include <list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/sql_value.h"
#include "platform/clock.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_file_watch.h"

namespace tarnwick {

class SqliteDatabase;
class SqliteRecordset;

struct SqliteCloser {
  void operator()(sqlite3* database) const noexcept { sqlite3_close(database); }
};
struct SqliteFinalizer {
  void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using SqliteHandle = std::unique_ptr<sqlite3, SqliteCloser>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, SqliteFinalizer>;

/// A prepared statement on loan: for one run, or as long as its rows are read. Given back, it holds no lock and no
/// value any more.
class StatementLoan {
 public:
  StatementLoan() = default;
  StatementLoan(SqliteDatabase& database, SqliteStatement statement, bool reusable)
      : database_(&database), statement_(std::move(statement)), reusable_(reusable) {}
  ~StatementLoan() { giveBack(); }
  StatementLoan(StatementLoan&& other) noexcept = default;
  StatementLoan& operator=(StatementLoan&&) = delete;

  sqlite3_stmt* get() const { return statement_.get(); }
  void giveBack() noexcept;

 private:
  SqliteDatabase* database_ = nullptr;
  SqliteStatement statement_;
  bool reusable_ = false;
};

/// An open SQLite file and the statements prepared on it. Every failure raises DataAccessError; `sql` is always the
/// statement as the caller wrote it, for the message.
class SqliteDatabase {
 public:
  /// Opens the file at `path` (UTF-8), which must exist and be a sound database.
  SqliteDatabase(std::string path, const Clock& clock);
  /// Closes the recordsets still open, and the file; nothing stays beside it.
  ~SqliteDatabase();
  SqliteDatabase(const SqliteDatabase&) = delete;
  SqliteDatabase& operator=(const SqliteDatabase&) = delete;

  sqlite3* handle() const { return handle_.get(); }

  /// Prepares the statement, or takes it from the ones kept.
  StatementLoan prepare(const PlainStatement& statement, std::string_view sql);

  /// Sets the parameters of a prepared statement. Texts with doubled quotes are put right in `room`. What the
  /// statement does not copy must stay in place until it is given back: `room`, and the text the parameters refer to.
  void bind(sqlite3_stmt* prepared, const PlainStatement& statement, std::vector<std::string>& room,
            std::string_view sql) const;

  /// The same with values in the statement's order, as many as it has places for.
  void bind(sqlite3_stmt* prepared, std::span<const SqlValue> values, std::string_view sql) const;

  /// Goes to the next row; false at the end.
  bool step(sqlite3_stmt* prepared, std::string_view sql) const;

  /// Runs a statement to its end, rows do not matter.
  void run(const PlainStatement& statement, std::string_view sql);
  void run(const std::string& text) { run({text, {}, false}, text); }

  /// The rows of a question about the database itself, in which `?1` is `argument`; every field as text, Null as an
  /// empty one.
  std::vector<std::vector<std::string>> rows(const std::string& text, const std::string& argument = {});

  [[noreturn]] void fail(std::string_view sql) const;

  /// True when the file should be opened afresh before its next use, and nobody is at work on it: damage was met, of
  /// which the pages in memory may be all there is once a good copy is put back, or it could not be changed, which an
  /// open file goes on with after its permissions have been put right.
  bool wantsReopening() const { return outdated_ && open_.empty() && sqlite3_get_autocommit(handle()) != 0; }

  /// What became of the files since they were opened. May be noticed only some time later, for it is asked before
  /// every statement.
  SqliteFileWatch::Finding lookAtFiles() { return watch_ ? watch_->lookNowAndThen() : SqliteFileWatch::Finding::same; }
  /// Whether rows are being read.
  bool isRead() const { return !open_.empty(); }

  void enroll(SqliteRecordset& recordset) { open_.push_back(&recordset); }
  void strikeOff(const SqliteRecordset& recordset) noexcept { std::erase(open_, &recordset); }

 private:
  friend class StatementLoan;
  void keep(SqliteStatement statement) noexcept;
  void openFile();
  void setForeignLogAside();
  void refuseDamage();
  void chooseJournal() noexcept;
  void fitCache(const PlainStatement& statement) noexcept;

  using Kept = std::list<SqliteStatement>;

  std::string path_;
  const Clock& clock_;
  SqliteHandle handle_;
  std::optional<SqliteFileWatch> watch_;
  /// The prepared statements not on loan, the one used last in front; found by the text they hold themselves.
  Kept kept_;
  std::unordered_map<std::string_view, Kept::iterator> keptByText_;
  std::vector<SqliteRecordset*> open_;
  bool cachesLargePage_ = false;
  mutable bool outdated_ = false;
};

}  // namespace tarnwick
