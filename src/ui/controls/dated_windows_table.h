// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QAbstractTableModel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>

#include "store/alarm_values.h"

namespace tarnwick {

/// Dated quiet times, a row each: From, Until, What, Note. Each can be changed in its place. A beginning that comes to
/// lie behind the end takes the end along, and no end comes to lie before the beginning.
class DatedWindowsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { fromColumn, untilColumn, whatColumn, noteColumn, columns };

  using QAbstractTableModel::QAbstractTableModel;

  const std::vector<DatedWindow>& windows() const { return windows_; }
  void setWindows(std::vector<DatedWindow> windows);
  void append(const DatedWindow& window);
  void remove(int row);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant valueOf(const DatedWindow& window, int column, int role) const;

  std::vector<DatedWindow> windows_;
};

/// The table of them, with what adds and removes a row.
class DatedWindowsTable final : public QWidget {
  Q_OBJECT

 public:
  explicit DatedWindowsTable(QWidget* parent = nullptr);

  const std::vector<DatedWindow>& windows() const { return model_.windows(); }
  /// A new row begins at the next morning after `now`.
  void setWindows(std::vector<DatedWindow> windows, LocalTime now);

  /// With room for all columns, and for some words in the last.
  QSize sizeHint() const override;

 Q_SIGNALS:
  void edited();

 private:
  void add();
  void remove();

  DatedWindowsModel model_;
  QTableView* table_;
  QPushButton* remove_;
  LocalTime now_{};
  bool isSettled_ = true;
};

}  // namespace tarnwick
