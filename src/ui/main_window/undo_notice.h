// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QObject>

#include "ui/main_window/notice_bar.h"
#include "ui/main_window/site_grid_view.h"
#include "ui/rows/row_actions.h"

namespace tarnwick {

/// Offers to take back what was done last: by a notice, which can be put away, by an entry of a menu, and by Ctrl+Z in
/// the list.
class UndoNotice final : public QObject {
  Q_OBJECT

 public:
  /// All of them outlive this object.
  UndoNotice(RowActions& actions, NoticeBar& bar, QAction& entry, SiteGridView& grid, QObject* parent);

 private:
  void tell();

  UndoList& undo_;
  NoticeBar& bar_;
  QAction& entry_;
  SiteGridView& grid_;
};

}  // namespace tarnwick
