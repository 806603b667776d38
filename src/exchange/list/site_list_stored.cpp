// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_stored.h"

#include <algorithm>
#include <utility>

#include "base/sql_value.h"

namespace tarnwick {

SiteDraft listedForm(SiteDraft stored) {
  const SiteDraft fresh = ListedSite{}.site;
  if (stored.method.empty()) {
    stored.method = fresh.method;
  }
  if (stored.tInterval.empty()) {
    stored.tInterval = fresh.tInterval;
  }
  return stored;
}

void readListedSites(m& data, ListColumns columns, const std::function<void(const ListedSite& site)>& take) {
  std::vector<SiteFacts> stored = readSiteFacts(data);
  std::ranges::stable_sort(stored, {}, &SiteFacts::idSite);
  for (SiteFacts& facts : stored) {
    ListedSite site;
    const std::int16_t id = idOf(facts);
    site.idSite = id;
    site.site = listedForm(std::move(facts.site));
    site.postVars = readPostVars(data, id);
    if (columns.options) {
      site.options = knownOptions(data, id);
    }
    if (columns.rules) {
      site.rules = data.rulesOf(id);
    }
    if (columns.tags) {
      site.tags = data.tagsOf(id);
    }
    if (columns.kept) {
      site.kept = data.listedBaselines(id);
    }
    if (columns.history) {
      site.history = readHistory(data.database(), id);
    }
    if (columns.baselines) {
      site.baseline = data.getContentCompare(id);
    }
    take(site);
  }
}

bool hasOptions(m& data) {
  if (!knownOptions(data, kAllSites).empty()) {
    return true;
  }
  return std::ranges::any_of(readSiteFacts(data),
                             [&](const SiteFacts& facts) { return !knownOptions(data, idOf(facts)).empty(); });
}

bool hasTags(m& data) { return !data.tagsOfSites().empty(); }

bool hasKeptBaselines(m& data) { return !data.sitesWithKeptBaselines().empty(); }

bool hasRules(m& data) { return !data.sitesWithRules().empty(); }

std::int16_t idOf(const SiteFacts& facts) {
  return checkedInt16(facts.idSite, "the site id " + std::to_string(facts.idSite));
}

}  // namespace tarnwick
