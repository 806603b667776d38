// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

namespace tarnwick {

/// Gives a database connection `datediff(unit, a, b)`: how far `b` lies behind `a`, counted in boundaries crossed
/// (12:00:59 to 12:01:00 is one minute), negative when it lies before. The units are 'n' for minutes and 's' for
/// seconds; another one is an error. Dates are texts as `parseDateTime` reads them, differences those of the clock on
/// the wall; what is Null or no date gives Null. Raises nothing; returns SQLite's result code.
int registerDateFunctions(sqlite3* database);

}  // namespace tarnwick
