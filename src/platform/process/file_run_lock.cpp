// SPDX-License-Identifier: MIT
#include "platform/process/file_run_lock.h"

#include <sstream>
#include <utility>
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QSysInfo>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/os/open_file.h"
#include "platform/run_lock_file.h"

namespace tarnwick {
namespace {

std::string thisProcess() {
  return std::to_string(QCoreApplication::applicationPid()) + "\n" +
         QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName().toStdString() + "\n" +
         QSysInfo::machineHostName().toStdString() + "\n";
}

/// Who has the lock, as far as its file tells.
std::string holderIn(const std::string& path) {
  constexpr std::size_t kMostBytes = 1000;
  std::string text;
  try {
    LocalFiles().open(path)->read(text, kMostBytes);
  } catch (const FileError&) {
    return "another program";
  }
  std::istringstream lines(text);
  std::string process;
  std::string program;
  std::string host;
  if (!std::getline(lines, process) || !std::getline(lines, program) || !std::getline(lines, host)) {
    return "another program";
  }
  return (program.empty() ? "a program" : program) + " (process " + process + (host.empty() ? "" : " on " + host) + ")";
}

class FileRunLock final : public RunLock {
 public:
  explicit FileRunLock(const std::string& programFolder)
      : folder_(programFolder), path_(programFolder + "/" + kRunLockFile) {}
  ~FileRunLock() override { release(); }
  FileRunLock(const FileRunLock&) = delete;
  FileRunLock& operator=(const FileRunLock&) = delete;

  void take() override {
    if (file_) {
      return;
    }
    FileHandle file = open();
    if (!file) {
      throw RunIsOn(folder_, holderIn(path_), path_);
    }
    file_ = std::move(file);
    // What stands in the file only tells others who has it. A full disk, on which sites must be watched all the same,
    // may have no room for that.
    std::fputs(thisProcess().c_str(), file_.get());
    std::fflush(file_.get());
  }

  void release() noexcept override {
    LocalFiles files;
    if (file_ && files.replacesOpenFiles()) {
      try {
        // While it is still locked: afterwards it may be another one's. So it is where somebody has taken it away.
        if (standsAt(file_.get(), path_)) {
          files.remove(path_);
        }
      } catch (const std::exception&) {
        // One that is left does not count.
      }
    }
    file_.reset();
  }

 private:
  /// Nothing when another process has it. So it is taken for a file that this user may not open: it may be in use.
  FileHandle open() const {
    try {
      return openAlone(path_);
    } catch (const NoFileLocks& error) {
      throw NoRunLock(path_, "The file system of this folder has no locks (" + error.cause() + ")",
                      " Move the folder to another disk.");
    } catch (const FileError&) {
      if (LocalFiles().exists(path_)) {
        return nullptr;
      }
      throw NoRunLock(path_, "The folder cannot be written", "");
    }
  }

  std::string folder_;
  std::string path_;
  FileHandle file_;
};

}  // namespace

std::unique_ptr<RunLock> FileRunLocks::makeRunLock(const std::string& programFolder) {
  return std::make_unique<FileRunLock>(programFolder);
}

}  // namespace tarnwick
