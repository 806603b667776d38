// SPDX-License-Identifier: MIT
#include "ui/support/site_table.h"

#include "store/site_table.h"

namespace tarnwick::testing {

TextTable siteTable(const std::vector<SiteCells>& sites) {
  TextTable table(site_column::last);
  for (const SiteCells& site : sites) {
    const std::size_t row = table.addRow();
    table.at(site_column::idSite, row) = site.id;
    table.at(site_column::url, row) = site.url;
    table.at(site_column::active, row) = site.active;
    table.at(site_column::status, row) = site.status;
    table.at(site_column::success, row) = site.success;
    table.at(site_column::failure, row) = site.failure;
    table.at(site_column::lastChecked, row) = site.lastChecked;
  }
  return table;
}

}  // namespace tarnwick::testing
