// SPDX-License-Identifier: MIT
#include "store/site_table.h"

#include <utility>

#include "store/sql_quote.h"

namespace tarnwick {

std::size_t addSites(TextTable& table, Recordset& rows, std::size_t most) {
  std::size_t added = 0;
  for (; added < most && !rows.eof(); rows.moveNext(), ++added) {
    const std::size_t row = table.addRow();
    for (std::size_t column = site_column::idSite; column <= site_column::last; ++column) {
      table.at(column, row) = rows.field(column - 1).toTableText();
    }
  }
  rows.close();
  return added;
}

TextTable siteTableOf(Recordset& rows) {
  TextTable table(site_column::last);
  addSites(table, rows);
  return table;
}

TextTable readFirstSites(Database& database, std::size_t most) {
  TextTable sites(site_column::last);
  addSites(sites, *database.query(joinSql("select ", kSiteFields, " from sites")), most);
  return sites;
}

TextTable readSitesBehind(Database& database, std::optional<std::int64_t> last, std::size_t most) {
  TextTable sites(site_column::last);
  const std::string behind = last ? " where idSite > " + std::to_string(*last) : std::string();
  addSites(sites, *database.query(joinSql("select ", kSiteFields, " from sites", behind, " order by idSite")), most);
  return sites;
}

TextTable readSiteTable(Database& database, std::string sql) { return siteTableOf(*database.query(std::move(sql))); }

}  // namespace tarnwick
