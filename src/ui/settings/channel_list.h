// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>
#include <QAbstractTableModel>
#include <QString>

#include "store/channels.h"
#include "store/outbox.h"

namespace tarnwick {

/// A channel while the settings change it.
struct ChannelDraft {
  Channel channel;
  /// As it is stored; one with id 0 for a new one.
  Channel stored{};
  /// A new secret; nothing: that which is kept.
  std::optional<std::string> secret{};
  QString lastTry{};

  bool isChanged() const { return secret || channel != stored; }
};

/// The channels, a row each, whose box tells whether it is on.
class ChannelList final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { name, kind, lastTry, last };

  using QAbstractTableModel::QAbstractTableModel;

  void setChannels(const std::vector<Channel>& channels, const std::map<std::int64_t, LastTry>& tries, LocalTime now);
  const std::vector<ChannelDraft>& drafts() const { return drafts_; }
  const ChannelDraft& at(int row) const { return drafts_.at(static_cast<std::size_t>(row)); }
  /// Adds one at the end and returns its row.
  int add(ChannelDraft draft);
  void remove(int row);
  void change(int row, ChannelDraft draft);
  /// That name, or with a number behind it where it is taken.
  std::string freeName(const std::string& wish) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString text(const ChannelDraft& draft, int column) const;

  std::vector<ChannelDraft> drafts_;
};

/// What became of a channel's last try, null for none: "ok 14:02", "refused 14:05", "never".
QString lastTryWords(const LastTry* last, LocalTime now);

}  // namespace tarnwick
