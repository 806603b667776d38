// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

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
  /// transaction, in which this is called once; `forgetLogSize` comes before it, and `logSizeKept` when it is
  /// committed.
  void keepLogWithin(std::uint64_t most) { keepLogWithin(most, kMostEmptiedAtOnce); }
  /// The same for a disk that is too full for it, in small pieces that are each kept. REQUIRES: no transaction.
  void keepLogWithinByPieces(std::uint64_t most);
  /// The transaction has been committed; nothing within another one. So the log is counted once, and then its new rows.
  void logSizeKept();
  /// What was counted and emptied in a transaction before, without `logSizeKept` since, is not so.
  void forgetLogSize() { inTransaction_.reset(); }

 private:
  /// More than the largest page, or a log of the largest pages would grow for ever.
  static constexpr std::uint64_t kMostEmptiedAtOnce = std::uint64_t{96} << 20U;

  /// What is known of the log; none of its rows up to `emptied` holds anything, and those up to `last` hold `bytes`.
  struct LogSize {
    bool known = false;
    std::int64_t emptied = 0;
    std::int64_t last = 0;
    std::uint64_t bytes = 0;
  };

  void keepLogWithin(std::uint64_t most, std::uint64_t atOnce);
  bool isFarBelow(std::uint64_t most);
  void count(LogSize& size);
  void emptyOldest(LogSize& size, std::uint64_t wanted);

  Database& db_;
  FileSystem& files_;
  DataChanges changes_{db_};
  LogSize committed_;
  std::optional<LogSize> inTransaction_;
};

}  // namespace tarnwick
