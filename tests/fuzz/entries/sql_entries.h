// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// Beside what must hold, every statement may be refused with a DataAccessError.

// Any text is translated, all its quoted texts becoming parameters, and run: never more than one statement of it.
void fuzzSqlStatement(std::string_view input);
// Any value comes back from the statements that it is quoted in, which it does not change.
void fuzzSqlValue(std::string_view input);
// Any table that the database accepts takes a counter behind its columns, or stays as it is.
void fuzzSqlTable(std::string_view input);
// Any text is a date in statements exactly when it is one elsewhere, and differences are what they are called.
void fuzzSqlDate(std::string_view input);

inline constexpr std::array<FuzzTarget, 4> kSqlFuzzTargets{{{"sql_statement", fuzzSqlStatement},
                                                            {"sql_value", fuzzSqlValue},
                                                            {"sql_table", fuzzSqlTable},
                                                            {"sql_date", fuzzSqlDate}}};

}  // namespace tarnwick::testing
