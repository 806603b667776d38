// SPDX-License-Identifier: MIT
#include "store/kept_pages.h"

#include <algorithm>
#include <array>
#include <vector>

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
  count();
  if (bytes_ > most && changes_.byOthers()) {
    // Another program may have emptied some of them, or all.
    known_ = false;
    count();
  }
  if (bytes_ > most) {
    emptyOldest(std::min(bytes_ - most, atOnce));
  }
}

// Each piece takes the place of the one before in the log beside the database.
void KeptPages::keepLogWithinByPieces(std::uint64_t most) {
  known_ = false;
  for (std::uint64_t emptied = 0; emptied < kMostEmptiedAtOnce && (!known_ || bytes_ > most); emptied += kPiece) {
    Transaction piece(db_);
    keepLogWithin(most, kPiece);
    piece.commit();
    db_.conn().execute("pragma wal_checkpoint(passive)", {})->close();
  }
}

void KeptPages::count() {
  const auto newest = db_.conn().execute("select coalesce(max(rowid), 0) from log", {});
  const std::int64_t last = newest->field(std::size_t{0}).toInt64();
  newest->close();
  if (!known_ || last < last_) {
    changes_.byOthers();
    known_ = true;
    emptied_ = last_ = 0;
    bytes_ = 0;
  }
  const SqlValue from(last_);
  const auto rows = db_.conn().execute(kContents, {&from, 1});
  for (; !rows->eof(); rows->moveNext()) {
    bytes_ += static_cast<std::uint64_t>(rows->field(std::size_t{1}).toInt64());
  }
  last_ = last;
}

void KeptPages::emptyOldest(std::uint64_t wanted) {
  std::vector<std::int64_t> oldest;
  std::uint64_t freed = 0;
  const SqlValue from(emptied_);
  const auto rows = db_.conn().execute(kContents, {&from, 1});
  for (; !rows->eof() && freed < wanted; rows->moveNext()) {
    const auto bytes = static_cast<std::uint64_t>(rows->field(std::size_t{1}).toInt64());
    emptied_ = rows->field(std::size_t{0}).toInt64();
    if (bytes > 0) {
      freed += bytes;
      oldest.push_back(emptied_);
    }
  }
  rows->close();
  for (const std::int64_t row : oldest) {
    const SqlValue id(row);
    db_.conn().execute("update log set content = '' where rowid = ?1", {&id, 1})->close();
  }
  bytes_ -= std::min(freed, bytes_);
}

}  // namespace tarnwick
