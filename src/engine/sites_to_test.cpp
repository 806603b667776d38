// SPDX-License-Identifier: MIT
#include "engine/sites_to_test.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/clock.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

void copyRow(const TextTable& from, std::size_t row, TextTable& to) {
  const std::size_t added = to.addRow();
  for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
    to.at(column, added) = from.at(column, row);
  }
}

/// The sites in the order in which passes take them, that of their ids.
TextTable inOrder(const TextTable& sites) {
  std::vector<std::pair<std::int64_t, std::size_t>> rows;
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    rows.emplace_back(SqlValue(sites.at(site_column::idSite, row)).toInt64(), row);
  }
  std::ranges::sort(rows);
  TextTable ordered(sites.lastColumn());
  for (const auto& [id, row] : rows) {
    copyRow(sites, row, ordered);
  }
  return ordered;
}

/// The row of a site; 0 when it is not in the table.
std::size_t rowOf(const TextTable& sites, std::int16_t idSite) {
  const std::string id = std::to_string(idSite);
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    if (sites.at(site_column::idSite, row) == id) {
      return row;
    }
  }
  return 0;
}

}  // namespace

TextTable SitesToTest::choose(std::int16_t mode, bool neverCheckedToo, const std::function<void()>& between) {
  TextTable sites =
      neverCheckedToo ? dueSites_.getSitesDueOrNeverChecked(between) : dueSites_.getArraySitesActiveTrue(mode, between);
  addOwed(sites);
  if (const std::size_t row = typed_ ? rowOf(sites, *typed_) : 0; row > 0) {
    owe(*typed_);
    sites = rowsWhere(sites, [&](std::size_t other) { return other != row; });
  }
  taken_.clear();
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    if (!parseStamp(sites.at(site_column::lastChecked, row))) {
      taken_.insert(sites.at(site_column::idSite, row));
    }
  }
  return sites;
}

TextTable SitesToTest::withoutUnrecorded(const TextTable& sites, std::chrono::milliseconds now) const {
  if (unrecorded_.empty()) {
    return sites;
  }
  return rowsWhere(sites, [&](std::size_t row) {
    const auto checked = unrecorded_.find(sites.at(site_column::idSite, row));
    const std::chrono::minutes interval(
        std::clamp<std::int64_t>(SqlValue(sites.at(site_column::tInterval, row)).toInt64(), 1, 1 << 20));
    return checked == unrecorded_.end() || now - checked->second >= interval;
  });
}

SomeSites SitesToTest::leftOut(bool passIsOn) {
  SomeSites left;
  for (const std::int64_t id : dueSites_.idsNeverChecked()) {
    const bool isTaken = passIsOn && taken_.contains(std::to_string(id));
    const bool isOwed =
        std::cmp_equal(id, static_cast<std::int16_t>(id)) && owed_.contains(static_cast<std::int16_t>(id));
    if (isTaken || isOwed || (typed_ && *typed_ == id)) {
      continue;
    }
    left.first = left.count == 0 ? id : left.first;
    ++left.count;
  }
  return left;
}

void SitesToTest::addOwed(TextTable& sites) {
  if (owed_.empty()) {
    return;
  }
  const std::size_t dueAnyway = sites.lastRow();
  std::unordered_set<std::string> chosen;
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    chosen.insert(sites.at(site_column::idSite, row));
  }
  std::erase_if(owed_, [&](std::int16_t id) {
    if (chosen.contains(std::to_string(id))) {
      return false;
    }
    const TextTable stored = dueSites_.asStored(id);
    const bool active = stored.lastRow() == 1 && SqlValue(stored.at(site_column::active, 1)).toBool();
    if (active) {
      copyRow(stored, 1, sites);
    }
    return !active;
  });
  if (sites.lastRow() > dueAnyway) {
    sites = inOrder(sites);
  }
}

std::string SitesToTest::whatWaits() {
  const SomeSites waiting = dueSites_.neverChecked();
  if (waiting.count == 0) {
    return {};
  }
  if (waiting.count == 1 && typed_ && waiting.first == *typed_) {
    return "No countdown: site " + std::to_string(waiting.first) + " is still being entered.";
  }
  return waiting.count == 1
             ? "No countdown: site " + std::to_string(waiting.first) + ", never checked, waits for the next Start."
             : "No countdown: " + std::to_string(waiting.count) + " sites, never checked, wait for the next Start.";
}

}  // namespace tarnwick
