// SPDX-License-Identifier: MIT
// How a page's text goes over the clipboard and is dragged, and the menu that offers it.
#include <algorithm>
#include <memory>
#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include "ui/baseline/baseline_edit.h"

namespace tarnwick {

void BaselineEdit::contextMenuEvent(QContextMenuEvent* event) {
  // Its form may be closed and gone while it is open: nothing waits for it.
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const QString& name, QKeySequence::StandardKey key, auto slot, bool enabled) {
    QAction* action = menu->addAction(name, this, slot);
    action->setShortcut(key);
    action->setEnabled(enabled);
  };
  const bool editable = !isReadOnly();
  const bool selected = textCursor().hasSelection();
  add(tr("&Undo"), QKeySequence::Undo, &BaselineEdit::undoEdit, editable && text_.canUndo());
  add(tr("&Redo"), QKeySequence::Redo, &BaselineEdit::redoEdit, editable && text_.canRedo());
  menu->addSeparator();
  add(tr("Cu&t"), QKeySequence::Cut, &BaselineEdit::cut, editable && selected);
  add(tr("&Copy"), QKeySequence::Copy, &BaselineEdit::copy, selected);
  add(tr("&Paste"), QKeySequence::Paste, &BaselineEdit::paste, canPaste());
  menu->addSeparator();
  add(tr("Select &All"), QKeySequence::SelectAll, &BaselineEdit::selectAll, !document()->isEmpty());
  const QList<QAction*> more = actions();
  if (std::ranges::any_of(more, &QAction::isVisible)) {
    menu->addSeparator();
    menu->addActions(more);
  }
  menu->popup(event->globalPos());
}

// Bytes go over the clipboard in a form of their own, which only a page in the same character set takes.
QString BaselineEdit::contentFormat() const {
  return text_.charset() == PageCharset::utf8 ? QStringLiteral("application/x-tarnwick-content-utf-8")
                                              : QStringLiteral("application/x-tarnwick-content-windows-1252");
}

QMimeData* BaselineEdit::createMimeDataFromSelection() const {
  const Range range = selection();
  auto mime = std::make_unique<QMimeData>();
  if (notice_) {
    mime->setText(textCursor().selectedText());
    return mime.release();
  }
  mime->setText(QString::fromStdU16String(text_.text(range.position, range.length)));
  if (!text_.firstForeign(range.position, range.length)) {
    mime->setData(contentFormat(), QByteArray::fromStdString(text_.bytes(range.position, range.length)));
  }
  return mime.release();
}

void BaselineEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) {
    return;
  }
  const Range range = selection();
  const std::string bytes = source->data(contentFormat()).toStdString();
  const bool valid = text_.charset() == PageCharset::windows1252 || charsetOf(bytes) == PageCharset::utf8;
  if (source->hasFormat(contentFormat()) && valid) {
    apply(text_.pasteBytes(range.position, range.length, bytes));
  } else if (source->hasText()) {
    apply(text_.paste(range.position, range.length, source->text().toStdU16String()));
  }
}

void BaselineEdit::dropEvent(QDropEvent* event) {
  // The cursor drawn for the drag goes as if the drag had left.
  QDragLeaveEvent leave;
  dragLeaveEvent(&leave);
  if (isReadOnly() || !canInsertFromMimeData(event->mimeData())) {
    event->ignore();
    return;
  }
  auto position = static_cast<std::size_t>(cursorForPosition(event->position().toPoint()).position());
  const Range moved = selection();
  const bool move = event->source() == viewport() || event->source() == this;
  if (move && event->dropAction() == Qt::MoveAction && moved.length > 0) {
    const std::size_t end = moved.position + moved.length;
    if (position >= moved.position && position <= end) {
      event->ignore();
      return;
    }
    apply(text_.pasteBytes(moved.position, moved.length, {}));
    position -= position > moved.position ? moved.length : 0;
    // Moved from here already: whoever started the drag is not to remove it again.
    event->setDropAction(Qt::CopyAction);
    event->accept();
  } else {
    event->acceptProposedAction();
  }
  select({position, 0});
  insertFromMimeData(event->mimeData());
}

}  // namespace tarnwick
