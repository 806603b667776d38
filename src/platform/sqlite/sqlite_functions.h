#pragma once

#include <sqlite3.h>

#include "platform/clock.h"

namespace tarnwick {

/// Gives a database connection the date functions of the program's SQL:
/// - `datediff(unit, a, b)`: how far `b` lies behind `a`, counted in boundaries crossed (12:00:59 to 12:01:00 is one
///   minute), negative when it lies before. Units, in any letter case: 'yyyy' years, 'q' quarters, 'm' months,
///   'd' days, 'h' hours, 'n' minutes, 's' seconds; another one is an error.
/// - `datevalue(x)`: the date part of a date and time, as "YYYY-MM-DD".
/// - `now()`: the local date and time.
/// Dates are texts as `parseDateTime` reads them, differences those of the clock on the wall. What is Null or no date
/// gives Null. `clock` outlives the connection. Raises nothing; returns SQLite's result code.
int registerDateFunctions(sqlite3* database, const Clock& clock);

}  // namespace tarnwick
