// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_database.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>
#include <variant>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/sqlite/sqlite_errors.h"
#include "platform/sqlite/sqlite_file.h"
#include "platform/sqlite/sqlite_functions.h"
#include "platform/sqlite/sqlite_recordset.h"

namespace tarnwick {
namespace {

/// How long the database is kept from others where it must be had alone, before it is looked whether it still must.
constexpr std::chrono::seconds kAloneAtMost{5};
/// How long the files themselves are not looked at while the log says that nothing has happened.
constexpr std::chrono::seconds kQuietAtMost{5};
constexpr const char* kAlone = "pragma main.locking_mode = exclusive";
/// 2 MiB.
constexpr const char* kCache = "pragma cache_size = -2048";

/// Binds parameters, one after the other, to their places.
class Binder {
 public:
  explicit Binder(sqlite3_stmt* prepared)
      : prepared_(prepared),
        // A statement without rows has run to its end before the caller's text goes away; rows are read later.
        lifetime_(sqlite3_column_count(prepared) == 0 ? SQLITE_STATIC : SQLITE_TRANSIENT) {}

  int operator()(std::string_view text) {
    // One without an address would be a Null.
    const char* const bytes = text.empty() ? "" : text.data();
    return sqlite3_bind_text64(prepared_, ++number_, bytes, text.size(), lifetime_, SQLITE_UTF8);
  }
  int operator()(const SqlValue& value) { return std::visit(*this, value.held()); }
  int operator()(const Nothing&) { return sqlite3_bind_null(prepared_, ++number_); }
  int operator()(double number) { return sqlite3_bind_double(prepared_, ++number_, number); }
  int operator()(std::int64_t number) { return sqlite3_bind_int64(prepared_, ++number_, number); }
  int operator()(bool flag) { return (*this)(std::int64_t{flag}); }

 private:
  sqlite3_stmt* prepared_;
  sqlite3_destructor_type lifetime_;
  int number_ = 0;
};

/// Nothing for a file that is missing or cannot be looked at.
std::optional<std::uint64_t> bytesIn(const std::string& path) {
  try {
    return LocalFiles().sizeOf(path);
  } catch (const FileError&) {
    return std::nullopt;
  }
}

}  // namespace

void StatementLoan::giveBack() noexcept {
  if (!statement_) {
    return;
  }
  sqlite3_reset(statement_.get());
  sqlite3_clear_bindings(statement_.get());
  if (place_ != nullptr) {
    place_->statement = std::move(statement_);
    place_->isLent = false;
  }
  statement_.reset();
}

SqliteHandle openDatabase(const std::string& path, int flags) {
  sqlite3* raw = nullptr;
  const int result = openSqliteFile(path, flags, &raw);
  SqliteHandle handle(raw);
  if (result != SQLITE_OK) {
    throw sqliteError(result, raw == nullptr ? sqlite3_errstr(result) : sqlite3_errmsg(raw), path);
  }
  sqlite3_extended_result_codes(raw, 1);
  // A list may come from others: what its views, triggers and rules call is nothing that reaches beyond it, and no
  // statement writes to the file but through its tables.
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_busy_timeout(raw, kBusyPatienceMs);
  return handle;
}

bool haveAloneIfNeeded(sqlite3* database, const std::string& path) {
  const bool needed = mayLackSharedMemory(path);
  if (needed) {
    sqlite3_exec(database, kAlone, nullptr, nullptr, nullptr);
  }
  return needed;
}

SqliteDatabase::SqliteDatabase(std::string path) : path_(std::move(path)) {
  openInPlace(path_, [this](const auto& before) { open(before); });
  // The watch looks into the shared memory, which who has the database alone does not open.
  if (!unchanged_ && !alone_ && !liesOnNetwork(path_)) {  // where a file may be known by another number every time
    watch_.emplace(path_, handle());
    sqlite3_wal_hook(handle(), &takeLogIn, this);
  }
}

// As SQLite itself does it, but for the looks.
int SqliteDatabase::takeLogIn(void* self, sqlite3* database, const char* name, int pages) noexcept {
  constexpr int kPagesOfLog = 1000;
  constexpr int kLongTransaction = 8192;
  SqliteDatabase& of = *static_cast<SqliteDatabase*>(self);
  SqliteFileWatch& watch = *of.watch_;
  of.followOwnChange(static_cast<std::uint32_t>(pages));
  // Whoever has waited for a transaction as long as that of a large page is not made to wait for this as well.
  const bool waited = pages - std::exchange(of.pagesInLog_, pages) > kLongTransaction;
  if (pages < kPagesOfLog || waited) {
    watch.followLog();
  } else if (watch.look() == SqliteFileWatch::Finding::same) {
    sqlite3_wal_checkpoint_v2(database, name, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    watch.remember();
  }
  return SQLITE_OK;
}

// Where the disk has no room left for the small file that all who have the database open share memory through, it can
// be had alone, with that memory in the process: a site that is down must be told of on a full disk, too.
void SqliteDatabase::open(const std::optional<FileIdentity>& before) {
  try {
    openFile(before);
    alone_ = haveAloneIfNeeded(handle(), path_);
    refuseDamage();
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
    openFile(before);
    alone_ = true;
    sqlite3_exec(handle(), kAlone, nullptr, nullptr, nullptr);
    refuseDamage();
  }
  sharedAgain_ = std::chrono::steady_clock::now() + kAloneAtMost;
  chooseJournal();
  if (!alone_ && !unchanged_) {
    takeSharedMemory(handle());
  }
}

void SqliteDatabase::openFile(const std::optional<FileIdentity>& before) {
  kept_ = {};
  handle_.reset();
  requireFile(path_);
  // Without SQLITE_OPEN_CREATE: an empty database in place of a lost one would look like a loss of all sites.
  // Without locks between threads: there is only one.
  handle_ = openDatabase(path_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
  shareCompanions(realName(handle()));
  lockInPlace(handle(), path_, before);
  setForeignLogAside(handle(), path_);
  openUnchanged();
  if (registerFunctions(handle()) != SQLITE_OK) {
    throw lastError();
  }
}

// Even reading a database that has had a log takes files beside it. Where none can be made, and none is there, nobody
// is writing; whoever may write and begins later is noticed. What a kill has left in a log is read with it.
void SqliteDatabase::openUnchanged() {
  const std::string file = realName(handle());
  const auto header = SqliteHeader::of(handle());
  const auto isThere = [&](const char* ending) { return LocalFiles().exists(file + ending); };
  unchanged_ = header && header->usesLog() && !mayWrite(textOf(pathOf(file).parent_path())) && !isThere("-shm") &&
               !isThere("-journal");
  if (unchanged_) {
    logOfUnchanged_ = identityOf(file + "-wal");
    sqlite3* raw = nullptr;
    const int result = openUnchangedSqliteFile(file, isThere("-wal"), &raw);
    SqliteHandle opened(raw);
    if (result != SQLITE_OK) {
      throw sqliteError(result, raw == nullptr ? sqlite3_errstr(result) : sqlite3_errmsg(raw), path_);
    }
    sqlite3_extended_result_codes(raw, 1);
    sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // Where in the log a page is is then kept in the memory of this process.
    sqlite3_exec(raw, kAlone, nullptr, nullptr, nullptr);
    handle_ = std::move(opened);
  }
}

bool SqliteDatabase::wantsReopening() const {
  const bool begun = unchanged_ && (identityOf(realName(handle()) + "-wal") != logOfUnchanged_ ||
                                    LocalFiles().exists(realName(handle()) + "-shm"));
  const bool shares = alone_ && std::chrono::steady_clock::now() >= sharedAgain_;
  return (outdated_ || begun || shares) && open_.empty() && sqlite3_get_autocommit(handle()) != 0;
}

SqliteDatabase::~SqliteDatabase() {
  const std::vector<SqliteRecordset*> open = std::exchange(open_, {});
  for (SqliteRecordset* recordset : open) {
    recordset->close();
  }
  kept_ = {};
  if (watch_) {
    watch_->beforeClosing();
    handle_.reset();
    watch_->afterClosing();
  }
}

void SqliteDatabase::refuseDamage() {
  // What is not so at a second look was another program at work.
  const std::string damage = damageSeen();
  if (!damage.empty() && damageSeen() == damage) {
    throw damagedDatabase(path_, damage);
  }
}

std::string SqliteDatabase::damageSeen() {
  if (sizeOfFile() == 0) {
    return "the file is empty";
  }
  // Reads the file's header and all definitions, which SQLite itself puts off until the first statement.
  static constexpr const char* kReadAll = "select count(*) from sqlite_master";
  run("begin");
  const struct Reading {
    explicit Reading(sqlite3* database) : database_(database) {}
    ~Reading() { sqlite3_exec(database_, "rollback", nullptr, nullptr, nullptr); }
    sqlite3* database_;
  } reading(handle());
  try {
    run(kReadAll);
  } catch (const DataAccessError& error) {
    throw inStatement(error, kReadAll);
  }
  const auto expected = rows("select page_count * page_size from pragma_page_count, pragma_page_size");
  // The file may be short only while changes wait in the log beside it. Both are looked at last, since they grow while
  // the state that is read here stays as it is.
  const bool changesPending = bytesIn(path_ + "-wal") > 0U;
  // SQLite rounds a torn last page up.
  return !changesPending && sizeOfFile() < std::stoll(expected.at(0).at(0)) ? "the end of the file is missing" : "";
}

// Of the file that is open, whatever has taken its name since.
std::int64_t SqliteDatabase::sizeOfFile() const {
  sqlite3_file* file = nullptr;
  sqlite3_int64 size = 0;
  const bool known = sqlite3_file_control(handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK &&
                     file->pMethods->xFileSize(file, &size) == SQLITE_OK;
  return known ? size : std::numeric_limits<std::int64_t>::max();
}

void SqliteDatabase::chooseJournal() noexcept {
  // A database on a read-only disk can still be read; writing will say what is wrong.
  sqlite3* const database = handle();
  if (liesOnNetwork(path_)) {
    // The write-ahead log needs memory that all who use the file share.
    sqlite3_exec(database, "pragma journal_mode = delete", nullptr, nullptr, nullptr);
    sqlite3_exec(database, "pragma synchronous = full", nullptr, nullptr, nullptr);
  } else {
    sqlite3_exec(database, "pragma journal_mode = wal", nullptr, nullptr, nullptr);
    // What is committed is shown, and people act on what they were shown: it has to be there after a power cut, too.
    // That costs a write to the disk itself for each transaction.
    sqlite3_exec(database, "pragma synchronous = full", nullptr, nullptr, nullptr);
    // Makes the log now, so that it is there to be watched.
    sqlite3_exec(database, "pragma schema_version", nullptr, nullptr, nullptr);
  }
  // One large page must not leave a log of its size on the disk for the rest of the run.
  sqlite3_exec(database, "pragma journal_size_limit = 8388608", nullptr, nullptr, nullptr);
  // A check reads and writes a handful of pages that no other check needs: a larger cache would only fill with what is
  // never asked for again, and the due query reads faster from the system's own.
  sqlite3_exec(database, kCache, nullptr, nullptr, nullptr);
  // Debian's SQLite blanks whatever is deleted: a page that gives way to another would be written twice, and where a
  // disk is full, what frees room would need as much as it frees. A compaction leaves nothing of it behind.
  sqlite3_exec(database, "pragma secure_delete = fast", nullptr, nullptr, nullptr);
}

StatementLoan SqliteDatabase::prepare(const PlainStatement& statement) {
  StatementLoan loan = lend(statement);
  if (static_cast<std::size_t>(sqlite3_bind_parameter_count(loan.get())) != statement.parameters.size()) {
    throw sqliteError(SQLITE_RANGE, sqlite3_errstr(SQLITE_RANGE), path_);
  }
  Binder binder(loan.get());
  for (const SqlParameter& parameter : statement.parameters) {
    if (std::visit([&](const auto& value) { return binder(value); }, parameter) != SQLITE_OK) {
      throw lastError();
    }
  }
  return loan;
}

StatementLoan SqliteDatabase::lend(const PlainStatement& statement) {
  const std::size_t hash = std::hash<std::string_view>()(statement.text);
  const auto lent = [&](KeptStatement& place) {
    place.isLent = true;
    place.lentAt = ++loans_;
    return &place;
  };
  for (KeptStatement& kept : kept_) {
    if (kept.hash == hash && kept.statement != nullptr && statement.text == sqlite3_sql(kept.statement.get())) {
      return {std::move(kept.statement), lent(kept)};
    }
  }
  SqliteStatement prepared = compile(statement);
  KeptStatement* const place = statement.reusable ? placeForOneMore() : nullptr;
  if (place != nullptr) {
    place->hash = hash;
    place->statement.reset();
    lent(*place);
  }
  return {std::move(prepared), place};
}

// That of the statement that was on loan longest ago; null while all are.
KeptStatement* SqliteDatabase::placeForOneMore() {
  const auto place = std::ranges::min_element(
      kept_, {}, [](const KeptStatement& kept) { return std::pair(kept.isLent, kept.lentAt); });
  return place->isLent ? nullptr : &*place;
}

SqliteStatement SqliteDatabase::compile(const PlainStatement& statement) {
  const std::string& text = statement.text;
  sqlite3_stmt* raw = nullptr;
  const char* rest = nullptr;
  const unsigned flags = statement.reusable ? SQLITE_PREPARE_PERSISTENT : 0;
  const int result = sqlite3_prepare_v3(handle(), text.data(), static_cast<int>(text.size()), flags, &raw, &rest);
  SqliteStatement prepared(raw);
  if (result != SQLITE_OK) {
    throw lastError();
  }
  if (!prepared) {
    throw DataAccessError("The statement is empty.", "");
  }
  const std::string_view behind(rest, static_cast<std::size_t>(text.data() + text.size() - rest));
  if (behind.find_first_not_of("; \t\r\n") != std::string_view::npos) {
    throw DataAccessError("Only one statement can be run at a time.", "");
  }
  return prepared;
}

// Another program may bring an older list to the form of today meanwhile; until that is noticed the view serves every
// statement.
Pages SqliteDatabase::pages() const noexcept {
  const int found = sqlite3_table_column_metadata(handle(), "main", "siteRows", "comparePage", nullptr, nullptr,
                                                  nullptr, nullptr, nullptr);
  return found == SQLITE_OK ? Pages::apart : Pages::inSites;
}

bool SqliteDatabase::isKnownUnchanged() const noexcept {
  return logEnd_ && !outdated_ && std::chrono::steady_clock::now() < nextCount_ && endOfOpenLog(handle()) == logEnd_;
}

// The log has grown by the transaction that has just ended. Somebody else's may have followed already: then it is
// longer.
void SqliteDatabase::followOwnChange(std::uint32_t pages) noexcept {
  const auto end = changesAlone_ ? endOfOpenLog(handle()) : std::nullopt;
  logEnd_ = end && hasGrownTo(pages, *logEnd_, *end) ? end : std::nullopt;
}

// Where the log stands is read first: what others change meanwhile is then found at the next look. A log that ends
// where it did has nothing to tell.
void SqliteDatabase::countChangesOfOthers() {
  nextCount_ = std::chrono::steady_clock::now() + kQuietAtMost;
  if (logEnd_ && endOfOpenLog(handle()) == logEnd_) {
    return;
  }
  logEnd_.reset();
  hasEnded();
  const auto end = watch_ ? endOfOpenLog(handle()) : std::nullopt;
  const PlainStatement question{"pragma data_version", {}, true};
  const StatementLoan loan = prepare(question);
  changesOfOthers_ = step(loan.get()) ? sqlite3_column_int64(loan.get(), 0) : 0;
  logEnd_ = end;
}

bool SqliteDatabase::step(sqlite3_stmt* prepared) {
  const int result = sqlite3_step(prepared);
  if (result != SQLITE_ROW && result != SQLITE_DONE) {
    throw lastError();
  }
  return result == SQLITE_ROW;
}

void SqliteDatabase::run(const PlainStatement& statement) {
  const StatementLoan loan = prepare(statement);
  while (step(loan.get())) {
  }
}

std::vector<std::vector<std::string>> SqliteDatabase::rows(const std::string& text,
                                                           std::vector<SqlParameter> parameters) {
  const StatementLoan loan = prepare({text, std::move(parameters)});
  std::vector<std::vector<std::string>> all;
  while (step(loan.get())) {
    auto& row = all.emplace_back();
    for (int column = 0; column < sqlite3_column_count(loan.get()); ++column) {
      const bool isNull = sqlite3_column_type(loan.get(), column) == SQLITE_NULL;
      const auto* field = reinterpret_cast<const char*>(sqlite3_column_text(loan.get(), column));
      if (field == nullptr && !isNull) {
        throw lastError();  // there is no memory for it
      }
      row.emplace_back(isNull ? "" : field);
    }
  }
  return all;
}

DataAccessError SqliteDatabase::lastError() {
  DataAccessError error = lastSqliteError(handle(), path_);
  // With no room or a broken disk nothing that follows in the transaction can be relied on, so all of it is taken back;
  // SQLite leaves that to its caller when the statement could be undone alone.
  const int code = sqlite3_errcode(handle()) & 0xff;
  outdated_ = outdated_ || code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_READONLY;
  switch (code) {
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_NOMEM:
    case SQLITE_CORRUPT:
      sqlite3_exec(handle(), "rollback", nullptr, nullptr, nullptr);
      hasEnded();
      break;
    default:
      break;
  }
  return error;
}

}  // namespace tarnwick
