// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/errors.h"
#include "platform/sqlite/sqlite_file.h"
#include "platform/sqlite/sqlite_log.h"

namespace tarnwick {

/// Notices when the files of an open SQLite database are taken away or exchanged for others. SQLite goes on with the
/// ones it has open: what it writes is found by nobody, and when it closes them it would write a log that is out of
/// date over what other programs have stored meanwhile, or into a good copy.
class SqliteFileWatch {
 public:
  enum class Finding {
    same,
    missing,         ///< no file has the database's name
    other,           ///< another file has it
    overwritten,     ///< another database was written into the file
    otherCompanions  ///< the write-ahead log, or the memory shared through a file, is gone or another one
  };

  /// Keeps in mind which files `database`, just opened by the name `path`, consists of.
  SqliteFileWatch(const std::string& path, sqlite3* database);

  Finding look() noexcept;
  /// Takes the file for the right one as it is now.
  void remember() noexcept;
  /// The part of a look that tells from the open files alone how far the log has got: after each change, so that the
  /// next look knows what came since.
  void followLog() noexcept { isOverwritten(); }
  /// Looks at most ten times a second, since it takes some microseconds; `same` in between.
  Finding lookNowAndThen() noexcept;

  /// Before the database is closed: keeps SQLite from taking its log in where others have begun one since.
  void beforeClosing() noexcept;

  /// Afterwards: moves a log away that the database that is there now would take for its own.
  void afterClosing() const noexcept;

 private:
  bool isOverwritten() noexcept;
  bool hasOtherBeginning() noexcept;
  bool wasWrittenWithoutLog() noexcept;
  bool isWrittenByOthers(const SqliteHeader& header) const noexcept;

  struct File {
    explicit File(std::string name) : path(std::move(name)), atOpening(identityOf(path)) {}
    /// False also where nothing was there at the beginning, so that nothing can be said.
    bool isGone() const { return atOpening && identityOf(path) != atOpening; }
    bool isInPlace() const { return atOpening && identityOf(path) == atOpening; }
    std::string path;
    std::optional<FileIdentity> atOpening;
  };

  File database_;
  File log_;
  File sharedMemory_;
  sqlite3* open_;
  // What the file and its log began with when they were looked at last.
  std::optional<LogFacts::Salts> salts_;
  std::optional<SqliteHeader> header_;
  // How far the log was brought over, and when the file had been written to then.
  std::optional<LogProgress> progress_;
  std::optional<std::int64_t> written_;
  Finding atClosing_ = Finding::same;
  std::chrono::steady_clock::time_point nextLook_{};
};

/// Opens a database by `open`, which locks it at least once, and again while another program has put another file in
/// its place meanwhile, as a compaction does: `open` had that one's lock to wait for, and then held what nobody else
/// would ever look into. `open` lets go of what it opened before. Raises what it does for a file that stays.
/// `before` is the file that had the name before it was opened; nothing where that cannot change.
void openInPlace(const std::string& path, const std::function<void(const std::optional<FileIdentity>& before)>& open);

/// Locks the file that `database`, just opened by the name `path`, has open, and raises DataAccessError when it is not
/// the file `before` any more: SQLite would find the log of another database beside it by its name, and take it for its
/// own. The first statement takes the lock over, so that nobody exchanges the file before that.
void lockInPlace(sqlite3* database, const std::string& path, const std::optional<FileIdentity>& before);

/// Raises DataAccessError unless `path` is a file, in words plainer than SQLite's "unable to open".
void requireFile(const std::string& path);

/// The error for a finding of `other`, `overwritten` or `otherCompanions`.
DataAccessError exchangedFiles(SqliteFileWatch::Finding finding, const std::string& path);

}  // namespace tarnwick
