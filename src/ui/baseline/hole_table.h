// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QAbstractTableModel>
#include <QTableView>

#include "ui/baseline/hole_draft.h"

namespace tarnwick {

/// The class of a hole in the user's words.
QString holeWords(HoleClass kind);

/// The holes of a draft, a row each: where they are, what may stand there, how long it may be, and what stood there
/// last. The two in the middle can be changed in their place.
class HoleTableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { placeColumn, whatColumn, lengthColumn, seenColumn, columns };

  explicit HoleTableModel(HoleDraft& draft, QObject* parent = nullptr) : QAbstractTableModel(parent), draft_(draft) {}

  const HoleDraft& draft() const { return draft_; }
  /// The draft has changed from outside.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 Q_SIGNALS:
  /// The user has changed a hole.
  void edited();

 private:
  QString textOf(int row, int column) const;
  QString toolTipOf(int row, int column) const;
  bool mayBeEdited(const QModelIndex& index) const;

  HoleDraft& draft_;
  std::vector<std::size_t> lines_;
};

/// The table of them.
class HoleTable final : public QTableView {
  Q_OBJECT

 public:
  explicit HoleTable(QWidget* parent = nullptr);

  void setHoles(HoleTableModel& model);

  QSize minimumSizeHint() const override;
};

}  // namespace tarnwick
