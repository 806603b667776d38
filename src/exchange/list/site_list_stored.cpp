// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_stored.h"

#include <algorithm>
#include <iterator>
#include <string_view>
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

std::optional<ListedSite> ListedSiteReader::next() {
  if (taken_ == read_.size()) {
    read_ = facts_.next();
    taken_ = 0;
    if (read_.empty()) {
      return std::nullopt;
    }
  }
  SiteFacts& facts = read_[taken_++];
  ListedSite site;
  const std::int16_t id = idOf(facts);
  site.idSite = id;
  site.site = listedForm(std::move(facts.site));
  site.postVars = readPostVars(data_, id);
  if (columns_.options) {
    site.options = knownOptions(data_, id);
  }
  if (columns_.rules) {
    site.rules = data_.rulesOf(id);
  }
  if (columns_.tags) {
    site.tags = data_.tagsOf(id);
  }
  if (columns_.kept) {
    site.kept = data_.listedBaselines(id);
  }
  if (columns_.history) {
    site.history = readHistory(data_.database(), id);
  }
  if (columns_.baselines) {
    site.baseline = data_.getContentCompare(id);
  }
  return site;
}

bool hasOptions(m& data) {
  std::vector<std::string_view> names;
  std::ranges::transform(data.optionFields(), std::back_inserter(names), &OptionField::name);
  return data.optionsInForce().setsAnyOf(names);
}

bool hasTags(m& data) { return !data.tagsOfSites().empty(); }

bool hasKeptBaselines(m& data) { return !data.sitesWithKeptBaselines().empty(); }

bool hasRules(m& data) { return !data.sitesWithRules().empty(); }

std::int16_t idOf(const SiteFacts& facts) {
  return checkedInt16(facts.idSite, "the site id " + std::to_string(facts.idSite));
}

}  // namespace tarnwick
