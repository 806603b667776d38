// SPDX-License-Identifier: MIT
#include <windows.h>

#include <string_view>

#include "platform/os/windows_text.h"
#include "platform/sqlite/sqlite_file.h"

namespace tarnwick {
namespace {

/// SQLite's own names for its usual access to files, and for the one that takes names longer than Windows does by
/// default.
constexpr std::string_view kUsualDisk = "win32";
constexpr const char* kLongNames = "win32-longpath";
/// Room for what SQLite puts behind the name.
constexpr std::size_t kLongestEnding = 16;

}  // namespace

std::string sqliteFileName(const std::string& path) {
  // Tried with the ending, since the files beside the database must be reached too.
  const std::wstring longest = systemPath(path + std::string(kLongestEnding, 'x'));
  return utf8Of(longest.substr(0, longest.size() - kLongestEnding));
}

int openSqliteFile(const std::string& path, int flags, sqlite3** database) {
  // What has been put before the usual access stays there.
  const sqlite3_vfs* const disk = sqlite3_vfs_find(nullptr);
  const bool isUsual = disk != nullptr && disk->zName == kUsualDisk;
  return sqlite3_open_v2(sqliteFileName(path).c_str(), database, flags, isUsual ? kLongNames : nullptr);
}

int causeBehind(int code, sqlite3*) { return code; }

bool liesOnNetwork(const std::string& path) {
  wchar_t root[MAX_PATH + 1]{};
  return GetVolumePathNameW(systemPath(path).c_str(), root, MAX_PATH) != FALSE && GetDriveTypeW(root) == DRIVE_REMOTE;
}

// Here nobody can move or remove a file that SQLite has open.
std::optional<FileIdentity> identityOf(const std::string&) { return std::nullopt; }

// Here the rights of a folder are no obstacle that can be told before it is tried.
int openUnchangedSqliteFile(const std::string& path, bool, sqlite3** database) {
  return openSqliteFile(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, database);
}

bool mayWrite(const std::string&) { return true; }

void shareCompanions(const std::string&) {}

// A file that is mapped has its room here.
bool mayLackSharedMemory(const std::string&) { return false; }

void takeSharedMemory(sqlite3*) {}

// Here a file's times are brought up to date when it is closed.
std::optional<std::int64_t> writtenAt(const std::string&) { return std::nullopt; }

}  // namespace tarnwick
