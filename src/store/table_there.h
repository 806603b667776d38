// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "store/database.h"

namespace tarnwick {

/// Whether the list has that table: one that a newer program has added is missing from an older list that cannot be
/// written.
inline bool hasTable(Database& database, std::string_view name) {
  const SqlValue table{std::string(name)};
  return !database.conn().execute("select 1 from sqlite_master where type = 'table' and name = ?1", {&table, 1})->eof();
}

}  // namespace tarnwick
