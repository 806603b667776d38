// SPDX-License-Identifier: MIT
#include "ui/main_window/undo_notice.h"

#include <vector>
#include <QShortcut>

namespace tarnwick {

UndoNotice::UndoNotice(RowActions& actions, NoticeBar& bar, QAction& entry, SiteGridView& grid, QObject* parent)
    : QObject(parent), undo_(actions.undoList()), bar_(bar), entry_(entry), grid_(grid) {
  connect(&undo_, &UndoList::changed, this, &UndoNotice::tell);
  connect(&bar_.undo(), &NoticeButton::clicked, &undo_, &UndoList::undoLast);
  connect(&entry_, &QAction::triggered, &undo_, &UndoList::undoLast);
  // In a text the keys are the text's own.
  connect(new QShortcut(QKeySequence::Undo, &grid_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          &undo_, &UndoList::undoLast);
  bar_.undo().makeClosable([this] { bar_.tell(bar_.undo(), {}, {}, grid_); });
  connect(&actions, &RowActions::putBack, &grid_, [this](const std::vector<std::int16_t>& ids) {
    grid_.selectSite(ids.front());
    grid_.selectSites(ids);
  });
  tell();
}

void UndoNotice::tell() {
  const bool isThere = !undo_.isEmpty();
  entry_.setText((isThere ? undo_.last().caption : tr("&Undo")) + QLatin1Char('\t') +
                 QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText));
  entry_.setEnabled(isThere);
  bar_.tell(bar_.undo(), isThere ? undo_.last().sentence : QString(), tr("Undo"), grid_);
}

}  // namespace tarnwick
