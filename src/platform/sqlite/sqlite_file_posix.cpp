// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdint>

#include "platform/sqlite/sqlite_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kPageOfSharedMemory = 4096;

std::optional<struct statvfs> diskOfSmallBlocks(const std::string& path) {
  struct statvfs facts {};
  const bool isSuch = ::statvfs(path.c_str(), &facts) == 0 && facts.f_frsize < kPageOfSharedMemory;
  return isSuch ? std::optional(facts) : std::nullopt;
}

// What statfs(2) calls NFS, SMB, SMB2, CIFS, AFS and Ceph.
constexpr std::array<std::uint32_t, 6> kNetworkKinds = {0x6969, 0x517B, 0xFE534D42, 0xFF534D42, 0x5346414F, 0x00C36400};

// What the system has said of the file last, as SQLite keeps it.
int lastErrorOf(const sqlite3_file* file) {
  int error = 0;
  if (file != nullptr && file->pMethods != nullptr) {
    file->pMethods->xFileControl(const_cast<sqlite3_file*>(file), SQLITE_FCNTL_LAST_ERRNO, &error);
  }
  return error;
}

// The same of the database, or of the log or journal beside it.
int lastErrorOf(sqlite3* database, int whichFile) {
  sqlite3_file* file = nullptr;
  return sqlite3_file_control(database, "main", whichFile, &file) == SQLITE_OK ? lastErrorOf(file) : 0;
}

bool couldNotBeRead(sqlite3* database, int whichFile) {
  const int error = lastErrorOf(database, whichFile);
  return error == EIO || error == ENXIO || error == ERANGE;
}

#ifdef F_OFD_SETLK
std::optional<int> commandOfOpening(int command) {
  switch (command) {
    case F_GETLK:
      return F_OFD_GETLK;
    case F_SETLK:
      return F_OFD_SETLK;
    case F_SETLKW:
      return F_OFD_SETLKW;
    default:
      return std::nullopt;
  }
}

// https://www.sqlite.org/walformat.html#wal_locks and the byte behind them that tells who shares the memory at all.
bool isOfSharedMemory(const struct flock& lock) {
  constexpr off_t kFirst = 120;
  constexpr off_t kLast = 128;
  return lock.l_whence == SEEK_SET && lock.l_start >= kFirst && lock.l_start <= kLast;
}

// In place of fcntl(2). The system takes the locks of a process away as soon as anything in it opens and closes the
// file, as a file chooser does that looks what a file is. The next program then takes itself for the first one and cuts
// the memory off that is in use here, which ends this process. A lock of the opening stays; SQLite opens that file
// once.
int controlFile(int descriptor, int command, ...) {
  std::va_list more;
  va_start(more, command);
  void* const argument = va_arg(more, void*);
  va_end(more);
  const std::optional<int> ofOpening = commandOfOpening(command);
  if (ofOpening && isOfSharedMemory(*static_cast<const struct flock*>(argument))) {
    auto& wanted = *static_cast<struct flock*>(argument);
    struct flock lock = wanted;
    lock.l_pid = 0;
    const int result = ::fcntl(descriptor, *ofOpening, &lock);
    // A system or a file system may not know such locks.
    if (result == 0 || errno != EINVAL) {
      wanted = lock;
      return result;
    }
  }
  return ::fcntl(descriptor, command, argument);
}

// True, so that it is done once.
bool keepLocksOfSharedMemory() {
  sqlite3_vfs* const disk = sqlite3_vfs_find("unix");
  if (disk != nullptr && disk->iVersion >= 3) {
    disk->xSetSystemCall(disk, "fcntl", reinterpret_cast<sqlite3_syscall_ptr>(&controlFile));
  }
  return true;
}
#else
bool keepLocksOfSharedMemory() { return true; }
#endif

bool isWantOfRoom(int error) { return error == ENOSPC || error == EDQUOT || error == EFBIG; }

}  // namespace

std::string sqliteFileName(const std::string& path) { return path; }

int openSqliteFile(const std::string& path, int flags, sqlite3** database) {
  [[maybe_unused]] static const bool kept = keepLocksOfSharedMemory();
  return sqlite3_open_v2(path.c_str(), database, flags, nullptr);
}

int causeBehind(int code, sqlite3* database) {
  // A read that the disk refuses comes out as damage, since a damaged file system says the same; but the next read may
  // well succeed, and nobody should put an old copy in the place of a file that is sound.
  if (code == SQLITE_CORRUPT &&
      (couldNotBeRead(database, SQLITE_FCNTL_FILE_POINTER) || couldNotBeRead(database, SQLITE_FCNTL_JOURNAL_POINTER))) {
    return SQLITE_IOERR_READ;
  }
  const bool noRoom = isWantOfRoom(sqlite3_system_errno(database));
  // Of a COMMIT that fails the connection keeps no error of the system's.
  if (code == SQLITE_IOERR_WRITE && (noRoom || isWantOfRoom(lastErrorOf(database, SQLITE_FCNTL_FILE_POINTER)) ||
                                     isWantOfRoom(lastErrorOf(database, SQLITE_FCNTL_JOURNAL_POINTER)))) {
    return SQLITE_FULL;
  }
  // Any failure to make the memory that is shared through a file.
  return code == SQLITE_IOERR_SHMSIZE && !noRoom ? SQLITE_IOERR : code;
}

bool liesOnNetwork(const std::string& path) {
  struct statfs facts {};
  return ::statfs(path.c_str(), &facts) == 0 &&
         std::ranges::find(kNetworkKinds, static_cast<std::uint32_t>(facts.f_type)) != kNetworkKinds.end();
}

std::optional<FileIdentity> identityOf(const std::string& path) {
  struct stat facts {};
  if (::stat(path.c_str(), &facts) != 0) {
    return std::nullopt;
  }
  return FileIdentity{facts.st_dev, facts.st_ino};
}

int openUnchangedSqliteFile(const std::string& path, bool withLog, sqlite3** database) {
  if (withLog) {
    // Without locks: they could be taken only by who may write.
    return sqlite3_open_v2(path.c_str(), database, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, "unix-none");
  }
  std::string name = "file:";
  for (const char character : path) {
    // What has a meaning of its own there.
    if (character == '%' || character == '?' || character == '#') {
      constexpr const char* kDigits = "0123456789abcdef";
      name += '%';
      name += kDigits[static_cast<unsigned char>(character) / 16];
      name += kDigits[static_cast<unsigned char>(character) % 16];
    } else {
      name += character;
    }
  }
  name += "?immutable=1";
  return sqlite3_open_v2(name.c_str(), database, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
}

bool mayWrite(const std::string& path) {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 || (errno != EACCES && errno != EROFS);
}

void shareCompanions(const std::string& path) {
  constexpr mode_t kWriting = S_IWUSR | S_IWGRP | S_IWOTH;
  constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
  struct stat facts {};
  if (::stat(path.c_str(), &facts) != 0) {
    return;
  }
  for (const char* const ending : {"-wal", "-shm"}) {
    const std::string companion = path + ending;
    struct stat own {};
    if (::stat(companion.c_str(), &own) == 0 && (own.st_mode & kWriting) == 0 && (facts.st_mode & kWriting) != 0 &&
        ::chmod(companion.c_str(), facts.st_mode & kRights) != 0) {
      return;  // it is another user's
    }
  }
}

bool mayLackSharedMemory(const std::string& path) {
  constexpr std::uint64_t kEnough = std::uint64_t{128} * 1024;
  const auto disk = diskOfSmallBlocks(path);
  return disk && disk->f_bavail * disk->f_frsize < kEnough;
}

// A page that is written to gets all of its blocks.
void takeSharedMemory(sqlite3* database) {
  constexpr int kFirstRegion = 32768;
  sqlite3_file* file = nullptr;
  volatile void* region = nullptr;
  const std::string path = sqlite3_db_filename(database, "main");
  if (!diskOfSmallBlocks(path) || !mayWrite(path + "-shm") ||
      sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
      file->pMethods == nullptr || file->pMethods->iVersion < 2 ||
      file->pMethods->xShmMap(file, 0, kFirstRegion, 0, &region) != SQLITE_OK || region == nullptr) {
    return;
  }
  auto* const bytes = static_cast<volatile char*>(region);
  for (std::size_t at = 0; at < kFirstRegion; at += kPageOfSharedMemory) {
    // Leaves what others write there as it is.
    __atomic_fetch_or(bytes + at, char{0}, __ATOMIC_RELAXED);
  }
}

std::optional<std::int64_t> writtenAt(const std::string& path) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  struct stat facts {};
  if (::stat(path.c_str(), &facts) != 0) {
    return std::nullopt;
  }
#ifdef __APPLE__
  const timespec& time = facts.st_mtimespec;
#else
  const timespec& time = facts.st_mtim;
#endif
  return time.tv_sec * kSecond + time.tv_nsec;
}

}  // namespace tarnwick
