// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>
#include <QAbstractTableModel>

#include "program/m.h"
#include "store/result_log.h"

namespace tarnwick {

/// The latest rows of a site's log, the newest first, without their pages.
class LogList final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { time, result, cause, last };

  using QAbstractTableModel::QAbstractTableModel;

  /// Raises DataAccessError.
  void read(m& data, std::int16_t idSite);
  void clear();
  /// When the check of a row was made; nothing where the log holds no date.
  std::optional<LocalTime> momentOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void take(std::vector<LogRow> rows);

  std::vector<LogRow> rows_;
};

}  // namespace tarnwick
