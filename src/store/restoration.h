// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/run_lock.h"
#include "platform/sql_connection.h"

namespace tarnwick {

/// Puts a copy of the list in the place of the one in a program folder, which may be damaged or missing.
class Restoration {
 public:
  /// Opens nothing yet; `programFolder` has no trailing separator.
  Restoration(std::string programFolder, SqlConnectionMaker& databases, FileSystem& files, const Clock& clock,
              RunLockMaker& runLocks);

  struct Outcome {
    std::int64_t sites = 0;
    /// Where the list from before is kept, with its log; empty when there was none.
    std::string kept;
  };

  /// Replaces the list by a copy of `file`, which stays as it is. At every moment the folder has the whole list from
  /// before or the whole new one under the list's name; only where the one from before cannot be read, or there is no
  /// room for two, it has none for an instant.
  ///
  /// Raises std::runtime_error, with nothing changed, when `file` is the list itself, damaged, or no list of this
  /// program or an older one, when a run is on, and when another program has the list open; FileError when something
  /// cannot be read or written.
  Outcome restore(const std::string& file);

  /// Removes what one that was killed has left behind. REQUIRES: none is at work.
  static void removeRemains(FileSystem& files, const std::string& list) noexcept;

 private:
  void keepRunsOut();
  void refuseOtherThanCopies(const std::string& file) const;
  void copyBeside(const std::string& file, const std::string& like);
  std::int64_t check(const std::string& file);
  std::string keep(std::unique_ptr<HeldFile>& held);

  std::string folder_;
  SqlConnectionMaker& databases_;
  FileSystem& files_;
  const Clock& clock_;
  std::unique_ptr<RunLock> runLock_;
  /// The list's own name, and the one behind all links.
  std::string list_;
  std::string live_;
};

}  // namespace tarnwick
