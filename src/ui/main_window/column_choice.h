// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <vector>
#include <QMenu>
#include <QObject>

#include "ui/main_window/kept_habit.h"
#include "ui/main_window/site_extras.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// Lets people choose which further columns the list shows, by a menu that a right click on the captions opens, too.
/// They stay as they were chosen.
class ColumnChoice final : public QObject {
  Q_OBJECT

 public:
  /// `menu` is filled. All outlive this object but for `parent`, which is its owner.
  ColumnChoice(SiteExtras& extras, SiteGridView& grid, QMenu& menu, QObject* parent);

  /// Shows the columns that were chosen when the window was there last, and remembers what is chosen from now on.
  void rememberIn(UserHabits& habits);

 private:
  void show(std::size_t extra, bool isShown);
  void showNone();
  std::set<std::size_t> shown() const;
  int bits() const;

  SiteExtras& extras_;
  SiteGridView& grid_;
  QMenu& menu_;
  std::vector<QAction*> entries_;
  KeptHabit kept_;
};

}  // namespace tarnwick
