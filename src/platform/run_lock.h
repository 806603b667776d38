#pragma once

#include <memory>
#include <string>

namespace tarnwick {

/// The right to run on a program folder: at most one process has it at a time, since two runs would check each site
/// twice. It is the file "tarnwick.lock" in the folder; what a killed process left there does not count.
class RunLock {
 public:
  explicit RunLock(std::string programFolder);
  ~RunLock();
  RunLock(const RunLock&) = delete;
  RunLock& operator=(const RunLock&) = delete;

  /// Takes the right; nothing when this object has it already. Raises std::runtime_error, which names the process that
  /// has it, and FileError when the folder cannot be written.
  void take();
  void release() noexcept;

 private:
  struct File;
  std::string folder_;
  std::unique_ptr<File> file_;
};

}  // namespace tarnwick
