// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>
#include <QMenu>
#include <QObject>
#include <QSplitter>
#include <QTimer>

#include "platform/user_habits.h"
#include "program/program.h"
#include "ui/controls/undo_list.h"
#include "ui/details/details_pane.h"
#include "ui/details/site_settling.h"
#include "ui/main_window/master_layout.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// The place for the details below the list: hidden at first, opened and closed by F4, opened by the icon of a row and
/// by the reason in the status row. It follows the current row. On a screen that has no room for it a window opens in
/// its place. How high it is stays as its user left it.
class DetailsArea final : public QObject {
  Q_OBJECT

 public:
  /// Puts the list of `canvas` and the details into a splitter. `program` outlives the events of the window.
  DetailsArea(Program& program, QWidget& canvas, const MasterControls& controls, QObject* parent);

  /// Shows the details of that site.
  void show(std::int16_t idSite);
  void showHistory(std::int16_t idSite);
  void toggle();
  SiteSettling& settling() { return *settling_; }
  /// Adds to the menu of a row what this does, and to `undo` what is accepted. Both outlive this.
  void addTo(QMenu& rowMenu, UndoList& undo);
  /// What opens the editor of a site on what is told of it; nothing where there is none.
  void setAlarmEditor(std::function<void(std::int16_t idSite)> open) { editAlarm_ = std::move(open); }
  /// Has how high it is be remembered there. `habits` outlives this.
  void rememberIn(UserHabits& habits) { habits_ = &habits; }

 private:
  void open();
  void close();
  void remember(UndoList& undo);
  void follow();
  void connectKeys();
  void goOnToNextArea();
  int heightOfRows(int rows) const;
  /// Shares the room between the list, which ends with a whole row, and the details, about so high.
  void share(int below);
  QAction* makeAction(const char* name, const QString& caption, const QKeySequence& keys, void (DetailsArea::*doing)());
  void accept();
  void acceptAlso();
  void undoAccept();
  void openSameChangesOfAll();
  void openSameChanges(const std::vector<int>& rows);
  void tellChosen();

  Program& program_;
  QWidget& canvas_;
  SiteGridView& grid_;
  SiteReason& reason_;
  NoticeBar& bar_;
  SiteSettling* settling_;
  DetailsPane* pane_;
  QSplitter* splitter_;
  std::function<void(std::int16_t)> editAlarm_;
  UserHabits* habits_ = nullptr;
  QTimer later_;
  int below_;  // the height of the pane, as its user wants it
};

}  // namespace tarnwick
