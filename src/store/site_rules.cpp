// SPDX-License-Identifier: MIT
#include "store/site_rules.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "store/migrations.h"

namespace tarnwick {
namespace {

constexpr std::string_view kHole = "hole";
constexpr const char* kInsert = "insert into rules (idSite, ord, kind, rule) values (?1, ?2, ?3, ?4)";

// "css #main": the language, a blank and the rule.
std::optional<PageRule> ruleOf(std::string_view kind, std::string_view stored) {
  const auto use = useOf(kind);
  const std::size_t blank = stored.find(' ');
  const auto language = languageOf(stored.substr(0, blank));
  if (!use || !language || blank == std::string_view::npos) {
    return std::nullopt;
  }
  return PageRule{*use, *language, std::string(stored.substr(blank + 1))};
}

}  // namespace

bool SiteRules::hasTable() {
  return !db_.conn()
              .execute("select 1 from sqlite_master where type = 'table' and name = 'rules'",
                       std::span<const SqlValue>())
              ->eof();
}

RuleSet SiteRules::rulesOf(std::int16_t idSite) {
  RuleSet set;
  if (!hasTable()) {
    return set;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select kind, rule from rules where idSite = ?1 order by ord", {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    const std::string kind = rows->field("kind").toText();
    const std::string rule = rows->field("rule").toText();
    if (kind == kHole) {
      if (auto hole = holeOfText(rule)) {
        set.holes.push_back(std::move(*hole));
      }
    } else if (auto read = ruleOf(kind, rule)) {
      set.rules.push_back(std::move(*read));
    }
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
  const auto insert = [&](std::string_view kind, std::string rule) {
    const std::array<SqlValue, 4> row{SqlValue(std::int64_t{idSite}), SqlValue(++order), SqlValue(std::string(kind)),
                                      SqlValue(std::move(rule))};
    db_.conn().execute(kInsert, row)->close();
  };
  for (const PageRule& rule : set.rules) {
    insert(wordOf(rule.use), std::string(wordOf(rule.language)) + " " + rule.rule);
  }
  Holes holes = set.holes;
  std::ranges::sort(holes, {}, &Hole::begin);
  for (const Hole& hole : holes) {
    insert(kHole, holeText(hole));
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
