// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <QMenu>
#include <QObject>
#include <QSplitter>

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
  void toggle();
  SiteSettling& settling() { return *settling_; }
  /// Adds to the menu of a row what this does.
  void addTo(QMenu& rowMenu);
  /// Has what is accepted be taken back by that.
  void remember(UndoList& undo);

 private:
  void open();
  void close();
  void follow();
  QAction* makeAction(const char* name, const QString& caption, const QKeySequence& keys, void (DetailsArea::*doing)());
  void accept();
  void acceptAlso();
  void undoAccept();
  void openSameChanges();

  Program& program_;
  QWidget& canvas_;
  SiteGridView& grid_;
  SiteReason& reason_;
  SiteSettling* settling_;
  DetailsPane* pane_;
  QSplitter* splitter_;
};

}  // namespace tarnwick
