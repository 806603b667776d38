// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>
#include <QAbstractTableModel>
#include <QTimer>

#include "program/program.h"
#include "store/result_log.h"

namespace tarnwick {

/// The latest rows of a site's log, the newest first, without their pages. In a long log they are looked for in slices
/// between the events, and come in below the others.
class LogList final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { time, result, cause, last };

  /// `program` outlives the list.
  LogList(Program& program, QObject* parent);

  /// Raises DataAccessError.
  void read(std::int16_t idSite);
  void clear();
  /// When the check of a row was made; nothing where the log holds no date.
  std::optional<LocalTime> momentOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void readMore();
  /// Looks for more of them for some milliseconds.
  void readSlice();
  void show();

  Program& program_;
  QTimer soon_;
  std::int16_t idSite_ = 0;
  /// What is found so far, and where the rows before it end.
  std::vector<LogRow> found_;
  std::optional<std::int64_t> before_;
  std::vector<LogRow> rows_;
};

}  // namespace tarnwick
