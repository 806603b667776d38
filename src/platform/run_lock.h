// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "base/errors.h"

namespace tarnwick {

/// Another process has the right to run.
class RunIsOn : public std::runtime_error {
 public:
  RunIsOn(const std::string& folder, std::string holder, const std::string& lockFile)
      : std::runtime_error("A run is on in this folder already: " + holder + " checks the sites of " + folder +
                           ", and a second run would check each of them twice. " + remedyFor(lockFile)),
        holder_(std::move(holder)),
        remedy_(remedyFor(lockFile)) {}

  /// Which process, as far as that is known.
  const std::string& holder() const noexcept { return holder_; }
  const std::string& remedy() const noexcept { return remedy_; }

 private:
  static std::string remedyFor(const std::string& lockFile) {
    return "Stop that run first; when no such process exists on that machine any more, remove " + lockFile + ".";
  }

  std::string holder_;
  std::string remedy_;
};

/// Nobody can be given the right to run on the folder.
class NoRunLock : public FileError {
 public:
  NoRunLock(const std::string& lockFile, std::string reason, std::string remedy)
      : FileError(lockFile, reason + ", so no run can be started in it." + remedy),
        reason_(std::move(reason)),
        remedy_(std::move(remedy)) {}

  /// Why, without what follows from it.
  const std::string& reason() const noexcept { return reason_; }
  const std::string& remedy() const noexcept { return remedy_; }

 private:
  std::string reason_;
  std::string remedy_;
};

/// The right to run on a program folder: at most one process has it at a time, since two runs would check each site
/// twice. Given back at the end of this object's life.
class RunLock {
 public:
  virtual ~RunLock() = default;

  /// Takes the right; nothing when this object has it already. Raises RunIsOn, and NoRunLock when the folder cannot be
  /// written.
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
