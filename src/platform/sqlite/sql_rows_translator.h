#pragma once

#include <vector>

#include "platform/sqlite/sql_dialect.h"

namespace tarnwick {

/// Turns a statement that reads or writes rows, cut into its pieces, into the form that SQLite takes: its quoted texts,
/// the whole numbers it compares with or inserts, and its time become parameters, so that statements which differ only
/// in these share one prepared statement; `top` and the yes/no conditions of the dialect become SQLite's own.
PlainStatement translateRows(const std::vector<SqlToken>& tokens);

}  // namespace tarnwick
