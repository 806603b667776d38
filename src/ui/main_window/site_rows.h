// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>
#include <unordered_map>
#include <vector>

#include "store/text_table.h"
#include "ui/main_window/site_row.h"

namespace tarnwick {

/// A list of sites that is shown, or that is to be.
struct SiteRows {
  std::vector<SiteRow> rows{};
  // Ids are unique unless another tool made the file; then every row of an id follows its site.
  std::unordered_multimap<std::int16_t, int> rowsOfSite{};

  /// Adds those of a site table. `notFetched` are those whose last check brought no page, as far as that is stored.
  void add(const TextTable& sites, const std::set<std::int64_t>& notFetched, SiteColumns columns);
  /// Reads the record of one site, the first of `sites`, anew.
  void update(const TextTable& sites, SiteColumns columns);
  /// Takes over what is not stored and still holds.
  void learnFrom(const SiteRows& shown);
};

}  // namespace tarnwick
