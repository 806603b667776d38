// SPDX-License-Identifier: MIT
#include "ui/details/log_list.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kMostRows = 200;

}  // namespace

void LogList::read(m& data, std::int16_t idSite) {
  std::vector<LogRow> rows;
  data.readLog({.idSite = idSite, .newest = kMostRows}, [&](const LogRow& row) {
    rows.push_back(row);
    return true;
  });
  std::ranges::reverse(rows);
  take(std::move(rows));
}

void LogList::clear() { take({}); }

void LogList::take(std::vector<LogRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

std::optional<LocalTime> LogList::momentOf(int row) const {
  return parseDateTime(rows_.at(static_cast<std::size_t>(row)).dateStamp.value_or(""));
}

int LogList::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : static_cast<int>(rows_.size()); }

int LogList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

QVariant LogList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return {};
  }
  const LogRow& row = rows_.at(static_cast<std::size_t>(index.row()));
  QString text;
  if (index.column() == time) {
    text = displayText(row.dateStamp.value_or(""));
  } else if (index.column() == result) {
    text = !row.status ? QString() : *row.status ? tr("up") : tr("down");
  } else {
    text = displayMessage(row.errDescription.value_or(""));
  }
  return role == Qt::ToolTipRole ? plainToolTip(text) : text;
}

QVariant LogList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const std::array<QString, last> captions{tr("Time"), tr("Result"), tr("Cause")};
  return captions.at(static_cast<std::size_t>(section));
}

}  // namespace tarnwick
