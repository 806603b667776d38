// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

/// The file's name as SQLite takes it.
std::string sqliteFileName(const std::string& path);

/// Opens the file `path` as sqlite3_open_v2 does, however long its name is.
int openSqliteFile(const std::string& path, int flags, sqlite3** database);

/// The extended result code that fits a failure of `database`, which SQLite has told as `code`: it takes some failures
/// of the disk for damage or a lack of room.
int causeBehind(int code, sqlite3* database);

/// Whether the file lies on another machine, where SQLite's write-ahead log cannot be shared between programs.
/// https://www.sqlite.org/wal.html
bool liesOnNetwork(const std::string& path);

/// Tells a file from every other one on this machine, whatever its name.
struct FileIdentity {
  std::uint64_t device;
  std::uint64_t number;
  bool operator==(const FileIdentity&) const = default;
};

/// Which file has the name `path` now; nothing when there is none, and where a file cannot be taken away or exchanged
/// while SQLite has it open.
std::optional<FileIdentity> identityOf(const std::string& path);

/// Opens the file `path`, which nobody changes meanwhile, for reading alone, with the log that lies beside it or
/// without one: SQLite makes no file there then. With a log it must be locked as `exclusive` before it is read.
int openUnchangedSqliteFile(const std::string& path, bool withLog, sqlite3** database);

/// Whether this process may write to the file or into the folder `path`. True where that cannot be told.
bool mayWrite(const std::string& path);

/// Lets those write the files beside the database `path` who may write the database itself: a program that could only
/// read it has made them so that nobody can write them. Where that is not allowed they stay as they are.
void shareCompanions(const std::string& path);

/// Whether the disk of the file `path` has blocks so small, and so few left, that it may lack some of those for the
/// memory that programs share through a file: it does so only once the memory is used, and ends the process.
bool mayLackSharedMemory(const std::string& path);
/// Takes the room of that memory where the same could happen later. `database` shares it already.
void takeSharedMemory(sqlite3* database);

/// When the file `path` was last written to, in nanoseconds; nothing where there is none, and where the system tells it
/// late.
std::optional<std::int64_t> writtenAt(const std::string& path);

}  // namespace tarnwick
