// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "store/database.h"
#include "store/text_table.h"

namespace tarnwick {

/// The fields of a site table, in the order of its columns.
inline constexpr const char* kSiteFields =
    "idSite,url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,success,failure";

/// The numbers of a site table's columns.
namespace site_column {
inline constexpr std::size_t idSite = 1;
inline constexpr std::size_t url = 2;
inline constexpr std::size_t method = 3;
inline constexpr std::size_t active = 4;
inline constexpr std::size_t tInterval = 5;
inline constexpr std::size_t lastChecked = 6;
inline constexpr std::size_t alertEmail = 7;
inline constexpr std::size_t email = 8;
inline constexpr std::size_t sUserName = 9;
inline constexpr std::size_t sPassWord = 10;
inline constexpr std::size_t status = 11;
inline constexpr std::size_t success = 12;
inline constexpr std::size_t failure = 13;
inline constexpr std::size_t last = failure;
}  // namespace site_column

/// Adds up to `most` of the rows left of `rows`, whose fields are `kSiteFields`, in the order they come; returns how
/// many. Raises DataAccessError.
std::size_t addSites(TextTable& table, Recordset& rows, std::size_t most = std::numeric_limits<std::size_t>::max());

/// All rows left of `rows`; else as above.
TextTable siteTableOf(Recordset& rows);

/// Up to `most` of all sites, the first ones, in the order of the database. Raises DataAccessError.
TextTable readFirstSites(Database& database, std::size_t most);

/// Up to `most` of the sites whose ids are above `last`, or the first ones, in the order of their ids. Raises
/// DataAccessError.
TextTable readSitesBehind(Database& database, std::optional<std::int64_t> last, std::size_t most);

/// Runs `sql`, whose select list is `kSiteFields`, and returns its rows in the order they come. Raises DataAccessError.
TextTable readSiteTable(Database& database, std::string sql);

/// The rows of a site table for whose numbers `keeps` is true.
template <typename Keeps>
TextTable rowsWhere(const TextTable& sites, Keeps keeps) {
  TextTable kept(sites.lastColumn());
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    if (keeps(row)) {
      const std::size_t added = kept.addRow();
      for (std::size_t column = 1; column <= sites.lastColumn(); ++column) {
        kept.at(column, added) = sites.at(column, row);
      }
    }
  }
  return kept;
}

}  // namespace tarnwick
