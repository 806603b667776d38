// SPDX-License-Identifier: MIT
#include "store/listed_facts.h"

#include <array>
#include <string_view>

#include "store/history_rows.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

using Facts = std::map<std::int64_t, ListedFacts>;

/// Hands `take` the facts of each row's site, which is its first field, and the row.
template <typename Take>
void eachRow(Database& database, std::string_view sql, std::int64_t first, std::int64_t last, Facts& facts, Take take) {
  const std::array<SqlValue, 2> range{SqlValue(first), SqlValue(last)};
  const auto rows = database.conn().execute(sql, range);
  for (; !rows->eof(); rows->moveNext()) {
    take(facts[rows->field(std::size_t{0}).toInt64()], *rows);
  }
  rows->close();
}

void takeOutage(ListedFacts& site, const Recordset& row) {
  if (const SqlValue ended = row.field(std::size_t{2}); !ended.isNull()) {
    site.upSince = history_rows::momentIn(ended);
  } else {
    site.downSince = history_rows::momentIn(row.field(std::size_t{1}));
    site.cause = row.field(std::size_t{3}).toText();
  }
}

}  // namespace

std::map<std::int64_t, ListedFacts> readListedFacts(Database& database, const FactsWanted& wanted, std::int64_t first,
                                                    std::int64_t last) {
  Facts facts;
  const auto read = [&](bool isWanted, std::string_view table, std::string_view sql, auto take) {
    if (isWanted && hasTable(database, table)) {
      eachRow(database, sql, first, last, facts, take);
    }
  };
  // The latest outage of each site by one look into the order of the table, however many there were in years.
  read(wanted.outage, "outages",
       "select o.idSite, o.began, o.ended, o.cause from latestChecks l cross join outages o on o.idSite = l.idSite and "
       "o.began = (select max(began) from outages where idSite = l.idSite) where l.idSite between ?1 and ?2",
       &takeOutage);
  read(wanted.latency, "latestChecks",
       "select idSite, whole from latestChecks where idSite between ?1 and ?2 and whole is not null",
       [](ListedFacts& site, const Recordset& row) {
         site.latency = std::chrono::milliseconds(row.field(std::size_t{1}).toInt64());
       });
  read(wanted.tags, "siteTags", "select idSite, tag from siteTags where idSite between ?1 and ?2",
       [](ListedFacts& site, const Recordset& row) { site.tags.push_back(row.field(std::size_t{1}).toText()); });
  read(wanted.certificate, "certificates",
       "select idSite, ends, issuer from certificates where idSite between ?1 and ?2",
       [](ListedFacts& site, const Recordset& row) {
         site.certificate = {history_rows::momentIn(row.field(std::size_t{1})), row.field(std::size_t{2}).toText()};
       });
  if (wanted.tags) {
    for (auto& [id, site] : facts) {
      site.tags = withTags({}, site.tags);
    }
  }
  return facts;
}

}  // namespace tarnwick
