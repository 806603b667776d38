// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

namespace tarnwick {

/// Gives a database connection its functions beyond SQLite's own. Raises nothing; returns SQLite's result code.
///
/// `datediff(unit, a, b)`: how far `b` lies behind `a`, counted in boundaries crossed
/// (12:00:59 to 12:01:00 is one minute), negative when it lies before. The units are 'n' for minutes and 's' for
/// seconds; another one is an error. Dates are texts as `parseDateTime` reads them, differences those of the clock on
/// the wall; what is Null or no date gives Null.
///
/// `storedBytes(table, column, rowid)`: how many bytes a stored text has, without reading it; 0 for what is no text.
int registerFunctions(sqlite3* database);

}  // namespace tarnwick
