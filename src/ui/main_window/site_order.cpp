// SPDX-License-Identifier: MIT
#include "ui/main_window/site_order.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

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

}  // namespace

SiteOrder::SiteOrder(SiteGridModel& sites) : sites_(sites) {
  setDynamicSortFilter(false);
  connect(&sites, &SiteGridModel::modelAboutToBeReset, this, [this] { found_.clear(); });
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

void SiteOrder::sortBy(int column, Qt::SortOrder order) { sort(column, order); }

void SiteOrder::renew(const Moment& moment) {
  take(moment);
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

// Numbers by their size, times and addresses as they read; what is the same stays in the order of the list.
bool SiteOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const auto column = static_cast<std::size_t>(left.column());
  const std::string& one = sites_.row(left.row()).cells[column];
  const std::string& other = sites_.row(right.row()).cells[column];
  switch (left.column()) {
    case SiteGridModel::idColumn:
    case SiteGridModel::upColumn:
    case SiteGridModel::downColumn:
      return numberIn(one) < numberIn(other);
    default:
      return one < other;
  }
}

}  // namespace tarnwick
