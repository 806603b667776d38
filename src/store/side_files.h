// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/file_system.h"

namespace tarnwick {

/// What may lie beside a database and belongs to it alone: beside another one of its name it would damage that one.
inline constexpr const char* kSideFiles[] = {"-wal", "-shm", "-journal"};

/// What lies beside a database only to be given up on a full disk.
inline constexpr const char* kReserve = "-reserve";

/// A copy bears this behind its name until it is whole.
inline constexpr const char* kUnfinished = ".new";

/// Raises FileError.
inline void removeSideFiles(FileSystem& files, const std::string& path) {
  for (const char* const ending : kSideFiles) {
    files.remove(path + ending);
  }
}

}  // namespace tarnwick
