// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_connection.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/errors.h"
#include "base/text.h"
#include "platform/sqlite/atomic_change.h"
#include "platform/sqlite/shown_statement.h"
#include "platform/sqlite/sqlite_database.h"
#include "platform/sqlite/sqlite_errors.h"
#include "platform/sqlite/sqlite_held_file.h"
#include "platform/sqlite/sqlite_hold.h"
#include "platform/sqlite/sqlite_pages.h"
#include "platform/sqlite/sqlite_recordset.h"
#include "platform/sqlite/sqlite_tables.h"
#include "platform/sqlite/translated_statements.h"

namespace tarnwick {
namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

/// A statement that is longer has a text in it, and is not asked again as it is.
constexpr std::size_t kLongestKept = 512;

/// Where `wanted` stands first in `text`, letter case aside.
std::size_t findIgnoringCase(std::string_view text, std::string_view wanted) {
  for (std::size_t i = 0; i + wanted.size() <= text.size(); ++i) {
    if (equalsIgnoringCase(text.substr(i, wanted.size()), wanted)) {
      return i;
    }
  }
  return kNotFound;
}

std::size_t findLastIgnoringCase(std::string_view text, std::string_view wanted) {
  for (std::size_t i = text.size(); i-- > 0;) {
    if (equalsIgnoringCase(text.substr(i, wanted.size()), wanted)) {
      return i;
    }
  }
  return kNotFound;
}

/// What reads rows is asked again and again.
bool isAskedAgain(std::string_view sql) { return sql.starts_with("select "); }

}  // namespace

// A path may hold semicolons itself, so the settings behind it are sought from the end.
std::string dataSource(std::string_view connString) {
  static constexpr std::string_view kKey = "Data Source=";
  const std::size_t key = findIgnoringCase(connString, kKey);
  if (key == kNotFound) {
    throw DataAccessError("The connection string names no database: \"Data Source=\" is missing.", "");
  }
  const std::string_view rest = connString.substr(key + kKey.size());
  std::size_t end = findLastIgnoringCase(rest, ";Jet OLEDB:");
  if (end == kNotFound) {
    end = rest.rfind(';');
  }
  return std::string(rest.substr(0, end));
}

namespace {

class SqliteConnection final : public SqlConnection {
 public:
  SqliteConnection(const Clock& clock, std::chrono::milliseconds patience) : clock_(clock), patience_(patience) {}

  void open(const std::string& connString) override {
    if (database_) {
      throw DataAccessError("The connection to the database is open already.", "");
    }
    path_ = dataSource(connString);
    openFile();
  }

  void close() noexcept override { database_.reset(); }

  bool isOpen() const override { return database_ != nullptr; }

  std::unique_ptr<Recordset> execute(std::string_view sql) override { return run(sql, {}); }

  std::unique_ptr<Recordset> execute(std::string_view before, std::string_view text, std::string_view behind) override {
    std::string sql(before);
    sql.append(behind);
    return run(sql, LongText{sql.data() + before.size(), text});
  }

  std::unique_ptr<StoredText> storeAhead(std::string_view text, const std::function<void()>& between) override {
    if (!database_ || inTransaction() || database_->pages() != Pages::apart) {
      return nullptr;
    }
    return std::make_unique<SqliteStoredText>(*this, ahead_, text, between);
  }

  std::unique_ptr<Recordset> execute(std::string_view sql, std::span<const SqlValue> parameters) override {
    return told(sql, [&](SqliteDatabase& database) {
      const bool reusable = !parameters.empty() || isAskedAgain(sql);
      return records(database, {std::string(sql), {parameters.begin(), parameters.end()}, reusable}, sql);
    });
  }

  std::int64_t changesOfOthers() override {
    if (!database_ || !database_->isKnownUnchanged()) {
      told("pragma data_version", [](SqliteDatabase& database) {
        database.countChangesOfOthers();
        return std::make_unique<NoRows>();
      });
    }
    return openings_ << 32 | database_->changesOfOthers();
  }

  void begin() override {
    const bool within = inTransaction();
    try {
      runKept("BEGIN IMMEDIATE");
      database_->hasBegun();
    } catch (...) {
      if (!within) {
        rollback();  // it may have begun before memory ran out, and nobody else would end it
      }
      throw;
    }
  }
  bool tryBegin() override {
    if (database_) {
      setPatience(std::chrono::milliseconds(0));
    }
    bool begun = true;
    try {
      begin();
    } catch (const DataAccessError& error) {
      if (!error.inUse()) {
        throw;
      }
      begun = false;
    }
    if (database_) {
      setPatience(patience_);
    }
    return begun;
  }
  void commit() override {
    runKept("COMMIT");
    database_->hasEnded();
  }

  void rollback() noexcept override {
    if (inTransaction()) {
      sqlite3_exec(database_->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
      database_->hasEnded();
    }
    if (inTransaction()) {
      // Without memory not even this can be done. What followed would go into a transaction that nobody ends, and be
      // lost with it; closing the file ends it.
      close();
    }
  }

  void proveWritable() override {
    begin();
    try {
      // A number in the file's header; writing it, even as it is, goes to the disk.
      setFormOfTables(formOfTables());
      commit();
    } catch (...) {
      rollback();
      throw;
    }
  }

  std::int64_t formOfTables() override { return execute("pragma user_version", {})->field(0).toInt64(); }

  void setFormOfTables(std::int64_t form) override {
    const std::int32_t checked = SqlValue(form).toInt32("the form of the tables");
    execute("pragma user_version = " + std::to_string(checked), {});
  }

  bool readOnly() const override { return database_ && sqlite3_db_readonly(database_->handle(), "main") == 1; }

  bool inTransaction() const override { return database_ && sqlite3_get_autocommit(database_->handle()) == 0; }

 private:
  /// A text that belongs between the quotes of an empty one in a statement.
  struct LongText {
    const char* place;
    std::string_view text;
  };

  std::unique_ptr<Recordset> run(std::string_view sql, const std::optional<LongText>& text) {
    return told(sql, [&](SqliteDatabase& database) -> std::unique_ptr<Recordset> {
      if (!text && sql.size() <= kLongestKept) {
        return carryOut(database, translations_.translated(sql, database.pages()), sql);
      }
      SqlCommand command = translateSql(sql, clock_, database.pages());
      if (text) {
        putIn(command, *text);
      }
      return carryOut(database, command, sql);
    });
  }

  /// Gives the empty text at that place of the statement its true length.
  static void putIn(SqlCommand& command, const LongText& text) {
    const auto fill = [&](SqlParameter& parameter) {
      if (auto* empty = std::get_if<std::string_view>(&parameter); empty != nullptr && empty->data() == text.place) {
        *empty = text.text;
      }
    };
    if (auto* statement = std::get_if<PlainStatement>(&command)) {
      std::ranges::for_each(statement->parameters, fill);
    } else if (auto* page = std::get_if<StorePage>(&command)) {
      fill(page->text);
    }
  }

  std::unique_ptr<Recordset> carryOut(SqliteDatabase& database, const SqlCommand& command, std::string_view sql) {
    if (const auto* statement = std::get_if<PlainStatement>(&command)) {
      return records(database, *statement, sql);
    }
    if (const auto* page = std::get_if<StorePage>(&command)) {
      storePage(database, *page);
    } else if (const auto* into = std::get_if<SelectInto>(&command)) {
      selectInto(database, *into);
    } else {
      addCounter(database, std::get<AddCounter>(command));
    }
    return std::make_unique<NoRows>();
  }

  void storePage(SqliteDatabase& database, const StorePage& command) {
    const auto* const value = std::get_if<SqlValue>(&command.text);
    const std::string copy = value == nullptr ? std::string() : value->toText();
    const std::string_view text = value == nullptr ? std::get<std::string_view>(command.text) : copy;
    if (inTransaction()) {
      AtomicChange change(database);
      SqlitePages(database).store(command, text, ahead_);
      change.keep();
      return;
    }
    // Takes the lock for writing at once, for which another program's is waited for; one that reads first is refused.
    database.run(PlainStatement{"BEGIN IMMEDIATE", {}, true});
    try {
      SqlitePages(database).store(command, text, ahead_);
      database.run(PlainStatement{"COMMIT", {}, true});
    } catch (...) {
      rollback();
      throw;
    }
  }

  /// Runs `action` on the open database; where it fails, the error carries the statement.
  template <typename Action>
  std::unique_ptr<Recordset> told(std::string_view sql, Action action) {
    if (!database_) {
      throw DataAccessError("The connection to the database is not open.", shownStatement(sql));
    }
    SqliteDatabase& database = current();
    try {
      return action(database);
    } catch (const DataAccessError& error) {
      refuseOverwritten(database);
      throw inStatement(error, sql);
    }
  }

  /// What looks like damage may be a copy that is just being written over the file.
  void refuseOverwritten(SqliteDatabase& database) const {
    using Finding = SqliteFileWatch::Finding;
    if (database.isOutdated() && database.lookAtFilesAtOnce() == Finding::overwritten) {
      throw exchangedFiles(Finding::overwritten, path_);
    }
  }

  void runKept(const char* sql) {
    told(sql, [&](SqliteDatabase& database) { return records(database, {sql, {}, true}, sql); });
  }

  void openFile() {
    ++openings_;
    database_ = std::make_unique<SqliteDatabase>(path_);
    setPatience(patience_);
  }

  void setPatience(std::chrono::milliseconds patience) {
    sqlite3_busy_timeout(database_->handle(), static_cast<int>(patience.count()));
  }

  SqliteDatabase& current() {
    if (database_->wantsReopening()) {
      // The old one is closed first: its locks and side files are in the way. Should the opening fail, the connection
      // is closed.
      database_.reset();
      openFile();
    }
    if (!inTransaction()) {
      refuseOtherFiles();
    }
    return *database_;
  }

  /// Whoever is at work gets an error once, and the files that are there now with the next opening.
  void refuseOtherFiles() {
    using Finding = SqliteFileWatch::Finding;
    const Finding finding = database_->lookAtFiles();
    if (finding == Finding::same) {
      return;
    }
    if (finding == Finding::missing) {
      // Kept open: when a folder was only moved away, and comes back, nothing is lost.
      requireFile(path_);
      return;
    }
    if (!database_->isRead()) {
      database_.reset();
    }
    throw exchangedFiles(finding, path_);
  }

  static std::unique_ptr<Recordset> records(SqliteDatabase& database, const PlainStatement& statement,
                                            std::string_view sql) {
    StatementLoan loan = database.prepare(statement);
    const bool onRow = database.step(loan.get());
    if (sqlite3_column_count(loan.get()) == 0) {
      return std::make_unique<NoRows>();
    }
    return std::make_unique<SqliteRecordset>(database, std::move(loan), onRow, statement.pageColumns,
                                             shownStatement(sql));
  }

  const Clock& clock_;
  TranslatedStatements translations_{clock_};
  std::chrono::milliseconds patience_;
  std::string path_;
  std::unique_ptr<SqliteDatabase> database_;
  std::int64_t openings_ = 0;
  SqliteStoredText* ahead_ = nullptr;
};

}  // namespace

std::unique_ptr<SqlConnection> SqliteConnections::makeSqlConnection() {
  return std::make_unique<SqliteConnection>(clock_, patience_);
}

std::unique_ptr<HeldDatabase> SqliteConnections::holdDatabase(const std::string& connString) {
  return std::make_unique<SqliteHold>(dataSource(connString));
}

std::unique_ptr<HeldFile> SqliteConnections::holdFile(const std::string& connString) {
  return std::make_unique<SqliteHeldFile>(dataSource(connString));
}

}  // namespace tarnwick
