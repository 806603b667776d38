// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace tarnwick {

/// The right to run on a program folder: at most one process has it at a time, since two runs would check each site
/// twice. Given back at the end of this object's life.
class RunLock {
 public:
  virtual ~RunLock() = default;

  /// Takes the right; nothing when this object has it already. Raises std::runtime_error, which names the process that
  /// has it, and FileError when the folder cannot be written.
  virtual void take() = 0;
  virtual void release() noexcept = 0;
};

class RunLockMaker {
 public:
  virtual ~RunLockMaker() = default;
  /// The lock of the program folder, not taken yet.
  virtual std::unique_ptr<RunLock> makeRunLock(const std::string& programFolder) = 0;
};

}  // namespace tarnwick
