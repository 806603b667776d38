// SPDX-License-Identifier: MIT
#include "ui/settings/channel_list.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "store/channel_table.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/delivery_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {

void ChannelList::setChannels(const std::vector<Channel>& channels, const std::map<std::int64_t, LastTry>& tries,
                              LocalTime now) {
  beginResetModel();
  drafts_.clear();
  for (const Channel& channel : channels) {
    const auto known = tries.find(channel.id);
    drafts_.push_back({.channel = channel,
                       .stored = channel,
                       .lastTry = lastTryWords(known == tries.end() ? nullptr : &known->second, now)});
  }
  endResetModel();
}

int ChannelList::add(ChannelDraft draft) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  drafts_.push_back(std::move(draft));
  endInsertRows();
  return row;
}

void ChannelList::remove(int row) {
  beginRemoveRows({}, row, row);
  drafts_.erase(drafts_.begin() + row);
  endRemoveRows();
}

void ChannelList::change(int row, ChannelDraft draft) {
  drafts_.at(static_cast<std::size_t>(row)) = std::move(draft);
  Q_EMIT dataChanged(index(row, 0), index(row, last - 1));
}

std::string ChannelList::freeName(const std::string& wish) const {
  const auto isTaken = [this](const std::string& one) {
    return std::ranges::any_of(drafts_,
                               [&](const ChannelDraft& draft) { return equalsIgnoringCase(draft.channel.name, one); });
  };
  std::string free = wish;
  for (int number = 2; isTaken(free); ++number) {
    free = wish + " " + std::to_string(number);
  }
  return free;
}

int ChannelList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(drafts_.size());
}

int ChannelList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

Qt::ItemFlags ChannelList::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  return index.column() == name ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant ChannelList::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const ChannelDraft& draft = at(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return text(draft, index.column());
    case Qt::ToolTipRole:
      return plainToolTip(text(draft, index.column()));
    case Qt::CheckStateRole:
      return index.column() == name ? QVariant(draft.channel.on ? Qt::Checked : Qt::Unchecked) : QVariant();
    default:
      return {};
  }
}

bool ChannelList::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || index.column() != name) {
    return false;
  }
  ChannelDraft draft = at(index.row());
  draft.channel.on = value.toInt() == Qt::Checked;
  change(index.row(), std::move(draft));
  return true;
}

QVariant ChannelList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const std::array<QString, last> captions{tr("Name"), tr("Kind"), tr("Last")};
  return captions.at(static_cast<std::size_t>(section));
}

QString ChannelList::text(const ChannelDraft& draft, int column) const {
  return column == name   ? displayText(draft.channel.name)
         : column == kind ? channelKindWords(channelKind(draft.channel.kind))
                          : draft.lastTry;
}

QString lastTryWords(const LastTry* last, LocalTime now) {
  if (last == nullptr) {
    return ChannelList::tr("never");
  }
  const QString when = momentWords(last->at, now);
  return last->isSent ? ChannelList::tr("ok %1").arg(when) : ChannelList::tr("refused %1").arg(when);
}

}  // namespace tarnwick
