// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

/// The file that `database` has open: SQLite keeps the other ones beside it, wherever links led to it.
std::string realName(sqlite3* database);

/// The first bytes of a database file. https://www.sqlite.org/fileformat2.html
class SqliteHeader {
 public:
  static constexpr std::size_t kSize = 100;

  /// Of the file that `database` has open, whatever has taken its name since; zeros behind the end of a short one.
  /// Nothing when it cannot be read.
  static std::optional<SqliteHeader> of(sqlite3* database);
  /// Of a page that begins at `page`.
  static SqliteHeader at(const unsigned char* page);

  bool isDatabase() const;
  /// Whether changes go through a write-ahead log.
  bool usesLog() const { return bytes_[kVersions] == 2 && bytes_[kVersions + 1] == 2; }
  /// Whether the file says for certain that it has no log.
  bool hasNoLog() const { return bytes_[kVersions] == 1 && bytes_[kVersions + 1] == 1; }
  /// Counts the changes of this page: never goes back, but that it may stand still for one connection's.
  std::uint32_t changes() const;
  std::uint32_t pages() const;
  bool operator==(const SqliteHeader&) const = default;

 private:
  static constexpr std::size_t kVersions = 18;

  std::array<unsigned char, kSize> bytes_{};
};

/// What a write-ahead log says of the database that it belongs to.
struct LogFacts {
  using Salts = std::array<unsigned char, 8>;

  /// Changes whenever the log is begun anew. Nothing in an empty log.
  std::optional<Salts> salts;
  /// Whether the header that was asked for is that of a first page in the log.
  bool holdsHeader = false;
  /// What the first of these first pages counts.
  std::optional<std::uint32_t> firstChanges;
  /// How many pages the database has after the last transaction; nothing where none is complete.
  std::optional<std::uint32_t> pages;

  /// Whether the file with the header that was asked for can be the one that the log belongs to.
  bool canBelongTo(const SqliteHeader& header) const;
};

/// How far a log has been brought over into its database, as those who have it open tell each other.
struct LogProgress {
  LogFacts::Salts salts{};
  std::uint32_t done = 0;
  /// Written down before the first page is brought over.
  std::uint32_t begun = 0;

  bool isAtRest() const { return done == begun; }
  bool operator==(const LogProgress&) const = default;
};

/// Where a log ends and what it sums up to, as those who have it open tell each other: each change that is committed
/// makes it another one.
using LogEnd = std::array<unsigned char, 48>;

/// Of the log that `database`, which uses one, has open: a look into the memory that they share. Nothing where there is
/// none.
std::optional<LogEnd> endOfOpenLog(sqlite3* database);
/// Whether the log that ended at `before` has grown to so many pages, and has not been begun anew.
bool hasGrownTo(std::uint32_t pages, const LogEnd& before, const LogEnd& now);

/// Of the log that `database`, which uses one, has open. Nothing where it cannot be told.
std::optional<LogProgress> progressOfOpenLog(sqlite3* database);

/// Of the log that `database` has open, whatever has become of its name. Nothing when it cannot be read.
std::optional<LogFacts> factsOfOpenLog(sqlite3* database, const SqliteHeader& wanted);
/// What the log that `database` has open was begun with. It costs next to nothing.
std::optional<LogFacts::Salts> saltsOfOpenLog(sqlite3* database);

/// Moves a log away that does not belong to the database at `path`, which `database` has just opened and not looked
/// into yet: that of a file which was there before a copy was put in its place. SQLite would write its pages into the
/// copy. It is kept as ".old". Raises DataAccessError when it cannot be moved.
void setForeignLogAside(sqlite3* database, const std::string& path);

/// Moves the log of the database file at `path`, behind all links, out of its way, and removes the memory that is
/// shared by those who read it. Raises FileError.
void setLogAside(const std::string& path);

}  // namespace tarnwick
