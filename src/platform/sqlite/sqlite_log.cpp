// SPDX-License-Identifier: MIT
#include "platform/sqlite/sqlite_log.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {
namespace {

std::uint32_t bigEndian(const unsigned char* bytes) {
  return std::uint32_t{bytes[0]} << 24U | std::uint32_t{bytes[1]} << 16U | std::uint32_t{bytes[2]} << 8U | bytes[3];
}

std::uint32_t littleEndian(const unsigned char* bytes) {
  return std::uint32_t{bytes[3]} << 24U | std::uint32_t{bytes[2]} << 16U | std::uint32_t{bytes[1]} << 8U | bytes[0];
}

/// The sums that each piece of a log carries of all that stands before it. https://www.sqlite.org/walformat.html
class LogSums {
 public:
  explicit LogSums(bool isBigEndian) : isBigEndian_(isBigEndian) {}

  void add(const unsigned char* bytes, std::size_t size) {
    for (std::size_t at = 0; at + 8 <= size; at += 8) {
      first_ += wordAt(bytes + at) + second_;
      second_ += wordAt(bytes + at + 4) + first_;
    }
  }
  bool are(const unsigned char* stored) const {
    return bigEndian(stored) == first_ && bigEndian(stored + 4) == second_;
  }

 private:
  std::uint32_t wordAt(const unsigned char* bytes) const {
    return isBigEndian_ ? bigEndian(bytes) : littleEndian(bytes);
  }

  bool isBigEndian_;
  std::uint32_t first_ = 0;
  std::uint32_t second_ = 0;
};

constexpr std::size_t kLogHeader = 32;
constexpr std::size_t kSaltsAt = 16;
/// Where the salts stand in the memory that is shared.
constexpr std::size_t kSalts = 32;
constexpr std::size_t kSaltsSize = 8;

/// Reads a log from its start. `read(to, size)` hands the next bytes, and is false where they are not all there.
template <typename Read>
LogFacts readLog(Read& read, const SqliteHeader& wanted) {
  constexpr std::uint32_t kMagic = 0x377f0682;  // and one more where the sums are of big-endian words
  constexpr std::size_t kFrameHeader = 24;
  constexpr std::size_t kLargestPage = 65536;
  LogFacts facts;
  std::array<unsigned char, kFrameHeader + kLargestPage> frame;
  if (!read(frame.data(), kLogHeader) || (bigEndian(frame.data()) & ~1U) != kMagic) {
    return facts;
  }
  const std::size_t pageSize = bigEndian(frame.data() + 8);
  LogSums sums(bigEndian(frame.data()) != kMagic);
  sums.add(frame.data(), kLogHeader - 8);
  if (pageSize < 512 || pageSize > kLargestPage || !sums.are(frame.data() + kLogHeader - 8)) {
    return facts;
  }
  LogFacts::Salts salts{};
  std::copy_n(frame.data() + kSaltsAt, kSaltsSize, salts.begin());
  facts.salts = salts;
  while (!facts.holdsHeader && read(frame.data(), kFrameHeader + pageSize)) {
    const unsigned char* const page = frame.data() + kFrameHeader;
    sums.add(frame.data(), 8);
    sums.add(page, pageSize);
    if (!std::equal(salts.begin(), salts.end(), frame.data() + 8) || !sums.are(frame.data() + 16)) {
      break;
    }
    if (bigEndian(frame.data()) == 1) {
      const SqliteHeader header = SqliteHeader::at(page);
      facts.holdsHeader = header == wanted;
      facts.firstChanges = facts.firstChanges.value_or(header.changes());
    }
    if (const std::uint32_t pages = bigEndian(frame.data() + 4); pages != 0) {
      facts.pages = pages;
    }
  }
  return facts;
}

/// Reads what a connection has open from its start, piece by piece.
class OpenLog {
 public:
  explicit OpenLog(sqlite3* database) {
    if (sqlite3_file_control(database, "main", SQLITE_FCNTL_JOURNAL_POINTER, &file_) != SQLITE_OK) {
      file_ = nullptr;
    }
  }
  bool operator()(unsigned char* to, std::size_t size) {
    if (file_ == nullptr || file_->pMethods == nullptr) {
      return false;
    }
    const int result = file_->pMethods->xRead(file_, to, static_cast<int>(size), at_);
    at_ += static_cast<sqlite3_int64>(size);
    failed_ = failed_ || (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ);
    return result == SQLITE_OK;
  }
  bool hasFailed() const { return failed_; }

 private:
  bool failed_ = false;
  sqlite3_file* file_ = nullptr;
  sqlite3_int64 at_ = 0;
};

/// SQLite locks nothing in a log, so that it may be opened and closed once more.
LogFacts factsOfLog(const std::string& log, const SqliteHeader& wanted) {
  try {
    const std::unique_ptr<OpenedFile> file = LocalFiles().open(log);
    std::string bytes;
    const auto read = [&](unsigned char* to, std::size_t size) {
      file->read(bytes, size);
      std::copy(bytes.begin(), bytes.end(), to);
      return bytes.size() == size;
    };
    return readLog(read, wanted);
  } catch (const FileError&) {
    return {};  // SQLite says what is wrong with it
  }
}

bool isNotEmpty(const std::string& path) {
  try {
    return LocalFiles().sizeOf(path) > 0;
  } catch (const FileError&) {
    return false;
  }
}

bool hasForeignLog(sqlite3* database, const std::string& log) {
  constexpr int kLooks = 3;
  for (int look = 1; look <= kLooks; ++look) {
    const std::optional<SqliteHeader> header = SqliteHeader::of(database);
    if (!header || !header->isDatabase() || !isNotEmpty(log)) {
      return false;
    }
    const LogFacts facts = factsOfLog(log, *header);
    if (!header->hasNoLog() && (!facts.salts || facts.canBelongTo(*header))) {
      return false;
    }
    // What is not so at a second look was another program at work.
    if (SqliteHeader::of(database) == header && factsOfLog(log, *header).salts == facts.salts) {
      return true;
    }
  }
  return false;
}

/// The memory that all who have the database open share; null where there is none.
/// https://www.sqlite.org/walformat.html#the_wal_index_file_format
const volatile unsigned char* sharedMemoryOf(sqlite3* database) {
  constexpr int kFirstRegion = 32768;
  sqlite3_file* file = nullptr;
  volatile void* region = nullptr;
  const bool isThere = sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK &&
                       file->pMethods != nullptr && file->pMethods->iVersion >= 2 &&
                       file->pMethods->xShmMap(file, 0, kFirstRegion, 0, &region) == SQLITE_OK;
  return isThere ? static_cast<const volatile unsigned char*>(region) : nullptr;
}

/// Lets one program at a time set a log aside: while a second one still waits, the first one has begun a new log.
class LogKeeper {
 public:
  explicit LogKeeper(sqlite3* database) {
    constexpr int kPauseMs = 5;
    if (sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file_) != SQLITE_OK) {
      file_ = nullptr;
      return;
    }
    int waited = 0;
    while (!taken() && waited < kBusyPatienceMs) {
      waited += sqlite3_sleep(kPauseMs);
    }
  }
  // The first statement takes over what is left, the lock of a reader.
  ~LogKeeper() {
    if (file_ != nullptr) {
      file_->pMethods->xUnlock(file_, SQLITE_LOCK_SHARED);
    }
  }
  LogKeeper(const LogKeeper&) = delete;
  LogKeeper& operator=(const LogKeeper&) = delete;

 private:
  bool taken() const {
    return file_->pMethods->xLock(file_, SQLITE_LOCK_SHARED) == SQLITE_OK &&
           file_->pMethods->xLock(file_, SQLITE_LOCK_RESERVED) == SQLITE_OK;
  }
  sqlite3_file* file_ = nullptr;
};

}  // namespace

std::string realName(sqlite3* database) {
  const char* name = sqlite3_db_filename(database, "main");
  return name == nullptr ? "" : name;
}

std::optional<SqliteHeader> SqliteHeader::of(sqlite3* database) {
  sqlite3_file* file = nullptr;
  if (sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
      file->pMethods == nullptr) {
    return std::nullopt;
  }
  SqliteHeader header;
  const int result = file->pMethods->xRead(file, header.bytes_.data(), kSize, 0);
  return result == SQLITE_OK || result == SQLITE_IOERR_SHORT_READ ? std::optional(header) : std::nullopt;
}

SqliteHeader SqliteHeader::at(const unsigned char* page) {
  SqliteHeader header;
  std::copy_n(page, kSize, header.bytes_.begin());
  return header;
}

bool SqliteHeader::isDatabase() const {
  static constexpr std::string_view kBeginning{"SQLite format 3\0", 16};
  return std::equal(kBeginning.begin(), kBeginning.end(), bytes_.begin());
}

std::uint32_t SqliteHeader::changes() const { return bigEndian(bytes_.data() + 24); }

std::uint32_t SqliteHeader::pages() const { return bigEndian(bytes_.data() + 28); }

// The first page counts its changes; the first one in the log goes on from that of the file, or repeats it.
bool LogFacts::canBelongTo(const SqliteHeader& header) const {
  if (holdsHeader) {
    return true;
  }
  if (firstChanges) {
    return *firstChanges - header.changes() <= 1;
  }
  // The first page tells how many pages there are, and the log holds no change of it.
  return !pages || *pages == header.pages();
}

std::optional<LogFacts> factsOfOpenLog(sqlite3* database, const SqliteHeader& wanted) {
  OpenLog log(database);
  const LogFacts facts = readLog(log, wanted);
  return log.hasFailed() ? std::nullopt : std::optional(facts);
}

std::optional<LogFacts::Salts> saltsOfOpenLog(sqlite3* database) {
  std::array<unsigned char, kLogHeader> header{};
  if (!OpenLog(database)(header.data(), header.size())) {
    return std::nullopt;
  }
  LogFacts::Salts salts{};
  std::copy_n(header.data() + kSaltsAt, kSaltsSize, salts.begin());
  return salts;
}

std::optional<LogEnd> endOfOpenLog(sqlite3* database) {
  const volatile unsigned char* const bytes = sharedMemoryOf(database);
  if (bytes == nullptr) {
    return std::nullopt;
  }
  LogEnd end;
  std::copy_n(bytes, end.size(), end.begin());
  return end;
}

bool hasGrownTo(std::uint32_t pages, const LogEnd& before, const LogEnd& now) {
  constexpr std::size_t kPages = 16;
  std::uint32_t counted = 0;
  std::memcpy(&counted, now.data() + kPages, sizeof counted);  // in this machine's order, as all of that memory
  return counted == pages &&
         std::equal(before.begin() + kSalts, before.begin() + kSalts + kSaltsSize, now.begin() + kSalts);
}

std::optional<LogProgress> progressOfOpenLog(sqlite3* database) {
  constexpr std::size_t kDone = 96;
  constexpr std::size_t kBegun = 128;
  const volatile unsigned char* const bytes = sharedMemoryOf(database);
  if (bytes == nullptr) {
    return std::nullopt;
  }
  LogProgress progress;
  std::copy_n(bytes + kSalts, kSaltsSize, progress.salts.begin());
  progress.done = *reinterpret_cast<const volatile std::uint32_t*>(bytes + kDone);
  progress.begun = *reinterpret_cast<const volatile std::uint32_t*>(bytes + kBegun);
  return progress;
}

void setForeignLogAside(sqlite3* database, const std::string& path) {
  const std::string file = realName(database);
  const std::string log = file + "-wal";
  if (!hasForeignLog(database, log)) {
    return;
  }
  const LogKeeper keeper(database);
  if (!hasForeignLog(database, log)) {
    return;
  }
  try {
    setLogAside(file);
  } catch (const FileError& error) {
    throw DataAccessError(
        "The file " + log + " belongs to another database than " + path + ". Remove it. (" + error.what() + ")", "");
  }
}

void setLogAside(const std::string& path) {
  const std::string log = path + "-wal";
  if (isNotEmpty(log)) {
    LocalFiles().rename(log, log + ".old");
  } else {
    LocalFiles().remove(log);
  }
  // It tells where in that log a page is.
  LocalFiles().remove(path + "-shm");
}

}  // namespace tarnwick
