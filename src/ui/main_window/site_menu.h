// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <QMenu>
#include <QObject>

#include "program/program.h"
#include "store/alarm_values.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// What can be done with the site of the current row, as a menu that a right click and the Menu key open, and what can
/// be paused of all sites. Ctrl+Shift+V, Ctrl+P and Del do their part of it in the list without the menu.
class SiteMenu final : public QObject {
  Q_OBJECT

 public:
  /// `pauseAll` is filled. `program` outlives the events of the window.
  SiteMenu(Program& program, SiteGridView& grid, QMenu& pauseAll, QObject* parent);

 Q_SIGNALS:
  /// The user says that what the page of the site differs by always changes.
  void alwaysChanges(std::int16_t idSite);

 private:
  using Pausing = std::function<void(const Pause& pause)>;

  void makeRowMenu();
  QMenu* addPauses(QMenu& menu, const Pausing& pause, const std::function<void()>& resume);
  void open(const QPoint& place);
  void pauseUntil(const Pausing& pause);
  void pauseSite(const Pause& pause);
  void resumeSite();
  void pauseAll(const Pause& pause);
  void resumeAll();
  void remove();
  /// Runs what may fail, on the current site where there is one.
  void run(const std::function<void()>& action);

  Program& program_;
  SiteGridView& grid_;
  QMenu* row_;
  QAction* always_ = nullptr;
};

}  // namespace tarnwick
