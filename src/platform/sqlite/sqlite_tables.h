// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

// The statements about whole tables that SQLite has no word for. Each takes place as a whole or not at all; a failure
// raises DataAccessError.

/// Makes a new table of the rows selected, in their order. A column keeps its definition: type, checks, and being the
/// counter that numbers new rows. One that is indexed in the source is so in the new table too. Fails when the table
/// exists.
void selectInto(SqliteDatabase& database, const SelectInto& command);

/// Gives a table a last column that is its counter and primary key, and numbers the rows 1, 2, 3 in their order.
/// Fails when the table has a primary key or a column of that name.
void addCounter(SqliteDatabase& database, const AddCounter& command);

}  // namespace tarnwick
