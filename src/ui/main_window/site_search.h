// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QTimer>

#include "program/program.h"
#include "ui/main_window/filter_edit.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// What the list is searched and sorted with.
struct SearchControls {
  FilterEdit* filterEdit;
  QLabel* filterCount;
  /// Says by what the list is sorted, and ends that; hidden while it has its own order.
  QPushButton* sortChip;
};

SearchControls makeSearch(QWidget& canvas);

/// Lets the list be searched by filter words, and sorted by its columns. With nothing typed and no caption clicked it
/// is as it always was.
class SiteSearch final : public QObject {
  Q_OBJECT

 public:
  /// All outlive this object but for `parent`, which is its owner.
  SiteSearch(Program& program, SiteGridView& grid, const SearchControls& controls, QObject* parent);

  /// Finds what the line says, in place of what is typed.
  void find(const QString& line);
  /// The list has changed: it is looked at again soon, but not under somebody's hand.
  void renewSoon();

 private:
  void findTyped();
  void sortBy(int column);
  void endSorting();
  void renew();
  void tellCount();
  SiteOrder::Moment moment();
  void placeNothingFound();
  bool eventFilter(QObject* watched, QEvent* event) override;

  Program& program_;
  SiteGridView& grid_;
  SearchControls controls_;
  // In the rows' place where the filter finds nothing.
  QLabel* nothingFound_;
  QPushButton* showAllSites_;
  QTimer soon_;
};

}  // namespace tarnwick
