// SPDX-License-Identifier: MIT
#include "ui/main_window/site_grid_model.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <QCoreApplication>

#include "store/site_table.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

std::optional<std::int16_t> idOf(const std::string& text) {
  std::int16_t id = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, id);
  return error == std::errc() && rest == end ? std::optional(id) : std::nullopt;
}

QVariant alignmentOf(Qt::AlignmentFlag alignment) { return QVariant::fromValue(Qt::AlignVCenter | alignment); }

}  // namespace

void SiteGridModel::setSites(const TextTable& sites, const std::set<std::int64_t>& notFetched) {
  beginResetModel();
  const std::size_t count = sites.lastRow();
  std::unordered_map<std::int16_t, std::string> failed;  // known from the check itself, by its time
  for (const auto& [id, row] : rowsOfSite_) {
    Row& before = rows_[static_cast<std::size_t>(row)];
    if (before.shade == Shade::down && !before.fetched) {
      failed.emplace(id, std::move(before.cells[timeColumn]));
    }
  }
  rows_.clear();
  rows_.reserve(count);
  rowsOfSite_.clear();
  rowsOfSite_.reserve(count);
  for (std::size_t row = 1; row <= count; ++row) {
    rows_.push_back(readSiteRow(sites, row, columns_));
    if (const auto id = idOf(rows_.back().cells[idColumn])) {
      rowsOfSite_.emplace(*id, static_cast<int>(row - 1));
      const auto known = failed.find(*id);
      rows_.back().fetched =
          !notFetched.contains(*id) && (known == failed.end() || known->second != rows_.back().cells[timeColumn]);
    }
  }
  endResetModel();
}

template <typename Change>
void SiteGridModel::changeRows(std::int16_t idSite, Change change) {
  const auto [first, last] = rowsOfSite_.equal_range(idSite);
  for (auto entry = first; entry != last; ++entry) {
    change(rows_[static_cast<std::size_t>(entry->second)]);
    repaintRow(entry->second);
  }
}

void SiteGridModel::updateSite(const TextTable& sites) {
  if (sites.lastRow() == 0) {
    return;
  }
  const Row site = readSiteRow(sites, 1, columns_);
  if (const auto id = idOf(site.cells[idColumn])) {
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
  Row& shown = rows_[static_cast<std::size_t>(row)];
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
  return idOf(rows_[static_cast<std::size_t>(row)].cells[idColumn]);
}

int SiteGridModel::rowOfSite(std::int16_t idSite) const {
  int found = -1;
  const auto [first, last] = rowsOfSite_.equal_range(idSite);
  for (auto entry = first; entry != last; ++entry) {
    found = found < 0 ? entry->second : std::min(found, entry->second);
  }
  return found;
}

int SiteGridModel::downCount() const { return static_cast<int>(std::ranges::count(rows_, Shade::down, &Row::shade)); }

int SiteGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
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
  if (rowsOfSite_.empty()) {
    return {0, -1};
  }
  const auto [first, last] =
      std::ranges::minmax_element(rowsOfSite_, {}, [](const auto& entry) { return entry.first; });
  return {first->first, last->first};
}

QString SiteGridModel::wordOfRow(const Row& row) const { return wordOf(row, isMarked(row)); }

SiteState SiteGridModel::stateOfRow(int row) const { return stateOf(rows_.at(static_cast<std::size_t>(row))); }

bool SiteGridModel::isMarked(const Row& row) const {
  const auto id = marks_.empty() ? std::nullopt : idOf(row.cells[idColumn]);
  return id && marks_.contains(*id);
}

QColor SiteGridModel::background(const QModelIndex& index) const {
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (!marks_.empty() && index.column() <= urlColumn) {
    if (const auto id = idOf(row.cells[idColumn])) {
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
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
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
