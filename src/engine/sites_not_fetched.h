// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>

#include "store/database.h"

namespace tarnwick {

/// `SiteReasons::sitesNotFetched` among the sites whose ids are from `first` to `last`: for a long list that is read
/// piece by piece. Raises DataAccessError.
std::set<std::int64_t> sitesNotFetchedBetween(Database& database, std::int64_t first, std::int64_t last);

}  // namespace tarnwick
