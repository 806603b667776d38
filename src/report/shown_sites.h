// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "store/database.h"

namespace tarnwick {

/// A site as pages and figures for others show it.
struct ShownSite {
  std::int64_t idSite = 0;
  std::string address;  ///< without name and password; visible characters only
  std::chrono::minutes interval{1};
  bool active = false;
  std::optional<bool> up;  ///< nothing when it was never judged
  std::int64_t success = 0;
  std::int64_t failure = 0;
};

/// All sites by rising id. Raises DataAccessError.
std::vector<ShownSite> shownSites(Database& database);
/// Appends the next of them, some milliseconds' worth; false when there are no more. Raises DataAccessError.
bool readMoreSites(Database& database, std::vector<ShownSite>& sites);

/// How often the sites are checked, by their ids: so many in each piece that their sums take some milliseconds.
std::vector<std::map<std::int64_t, std::chrono::seconds>> intervalsInPieces(const std::vector<ShownSite>& sites);

/// The address without what stands behind "?" or "#": there may be what is not for everybody.
std::string publicAddress(const std::string& address);

}  // namespace tarnwick
