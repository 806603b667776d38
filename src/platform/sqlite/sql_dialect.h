// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/sql_value.h"
#include "platform/clock.h"

namespace tarnwick {

/// A value that a statement is run with; a text may lie in the original statement, so that pages are not copied.
using SqlParameter = std::variant<std::string_view, SqlValue>;

/// A statement as SQLite takes it. `?1` in `text` stands for the first of `parameters`, and so on.
struct PlainStatement {
  std::string text;
  std::vector<SqlParameter> parameters = {};
  /// Worth keeping prepared: it reads or writes rows, where other statements change tables or settings.
  bool reusable = false;
  /// The columns of the result, by their numbers from 0, that hold the number of a page where the statement asks for
  /// the page itself.
  std::vector<std::size_t> pageColumns = {};
  /// The number of the parameter that holds the moment, from 1; 0 where the statement does not ask for it.
  std::size_t nowParameter = 0;
};

/// `update sites set content_compare = '...' where idSite = n`, or `content_runtime`, where pages lie apart.
struct StorePage {
  bool compare = false;
  std::int64_t idSite = 0;
  SqlParameter text;
};

/// `select a,b into target from source`: makes the table `target` of these columns of `source`.
struct SelectInto {
  std::vector<std::string> columns;
  std::string target;
  std::string source;
};

/// `alter table ... add column ... counter not null`: a last column that numbers the rows 1, 2, 3 in their order, and
/// is the table's primary key.
struct AddCounter {
  std::string table;
  std::string column;
};

using SqlCommand = std::variant<PlainStatement, SelectInto, AddCounter, StorePage>;

/// Where the pages of the sites lie: in the rows of the table `sites`, or apart behind a view of that name (see
/// sqlite_pages.h).
enum class Pages { inSites, apart };

/// Turns a statement of the program's dialect into what SQLite understands. In a statement that reads or writes rows
/// the quoted texts, and the whole numbers that it compares with or inserts, become parameters, so that statements
/// which differ only in these share one prepared statement. Beside SQLite's own SQL the dialect knows
/// - `select top n ...`: the first n rows, also of a select in brackets;
/// - `x = true` and `x = false` in a condition: any number but 0 is true;
/// - `now()`: the local date and time of `clock`, the same throughout a statement;
/// - `datediff`, a function of its own (sqlite_functions.h), and `datevalue`, which is SQLite's own `date`: of that an
///   index can be made that every program understands;
/// - the two statements above, and `alter table ... add constraint ... primary key (...)` of one column, which becomes
///   an index that keeps its values unique.
/// Where pages lie apart, a statement that changes other fields of `sites`, or reads a page, goes to the table behind
/// the view at once, since a view's triggers are handed every page of a row.
/// Quoted texts are never looked into. The result refers to `sql`, which must outlive it.
/// Raises DataAccessError when the text cannot be cut into pieces (see `sqlTokens`).
SqlCommand translateSql(std::string_view sql, const Clock& clock, Pages pages = Pages::inSites);

/// The text that a statement sets `column` to (`column = '...'`), quotes included, as it stands in the statement;
/// nothing when there is none. For messages.
std::optional<std::string_view> assignedText(std::string_view sql, std::string_view column);

}  // namespace tarnwick
