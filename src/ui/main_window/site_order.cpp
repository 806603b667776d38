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
  setSourceModel(&sites);
  connect(&sites, &SiteGridModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
  connect(&sites, &SiteGridModel::modelReset, this, [this] {
    take(arranged());
    endResetModel();
  });
  connect(&sites, &SiteGridModel::dataChanged, this, &SiteOrder::tellChange);
}

// A row tells of itself; what tells of many tells of all that are shown.
void SiteOrder::tellChange(const QModelIndex& first, const QModelIndex& last) {
  const bool isOne = first.row() == last.row();
  const int from = isOne ? shownRow(first.row()) : 0;
  const int to = isOne ? from : rowCount() - 1;
  if (from >= 0 && to >= from) {
    Q_EMIT dataChanged(index(from, first.column()), index(to, last.column()));
  }
}

void SiteOrder::find(const SiteQuery& query, const Moment& moment) {
  query_ = query;
  moment_ = moment;
  arrange();
}

void SiteOrder::sortBy(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
  arrange();
}

void SiteOrder::renew(const Moment& moment) {
  moment_ = moment;
  arrange();
}

bool SiteOrder::isFound(int row) const {
  static const Tags kNone;
  const Row& site = sites_.row(row);
  const std::string& checked = site.cells[SiteGridModel::timeColumn];
  SiteSeen seen{.idSite = numberIn(site.cells[SiteGridModel::idColumn]),
                .url = site.cells[SiteGridModel::urlColumn],
                .active = site.shade != SiteGridModel::Shade::inactive,
                .status = site.status,
                .isChecked = !checked.empty(),
                .hasPage = site.fetched,
                .acknowledged = site.alarm.acknowledged};
  seen.alarm.state = site.alarm.state;
  seen.alarm.daysLeft = site.alarm.daysLeft;
  seen.alarm.slow = site.alarm.slow;
  if (site.alarm.paused) {
    seen.alarm.pause.emplace();
  }
  if (query_.asksFor(&FoundSite::unwatched)) {
    seen.unwatched = unwatchedOf({.active = seen.active,
                                  .lastChecked = parseDateTime(checked),
                                  .interval = site.interval,
                                  .runIsOn = moment_.runIsOn,
                                  .newSitesAtOnce = moment_.newSitesAtOnce},
                                 Quiet::no, moment_.now);
  }
  const Tags* tags = &kNone;
  if (moment_.tags) {
    const auto known = moment_.tags->find(seen.idSite);
    tags = known == moment_.tags->end() ? tags : &known->second;
  }
  return query_.finds(foundSiteOf(seen, *tags));
}

std::vector<int> SiteOrder::arranged() const {
  std::vector<int> shown;
  if (isPlain()) {
    return shown;
  }
  const int all = sites_.rowCount();
  shown.reserve(static_cast<std::size_t>(all));
  for (int row = 0; row < all; ++row) {
    if (query_.all() || isFound(row)) {
      shown.push_back(row);
    }
  }
  if (isSorted()) {
    // What is the same stays in the order of the list.
    const std::vector<int> places = ranks();
    const auto placeOf = [&](int row) { return places[static_cast<std::size_t>(row)]; };
    if (sortOrder_ == Qt::AscendingOrder) {
      std::ranges::stable_sort(shown, std::ranges::less(), placeOf);
    } else {
      std::ranges::stable_sort(shown, std::ranges::greater(), placeOf);
    }
  }
  return shown;
}

// Nobody is told of what stays as it is: what follows the list would look at all of it again.
void SiteOrder::arrange() {
  std::vector<int> shown = arranged();
  if (isPlain() == isPlainShown_ && shown == shown_) {
    return;
  }
  beginResetModel();
  take(std::move(shown));
  endResetModel();
}

void SiteOrder::take(std::vector<int> shown) {
  isPlainShown_ = isPlain();
  shown_ = std::move(shown);
  placeOfListed_.assign(isPlainShown_ ? 0 : static_cast<std::size_t>(sites_.rowCount()), -1);
  for (std::size_t place = 0; place < shown_.size(); ++place) {
    placeOfListed_[static_cast<std::size_t>(shown_[place])] = static_cast<int>(place);
  }
}

// Numbers by their size, times and addresses as they read.
std::vector<int> SiteOrder::ranks() const {
  const auto cell = static_cast<std::size_t>(sortColumn_);
  const int rows = sites_.rowCount();
  const auto keys = [&](auto keyOf) {
    std::vector<std::pair<decltype(keyOf(0)), int>> all;
    all.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
      all.emplace_back(keyOf(row), row);
    }
    return all;
  };
  if (const auto extra = sites_.extraColumnAt(sortColumn_)) {
    const bool isRising = sortOrder_ == Qt::AscendingOrder;
    return ranksOf(keys([&](int row) {
      SortKey key = sites_.extraKey(row, *extra);
      // What is not known is the last one either way.
      return std::pair(key.isKnown != isRising, std::move(key));
    }));
  }
  const bool isNumber = sortColumn_ == SiteGridModel::idColumn || sortColumn_ == SiteGridModel::upColumn ||
                        sortColumn_ == SiteGridModel::downColumn;
  return isNumber ? ranksOf(keys([&](int row) { return numberIn(sites_.row(row).cells[cell]); }))
                  : ranksOf(keys([&](int row) { return std::string_view(sites_.row(row).cells[cell]); }));
}

int SiteOrder::listRow(int shownRow) const {
  if (shownRow < 0 || shownRow >= rowCount()) {
    return -1;
  }
  return isPlainShown_ ? shownRow : shown_[static_cast<std::size_t>(shownRow)];
}

int SiteOrder::shownRow(int listRow) const {
  if (listRow < 0 || listRow >= sites_.rowCount()) {
    return -1;
  }
  return isPlainShown_ ? listRow : placeOfListed_[static_cast<std::size_t>(listRow)];
}

QModelIndex SiteOrder::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

int SiteOrder::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : isPlainShown_ ? sites_.rowCount() : static_cast<int>(shown_.size());
}

int SiteOrder::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : sites_.columnCount(); }

QVariant SiteOrder::headerData(int section, Qt::Orientation orientation, int role) const {
  return sites_.headerData(section, orientation, role);
}

QModelIndex SiteOrder::mapToSource(const QModelIndex& shown) const {
  return shown.isValid() ? sites_.index(listRow(shown.row()), shown.column()) : QModelIndex();
}

QModelIndex SiteOrder::mapFromSource(const QModelIndex& listed) const {
  return listed.isValid() ? index(shownRow(listed.row()), listed.column()) : QModelIndex();
}

}  // namespace tarnwick
