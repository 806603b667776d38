// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/database.h"

namespace tarnwick {

/// A site that was deleted, with every row of it, so that it can be put back as it was.
struct DeletedSite {
  struct Rows {
    std::string table;
    std::vector<std::string> columns;
    std::vector<std::vector<SqlValue>> rows;
  };

  std::int64_t idSite = 0;
  std::string url;
  std::vector<Rows> tables;
};

/// About how many bytes it holds.
std::size_t sizeOf(const DeletedSite& site);

/// Deletes a site as `SiteRecords::deleteSite` does, and returns it; without tables when there is no such site. What
/// the log says of it stays. In one transaction; raises DataAccessError.
DeletedSite takeSiteOut(Database& database, std::int64_t idSite);

/// Puts it back under its id, with all that it had. In one transaction; raises DataAccessError when a site has its id
/// meanwhile.
void putSiteBack(Database& database, const DeletedSite& site);

}  // namespace tarnwick
