#pragma once

#include <memory>
#include <string>

#include "platform/run_lock.h"

namespace tarnwick {

/// The lock as the file "tarnwick.lock" in the folder; what a killed process left there does not count.
class FileRunLock final : public RunLock {
 public:
  explicit FileRunLock(std::string programFolder);
  ~FileRunLock() override;
  FileRunLock(const FileRunLock&) = delete;
  FileRunLock& operator=(const FileRunLock&) = delete;

  void take() override;
  void release() noexcept override;

 private:
  struct File;
  std::string folder_;
  std::unique_ptr<File> file_;
};

class FileRunLocks final : public RunLockMaker {
 public:
  std::unique_ptr<RunLock> makeRunLock(const std::string& programFolder) override {
    return std::make_unique<FileRunLock>(programFolder);
  }
};

}  // namespace tarnwick
