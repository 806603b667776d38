// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/sql_connection.h"

namespace tarnwick {

/// The form of the tables that this program knows and makes: `user_version` of the file. 0 are the original tables
/// alone; each change of them has raised it by one.
inline constexpr std::int64_t kFormOfTables = 8;

/// Brings the tables of an older list to today's form, in one transaction; `path` is for the error. What cannot be
/// written just now (read-only, locked, no room) is left as it is and read as if the newer tables were empty. Raises
/// DataAccessError for a list of a newer form than this program knows.
void bringUpToDate(SqlConnection& connection, const std::string& path);

/// The same for who is about to write in a table of later forms: raises DataAccessError also when it cannot be done
/// just now. What only waits for room on the disk does not count.
void requireTodaysForm(SqlConnection& connection, const std::string& path);

}  // namespace tarnwick
