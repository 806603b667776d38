// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/verbs/alarm_words.h"
#include "cli/verbs/tool.h"
#include "exchange/list/site_facts.h"
#include "finding/site_query.h"

namespace tarnwick {

/// The sites of the list with all that they are found by, read at once.
class SiteFinder {
 public:
  explicit SiteFinder(Tool& tool);

  const std::vector<SiteFacts>& sites() const { return sites_; }
  const SiteWatches& watches() const { return watches_; }
  const Tags& tagsOf(std::int64_t idSite) const;
  /// Whether any site has tags.
  bool anyTags() const { return !tags_.empty(); }
  bool finds(const SiteQuery& query, const SiteFacts& facts) const;

 private:
  std::vector<SiteFacts> sites_;
  SiteWatches watches_;
  std::map<std::int64_t, Tags> tags_;
  std::set<std::int64_t> notFetched_;
};

/// Words of the command line as one query. Raises std::runtime_error for a bad one.
SiteQuery queryOf(const std::vector<std::string>& words);

/// The sites that words of the command line mean, in rising order: ids, each of which must be listed, or a query; all
/// sites for "all". Raises std::runtime_error for what is neither, and where no site is like that.
std::vector<std::int16_t> chosenSites(Tool& tool, const std::vector<std::string>& words);

/// The option of these words, which must be given.
VerbOption chosenSitesOption(std::vector<std::string>& words);

}  // namespace tarnwick
