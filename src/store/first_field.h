// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "store/database.h"

namespace tarnwick {

/// The first field of the first row that `sql` returns; nothing when there is no row. Raises DataAccessError.
inline std::optional<SqlValue> firstField(Database& database, std::string sql) {
  const auto rows = database.query(std::move(sql));
  std::optional<SqlValue> value;
  if (!rows->eof()) {
    value = rows->field(std::size_t{0});
  }
  rows->close();
  return value;
}

/// The same as text: empty when there is no row or the field is Null.
inline std::string firstText(Database& database, std::string sql) {
  return firstField(database, std::move(sql)).value_or(SqlValue()).toText();
}

/// The same as a yes/no: false when there is no row or the field is Null.
inline bool firstFlag(Database& database, std::string sql) {
  return firstField(database, std::move(sql)).value_or(SqlValue()).toBool();
}

}  // namespace tarnwick
