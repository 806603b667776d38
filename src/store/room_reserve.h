// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/file_system.h"
#include "store/database.h"

namespace tarnwick {

/// A file beside the list, there only to be given up: on a full disk whatever frees room needs a little of it itself.
class RoomReserve {
 public:
  RoomReserve(Database& database, FileSystem& files) : db_(database), files_(files) {}

  /// Whether a disk has so little room that it should be spared: less than 1 GiB, or less than 5 %.
  static bool isLittle(const DiskRoom& room);

  /// Lays the reserve, up to 1 MiB, where the disk has little room; removes it where there is more than twice as much
  /// as that. Where neither can be done there is none.
  void keepReserve() noexcept;

  /// Runs `action`, which frees room in the list. Where the disk has no room for that, it is run again with the
  /// reserve given up; inside a transaction that is left to its owner.
  void runFreeing(const std::function<void()>& action);
  /// Gives the reserve up for `action`.
  void runWithoutReserve(const std::function<void()>& action);

 private:
  const std::string& path();
  void giveUp() noexcept;

  Database& db_;
  FileSystem& files_;
  std::string path_{};
};

}  // namespace tarnwick
