// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <QMenu>
#include <QObject>

#include "program/program.h"
#include "store/alarm_values.h"
#include "ui/main_window/site_grid_view.h"
#include "ui/rows/row_actions.h"

namespace tarnwick {

/// What can be done with the sites of the rows that are chosen, as a menu that a right click and the Menu key open, and
/// what can be paused of all sites. The keys that the menu names do their part of it in the list without the menu.
class SiteMenu final : public QObject {
  Q_OBJECT

 public:
  /// `pauseAll` is filled. `program` outlives the events of the window.
  SiteMenu(Program& program, SiteGridView& grid, QMenu& pauseAll, QObject* parent);

  RowActions& actions() { return *actions_; }
  QMenu& rowMenu() { return *row_; }

 Q_SIGNALS:
  /// The user says that what the page of the site differs by always changes.
  void alwaysChanges(std::int16_t idSite);

 private:
  using Pausing = std::function<void(const Pause& pause)>;
  using Doing = void (RowActions::*)(const ChosenSites& sites);

  void makeRowMenu();
  /// An entry that the keys bring about in the list, too.
  QAction* add(const char* name, const QString& caption, const QKeySequence& keys, const std::function<void()>& action);
  QAction* add(const char* name, const QString& caption, const QKeySequence& keys, Doing action);
  void addKey(QAction& action, const QKeySequence& keys);
  void addPauses(QMenu& menu, const Pausing& pause, const std::function<void()>& resume);
  void open(const QPoint& place);
  /// Lets the menu offer what means something for the sites that are chosen, and tell of the rest why not.
  void adjust();
  void allowAll();
  void pauseUntil(const Pausing& pause);
  void pauseAll(const Pause& pause);
  void resumeAll();
  void openInBrowser();
  void copyAddresses();
  void copyRows();
  ChosenSites chosen() const;

  Program& program_;
  SiteGridView& grid_;
  RowActions* actions_;
  QMenu* row_;
  QAction* openSite_ = nullptr;
  QAction* check_ = nullptr;
  QAction* always_ = nullptr;
  QAction* acknowledge_ = nullptr;
  QAction* reset_ = nullptr;
  QAction* browser_ = nullptr;
};

}  // namespace tarnwick
