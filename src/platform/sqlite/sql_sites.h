// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sql_tokens.h"

namespace tarnwick {

/// How a statement about the view `sites` is put to the table behind it.
struct BehindSites {
  /// The pieces of the statement, by their numbers in rising order, that other words take the place of.
  std::vector<std::pair<std::size_t, std::string_view>> words;
  /// See `PlainStatement::pageColumns`.
  std::vector<std::size_t> pageColumns;
};

/// Of a statement that changes fields of sites but no page, or reads pages of one site as they are. Nothing is replaced
/// in any other: the view serves it.
BehindSites behindSites(const std::vector<SqlToken>& tokens);

/// A statement that stores one page of one site, and nothing else.
std::optional<StorePage> readStorePage(const std::vector<SqlToken>& tokens);

}  // namespace tarnwick
