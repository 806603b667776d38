#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A table as its `create table` statement defines it, in parts that can be changed and put together again.
struct TableDefinition {
  struct Column {
    std::string name;
    /// What follows the name: type, default, constraints.
    std::string rest;
  };

  std::vector<Column> columns;
  /// The constraints behind the columns.
  std::vector<std::string> constraints;
  /// What follows the closing parenthesis, for instance `without rowid`.
  std::string options;

  /// The column of that name, in any letter case; null when there is none.
  const Column* find(std::string_view name) const;

  /// The statement that makes a table `name` of this definition.
  std::string createStatement(std::string_view name) const;
};

/// Reads a `create table` statement as the database keeps it; without columns when it is none.
TableDefinition parseTableDefinition(std::string_view createStatement);

/// True when both are the same name; letter case does not count.
bool sameName(std::string_view one, std::string_view other);

}  // namespace tarnwick
