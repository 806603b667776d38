// SPDX-License-Identifier: MIT
// What keyboard and mouse do in a difference.
#include <algorithm>
#include <cstddef>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include "ui/details/difference_view.h"

namespace tarnwick {

void DifferenceView::keyPressEvent(QKeyEvent* event) {
  if (!rows_ || rows_->count() == 0) {
    QAbstractScrollArea::keyPressEvent(event);
    return;
  }
  const bool selects = event->modifiers().testFlag(Qt::ShiftModifier);
  const auto goBy = [&](std::ptrdiff_t rows) {
    setCurrent(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, static_cast<std::ptrdiff_t>(current_) + rows)),
               selects);
  };
  const auto page = static_cast<std::ptrdiff_t>(rowsOnPage());
  if (event->matches(QKeySequence::Copy)) {
    copy();
  } else if (event->matches(QKeySequence::SelectAll)) {
    anchor_ = 0;
    setCurrent(rows_->count() - 1, true);
  } else if (event->key() == Qt::Key_F3) {
    goOn(selects ? -1 : 1);
  } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
    goBy(event->key() == Qt::Key_Up ? -1 : 1);
  } else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
    goBy(event->key() == Qt::Key_PageUp ? -page : page);
  } else if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
    setCurrent(event->key() == Qt::Key_Home ? 0 : rows_->count() - 1, selects);
  } else if (rows_->at(current_).isFold() &&
             (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)) {
    openFold(current_);
  } else {
    QAbstractScrollArea::keyPressEvent(event);
  }
}

void DifferenceView::mousePressEvent(QMouseEvent* event) {
  const auto row = rowAt(event->position().toPoint().y());
  if (!row || event->button() != Qt::LeftButton) {
    return;
  }
  setCurrent(*row, event->modifiers().testFlag(Qt::ShiftModifier));
  if (rows_->at(*row).isFold()) {
    openFold(*row);
  }
}

void DifferenceView::mouseMoveEvent(QMouseEvent* event) {
  const auto row = rowAt(event->position().toPoint().y());
  if (row && event->buttons().testFlag(Qt::LeftButton)) {
    setCurrent(*row, true);
  }
}

void DifferenceView::contextMenuEvent(QContextMenuEvent* event) {
  if (!rows_) {
    return;
  }
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* copies = menu->addAction(tr("&Copy"), this, [this] { copy(); });
  copies->setObjectName(QStringLiteral("differenceCopy"));
  // And what others want to have done with it.
  menu->addActions(actions());
  menu->popup(event->globalPos());
}

}  // namespace tarnwick
