// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_file_watch.h"

#include <algorithm>
#include <cstdint>
#include <exception>

#include "platform/local_files.h"
#include "platform/sqlite/sqlite_database.h"
#include "platform/sqlite/sqlite_errors.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds kPause{100};

/// What cannot be looked at may hold something.
bool holdsNothing(const std::string& path) noexcept {
  try {
    return !LocalFiles().exists(path) || LocalFiles().sizeOf(path) == 0;
  } catch (const std::exception&) {
    return false;
  }
}

/// Some file systems keep times less exactly than the system does in its memory.
bool isSameTime(std::int64_t before, std::int64_t now) noexcept {
  constexpr std::int64_t kGrains[] = {1, 100, 1'000, 1'000'000, 10'000'000, 1'000'000'000, 2'000'000'000};
  return std::ranges::any_of(kGrains, [&](std::int64_t grain) { return now == before - before % grain; });
}

}  // namespace

SqliteFileWatch::SqliteFileWatch(const std::string& path, sqlite3* database)
    : database_(path), log_(realName(database) + "-wal"), sharedMemory_(realName(database) + "-shm"), open_(database) {
  remember();
}

// The salts come first here and in each look: a log that was begun anew in between is then taken for another one, of
// which less is expected.
void SqliteFileWatch::remember() noexcept {
  salts_ = saltsOfOpenLog(open_);
  header_ = SqliteHeader::of(open_);
  progress_.reset();
  isOverwritten();
}

SqliteFileWatch::Finding SqliteFileWatch::look() noexcept {
  if (database_.isGone()) {
    return identityOf(database_.path) ? Finding::other : Finding::missing;
  }
  if (isOverwritten()) {
    return Finding::overwritten;
  }
  return log_.isGone() || sharedMemory_.isGone() ? Finding::otherCompanions : Finding::same;
}

SqliteFileWatch::Finding SqliteFileWatch::lookNowAndThen() noexcept {
  const auto now = std::chrono::steady_clock::now();
  if (now < nextLook_) {
    return Finding::same;
  }
  const Finding finding = look();
  if (finding == Finding::same) {
    nextLook_ = now + kPause;
  }
  return finding;
}

// While there is a log, only pages of it come into the file, and nobody takes the log away. Without one SQLite itself
// looks whether the file was changed.
bool SqliteFileWatch::isOverwritten() noexcept {
  return header_ && header_->usesLog() && (hasOtherBeginning() || wasWrittenWithoutLog());
}

bool SqliteFileWatch::hasOtherBeginning() noexcept {
  constexpr int kLooks = 3;
  for (int look = 1; look <= kLooks; ++look) {
    const auto salts = saltsOfOpenLog(open_);
    const auto header = SqliteHeader::of(open_);
    if (!header) {
      return false;
    }
    if (header == header_ || !isWrittenByOthers(*header)) {
      salts_ = salts;
      header_ = header;
      return false;
    }
    // What is not so at a second look was another program at work.
    if (SqliteHeader::of(open_) == header && saltsOfOpenLog(open_) == salts) {
      return true;
    }
  }
  return false;
}

// A copy from before the first change that is in the log begins as the file does. Whoever brings the log over says so
// before: looked at in this order, no page has been written by him when he seems to be at rest on both sides.
bool SqliteFileWatch::wasWrittenWithoutLog() noexcept {
  const auto before = progressOfOpenLog(open_);
  const auto written = writtenAt(database_.path);
  const auto after = progressOfOpenLog(open_);
  if (!before || !written || before != after || !before->isAtRest()) {
    progress_.reset();
    return false;
  }
  if (progress_ == before && written_ && !isSameTime(*written_, *written)) {
    return true;
  }
  progress_ = before;
  written_ = written;
  return false;
}

bool SqliteFileWatch::isWrittenByOthers(const SqliteHeader& header) const noexcept {
  if (!header.isDatabase() || !header.usesLog()) {
    return true;
  }
  const auto facts = factsOfOpenLog(open_, header);
  if (!facts) {
    return false;
  }
  const auto counted = static_cast<std::int32_t>(header.changes() - header_->changes());
  return counted < 0 || !(facts->salts == salts_ ? facts->holdsHeader : facts->canBelongTo(header));
}

// A database that has moved SQLite leaves as it is when it closes the files, and the log in its place.
void SqliteFileWatch::beforeClosing() noexcept {
  atClosing_ = look();
  switch (atClosing_) {
    case Finding::other:
      // So that the one that was moved out of the way is complete.
      sqlite3_wal_checkpoint_v2(open_, "main", SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
      break;
    case Finding::overwritten:
      sqlite3_db_config(open_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
      break;
    case Finding::otherCompanions:
      // SQLite takes its log in only while nobody else has the database open. Where others have begun a log since,
      // that one counts; an empty one holds nothing. The own one, if it is still in its place, is found there later.
      if (!holdsNothing(log_.path)) {
        sqlite3_db_config(open_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
      }
      break;
    default:
      break;
  }
}

void SqliteFileWatch::afterClosing() const noexcept {
  const bool isForeign = atClosing_ == Finding::other || atClosing_ == Finding::overwritten;
  if (!isForeign || !log_.isInPlace()) {
    return;
  }
  try {
    LocalFiles().rename(log_.path, log_.path + ".old");
    if (sharedMemory_.isInPlace()) {
      LocalFiles().remove(sharedMemory_.path);
    }
  } catch (const std::exception&) {
    // Who may not change the folder cannot open the database either.
  }
}

void openInPlace(const std::string& path, const std::function<void(const std::optional<FileIdentity>& before)>& open) {
  constexpr int kMostTries = 50;
  for (int tries = 1;; ++tries) {
    const auto before = identityOf(path);
    const bool last = tries == kMostTries;
    try {
      open(before);
      if (last || identityOf(path) == before) {
        return;
      }
    } catch (const DataAccessError&) {
      if (last || identityOf(path) == before) {
        throw;
      }
    }
  }
}

void lockInPlace(sqlite3* database, const std::string& path, const std::optional<FileIdentity>& before) {
  constexpr int kPauseMs = 5;
  sqlite3_file* file = nullptr;
  if (!before || sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK) {
    return;
  }
  int result = file->pMethods->xLock(file, SQLITE_LOCK_SHARED);
  for (int waited = 0; result == SQLITE_BUSY && waited < kBusyPatienceMs; waited += kPauseMs) {
    sqlite3_sleep(kPauseMs);
    result = file->pMethods->xLock(file, SQLITE_LOCK_SHARED);
  }
  if (result == SQLITE_BUSY) {
    throw sqliteError(result, sqlite3_errstr(result), path);
  }
  if (identityOf(path) != before) {
    file->pMethods->xUnlock(file, SQLITE_LOCK_NONE);
    throw exchangedFiles(SqliteFileWatch::Finding::other, path);
  }
}

void requireFile(const std::string& path) {
  const FileKind kind = LocalFiles().kindOf(path);
  if (kind == FileKind::none) {
    throw DataAccessError(
        "The database " + path + " is missing. Put the file back, for instance by copying backup.mdb to its name.", "");
  }
  if (kind == FileKind::folder) {
    throw DataAccessError("The database " + path + " is a folder. Put the database file in its place.", "");
  }
  // Where the folder may not be looked into, SQLite says so.
  if (kind == FileKind::pipe || (kind == FileKind::other && LocalFiles().exists(path))) {
    throw DataAccessError("The database " + path +
                              " is no file: a device, a pipe or a link that leads in a circle has its name. Put the "
                              "database file in its place.",
                          "");
  }
}

DataAccessError exchangedFiles(SqliteFileWatch::Finding finding, const std::string& path) {
  static const std::string kAdvice =
      " What was stored last may be lost. From now on the files that are there are used: look whether they are the "
      "right ones, and try again. Close every Tarnwick before you touch them.";
  if (finding != SqliteFileWatch::Finding::otherCompanions) {
    return {"The database " + path + " was exchanged for another file while it was in use." + kAdvice, ""};
  }
  return {"The files " + path + "-wal and -shm, which belong to the database, were removed or exchanged while it was " +
              "in use." + kAdvice,
          ""};
}

}  // namespace tarnwick
