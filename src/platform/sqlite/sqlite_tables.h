#pragma once

#include <string_view>

#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_database.h"

namespace tarnwick {

// The statements about whole tables that SQLite has no word for. Each takes place as a whole or not at all; a failure
// raises DataAccessError. `sql` is the statement as written, for the message.

/// Makes a new table of the rows selected, in their order. A column of the source table keeps its definition: type,
/// checks, and being the counter that numbers new rows. The source's indexes on columns that are all selected are made
/// for the new table too, named `<table>_<columns>`. Fails when the table exists.
void selectInto(SqliteDatabase& database, const SelectInto& command, std::string_view sql);

/// Gives a table a last column that is its counter and primary key, and numbers the rows 1, 2, 3 in their order.
/// Fails when the table has a primary key or a column of that name.
void addCounter(SqliteDatabase& database, const AddCounter& command, std::string_view sql);

/// Makes columns the primary key of a table; changes nothing when they are it already.
/// Fails when a column is missing, when others are the primary key, or when the values repeat.
void addPrimaryKey(SqliteDatabase& database, const AddPrimaryKey& command, std::string_view sql);

}  // namespace tarnwick
