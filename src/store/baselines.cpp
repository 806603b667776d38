// SPDX-License-Identifier: MIT
#include "store/baselines.h"

#include <algorithm>
#include <array>
#include <span>
#include <stdexcept>
#include <utility>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 2> kOrigins{"replaced", "also"};

std::string originText(BaselineOrigin origin) { return std::string(wordOf(origin)); }

std::set<std::int64_t> idsIn(Recordset& rows) {
  std::set<std::int64_t> ids;
  for (; !rows.eof(); rows.moveNext()) {
    ids.insert(rows.field(std::size_t{0}).toInt64());
  }
  rows.close();
  return ids;
}

}  // namespace

std::string_view wordOf(BaselineOrigin origin) { return kOrigins[static_cast<std::size_t>(origin)]; }

std::optional<BaselineOrigin> baselineOriginOf(std::string_view word) {
  const auto found = std::ranges::find(kOrigins, word);
  return found == kOrigins.end() ? std::nullopt : std::optional(static_cast<BaselineOrigin>(found - kOrigins.begin()));
}

bool Baselines::hasTable() { return tarnwick::hasTable(db_, "baselines"); }

std::vector<KeptBaseline> Baselines::baselinesOf(std::int16_t idSite) {
  std::vector<KeptBaseline> kept;
  if (!hasTable()) {
    return kept;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute(
      "select idBaseline, taken, origin, length(cast(content as blob)) from baselines where idSite = ?1 order by "
      "idBaseline desc",
      {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    if (const auto origin = baselineOriginOf(rows->field("origin").toText())) {
      kept.push_back({rows->field(std::size_t{0}).toInt64(), rows->field("taken").toText(), *origin,
                      static_cast<std::size_t>(rows->field(std::size_t{3}).toInt64())});
    }
  }
  rows->close();
  return kept;
}

std::optional<std::string> Baselines::keptPage(std::int16_t idSite, std::int64_t number) {
  if (!hasTable()) {
    return std::nullopt;
  }
  const std::array<SqlValue, 2> which{SqlValue(std::int64_t{idSite}), SqlValue(number)};
  const auto rows = db_.conn().execute("select content from baselines where idSite = ?1 and idBaseline = ?2", which);
  return rows->eof() ? std::nullopt : std::optional(rows->field(std::size_t{0}).toText());
}

void Baselines::insert(std::int16_t idSite, const ListedBaseline& baseline) {
  const std::array<SqlValue, 4> row{SqlValue(std::int64_t{idSite}), SqlValue(baseline.taken),
                                    SqlValue(originText(baseline.origin)), SqlValue(baseline.page)};
  db_.conn().execute("insert into baselines (idSite, taken, origin, content) values (?1, ?2, ?3, ?4)", row)->close();
}

void Baselines::keepBaseline(std::int16_t idSite, const std::string& taken, BaselineOrigin origin,
                             const std::string& page) {
  requireTodaysForm(db_.conn(), db_.dbPath());
  Transaction whole(db_);
  std::vector<KeptBaseline> kept = baselinesOf(idSite);
  std::erase_if(kept, [&](const KeptBaseline& one) { return one.origin != origin; });
  if (origin == BaselineOrigin::also && kept.size() >= kMostKeptBaselines) {
    throw std::length_error(
        "Site " + std::to_string(idSite) + " has " + std::to_string(kept.size()) +
        " further good pages, and more are not kept. Remove one first, with: tarnwickctl baseline " +
        std::to_string(idSite) + " drop NUMBER");
  }
  for (std::size_t i = kMostKeptBaselines - 1; i < kept.size(); ++i) {
    dropBaseline(idSite, kept[i].number);
  }
  insert(idSite, {taken, origin, page});
  whole.commit();
}

bool Baselines::dropBaseline(std::int16_t idSite, std::int64_t number) {
  if (!hasTable()) {
    return false;
  }
  const std::array<SqlValue, 2> which{SqlValue(std::int64_t{idSite}), SqlValue(number)};
  const bool isThere =
      !db_.conn().execute("select 1 from baselines where idSite = ?1 and idBaseline = ?2", which)->eof();
  if (isThere) {
    db_.conn().execute("delete from baselines where idSite = ?1 and idBaseline = ?2", which)->close();
  }
  return isThere;
}

std::optional<std::string> Baselines::takeLastReplaced(std::int16_t idSite) {
  const std::vector<KeptBaseline> kept = baselinesOf(idSite);
  const auto last = std::ranges::find(kept, BaselineOrigin::replaced, &KeptBaseline::origin);
  if (last == kept.end()) {
    return std::nullopt;
  }
  Transaction whole(db_);
  auto page = keptPage(idSite, last->number);
  dropBaseline(idSite, last->number);
  whole.commit();
  return page;
}

std::set<std::int64_t> Baselines::sitesWithFurtherPages() {
  if (!hasTable()) {
    return {};
  }
  return idsIn(
      *db_.conn().execute("select distinct idSite from baselines where origin = 'also'", std::span<const SqlValue>()));
}

bool Baselines::isFurtherPage(std::int16_t idSite, std::string_view page) {
  if (!hasTable()) {
    return false;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select content from baselines where idSite = ?1 and origin = 'also'", {&id, 1});
  while (!rows->eof() && !rows->holds("content", page)) {
    rows->moveNext();
  }
  return !rows->eof();
}

std::vector<std::string> Baselines::furtherPages(std::int16_t idSite) {
  std::vector<std::string> pages;
  for (ListedBaseline& listed : listedBaselines(idSite)) {
    if (listed.origin == BaselineOrigin::also) {
      pages.push_back(std::move(listed.page));
    }
  }
  return pages;
}

std::vector<ListedBaseline> Baselines::listedBaselines(std::int16_t idSite) {
  std::vector<ListedBaseline> listed;
  if (!hasTable()) {
    return listed;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute(
      "select taken, origin, content from baselines where idSite = ?1 order by idBaseline", {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    if (const auto origin = baselineOriginOf(rows->field("origin").toText())) {
      listed.push_back({rows->field("taken").toText(), *origin, rows->field("content").toText()});
    }
  }
  rows->close();
  return listed;
}

void Baselines::storeBaselines(std::int16_t idSite, const std::vector<ListedBaseline>& baselines) {
  if (baselines.empty() && !hasTable()) {
    return;
  }
  requireTodaysForm(db_.conn(), db_.dbPath());
  Transaction whole(db_);
  removeBaselinesOf(idSite);
  for (const ListedBaseline& baseline : baselines) {
    insert(idSite, baseline);
  }
  whole.commit();
}

std::set<std::int64_t> Baselines::sitesWithKeptBaselines() {
  if (!hasTable()) {
    return {};
  }
  return idsIn(*db_.conn().execute("select distinct idSite from baselines", std::span<const SqlValue>()));
}

void Baselines::removeBaselinesOf(std::int64_t idSite) {
  if (hasTable()) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from baselines where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
