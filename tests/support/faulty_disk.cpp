// SPDX-License-Identifier: MIT
#include "support/faulty_disk.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

namespace tarnwick::testing {
namespace {

using Operation = FaultyDisk::Operation;
using Failure = FaultyDisk::Failure;

/// Which operations fail. SQLite knows one default disk a process, so there is one of these.
struct Plan {
  bool armed = false;
  std::optional<Operation> operation;
  Failure failure = Failure::broken;
  int first = 0;
  int count = 0;
  int seen = 0;
  int failed = 0;
  std::optional<std::int64_t> room{};

  bool takes(std::int64_t bytes) {
    if (room && bytes > *room) {
      ++failed;
      return false;
    }
    if (room) {
      *room -= bytes;
    }
    return true;
  }
  bool strikes(Operation now) {
    if (!armed || (operation && *operation != now)) {
      return false;
    }
    ++seen;
    const bool hit = seen >= first && seen - first < count;
    failed += hit ? 1 : 0;
    return hit;
  }
};

Plan plan;
sqlite3_vfs disk{};
sqlite3_vfs* realDisk = nullptr;

/// What SQLite sees of a file: in front our own methods, behind it the real file.
struct File {
  sqlite3_file base;
  sqlite3_file* real;
};

sqlite3_file* realOf(sqlite3_file* file) { return reinterpret_cast<File*>(file)->real; }

int closeFile(sqlite3_file* file) {
  sqlite3_file* const real = realOf(file);
  return real->pMethods == nullptr ? SQLITE_OK : real->pMethods->xClose(real);
}

sqlite3_int64 lengthOf(sqlite3_file* file) {
  sqlite3_int64 length = 0;
  realOf(file)->pMethods->xFileSize(realOf(file), &length);
  return length;
}

int readFile(sqlite3_file* file, void* bytes, int length, sqlite3_int64 offset) {
  sqlite3_file* const real = realOf(file);
  if (!plan.strikes(Operation::read)) {
    return real->pMethods->xRead(real, bytes, length, offset);
  }
  if (plan.failure == Failure::shortRead) {
    std::memset(bytes, 0, static_cast<std::size_t>(length));
    return SQLITE_IOERR_SHORT_READ;
  }
  return SQLITE_IOERR_READ;
}

int writeFile(sqlite3_file* file, const void* bytes, int length, sqlite3_int64 offset) {
  if (plan.strikes(Operation::write)) {
    return plan.failure == Failure::full ? SQLITE_FULL : SQLITE_IOERR_WRITE;
  }
  const sqlite3_int64 growth = std::max<sqlite3_int64>(offset + length - lengthOf(file), 0);
  return plan.takes(growth) ? realOf(file)->pMethods->xWrite(realOf(file), bytes, length, offset) : SQLITE_FULL;
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
  if (plan.strikes(Operation::truncate)) {
    return SQLITE_IOERR_TRUNCATE;
  }
  const sqlite3_int64 before = lengthOf(file);
  const int result = realOf(file)->pMethods->xTruncate(realOf(file), size);
  plan.takes(lengthOf(file) - before);
  return result;
}

// Waits for no real disk: it would take most of a test's time, and no test cuts the power.
int syncFile(sqlite3_file*, int) { return plan.strikes(Operation::sync) ? SQLITE_IOERR_FSYNC : SQLITE_OK; }

int sizeOfFile(sqlite3_file* file, sqlite3_int64* size) {
  return realOf(file)->pMethods->xFileSize(realOf(file), size);
}

int lockFile(sqlite3_file* file, int level) {
  return plan.strikes(Operation::lock) ? SQLITE_IOERR_LOCK : realOf(file)->pMethods->xLock(realOf(file), level);
}

int unlockFile(sqlite3_file* file, int level) { return realOf(file)->pMethods->xUnlock(realOf(file), level); }

int isReserved(sqlite3_file* file, int* result) {
  return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
}

int controlFile(sqlite3_file* file, int operation, void* argument) {
  return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
}

int sectorSize(sqlite3_file* file) { return realOf(file)->pMethods->xSectorSize(realOf(file)); }

int characteristics(sqlite3_file* file) { return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file)); }

int mapShared(sqlite3_file* file, int page, int pageSize, int extend, void volatile** memory) {
  return plan.strikes(Operation::sharedMemory)
             ? SQLITE_IOERR_SHMMAP
             : realOf(file)->pMethods->xShmMap(realOf(file), page, pageSize, extend, memory);
}

int lockShared(sqlite3_file* file, int offset, int count, int flags) {
  const bool released = (flags & SQLITE_SHM_UNLOCK) != 0;  // which no caller takes back
  return !released && plan.strikes(Operation::lock)
             ? SQLITE_IOERR_SHMLOCK
             : realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
}

void shareBarrier(sqlite3_file* file) { realOf(file)->pMethods->xShmBarrier(realOf(file)); }

int unmapShared(sqlite3_file* file, int remove) { return realOf(file)->pMethods->xShmUnmap(realOf(file), remove); }

const sqlite3_io_methods kMethods = [] {
  sqlite3_io_methods methods{};
  methods.iVersion = 2;  // the third version is of memory-mapped files, which would hide the reads
  methods.xClose = closeFile;
  methods.xRead = readFile;
  methods.xWrite = writeFile;
  methods.xTruncate = truncateFile;
  methods.xSync = syncFile;
  methods.xFileSize = sizeOfFile;
  methods.xLock = lockFile;
  methods.xUnlock = unlockFile;
  methods.xCheckReservedLock = isReserved;
  methods.xFileControl = controlFile;
  methods.xSectorSize = sectorSize;
  methods.xDeviceCharacteristics = characteristics;
  methods.xShmMap = mapShared;
  methods.xShmLock = lockShared;
  methods.xShmBarrier = shareBarrier;
  methods.xShmUnmap = unmapShared;
  return methods;
}();

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsOut) {
  auto* const own = reinterpret_cast<File*>(file);
  own->base.pMethods = nullptr;
  own->real = reinterpret_cast<sqlite3_file*>(own + 1);
  if (plan.strikes(Operation::open)) {
    return plan.failure == Failure::full ? SQLITE_FULL : SQLITE_CANTOPEN;
  }
  const int result = realDisk->xOpen(realDisk, name, own->real, flags, flagsOut);
  if (own->real->pMethods != nullptr) {
    own->base.pMethods = &kMethods;
  }
  return result;
}

int removeFile(sqlite3_vfs*, const char* name, int syncFolder) {
  std::error_code missing;
  const auto length = std::filesystem::file_size(name, missing);
  plan.takes(missing ? 0 : -static_cast<std::int64_t>(length));
  return realDisk->xDelete(realDisk, name, syncFolder);
}

int canAccess(sqlite3_vfs*, const char* name, int flags, int* result) {
  return realDisk->xAccess(realDisk, name, flags, result);
}

int fullName(sqlite3_vfs*, const char* name, int length, char* result) {
  return realDisk->xFullPathname(realDisk, name, length, result);
}

}  // namespace

FaultyDisk::FaultyDisk() {
  sqlite3_initialize();
  plan = {};
  realDisk = sqlite3_vfs_find(nullptr);
  disk = *realDisk;
  disk.pNext = nullptr;
  disk.zName = "faulty disk";
  disk.szOsFile = static_cast<int>(sizeof(File)) + realDisk->szOsFile;
  disk.xOpen = openFile;
  disk.xDelete = removeFile;
  disk.xAccess = canAccess;
  disk.xFullPathname = fullName;
  sqlite3_vfs_register(&disk, 1);
}

FaultyDisk::~FaultyDisk() {
  plan = {};
  sqlite3_vfs_unregister(&disk);
  sqlite3_vfs_register(realDisk, 1);
}

void FaultyDisk::failAt(Operation operation, Failure failure, int first, int count) {
  plan = {true, operation, failure, first, count};
}

void FaultyDisk::failAtAny(Failure failure, int first, int count) {
  plan = {true, std::nullopt, failure, first, count};
}

void FaultyDisk::leaveRoom(std::int64_t bytes) {
  plan = {};
  plan.room = bytes;
}

void FaultyDisk::heal() {
  plan.armed = false;
  plan.room.reset();
}

int FaultyDisk::failures() const { return plan.failed; }

}  // namespace tarnwick::testing
