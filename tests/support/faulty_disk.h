// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <string>

namespace tarnwick::testing {

/// The disk under the SQLite files of this process, whose operations can be made to fail. It serves the files that are
/// opened while it lives; what it does not make fail is carried out on the real disk. One at a time; it outlives the
/// connections that were opened on it.
class FaultyDisk {
 public:
  enum class Operation { read, write, sync, truncate, sharedMemory, lock, open };
  enum class Failure {
    broken,     ///< the device reports an error
    full,       ///< no space is left
    shortRead,  ///< no byte comes, as behind the end of a file that was cut
  };

  static constexpr int kForEver = std::numeric_limits<int>::max();

  FaultyDisk();
  ~FaultyDisk();
  FaultyDisk(const FaultyDisk&) = delete;
  FaultyDisk& operator=(const FaultyDisk&) = delete;

  /// Makes `count` operations of a kind fail, from the `first` one on (1 is the next).
  void failAt(Operation operation, Failure failure, int first, int count = 1);
  /// The same for operations of every kind.
  void failAtAny(Failure failure, int first, int count = 1);
  /// Leaves so many bytes free on the disk: what needs more fails for want of room. What is cut off or removed gives
  /// room back.
  void leaveRoom(std::int64_t bytes);
  /// Nothing fails any more.
  void heal();
  /// How many operations have failed since the last `failAt`.
  int failures() const;
};

}  // namespace tarnwick::testing
