// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <vector>
#include <QAbstractTableModel>
#include <QString>

#include "store/outbox.h"

namespace tarnwick {

/// The alerts of the outbox that are in one state, a row each.
class OutboxModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { since, site, alert, through, tries, when, answer, last };

  explicit OutboxModel(OutboxRow::State state, QObject* parent = nullptr)
      : QAbstractTableModel(parent), state_(state) {}

  OutboxRow::State state() const { return state_; }
  /// Shows these; what is as it was stays untouched. `names` are those of the channels, by their ids.
  void setRows(std::vector<OutboxRow> rows, std::map<std::int64_t, QString> names, LocalTime now);
  const OutboxRow& rowAt(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
  /// The row of that alert; -1 when it is not there.
  int rowOf(std::int64_t idAlert) const;
  /// The alert in one line: "Site 3: changed, through office mail".
  QString nameOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString text(const OutboxRow& row, int column) const;
  QString channelName(const OutboxRow& row) const;
  QString whenWords(const OutboxRow& row) const;

  OutboxRow::State state_;
  std::vector<OutboxRow> rows_;
  std::map<std::int64_t, QString> names_;
  LocalTime now_{};
};

}  // namespace tarnwick
