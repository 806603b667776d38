// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"

struct sqlite3;

namespace tarnwick {

/// The error for the call on `database`, the file at `path`, that has failed last, as below.
DataAccessError lastSqliteError(sqlite3* database, const std::string& path);

/// The error for a failed SQLite call on the database at `path`: in plain words, with the remedy where there is one and
/// SQLite's own `message` behind. `code` is an extended result code (https://www.sqlite.org/rescode.html).
DataAccessError sqliteError(int code, const std::string& message, const std::string& path);

/// The error for a file that is no database or a damaged one.
DataAccessError damagedDatabase(const std::string& path, const std::string& message);

/// The same error as one of the statement `sql`, which is shown with it: that is fit for a message box however long it
/// is. Where a rule of a column was broken, the value that was not stored is named.
DataAccessError inStatement(const DataAccessError& error, std::string_view sql);

}  // namespace tarnwick
