// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>

#include "ui/main_window/kept_habit.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// Lets people choose what a click on a row does. It opens the site until somebody wants it otherwise.
class ClickRule final : public QObject {
  Q_OBJECT

 public:
  /// `menu` is filled. All outlive this object but for `parent`, which is its owner.
  ClickRule(SiteGridView& grid, QMenu& menu, QObject* parent);

  /// Takes what was chosen when the window was there last, and remembers what is chosen from now on.
  void rememberIn(UserHabits& habits);

 private:
  QAction* add(QMenu& menu, const char* name, const QString& caption, SiteGridView::Click click);

  SiteGridView& grid_;
  QAction* opens_;
  QAction* shows_;
  KeptHabit kept_;
};

}  // namespace tarnwick
