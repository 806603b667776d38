// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/sql_connection.h"

namespace tarnwick {

/// The one connection to the program's database, `tarnwick.mdb` in the program folder. It is open for this object's
/// whole life but for a compaction; every statement of the program runs on it.
class Database {
 public:
  /// Opens the database of `programFolder` (no trailing separator). The file must exist: a missing or damaged one
  /// raises DataAccessError and nothing is created in its place. The tables of an older list are brought to today's
  /// form; those of a newer form raise DataAccessError.
  Database(const std::string& programFolder, SqlConnectionMaker& databases);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Runs a statement that returns rows.
  std::unique_ptr<Recordset> query(std::string sql);
  /// Runs a statement whose rows, if any, do not matter.
  void execute(std::string sql);
  /// The same of one with a page in it, between `before` and `behind` and their quotes, that is not copied into it.
  void execute(const std::string& before, std::string_view page, const std::string& behind);

  /// Whether others read undisturbed while something is written: the file has a write-ahead log, as everywhere but on a
  /// network drive. Raises DataAccessError.
  bool readersGoOn();

  /// Another connection of this program writes for longer, a piece at a time between two events, and holds the
  /// database's write lock meanwhile. `finish` ends that at once: it is called before this one writes, which would
  /// otherwise wait for what cannot go on; it raises nothing. Who can wait asks `Transaction::tryBegin`. An empty one:
  /// nobody does any more.
  void setWriterAside(std::function<void()> finish) { finishAside_ = std::move(finish); }
  bool hasWriterAside() const { return finishAside_ != nullptr; }
  /// Ends what another connection of this program writes.
  void finishWriterAside();

  /// Another number as soon as this program may have changed the options: by `optionsChange`, or with another file. Who
  /// keeps them reads them again then, and after a change by others.
  std::uint64_t optionsEdition() const { return optionsEdition_; }
  void optionsChange() { ++optionsEdition_; }

  /// Vocabulary: no front end calls it.
  /// The statement most recently built; of a page in it only that it is there.
  const std::string& sqlText() const { return sqlText_; }
  const std::string& connString() const { return connString_; }
  /// Full path of the database file.
  const std::string& dbPath() const { return dbPath_; }
  const std::string& programFolder() const { return programFolder_; }
  /// The connection, opened again if it is closed.
  SqlConnection& conn();

  /// Closes the connection; only what works on the file itself does so.
  void close() noexcept { conn_->close(); }
  /// Opens the connection again with the same connection string; raises DataAccessError as at the beginning. The
  /// next statement tries once more then, so that a file put back later is found.
  void reopen() { conn(); }

 private:
  void open();

  std::uint64_t optionsEdition_ = 1;
  std::function<void()> finishAside_;
  std::string sqlText_;
  std::string connString_;
  std::unique_ptr<SqlConnection> conn_;
  std::string dbPath_;
  std::string programFolder_;
};

/// Makes the statements run during its life one whole: all of them are kept when `commit` is called, none otherwise.
/// Inside another transaction it changes nothing: the outer one decides.
class Transaction {
 public:
  explicit Transaction(Database& database);
  Transaction(Transaction&& other) noexcept : conn_(other.conn_), owner_(std::exchange(other.owner_, false)) {}
  Transaction& operator=(Transaction&&) = delete;
  ~Transaction();

  /// One that begins at once; nothing while another program, or another connection of this one, has the database
  /// locked.
  static std::optional<Transaction> tryBegin(Database& database);

  void commit();

 private:
  Transaction(SqlConnection& conn, bool owner) : conn_(conn), owner_(owner) {}

  SqlConnection& conn_;
  bool owner_;
};

/// Lets everything that is read during its life show the database as it was at the beginning, while others write.
class Snapshot {
 public:
  explicit Snapshot(Database& database);

 private:
  std::unique_ptr<Recordset> held_;
};

}  // namespace tarnwick
