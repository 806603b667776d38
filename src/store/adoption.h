// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "store/database.h"
#include "store/result_log.h"

namespace tarnwick {

/// What checks have found of a site, in another database; what is Null there is nothing here.
struct CheckedState {
  std::optional<std::string> lastChecked;  ///< "YYYY-MM-DD HH:MM:SS"
  std::optional<bool> status;              ///< true for a site that was well
  std::optional<std::int64_t> success;
  std::optional<std::int64_t> failure;
  std::optional<std::string> contentRuntime;  ///< the page of the last check
  bool operator==(const CheckedState&) const = default;
};

/// Stores it as that of a site of this list. Raises DataAccessError.
void adoptState(Database& database, std::int16_t idSite, const CheckedState& state);

/// Adds a result to the log with the time that it has, whether the log is kept or not. Raises DataAccessError.
void adoptLogRow(Database& database, const LogRow& row);

/// Whether the database has neither sites nor results. Raises DataAccessError.
bool isFresh(Database& database);

}  // namespace tarnwick
