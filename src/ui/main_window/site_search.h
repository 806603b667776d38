// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <QAction>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QTimer>

#include "program/program.h"
#include "store/data_changes.h"
#include "ui/controls/filter_edit.h"
#include "ui/main_window/kept_habit.h"
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
  SiteSearch(Program& program, SiteGridView& grid, const SearchControls& controls, QAction& originalOrder,
             QObject* parent);

  /// Finds what the line says, in place of what is typed.
  void find(const QString& line);
  /// The sites that a line of filter words finds, in rising order, whatever is shown. Raises std::invalid_argument.
  std::vector<std::int16_t> sitesFoundBy(const QString& line);
  /// The list has changed: it is looked at again soon, but not under somebody's hand.
  void renewSoon();
  /// Sorts as it was sorted when the window was there last, and remembers how it is sorted from now on.
  void rememberIn(UserHabits& habits);

 private:
  void findTyped();
  void sortByNext(int column);
  void sortBy(int column, Qt::SortOrder order);
  int sortedBy() const;
  void endSorting();
  void renew();
  void tellCount();
  SiteOrder::Moment moment(const SiteQuery& query);
  std::shared_ptr<const SiteOrder::TagsOfSites> tags();
  void placeNothingFound();
  bool eventFilter(QObject* watched, QEvent* event) override;

  Program& program_;
  SiteGridView& grid_;
  SearchControls controls_;
  // In the rows' place where the filter finds nothing.
  QLabel* nothingFound_;
  QPushButton* showAllSites_;
  QAction& originalOrder_;
  std::shared_ptr<const SiteOrder::TagsOfSites> tags_;
  std::optional<DataChanges> changes_;
  QTimer soon_;
  KeptHabit kept_;
};

}  // namespace tarnwick
