#include "platform/process/file_run_lock.h"

#include <stdexcept>
#include <utility>
#include <QFile>
#include <QLockFile>
#include <QString>

#include "base/errors.h"

namespace tarnwick {
namespace {

constexpr const char* kLockFile = "/tarnwick.lock";
/// Within this time whoever makes the file has written its name into it.
constexpr int kNamingMs = 300;

std::string holderOf(const QLockFile& lock) {
  qint64 process = 0;
  QString host;
  QString program;
  if (!lock.getLockInfo(&process, &host, &program)) {
    return "another program";
  }
  return (program.isEmpty() ? std::string("a program") : program.toStdString()) + " (process " +
         std::to_string(process) + (host.isEmpty() ? "" : " on " + host.toStdString()) + ")";
}

/// Tries to take the lock. A file without a name in it, as a process leaves that was killed between making the file and
/// writing to it, would otherwise stand in the way for ever.
bool tryToTake(QLockFile& lock) {
  qint64 process = 0;
  QString host;
  QString program;
  if (lock.tryLock(0)) {
    return true;
  }
  if (lock.error() != QLockFile::LockFailedError || lock.getLockInfo(&process, &host, &program)) {
    return false;
  }
  if (lock.tryLock(kNamingMs)) {
    return true;
  }
  // Fails while a process has the file open as its own.
  return lock.error() == QLockFile::LockFailedError && !lock.getLockInfo(&process, &host, &program) &&
         lock.removeStaleLockFile() && lock.tryLock(0);
}

/// Removes what a process leaves that is killed while it takes over the lock of another one that was killed.
void removeLeftTakeOvers(const QString& path) {
  for (const char* ending : {".rmlock.rmlock", ".rmlock"}) {
    const QString left = path + QLatin1String(ending);
    if (QFile::exists(left)) {
      QLockFile takeOver(left);
      tryToTake(takeOver);  // and removed at the end of its life, unless a living process is just at it
    }
  }
}

}  // namespace

struct FileRunLock::File {
  explicit File(const std::string& path) : lock(QString::fromStdString(path)) {
    // A run may last for years: only a process that is gone loses its right.
    lock.setStaleLockTime(0);
  }
  QLockFile lock;
};

FileRunLock::FileRunLock(std::string programFolder) : folder_(std::move(programFolder)) {}
FileRunLock::~FileRunLock() = default;

void FileRunLock::take() {
  if (file_) {
    return;
  }
  const std::string path = folder_ + kLockFile;
  auto file = std::make_unique<File>(path);
  if (tryToTake(file->lock)) {
    // Whoever could write it could let a second run in.
    QFile::setPermissions(QString::fromStdString(path), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    removeLeftTakeOvers(QString::fromStdString(path));
    file_ = std::move(file);
    return;
  }
  switch (file->lock.error()) {
    case QLockFile::LockFailedError:
      throw std::runtime_error("A run is on in this folder already: " + holderOf(file->lock) + " checks the sites of " +
                               folder_ +
                               ", and a second run would check each of them twice. Stop that run first; when no such "
                               "process exists on that machine any more, remove " +
                               path + ".");
    case QLockFile::PermissionError:
      throw FileError(path, "The folder cannot be written, so no run can be started in it.");
    default:
      throw FileError(path, "The file could not be written, so no run can be started. The disk may be full.");
  }
}

void FileRunLock::release() noexcept { file_.reset(); }

}  // namespace tarnwick
