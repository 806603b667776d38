// SPDX-License-Identifier: MIT
#include "program/site_changes.h"

#include <stdexcept>
#include <utility>

#include "base/sql_value.h"
#include "program/site_draft.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

Tags changedTags(const Tags& tags, const SiteChanges& changes) {
  return withTags(withoutTags(tags, changes.removedTags), changes.addedTags);
}

bool changesOption(const OptionValues& own, const std::string& name, const std::string& value) {
  const auto set = own.find(name);
  return set == own.end() ? !value.empty() : set->second != value;
}

std::vector<std::string> whatChanges(m& data, std::int16_t id, const SiteChanges& changes) {
  std::vector<std::string> what;
  const TextTable rows = data.getArraySites(id);
  if (rows.lastRow() == 0) {
    return what;
  }
  const auto cell = [&](std::size_t column) { return SqlValue(rows.at(column, 1)); };
  if (changes.active && cell(site_column::active).toBool() != *changes.active) {
    what.emplace_back("active");
  }
  if (changes.interval && textOrEmpty(rows.at(site_column::tInterval, 1)) != *changes.interval) {
    what.emplace_back("interval");
  }
  const OptionValues own = data.options(id);
  for (const auto& [name, value] : changes.options) {
    if (changesOption(own, name, value)) {
      what.push_back(name);
    }
  }
  if (changes.resetsCounters &&
      (cell(site_column::success).toInt64() != 0 || cell(site_column::failure).toInt64() != 0)) {
    what.emplace_back("counters");
  }
  if (const Tags tags = data.tagsOf(id); changedTags(tags, changes) != tags) {
    what.emplace_back("tags");
  }
  return what;
}

void change(m& data, std::int16_t id, const SiteChanges& changes) {
  if (changes.active || changes.interval) {
    SiteDraft site = readSite(data, id);
    site.active = changes.active.value_or(site.active);
    site.tInterval = changes.interval.value_or(site.tInterval);
    storeSite(data, id, site, readPostVars(data, id));
  }
  for (const auto& [name, value] : changes.options) {
    if (value.empty()) {
      data.removeOption(id, name);
    } else {
      data.setOption(id, name, value);
    }
  }
  if (changes.resetsCounters) {
    data.clearCounters(id);
  }
  if (!changes.addedTags.empty() || !changes.removedTags.empty()) {
    const Tags tags = changedTags(data.tagsOf(id), changes);
    if (tags.size() > kMostTags) {
      throw std::runtime_error("Site " + std::to_string(id) + " would have more than " + std::to_string(kMostTags) +
                               " tags. Remove some first.");
    }
    data.storeTags(id, tags);
  }
}

}  // namespace

std::optional<PlannedChange> planChange(m& data, std::int16_t idSite, const SiteChanges& changes) {
  auto what = whatChanges(data, idSite, changes);
  return what.empty() ? std::nullopt : std::optional(PlannedChange{idSite, std::move(what)});
}

std::vector<PlannedChange> planChanges(m& data, const std::vector<std::int16_t>& ids, const SiteChanges& changes) {
  std::vector<PlannedChange> plan;
  for (const std::int16_t id : ids) {
    if (auto planned = planChange(data, id, changes)) {
      plan.push_back(std::move(*planned));
    }
  }
  return plan;
}

void carryOutChange(m& data, std::int16_t idSite, const SiteChanges& changes) {
  Transaction whole(data.database());
  if (data.idExists(idSite)) {
    change(data, idSite, changes);
  }
  whole.commit();
}

void carryOutChanges(m& data, const std::vector<PlannedChange>& plan, const SiteChanges& changes) {
  Transaction whole(data.database());
  for (const PlannedChange& planned : plan) {
    carryOutChange(data, planned.idSite, changes);
  }
  whole.commit();
}

}  // namespace tarnwick
