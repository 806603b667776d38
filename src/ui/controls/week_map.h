// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "store/alarm_values.h"

namespace tarnwick {

/// The hours of a week as a table: a row for each day from Monday on, a column for each hour.
class WeekMapModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const WeekHours& hours() const { return hours_; }
  void setHours(const WeekHours& hours);
  bool isQuiet(const QModelIndex& cell) const;
  void setQuiet(const QModelIndex& cell, bool quiet);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  WeekHours hours_;
};

/// The map of the quiet hours. A drag over cells makes them all what the first one becomes; so does Space with those
/// that are chosen with Shift and the arrows.
class WeekMap final : public QTableView {
  Q_OBJECT

 public:
  explicit WeekMap(QWidget* parent = nullptr);

  const WeekHours& hours() const { return map_.hours(); }
  void setHours(const WeekHours& hours) { map_.setHours(hours); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  /// The user has changed the hours.
  void edited();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void paintOver(const QModelIndex& cell);

  WeekMapModel map_;
  bool isDragged_ = false;
  bool becomesQuiet_ = false;
};

}  // namespace tarnwick
