// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/file_system.h"
#include "store/data_changes.h"
#include "store/database.h"

namespace tarnwick {

/// Keeps what is stored of fetched pages from filling the disk. Every failed statement raises DataAccessError.
class KeptPages {
 public:
  KeptPages(Database& database, FileSystem& files) : db_(database), files_(files) {}

  /// False while less than 1 GiB, or less than 5 %, of the database's disk is free.
  bool hasRoomForPages();

  /// Empties the oldest contents of the log, until those that are left have `most` bytes together. Of a log that is far
  /// beyond that only a part is emptied at a time, so that nobody waits long. The rows themselves stay. REQUIRES: a
  /// transaction; when it is taken back, `forgetLogSize` follows.
  void keepLogWithin(std::uint64_t most) { keepLogWithin(most, kMostEmptiedAtOnce); }
  /// The same for a disk that is too full for it, in small pieces that are each kept. REQUIRES: no transaction.
  void keepLogWithinByPieces(std::uint64_t most);
  /// What is known of the log's size counts no longer.
  void forgetLogSize() { known_ = false; }

 private:
  /// More than the largest page, or a log of the largest pages would grow for ever.
  static constexpr std::uint64_t kMostEmptiedAtOnce = std::uint64_t{96} << 20U;

  void keepLogWithin(std::uint64_t most, std::uint64_t atOnce);
  void count();
  void emptyOldest(std::uint64_t wanted);

  Database& db_;
  FileSystem& files_;
  DataChanges changes_{db_};
  // What is known of the log; none of its rows up to `emptied_` holds anything, and those up to `last_` hold `bytes_`.
  bool known_ = false;
  std::int64_t emptied_ = 0;
  std::int64_t last_ = 0;
  std::uint64_t bytes_ = 0;
};

}  // namespace tarnwick
