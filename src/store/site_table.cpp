// SPDX-License-Identifier: MIT
#include "store/site_table.h"

#include <utility>

namespace tarnwick {

TextTable siteTableOf(Recordset& rows) {
  TextTable table(site_column::last);
  for (; !rows.eof(); rows.moveNext()) {
    const std::size_t row = table.addRow();
    for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
      table.at(column, row) = rows.field(column - 1).toTableText();
    }
  }
  rows.close();
  return table;
}

TextTable readSiteTable(Database& database, std::string sql) { return siteTableOf(*database.query(std::move(sql))); }

}  // namespace tarnwick
