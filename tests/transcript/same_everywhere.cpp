// SPDX-License-Identifier: MIT
#include "transcript/same_everywhere.h"

#include <sqlite3.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <ctime>

namespace tarnwick::testing {
namespace {

/// SQLite counts milliseconds from noon of November 24, 4714 before our era.
constexpr sqlite3_int64 kMillisecondsToUnixEpoch = 210866760000000;

const Clock* theClock = nullptr;

int currentTime(sqlite3_vfs*, sqlite3_int64* milliseconds) {
  const std::chrono::milliseconds sinceEpoch = theClock->localNow().time_since_epoch();
  *milliseconds = kMillisecondsToUnixEpoch + sinceEpoch.count();
  return SQLITE_OK;
}

/// The system's files with another clock.
sqlite3_vfs& files() {
  static sqlite3_vfs files = [] {
    sqlite3_vfs copy = *sqlite3_vfs_find(nullptr);
    copy.zName = "hand-clock";
    copy.pNext = nullptr;
    copy.xCurrentTimeInt64 = &currentTime;
    return copy;
  }();
  return files;
}

/// Nothing for the machine's own.
void setZone(const std::optional<std::string>& zone) {
  if (zone) {
    ::setenv("TZ", zone->c_str(), 1);
  } else {
    ::unsetenv("TZ");
  }
  ::tzset();
}

}  // namespace

SameEverywhere::SameEverywhere(const Clock& clock) : localeBefore_(std::setlocale(LC_ALL, nullptr)) {
  if (const char* const zone = std::getenv("TZ")) {
    zoneBefore_ = zone;
  }
  setZone("UTC");
  std::setlocale(LC_ALL, "C");
  theClock = &clock;
  sqlite3_vfs_register(&files(), 1);
}

SameEverywhere::~SameEverywhere() {
  sqlite3_vfs_unregister(&files());
  std::setlocale(LC_ALL, localeBefore_.c_str());
  setZone(zoneBefore_);
}

}  // namespace tarnwick::testing
