// SPDX-License-Identifier: MIT
#include "ui/main_window/site_order.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "engine/site_finding.h"

namespace tarnwick {
namespace {

using Row = SiteGridModel::Row;

FoundSite foundSite(const Row& row, std::int64_t id, const SiteOrder::Moment& moment) {
  const std::string& checked = row.cells[SiteGridModel::timeColumn];
  SiteSeen seen{.idSite = id,
                .url = row.cells[SiteGridModel::urlColumn],
                .active = row.shade != SiteGridModel::Shade::inactive,
                .status = row.status,
                .isChecked = !checked.empty(),
                .hasPage = row.fetched};
  seen.alarm.state = row.alarm.state;
  seen.alarm.daysLeft = row.alarm.daysLeft;
  seen.alarm.slow = row.alarm.slow;
  if (row.alarm.paused) {
    seen.alarm.pause.emplace();
  }
  seen.acknowledged = row.alarm.state == AlarmView::State::known;
  seen.unwatched = unwatchedOf({.active = seen.active,
                                .lastChecked = parseDateTime(checked),
                                .interval = row.interval,
                                .runIsOn = moment.runIsOn,
                                .newSitesAtOnce = moment.newSitesAtOnce},
                               Quiet::no, moment.now);
  const auto tags = moment.tags.find(id);
  return foundSiteOf(seen, tags == moment.tags.end() ? Tags() : tags->second);
}

std::int64_t numberIn(std::string_view text) {
  std::int64_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// What is the same has the same rank.
template <typename Key>
std::vector<int> ranksOf(std::vector<std::pair<Key, int>> keys) {
  std::ranges::sort(keys);
  std::vector<int> ranks(keys.size());
  int rank = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    rank += i > 0 && keys[i - 1].first < keys[i].first ? 1 : 0;
    ranks[static_cast<std::size_t>(keys[i].second)] = rank;
  }
  return ranks;
}

}  // namespace

SiteOrder::SiteOrder(SiteGridModel& sites) : sites_(sites) {
  setDynamicSortFilter(false);
  connect(&sites, &SiteGridModel::modelAboutToBeReset, this, [this] {
    found_.clear();
    rankedBy_ = -1;
  });
  connect(&sites, &SiteGridModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) { forget(first.row(), last.row()); });
  setSourceModel(&sites);
}

void SiteOrder::forget(int first, int last) {
  for (auto row = static_cast<std::size_t>(first); row <= static_cast<std::size_t>(last) && row < found_.size();
       ++row) {
    found_[row].reset();
  }
}

void SiteOrder::find(const SiteQuery& query, const Moment& moment) {
  query_ = query;
  take(moment);
  invalidateFilter();
}

void SiteOrder::sortBy(int column, Qt::SortOrder order) {
  rankedBy_ = -1;
  sort(column, order);
}

void SiteOrder::renew(const Moment& moment) {
  take(moment);
  rankedBy_ = -1;
  invalidate();
}

void SiteOrder::take(const Moment& moment) {
  const auto minuteOf = [](const Moment& of) { return std::chrono::floor<std::chrono::minutes>(of.now); };
  if (minuteOf(moment) != minuteOf(moment_) || moment.runIsOn != moment_.runIsOn || moment.tags != moment_.tags) {
    found_.clear();
  }
  moment_ = moment;
}

bool SiteOrder::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  if (query_.all()) {
    return true;
  }
  found_.resize(static_cast<std::size_t>(sites_.rowCount()));
  std::optional<FoundSite>& found = found_[static_cast<std::size_t>(row)];
  if (!found) {
    const Row& site = sites_.row(row);
    found = foundSite(site, numberIn(site.cells[SiteGridModel::idColumn]), moment_);
  }
  return query_.finds(*found);
}

// Numbers by their size, times and addresses as they read.
void SiteOrder::rank(int column) const {
  const auto cell = static_cast<std::size_t>(column);
  const int rows = sites_.rowCount();
  const auto keys = [&](auto keyOf) {
    std::vector<std::pair<decltype(keyOf(0)), int>> all;
    all.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
      all.emplace_back(keyOf(row), row);
    }
    return all;
  };
  if (const auto extra = sites_.extraColumnAt(column)) {
    const bool isRising = sortOrder() == Qt::AscendingOrder;
    ranks_ = ranksOf(keys([&](int row) {
      SortKey key = sites_.extraKey(row, *extra);
      // What is not known is the last one either way.
      return std::pair(key.isKnown != isRising, std::move(key));
    }));
    rankedBy_ = column;
    return;
  }
  const bool isNumber =
      column == SiteGridModel::idColumn || column == SiteGridModel::upColumn || column == SiteGridModel::downColumn;
  ranks_ = isNumber ? ranksOf(keys([&](int row) { return numberIn(sites_.row(row).cells[cell]); }))
                    : ranksOf(keys([&](int row) { return std::string_view(sites_.row(row).cells[cell]); }));
  rankedBy_ = column;
}

// What is the same stays in the order of the list.
bool SiteOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  if (rankedBy_ != left.column()) {
    rank(left.column());
  }
  return ranks_[static_cast<std::size_t>(left.row())] < ranks_[static_cast<std::size_t>(right.row())];
}

}  // namespace tarnwick
