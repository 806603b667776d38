// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "ui/controls/link_button.h"
#include "ui/controls/picture_button.h"
#include "ui/controls/status_line.h"
#include "ui/main_window/lamp.h"
#include "ui/main_window/notice_bar.h"
#include "ui/main_window/pass_bar.h"
#include "ui/main_window/site_grid_view.h"
#include "ui/main_window/site_reason.h"
#include "ui/main_window/site_search.h"

namespace tarnwick {

/// One action of the main window: its picture button and its command button, which do the same.
struct ActionControls {
  PictureButton* image;
  QPushButton* button;

  void allow(bool enabled, const QString& toolTip) const;
};

/// The main window's controls; the window owns them. Each has its name as object name.
struct MasterControls {
  PictureButton* imgLogoSmall;
  QLabel* lClock;
  /// Red, yellow, green.
  std::array<Lamp*, 3> lamps;
  ActionControls start;
  ActionControls stop;
  ActionControls makeNew;
  ActionControls setup;
  SearchControls search;
  /// What is done with the list as a whole, as a menu.
  QPushButton* listButton;
  QMenu* columns;
  QAction* originalOrder;
  QMenu* clickRule;
  QAction* addAddresses;
  QAction* importList;
  QAction* exportList;
  QAction* history;
  QAction* outbox;
  QMenu* pauseAll;
  QAction* undo;
  SiteGridView* grid1;
  StatusLine* lStatus;
  SiteReason* lReason;
  PassBar* pb1;
  NoticeBar* noticeBar;
  QLabel* copyright;
  LinkButton* Label1;
  QLabel* lblVersion;
};

/// Makes the controls of the main window and lays them out on `canvas`: logo, clock and lamps at the top, then the
/// buttons, the grid, the status line with the bar under it, the notices, and the foot line.
MasterControls layOutMaster(QWidget& canvas, SiteGridModel& sites);

}  // namespace tarnwick
