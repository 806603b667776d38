// SPDX-License-Identifier: MIT
#include "ui/main_window/site_rows.h"

#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

void SiteRows::add(const TextTable& sites, const std::set<std::int64_t>& notFetched, SiteColumns columns) {
  const std::size_t count = sites.lastRow();
  if (rows.empty()) {
    rows.reserve(count);
    rowsOfSite.reserve(count);
  }
  for (std::size_t row = 1; row <= count; ++row) {
    rows.push_back(readSiteRow(sites, row, columns));
    if (const auto id = siteIdOf(rows.back())) {
      rowsOfSite.emplace(*id, static_cast<int>(rows.size() - 1));
      rows.back().fetched = !notFetched.contains(*id);
    }
  }
}

void SiteRows::update(const TextTable& sites, SiteColumns columns) {
  if (sites.lastRow() == 0) {
    return;
  }
  const SiteRow site = readSiteRow(sites, 1, columns);
  if (const auto id = siteIdOf(site)) {
    const auto [first, last] = rowsOfSite.equal_range(*id);
    for (auto entry = first; entry != last; ++entry) {
      rows[static_cast<std::size_t>(entry->second)] = site;
    }
  }
}

// Of a check itself it is known whether it brought a page, also where no log is kept; it is the same one by its time.
void SiteRows::learnFrom(const SiteRows& shown) {
  if (shown.rows.empty()) {
    return;
  }
  for (SiteRow& row : rows) {
    const auto id = siteIdOf(row);
    if (!id) {
      continue;
    }
    const auto known = shown.rowsOfSite.find(*id);
    if (known == shown.rowsOfSite.end()) {
      continue;
    }
    const SiteRow& before = shown.rows[static_cast<std::size_t>(known->second)];
    row.alarm = before.alarm;
    if (before.shade == SiteRow::Shade::down && !before.fetched &&
        before.cells[SiteGridModel::timeColumn] == row.cells[SiteGridModel::timeColumn]) {
      row.fetched = false;
    }
  }
}

}  // namespace tarnwick
