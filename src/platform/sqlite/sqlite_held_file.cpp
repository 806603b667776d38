// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_held_file.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "platform/sqlite/sqlite_errors.h"
#include "platform/sqlite/sqlite_file_watch.h"

namespace tarnwick {

void readWhole(sqlite3* database, const std::string& path, const ByteSink& sink) {
  constexpr int kPieceSize = 1 << 20;
  sqlite3_file* file = nullptr;
  sqlite3_int64 size = 0;
  int result = sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (result == SQLITE_OK) {
    result = file->pMethods->xFileSize(file, &size);
  }
  std::vector<char> piece(kPieceSize);
  for (sqlite3_int64 done = 0; result == SQLITE_OK && done < size;) {
    const int length = static_cast<int>(std::min<sqlite3_int64>(kPieceSize, size - done));
    result = file->pMethods->xRead(file, piece.data(), length, done);
    if (result == SQLITE_OK) {
      sink({piece.data(), static_cast<std::size_t>(length)});
    }
    done += length;
  }
  if (result != SQLITE_OK) {
    throw sqliteError(result, sqlite3_errstr(result), path);
  }
}

SqliteHeldFile::SqliteHeldFile(std::string path) : path_(std::move(path)) {
  openInPlace(path_, [this](const auto& before) {
    handle_.reset();
    requireFile(path_);
    handle_ = openDatabase(path_, SQLITE_OPEN_READWRITE);
    lockInPlace(handle_.get(), path_, before);
    lock();
  });
}

// A connection with a log has the reader's lock for as long as it is open.
void SqliteHeldFile::lock() const {
  constexpr int kPauseMs = 20;
  sqlite3_file* file = nullptr;
  int result = sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
  for (int waited = 0; result == SQLITE_OK; waited += kPauseMs) {
    result = file->pMethods->xLock(file, SQLITE_LOCK_SHARED);
    if (result == SQLITE_OK) {
      result = file->pMethods->xLock(file, SQLITE_LOCK_EXCLUSIVE);
    }
    if (result == SQLITE_OK) {
      return;
    }
    // Two that wait with it locked would wait for each other.
    file->pMethods->xUnlock(file, SQLITE_LOCK_NONE);
    if (result == SQLITE_BUSY && waited < kBusyPatienceMs) {
      sqlite3_sleep(kPauseMs);
      result = SQLITE_OK;
    }
  }
  throw sqliteError(result, sqlite3_errstr(result), path_);
}

}  // namespace tarnwick
