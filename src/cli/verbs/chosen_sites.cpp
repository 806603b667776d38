// SPDX-License-Identifier: MIT
#include "cli/verbs/chosen_sites.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <utility>

#include "engine/site_finding.h"

namespace tarnwick {
namespace {

std::optional<std::int16_t> idOf(const std::string& word) {
  std::int16_t id = 0;
  const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), id);
  return fault == std::errc() && end == word.data() + word.size() && id > 0 ? std::optional(id) : std::nullopt;
}

std::string joined(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) {
    line += (line.empty() ? "" : " ") + word;
  }
  return line;
}

}  // namespace

SiteFinder::SiteFinder(Tool& tool)
    : sites_(readSiteFacts(tool.data())),
      watches_(tool),
      tags_(tool.data().tagsOfSites()),
      notFetched_(tool.data().sitesNotFetched()) {
  for (SiteFacts& facts : sites_) {
    facts.notAPage = facts.status == true && notFetched_.contains(facts.idSite);
  }
}

const Tags& SiteFinder::tagsOf(std::int64_t idSite) const {
  static const Tags kNone;
  const auto known = tags_.find(idSite);
  return known == tags_.end() ? kNone : known->second;
}

bool SiteFinder::finds(const SiteQuery& query, const SiteFacts& facts) const {
  if (query.all()) {
    return true;
  }
  const SiteWatch watch = watches_.of(facts);
  return query.finds(foundSiteOf({.idSite = facts.idSite,
                                  .url = facts.site.url,
                                  .active = facts.site.active,
                                  .status = facts.status,
                                  .isChecked = !facts.lastChecked.empty(),
                                  .hasPage = !notFetched_.contains(facts.idSite),
                                  .acknowledged = watch.alarm.acknowledged,
                                  .alarm = watch.alarm,
                                  .unwatched = watch.unwatched},
                                 tagsOf(facts.idSite)));
}

SiteQuery queryOf(const std::vector<std::string>& words) {
  try {
    return SiteQuery(joined(words));
  } catch (const std::invalid_argument& fault) {
    throw std::runtime_error(fault.what());
  }
}

std::vector<std::int16_t> chosenSites(Tool& tool, const std::vector<std::string>& words) {
  std::vector<std::int16_t> ids;
  for (const std::string& word : words) {
    if (const auto id = idOf(word)) {
      requireListed(tool, *id);
      ids.push_back(*id);
    }
  }
  if (ids.size() != words.size()) {
    if (!ids.empty()) {
      throw std::runtime_error("Name the sites either by their ids or by a query: \"" + visibleText(joined(words)) +
                               "\" is both. In a query a site is named as in id:3,7.");
    }
    const bool isAll = words.size() == 1 && words.front() == "all";
    const SiteQuery query = isAll ? SiteQuery() : queryOf(words);
    const SiteFinder finder(tool);
    for (const SiteFacts& facts : finder.sites()) {
      if (std::in_range<std::int16_t>(facts.idSite) && finder.finds(query, facts)) {
        ids.push_back(static_cast<std::int16_t>(facts.idSite));
      }
    }
    if (ids.empty()) {
      throw std::runtime_error("No site of the list is like that: " + visibleText(joined(words)) +
                               ". See them with: tarnwickctl sites");
    }
  }
  std::ranges::sort(ids);
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  return ids;
}

VerbOption chosenSitesOption(std::vector<std::string>& words) {
  return {.name = "SITE",
          .target = &words,
          .meaning = "Ids of sites, as the verb sites lists them, or a query as that takes it, or all",
          .type = "ID|QUERY|all",
          .required = true};
}

}  // namespace tarnwick
