#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/sqlite/sql_tokens.h"

namespace tarnwick {

/// The moment a statement began, one and the same wherever the statement says `now()`.
struct StatementTime {};

/// A value that a statement is run with: a quoted text of the original statement (still in its quotes, so that page
/// texts are not copied), a whole number, or the statement's time.
using SqlParameter = std::variant<SqlToken, std::int64_t, StatementTime>;

/// A statement as SQLite takes it. `?1` in `text` stands for the first of `parameters`, and so on.
struct PlainStatement {
  std::string text;
  std::vector<SqlParameter> parameters;
  /// Worth keeping prepared: it reads or writes rows, where other statements change tables or settings.
  bool reusable = false;
};

/// `select ... into target from ...`: makes the table `target` of the rows that `select` returns.
struct SelectInto {
  std::string target;
  /// The table that the rows come from; empty unless it is one table under its own name.
  std::string source;
  /// For each column selected the column of `source` that it is, "*" for all of them, empty for an expression.
  std::vector<std::string> columns;
  PlainStatement select;
};

/// `alter table ... add column ... counter`: a last column that numbers the rows 1, 2, 3 in their order, and is the
/// table's primary key.
struct AddCounter {
  std::string table;
  std::string column;
};

/// `alter table ... add constraint ... primary key (...)`.
struct AddPrimaryKey {
  std::string table;
  std::string constraint;
  std::vector<std::string> columns;
};

using SqlCommand = std::variant<PlainStatement, SelectInto, AddCounter, AddPrimaryKey>;

/// Turns a statement of the program's dialect into what SQLite understands. Beside SQLite's own SQL the dialect knows
/// - `select top n ...`: the first n rows;
/// - `x = true`, `x <> false` and the like in a condition: any number but 0 is true;
/// - `now()`: the local date and time, the same throughout a statement; `datediff` and `datevalue` are functions of
///   their own (sqlite_functions.h), but `datevalue` of a column is SQLite's own `date`, of which an index can be made
///   that every program understands;
/// - the three statements above.
/// Quoted texts are never looked into. The result refers to `sql`, which must outlive it.
/// Raises DataAccessError when the text cannot be cut into pieces (see `sqlTokens`).
SqlCommand translateSql(std::string_view sql);

/// The text that a statement sets `column` to (`column = '...'`), quotes included, as it stands in the statement;
/// nothing when there is none. For messages.
std::optional<std::string_view> assignedText(std::string_view sql, std::string_view column);

/// A name in double quotes, as SQLite takes any name.
std::string quotedName(std::string_view name);

}  // namespace tarnwick
