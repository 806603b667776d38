// SPDX-License-Identifier: MIT
#include "store/kept_pages.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "store/room_reserve.h"

namespace tarnwick {
namespace {

/// What is emptied at once on a full disk.
constexpr std::uint64_t kPiece = std::uint64_t{1} << 20U;

/// Only a check that failed has logged a page.
constexpr const char* kContents =
    "select rowid, storedBytes('log', 'content', rowid) from log where rowid > ?1 and status = 0 order by rowid";

}  // namespace

bool KeptPages::hasRoomForPages() {
  const auto room = files_.roomAt(db_.dbPath());
  return !room || !RoomReserve::isLittle(*room);
}

void KeptPages::keepLogWithin(std::uint64_t most, std::uint64_t atOnce) {
  inTransaction_.reset();
  if (isFarBelow(most)) {
    return;
  }
  LogSize size = committed_;
  count(size);
  if (size.bytes > most && changes_.byOthers()) {
    // Another program may have emptied some of them, or all.
    size = {};
    count(size);
  }
  if (size.bytes > most) {
    emptyOldest(size, std::min(size.bytes - most, atOnce));
  }
  inTransaction_ = size;
}

void KeptPages::logSizeKept() {
  if (inTransaction_ && !db_.conn().inTransaction()) {
    committed_ = *std::exchange(inTransaction_, std::nullopt);
  }
}

// A log holds no more than its file does; and one of years takes long to be counted. What is being stored may not be in
// the file yet.
bool KeptPages::isFarBelow(std::uint64_t most) {
  try {
    const std::string log = db_.dbPath() + "-wal";
    const std::uint64_t bytes = files_.sizeOf(db_.dbPath()) + (files_.exists(log) ? files_.sizeOf(log) : 0);
    return bytes + kMostEmptiedAtOnce <= most;
  } catch (const FileError&) {
    return false;
  }
}

// Each piece takes the place of the one before in the log beside the database.
void KeptPages::keepLogWithinByPieces(std::uint64_t most) {
  for (std::uint64_t emptied = 0; emptied < kMostEmptiedAtOnce; emptied += kPiece) {
    Transaction piece(db_);
    keepLogWithin(most, kPiece);
    piece.commit();
    logSizeKept();
    db_.conn().execute("pragma wal_checkpoint(passive)", {})->close();
    if (committed_.bytes <= most) {
      return;
    }
  }
}

void KeptPages::count(LogSize& size) {
  const auto newest = db_.conn().execute("select coalesce(max(rowid), 0) from log", {});
  const std::int64_t last = newest->field(std::size_t{0}).toInt64();
  newest->close();
  if (!size.known || last < size.last) {
    changes_.byOthers();
    size = {.known = true};
  }
  const SqlValue from(size.last);
  const auto rows = db_.conn().execute(kContents, {&from, 1});
  for (; !rows->eof(); rows->moveNext()) {
    size.bytes += static_cast<std::uint64_t>(rows->field(std::size_t{1}).toInt64());
  }
  size.last = last;
}

void KeptPages::emptyOldest(LogSize& size, std::uint64_t wanted) {
  std::vector<std::int64_t> oldest;
  std::uint64_t freed = 0;
  const SqlValue from(size.emptied);
  const auto rows = db_.conn().execute(kContents, {&from, 1});
  for (; !rows->eof() && freed < wanted; rows->moveNext()) {
    const auto bytes = static_cast<std::uint64_t>(rows->field(std::size_t{1}).toInt64());
    size.emptied = rows->field(std::size_t{0}).toInt64();
    if (bytes > 0) {
      freed += bytes;
      oldest.push_back(size.emptied);
    }
  }
  rows->close();
  for (const std::int64_t row : oldest) {
    const SqlValue id(row);
    db_.conn().execute("update log set content = '' where rowid = ?1", {&id, 1})->close();
  }
  size.bytes -= std::min(freed, size.bytes);
}

}  // namespace tarnwick
