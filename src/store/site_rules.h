// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <set>

#include "holes/page_rule.h"
#include "store/database.h"

namespace tarnwick {

/// Table `rules`: what of the sites' pages does not count. A list without the table reads as if it were empty. Every
/// failed statement raises DataAccessError.
class SiteRules {
 public:
  explicit SiteRules(Database& database) : db_(database) {}

  /// What of the site's page does not count: nothing for most. What this program cannot read, as what a newer one may
  /// have stored, is left out.
  RuleSet rulesOf(std::int16_t idSite);
  /// The sites that have any.
  std::set<std::int64_t> sitesWithRules();
  /// Stores `rules` in place of all that the site has. Its holes in the order of their places.
  void storeRules(std::int16_t idSite, const RuleSet& rules);
  /// Nothing when there are none, or no table.
  void removeRules(std::int64_t idSite);

 private:
  bool hasTable();

  Database& db_;
};

}  // namespace tarnwick
