// SPDX-License-Identifier: MIT
// What of the C library is asked for files and time, by SQLite as by the program, in front of the real one: in a
// process with a simulated disk and clock they see these, else everything is as it always is.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include "simulation/simulated_disk.h"
#include "simulation/simulated_memory.h"
#include "simulation/system_time.h"

namespace {

using tarnwick::simulation::SimulatedDisk;
using tarnwick::simulation::SimulatedMemory;
using tarnwick::simulation::SystemTime;

/// The library's own function of that name.
template <typename Function>
Function* real(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

SimulatedDisk* diskOf(int descriptor) {
  SimulatedDisk* const disk = SimulatedDisk::inUse;
  return disk != nullptr && disk->has(descriptor) ? disk : nullptr;
}

SimulatedDisk* diskOf(const char* path) {
  SimulatedDisk* const disk = SimulatedDisk::inUse;
  return disk != nullptr && path != nullptr && disk->holds(path) ? disk : nullptr;
}

int failed(int error) {
  errno = error;
  return -1;
}

template <typename Open>
int openFile(Open* open, const char* path, int flags, mode_t rights) {
  const SimulatedMemory::OfWorld ours;
  SimulatedDisk* const disk = diskOf(path);
  if (disk == nullptr) {
    return open(path, flags, rights);
  }
  const bool there = access(path, F_OK) == 0;
  if (disk->isDead() && ((flags & O_ACCMODE) != O_RDONLY) && !there) {
    return failed(EIO);
  }
  if (there && (flags & O_TRUNC) != 0) {
    disk->willBeCut(path);
  }
  const int descriptor = open(path, flags, rights);
  if (descriptor >= 0) {
    disk->opened(descriptor, path, !there);
  }
  return descriptor;
}

std::int64_t growthOf(int descriptor, std::size_t length, std::int64_t offset) {
  struct stat facts {};
  return fstat(descriptor, &facts) == 0
             ? std::max<std::int64_t>(offset + static_cast<std::int64_t>(length) - facts.st_size, 0)
             : 0;
}

template <typename Write>
ssize_t writeAt(Write* write, int descriptor, const void* bytes, std::size_t length, std::int64_t offset) {
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(descriptor)) {
    const std::int64_t growth = disk->isLimited() ? growthOf(descriptor, length, offset) : 0;
    if (const int error = disk->write(descriptor, bytes, length, offset, growth)) {
      return failed(error);
    }
    if (const std::size_t done = disk->writeMapped(descriptor, bytes, length, offset)) {
      return static_cast<ssize_t>(done);
    }
    const ssize_t done = write(descriptor, bytes, length, offset);
    disk->written(descriptor, offset + std::max<ssize_t>(done, 0));
    return done;
  }
  return write(descriptor, bytes, length, offset);
}

template <typename Truncate>
int truncateFile(Truncate* truncate, int descriptor, std::int64_t size) {
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(descriptor)) {
    if (const int error = disk->truncate(descriptor, size)) {
      return failed(error);
    }
  }
  return truncate(descriptor, size);
}

// Its own syncs go nowhere: the disk is in memory.
int syncFile(int (*sync)(int), int descriptor) {
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(descriptor)) {
    const int error = disk->sync(descriptor);
    return error == 0 ? 0 : failed(error);
  }
  return sync(descriptor);
}

bool isAboutLocks(int command) {
  return command == F_SETLK || command == F_SETLKW || command == F_GETLK || command == F_OFD_SETLK ||
         command == F_OFD_SETLKW || command == F_OFD_GETLK;
}

// Whose connection has which lock SQLite knows by itself within one process, and all simulated ones are in this one.
int lockFile(int command, void* argument) {
  if (command == F_GETLK || command == F_OFD_GETLK) {
    static_cast<struct flock*>(argument)->l_type = F_UNLCK;
  }
  return 0;
}

/// Answers to questions that are asked again every second, for as long as nothing has changed on the disk.
template <typename Question, typename Answer>
class Known {
 public:
  /// Nothing while it is not known.
  const Answer* find(const Question& question, std::uint64_t edition) {
    if (edition != edition_) {
      known_.clear();
      edition_ = edition;
    }
    const auto found = std::ranges::find(known_, question, &std::pair<Question, Answer>::first);
    return edition == 0 || found == known_.end() ? nullptr : &found->second;
  }
  void add(const Question& question, const Answer& answer) {
    if (edition_ != 0) {
      known_.emplace_back(question, answer);
    }
  }

 private:
  std::uint64_t edition_ = 0;
  std::vector<std::pair<Question, Answer>> known_;
};

struct Facts {
  int error = 0;
  struct stat64 facts {};
};

}  // namespace

extern "C" {

#define TARNWICK_REAL(name) static auto* const next = real(&name, #name)

int open(const char* path, int flags, ...) {
  TARNWICK_REAL(open);
  va_list more;
  va_start(more, flags);
  const auto rights = (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(more, unsigned)) : mode_t{0};
  va_end(more);
  return openFile(next, path, flags, rights);
}

int open64(const char* path, int flags, ...) {
  TARNWICK_REAL(open64);
  va_list more;
  va_start(more, flags);
  const auto rights = (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(more, unsigned)) : mode_t{0};
  va_end(more);
  return openFile(next, path, flags, rights);
}

int close(int descriptor) {
  TARNWICK_REAL(close);
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(descriptor)) {
    disk->closed(descriptor);
  }
  return next(descriptor);
}

FILE* fdopen(int descriptor, const char* mode) noexcept {
  TARNWICK_REAL(fdopen);
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(descriptor); disk != nullptr && mode[0] != 'r') {
    disk->throughStream(descriptor);
  }
  return next(descriptor, mode);
}

// A stream closes its descriptor without asking anybody.
int fclose(FILE* stream) {
  TARNWICK_REAL(fclose);
  const SimulatedMemory::OfWorld ours;
  const int descriptor = fileno(stream);
  if (SimulatedDisk* const disk = diskOf(descriptor)) {
    disk->closed(descriptor);
  }
  return next(stream);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t length, off_t offset) {
  TARNWICK_REAL(pwrite);
  return writeAt(next, descriptor, bytes, length, offset);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t length, off64_t offset) {
  TARNWICK_REAL(pwrite64);
  return writeAt(next, descriptor, bytes, length, offset);
}

int ftruncate(int descriptor, off_t size) noexcept {
  TARNWICK_REAL(ftruncate);
  return truncateFile(next, descriptor, size);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
  TARNWICK_REAL(ftruncate64);
  return truncateFile(next, descriptor, size);
}

int stat64(const char* path, struct stat64* facts) noexcept {
  TARNWICK_REAL(stat64);
  const SimulatedMemory::OfWorld ours;
  SimulatedDisk* const disk = diskOf(path);
  if (disk == nullptr) {
    return next(path, facts);
  }
  static Known<std::string, Facts> known;
  const Facts* answer = known.find(path, disk->edition());
  if (answer == nullptr) {
    const int error = next(path, facts) == 0 ? 0 : errno;
    known.add(path, {error, *facts});
    return error == 0 ? 0 : failed(error);
  }
  *facts = answer->facts;
  return answer->error == 0 ? 0 : failed(answer->error);
}

// On this system both are one.
int stat(const char* path, struct stat* facts) noexcept {
  static_assert(sizeof(struct stat) == sizeof(struct stat64));
  return stat64(path, reinterpret_cast<struct stat64*>(facts));
}

ssize_t pread64(int descriptor, void* bytes, size_t length, off64_t offset) {
  TARNWICK_REAL(pread64);
  const SimulatedMemory::OfWorld ours;
  SimulatedDisk* const disk = diskOf(descriptor);
  const std::size_t got = disk == nullptr ? 0 : disk->readMapped(descriptor, bytes, length, offset);
  return got > 0 ? static_cast<ssize_t>(got) : next(descriptor, bytes, length, offset);
}

// As much as a disk of today has.
int statvfs(const char* path, struct statvfs* facts) noexcept {
  TARNWICK_REAL(statvfs);
  const SimulatedMemory::OfWorld ours;
  if (diskOf(path) == nullptr) {
    return next(path, facts);
  }
  constexpr unsigned long kBlock = 4096;
  constexpr fsblkcnt_t kBlocks = 1UL << 26U;
  *facts = {};
  facts->f_bsize = facts->f_frsize = kBlock;
  facts->f_blocks = kBlocks;
  facts->f_bfree = facts->f_bavail = kBlocks / 2;
  return 0;
}

int fsync(int descriptor) {
  TARNWICK_REAL(fsync);
  return syncFile(next, descriptor);
}

int fdatasync(int descriptor) {
  TARNWICK_REAL(fdatasync);
  return syncFile(next, descriptor);
}

int rename(const char* from, const char* to) noexcept {
  TARNWICK_REAL(rename);
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(to)) {
    if (const int error = disk->rename(from, to)) {
      return failed(error);
    }
  }
  return next(from, to);
}

int unlink(const char* path) noexcept {
  TARNWICK_REAL(unlink);
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(path)) {
    if (const int error = disk->unlink(path)) {
      return failed(error);
    }
  }
  return next(path);
}

int remove(const char* path) noexcept {
  TARNWICK_REAL(remove);
  const SimulatedMemory::OfWorld ours;
  if (SimulatedDisk* const disk = diskOf(path)) {
    if (const int error = disk->unlink(path)) {
      return failed(error);
    }
  }
  return next(path);
}

int fcntl64(int descriptor, int command, ...) {
  TARNWICK_REAL(fcntl64);
  va_list more;
  va_start(more, command);
  void* const argument = va_arg(more, void*);
  va_end(more);
  return isAboutLocks(command) && diskOf(descriptor) != nullptr ? lockFile(command, argument)
                                                                : next(descriptor, command, argument);
}

// SQLite calls the one above, and the program the one that its own headers name.
int fcntl(int descriptor, int command, ...) {
  TARNWICK_REAL(fcntl);
  va_list more;
  va_start(more, command);
  void* const argument = va_arg(more, void*);
  va_end(more);
  return isAboutLocks(command) && diskOf(descriptor) != nullptr ? lockFile(command, argument)
                                                                : next(descriptor, command, argument);
}

int clock_gettime(clockid_t which, timespec* time) noexcept {
  TARNWICK_REAL(clock_gettime);
  return SystemTime::inUse == nullptr || which == CLOCK_PROCESS_CPUTIME_ID
             ? next(which, time)
             : SystemTime::inUse->tell(which == CLOCK_REALTIME, *time);
}

int gettimeofday(timeval* time, void* zone) noexcept {
  TARNWICK_REAL(gettimeofday);
  if (SystemTime::inUse == nullptr) {
    return next(time, zone);
  }
  timespec exact{};
  SystemTime::inUse->tell(true, exact);
  *time = {exact.tv_sec, exact.tv_nsec / 1000};
  return 0;
}

time_t time(time_t* result) noexcept {
  TARNWICK_REAL(time);
  if (SystemTime::inUse == nullptr) {
    return next(result);
  }
  timespec exact{};
  SystemTime::inUse->tell(true, exact);
  if (result != nullptr) {
    *result = exact.tv_sec;
  }
  return exact.tv_sec;
}

int usleep(useconds_t microseconds) {  // sleeps because SQLite does so while a lock is held; here no time passes
  TARNWICK_REAL(usleep);               // sleeps because the caller is no simulated process
  if (SystemTime::inUse == nullptr) {
    return next(microseconds);
  }
  SystemTime::inUse->pass(microseconds);
  return 0;
}

}  // extern "C"
