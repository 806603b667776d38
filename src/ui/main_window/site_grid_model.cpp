// SPDX-License-Identifier: MIT
#include "ui/main_window/site_grid_model.h"

#include <algorithm>
#include <utility>
#include <QCoreApplication>

#include "store/site_table.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

QVariant alignmentOf(Qt::AlignmentFlag alignment) { return QVariant::fromValue(Qt::AlignVCenter | alignment); }

}  // namespace

void SiteGridModel::setSites(SiteRows sites) {
  beginResetModel();
  sites.learnFrom(sites_);
  std::swap(sites_, sites);
  endResetModel();
}

void SiteGridModel::setSites(const TextTable& sites) {
  SiteRows rows;
  rows.add(sites, {}, columns_);
  setSites(std::move(rows));
}

template <typename Change>
void SiteGridModel::changeRows(std::int16_t idSite, Change change) {
  const auto [first, last] = sites_.rowsOfSite.equal_range(idSite);
  for (auto entry = first; entry != last; ++entry) {
    change(sites_.rows[static_cast<std::size_t>(entry->second)]);
    repaintRow(entry->second);
  }
}

void SiteGridModel::updateSite(const TextTable& sites) {
  if (sites.lastRow() == 0) {
    return;
  }
  const Row site = readSiteRow(sites, 1, columns_);
  if (const auto id = siteIdOf(site)) {
    changeRows(*id, [&](Row& row) {
      const bool fetched = row.fetched;
      const Row::Alarm alarm = row.alarm;
      row = site;
      row.fetched = fetched;
      row.alarm = alarm;
    });
  }
}

void SiteGridModel::setFetched(std::int16_t idSite, bool fetched) {
  changeRows(idSite, [&](Row& row) { row.fetched = fetched; });
}

void SiteGridModel::setAlarm(int row, const AlarmView& view) {
  if (row < 0 || row >= rowCount()) {
    return;
  }
  const Row::Alarm alarm{.state = view.state,
                         .paused = view.pause.has_value(),
                         .failures = view.failures,
                         .confirm = view.confirm,
                         .since = view.since,
                         .rests = view.quiet == Quiet::noChecks,
                         .daysLeft = view.daysLeft,
                         .slow = view.slow,
                         .acknowledged = view.acknowledged};
  Row& shown = sites_.rows[static_cast<std::size_t>(row)];
  if (shown.alarm != alarm) {
    shown.alarm = alarm;
    repaintRow(row);
  }
}

void SiteGridModel::setResult(std::int16_t idSite, bool passed) {
  marks_.erase(idSite);
  changeRows(idSite, [&](Row& row) {
    row.status = passed;
    if (row.shade != Shade::inactive) {
      row.shade = passed ? Shade::up : Shade::down;
    }
  });
}

void SiteGridModel::setLastChecked(std::int16_t idSite, const std::string& dateTime) {
  changeRows(idSite, [&](Row& row) { row.cells[timeColumn] = dateTime; });
}

void SiteGridModel::brighten(std::int16_t idSite, int amount) {
  const int row = rowOfSite(idSite);
  if (row >= 0) {
    marks_[idSite] = brightened(background(index(row, urlColumn)), amount);
    changeRows(idSite, [](Row&) {});
  }
}

void SiteGridModel::unbrighten(std::int16_t idSite) {
  marks_.erase(idSite);
  changeRows(idSite, [](Row&) {});
}

std::vector<std::int16_t> SiteGridModel::marked() const {
  std::vector<std::int16_t> ids;
  for (const auto& [id, colour] : marks_) {
    ids.push_back(id);
  }
  return ids;
}

std::optional<std::int16_t> SiteGridModel::siteOfRow(int row) const {
  if (row < 0 || row >= rowCount()) {
    return std::nullopt;
  }
  return siteIdOf(sites_.rows[static_cast<std::size_t>(row)]);
}

int SiteGridModel::rowOfSite(std::int16_t idSite) const {
  int found = -1;
  const auto [first, last] = sites_.rowsOfSite.equal_range(idSite);
  for (auto entry = first; entry != last; ++entry) {
    found = found < 0 ? entry->second : std::min(found, entry->second);
  }
  return found;
}

int SiteGridModel::downCount() const {
  return static_cast<int>(std::ranges::count(sites_.rows, Shade::down, &Row::shade));
}

int SiteGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(sites_.rows.size());
}

int SiteGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0
                          : static_cast<int>(columns_.size() + (extraCells_ != nullptr ? extraColumns().size() : 0));
}

void SiteGridModel::setExtraCells(const ExtraCells& cells) {
  const int first = columnCount();
  beginInsertColumns({}, first, first + static_cast<int>(extraColumns().size()) - 1);
  extraCells_ = &cells;
  endInsertColumns();
}

std::optional<std::size_t> SiteGridModel::extraColumnAt(int column) const {
  const int place = column - static_cast<int>(columns_.size());
  return place >= 0 && column < columnCount() ? std::optional(static_cast<std::size_t>(place)) : std::nullopt;
}

std::pair<std::int16_t, std::int16_t> SiteGridModel::idsOfSites() const {
  if (sites_.rowsOfSite.empty()) {
    return {0, -1};
  }
  const auto [first, last] =
      std::ranges::minmax_element(sites_.rowsOfSite, {}, [](const auto& entry) { return entry.first; });
  return {first->first, last->first};
}

QString SiteGridModel::wordOfRow(const Row& row) const { return wordOf(row, isMarked(row)); }

SiteState SiteGridModel::stateOfRow(int row) const { return stateOf(sites_.rows.at(static_cast<std::size_t>(row))); }

bool SiteGridModel::isMarked(const Row& row) const {
  const auto id = marks_.empty() ? std::nullopt : siteIdOf(row);
  return id && marks_.contains(*id);
}

QColor SiteGridModel::background(const QModelIndex& index) const {
  const Row& row = sites_.rows[static_cast<std::size_t>(index.row())];
  if (!marks_.empty() && index.column() <= urlColumn) {
    if (const auto id = siteIdOf(row)) {
      const auto mark = marks_.find(*id);
      if (mark != marks_.end()) {
        return mark->second;
      }
    }
  }
  return colourOf(row);
}

QVariant SiteGridModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  if (role == Qt::BackgroundRole) {
    return background(index);
  }
  if (role == Qt::ForegroundRole) {
    return readableOn(background(index));
  }
  if (const auto extra = extraColumnAt(index.column())) {
    return extraData(index.row(), *extra, role);
  }
  const Row& row = sites_.rows[static_cast<std::size_t>(index.row())];
  const std::string& text = row.cells[static_cast<std::size_t>(index.column())];
  switch (role) {
    case Qt::DisplayRole:
    case copyRole:
      return displayText(text);
    case Qt::TextAlignmentRole:
      return alignmentOf(columns_[static_cast<std::size_t>(index.column())].alignment);
    case stateRole:
      return static_cast<int>(stateOf(row));
    case wordRole:
      return wordOfRow(row);
    case Qt::AccessibleTextRole:
      if (index.column() == idColumn) {
        return QStringLiteral("%1, %2").arg(displayText(text), wordOfRow(row));
      }
      // The colour's meaning in words, for those who do not see it.
      return index.column() == urlColumn ? QStringLiteral("%1, %2").arg(displayText(text), resultOf(row))
                                         : displayText(text);
    default:
      return {};
  }
}

QVariant SiteGridModel::extraData(int row, std::size_t extra, int role) const {
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return extraCells_->textOf(row, extra);
    case Qt::ToolTipRole:
      return extraCells_->toolTipOf(row, extra);
    case copyRole:
      // What is pasted somewhere else does not grow older there.
      return extraColumns()[extra].ages ? extraCells_->toolTipOf(row, extra) : extraCells_->textOf(row, extra);
    case Qt::TextAlignmentRole:
      return alignmentOf(extraColumns()[extra].alignment);
    default:
      return {};
  }
}

QVariant SiteGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
    return {};
  }
  const auto extra = extraColumnAt(section);
  switch (role) {
    case Qt::DisplayRole:
      return extra ? QCoreApplication::translate("tarnwick::ExtraColumns", extraColumns()[*extra].header)
                   : tr(columns_[static_cast<std::size_t>(section)].header);
    case Qt::TextAlignmentRole:
      return alignmentOf(extra ? extraColumns()[*extra].alignment
                               : columns_[static_cast<std::size_t>(section)].alignment);
    default:
      return {};
  }
}

void SiteGridModel::repaintRow(int row) { Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1)); }

}  // namespace tarnwick
