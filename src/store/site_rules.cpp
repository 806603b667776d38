// SPDX-License-Identifier: MIT
#include "store/site_rules.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

constexpr const char* kInsert = "insert into rules (idSite, ord, kind, rule) values (?1, ?2, ?3, ?4)";

}  // namespace

bool SiteRules::hasTable() { return tarnwick::hasTable(db_, "rules"); }

RuleSet SiteRules::rulesOf(std::int16_t idSite) {
  RuleSet set;
  if (!hasTable()) {
    return set;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select kind, rule from rules where idSite = ?1 order by ord", {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    addLine(set, rows->field("kind").toText(), rows->field("rule").toText());
  }
  rows->close();
  return set;
}

std::set<std::int64_t> SiteRules::sitesWithRules() {
  std::set<std::int64_t> sites;
  if (!hasTable()) {
    return sites;
  }
  const auto rows = db_.conn().execute("select distinct idSite from rules", std::span<const SqlValue>());
  for (; !rows->eof(); rows->moveNext()) {
    sites.insert(rows->field(std::size_t{0}).toInt64());
  }
  rows->close();
  return sites;
}

void SiteRules::storeRules(std::int16_t idSite, const RuleSet& set) {
  if (set.empty() && !hasTable()) {
    return;
  }
  requireTodaysForm(db_.conn(), db_.dbPath());
  Transaction whole(db_);
  removeRules(idSite);
  std::int64_t order = 0;
  RuleSet ordered = set;
  std::ranges::sort(ordered.holes, {}, &Hole::begin);
  for (RuleLine& line : linesOf(ordered)) {
    const std::array<SqlValue, 4> row{SqlValue(std::int64_t{idSite}), SqlValue(++order), SqlValue(std::move(line.kind)),
                                      SqlValue(std::move(line.rule))};
    db_.conn().execute(kInsert, row)->close();
  }
  whole.commit();
}

void SiteRules::removeRules(std::int64_t idSite) {
  if (hasTable()) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from rules where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
