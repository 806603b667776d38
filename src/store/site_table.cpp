// SPDX-License-Identifier: MIT
#include "store/site_table.h"

#include <utility>

namespace tarnwick {

TextTable readSiteTable(Database& database, std::string sql) {
  const auto rows = database.query(std::move(sql));
  TextTable table(site_column::last);
  for (; !rows->eof(); rows->moveNext()) {
    const std::size_t row = table.addRow();
    for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
      table.at(column, row) = rows->field(column - 1).toTableText();
    }
  }
  rows->close();
  return table;
}

}  // namespace tarnwick
