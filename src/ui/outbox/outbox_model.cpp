// SPDX-License-Identifier: MIT
#include "ui/outbox/outbox_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ui/controls/delivery_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

bool looksLike(const OutboxRow& one, const OutboxRow& other) {
  return one.id == other.id && one.tries == other.tries && one.nextTry == other.nextTry &&
         one.lastTry == other.lastTry && one.answer == other.answer;
}

}  // namespace

void OutboxModel::setRows(std::vector<OutboxRow> rows, std::map<std::int64_t, QString> names, LocalTime now) {
  using std::chrono::days;
  const bool isSame = std::ranges::equal(rows, rows_, looksLike) && names == names_ &&
                      std::chrono::floor<days>(now) == std::chrono::floor<days>(now_);
  now_ = now;
  if (!isSame) {
    beginResetModel();
    rows_ = std::move(rows);
    names_ = std::move(names);
    endResetModel();
  }
}

int OutboxModel::rowOf(std::int64_t idAlert) const {
  const auto found = std::ranges::find(rows_, idAlert, &OutboxRow::id);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

QString OutboxModel::nameOf(int row) const {
  const OutboxRow& one = rowAt(row);
  const QString what = alertWords(one.alert);
  return one.alert.idSite == 0
             ? tr("%1, through %2").arg(what, channelName(one))
             : tr("Site %1: %2, through %3").arg(QString::number(one.alert.idSite), what, channelName(one));
}

int OutboxModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int OutboxModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

QVariant OutboxModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const QString shown = text(rowAt(index.row()), index.column());
  switch (role) {
    case Qt::DisplayRole:
      return shown;
    case Qt::ToolTipRole:
      return plainToolTip(shown);
    case Qt::AccessibleTextRole:
      return QStringLiteral("%1: %2").arg(headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString(),
                                          shown);
    default:
      return {};
  }
}

QVariant OutboxModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const QString moment = state_ == OutboxRow::State::waiting ? tr("Next try")
                         : state_ == OutboxRow::State::sent  ? tr("Sent")
                                                             : tr("Last try");
  const std::array<QString, last> captions{tr("Since"), tr("Site"), tr("Alert"), tr("Through"),
                                           tr("Tries"), moment,     tr("Answer")};
  return captions.at(static_cast<std::size_t>(section));
}

QString OutboxModel::text(const OutboxRow& row, int column) const {
  switch (column) {
    case since:
      return stampWords(row.alert.made, now_);
    case site:
      return row.alert.idSite == 0 ? QString() : QString::number(row.alert.idSite);
    case alert:
      return alertWords(row.alert);
    case through:
      return channelName(row);
    case tries:
      return QString::number(row.tries);
    case when:
      return whenWords(row);
    default:
      return displayMessage(row.answer);
  }
}

QString OutboxModel::channelName(const OutboxRow& row) const {
  const auto name = names_.find(row.idChannel);
  return name == names_.end() ? tr("a channel that is gone") : name->second;
}

QString OutboxModel::whenWords(const OutboxRow& row) const {
  if (state_ != OutboxRow::State::waiting) {
    return row.lastTry ? stampWords(*row.lastTry, now_) : QString();
  }
  if (row.tries > 0 && !row.lastTry) {
    return tr("now");  // it is under way
  }
  return row.tries == 0 && row.nextTry <= now_ ? tr("soon") : stampWords(row.nextTry, now_);
}

}  // namespace tarnwick
