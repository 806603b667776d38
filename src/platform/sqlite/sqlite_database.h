// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
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

/// A prepared statement that is kept for the next time, or the place of one that is on loan.
struct KeptStatement {
  std::size_t hash = 0;  ///< of its text
  SqliteStatement statement{};
  std::uint64_t lentAt = 0;  ///< counted in loans
  bool isLent = false;
};

/// A prepared statement on loan: for one run, or as long as its rows are read. Given back, it holds no lock and no
/// value any more.
class StatementLoan {
 public:
  StatementLoan() = default;
  /// `place` is where it is given back to; null for one that is not worth keeping.
  StatementLoan(SqliteStatement statement, KeptStatement* place) : statement_(std::move(statement)), place_(place) {}
  ~StatementLoan() { giveBack(); }
  StatementLoan(StatementLoan&& other) noexcept = default;
  StatementLoan& operator=(StatementLoan&&) = delete;

  sqlite3_stmt* get() const { return statement_.get(); }
  void giveBack() noexcept;

 private:
  SqliteStatement statement_;
  KeptStatement* place_ = nullptr;
};

/// How long another program's lock is waited for.
inline constexpr int kBusyPatienceMs = 2000;

/// Opens the file at `path` (UTF-8), which must exist, as sqlite3_open_v2 does with `flags`; another program's lock
/// will be waited for. Raises DataAccessError.
SqliteHandle openDatabase(const std::string& path, int flags);

/// Has `database`, just opened by the name `path`, locked for itself alone from its first use on, with the memory that
/// is otherwise shared in the process, where a full disk might end the process else. True then.
bool haveAloneIfNeeded(sqlite3* database, const std::string& path);

/// An open SQLite file and the statements prepared on it. Every failure raises DataAccessError, which does not know
/// the statement: whoever was handed it adds it.
class SqliteDatabase {
 public:
  /// Opens the file at `path` (UTF-8), which must exist and be a sound database.
  explicit SqliteDatabase(std::string path);
  /// Closes the recordsets still open, and the file; nothing stays beside it.
  ~SqliteDatabase();
  SqliteDatabase(const SqliteDatabase&) = delete;
  SqliteDatabase& operator=(const SqliteDatabase&) = delete;

  sqlite3* handle() const { return handle_.get(); }

  /// Prepares the statement, or takes it from the ones kept, and gives it its values. What it does not copy must stay
  /// in place until it is given back: `statement`, and the text that its values refer to.
  StatementLoan prepare(const PlainStatement& statement);

  /// Goes to the next row; false at the end.
  bool step(sqlite3_stmt* prepared);

  /// Runs a statement to its end, rows do not matter.
  void run(const PlainStatement& statement);
  void run(const std::string& text) { run(PlainStatement{text}); }

  /// The rows of a question about the database itself; every field as text, Null as an empty one.
  std::vector<std::vector<std::string>> rows(const std::string& text, std::vector<SqlParameter> parameters = {});

  /// The error of the call that has failed last. Where nothing that follows could be relied on, the transaction has
  /// been taken back.
  DataAccessError lastError();

  /// True when the file should be opened afresh before its next use, and nobody is at work on it: damage was met, of
  /// which the pages in memory may be all there is once a good copy is put back, it could not be changed, which an open
  /// file goes on with after its permissions have been put right, or others have begun to change what could only be
  /// read.
  bool wantsReopening() const;

  bool isOutdated() const { return outdated_; }

  /// Where the pages of the sites lie.
  Pages pages() const noexcept;

  /// Whether nobody has changed the database since `countChangesOfOthers`, as far as is seen without asking it or the
  /// system for anything. The files are to be looked at now and then, too: then this is false.
  bool isKnownUnchanged() const noexcept;
  /// A transaction has begun that writes: nobody else can before its end.
  void hasBegun() noexcept { changesAlone_ = logEnd_ && endOfOpenLog(handle()) == logEnd_; }
  void hasEnded() noexcept { changesAlone_ = false; }
  /// Asks how often others have changed the database.
  void countChangesOfOthers();
  /// What came of that.
  std::int64_t changesOfOthers() const { return changesOfOthers_; }

  /// What became of the files since they were opened. May be noticed only some time later, for it is asked before
  /// every statement.
  SqliteFileWatch::Finding lookAtFiles() { return watch_ ? watch_->lookNowAndThen() : SqliteFileWatch::Finding::same; }
  SqliteFileWatch::Finding lookAtFilesAtOnce() { return watch_ ? watch_->look() : SqliteFileWatch::Finding::same; }
  /// Whether rows are being read.
  bool isRead() const { return !open_.empty(); }

  void enroll(SqliteRecordset& recordset) { open_.push_back(&recordset); }
  void strikeOff(const SqliteRecordset& recordset) noexcept { std::erase(open_, &recordset); }

 private:
  SqliteStatement compile(const PlainStatement& statement);
  StatementLoan lend(const PlainStatement& statement);
  KeptStatement* placeForOneMore();
  void open(const std::optional<FileIdentity>& before);
  void openFile(const std::optional<FileIdentity>& before);
  void openUnchanged();
  void followOwnChange(std::uint32_t pages) noexcept;
  static int takeLogIn(void* self, sqlite3* database, const char* name, int pages) noexcept;
  void refuseDamage();
  /// What is wrong with the file; empty for nothing. Raises what keeps it from being read.
  std::string damageSeen();
  std::int64_t sizeOfFile() const;
  void chooseJournal() noexcept;

  static constexpr std::size_t kStatementsKept = 96;

  std::string path_;
  SqliteHandle handle_;
  std::optional<SqliteFileWatch> watch_;
  std::array<KeptStatement, kStatementsKept> kept_{};
  std::uint64_t loans_ = 0;
  std::vector<SqliteRecordset*> open_;
  int pagesInLog_ = 0;
  // Where the log stood when others' changes were counted last, how many there were, and until when that is taken for
  // granted.
  std::optional<LogEnd> logEnd_;
  std::int64_t changesOfOthers_ = 0;
  /// Whether the transaction that is open follows upon what was counted then.
  bool changesAlone_ = false;
  std::chrono::steady_clock::time_point nextCount_{};
  bool outdated_ = false;
  // Opened as a file that nobody changes.
  bool unchanged_ = false;
  std::optional<FileIdentity> logOfUnchanged_;
  // Nobody else can open it meanwhile.
  bool alone_ = false;
  std::chrono::steady_clock::time_point sharedAgain_{};
};

}  // namespace tarnwick
