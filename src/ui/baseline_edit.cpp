#include "ui/baseline_edit.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <QAction>
#include <QDropEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

namespace tarnwick {
namespace {

// The document's own signs for a new block and for a new row in it are line ends here.
std::u16string withLineFeeds(const QString& text) {
  std::u16string plain = text.toStdU16String();
  for (char16_t& unit : plain) {
    if (unit == QChar::ParagraphSeparator || unit == QChar::LineSeparator) {
      unit = u'\n';
    }
  }
  return plain;
}

QString toQString(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

class Flagged {
 public:
  explicit Flagged(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Flagged() { flag_ = before_; }
  Flagged(const Flagged&) = delete;
  Flagged& operator=(const Flagged&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

BaselineEdit::BaselineEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setUndoRedoEnabled(false);
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setLineWrapMode(WidgetWidth);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  // The keyboard must reach the buttons; a tab comes into the text with Ctrl+Tab.
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this, &BaselineEdit::followDocument);
}

void BaselineEdit::setPage(std::string page) {
  text_ = BaselineText(std::move(page));
  showPage();
}

void BaselineEdit::showPage() {
  notice_ = false;
  setReadOnly(false);
  const Flagged showing(showing_);
  setPlainText(toQString(text_.shown()));
}

void BaselineEdit::showNotice(const QString& notice) {
  // Edits that the document holds are taken over before it shows something else.
  page();
  notice_ = true;
  setReadOnly(true);
  const Flagged showing(showing_);
  setPlainText(notice);
}

void BaselineEdit::endNotice() {
  if (notice_) {
    showPage();
  }
}

std::string BaselineEdit::page() {
  if (!notice_) {
    // Should the document ever have changed unnoticed, what differs counts as edited now.
    text_.follow(0, text_.size(), withLineFeeds(document()->toRawText()));
  }
  return text_.bytes();
}

void BaselineEdit::followDocument(int position, int removed, int added) {
  Q_UNUSED(removed)
  if (showing_) {
    return;
  }
  // The document may count its own last sign among what changed; only the lengths before and after are sure.
  const auto newSize = static_cast<std::size_t>(document()->characterCount() - 1);
  const std::size_t from = std::min({static_cast<std::size_t>(position), newSize, text_.size()});
  std::size_t fresh = std::min(static_cast<std::size_t>(added), newSize - from);
  // What stays behind the change is at most as long as either text.
  const std::size_t tail = std::min(newSize - from - fresh, text_.size() - from);
  fresh = newSize - from - tail;
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(from));
  cursor.setPosition(static_cast<int>(from + fresh), QTextCursor::KeepAnchor);
  text_.follow(from, text_.size() - from - tail, withLineFeeds(cursor.selectedText()));
}

void BaselineEdit::apply(const TextChange& change) {
  const Flagged showing(showing_);
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(change.position));
  cursor.setPosition(static_cast<int>(change.position + change.removed), QTextCursor::KeepAnchor);
  cursor.insertText(toQString(change.added));
  cursor.setPosition(static_cast<int>(change.position + change.added.size()));
  setTextCursor(cursor);
  ensureCursorVisible();
}

BaselineEdit::Range BaselineEdit::selection() const {
  const QTextCursor cursor = textCursor();
  const auto start = static_cast<std::size_t>(cursor.selectionStart());
  return {start, static_cast<std::size_t>(cursor.selectionEnd()) - start};
}

void BaselineEdit::select(Range range) {
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(range.position));
  cursor.setPosition(static_cast<int>(range.position + range.length), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

std::optional<QString> BaselineEdit::selectForeign() {
  const auto position = text_.firstForeign();
  if (!position) {
    return std::nullopt;
  }
  const std::u16string next = text_.shown(*position, std::min<std::size_t>(2, text_.size() - *position));
  const std::size_t length = next.size() == 2 && QChar::isHighSurrogate(next[0]) ? 2 : 1;
  select({*position, length});
  ensureCursorVisible();
  return toQString(next.substr(0, length));
}

void BaselineEdit::undoEdit() {
  if (const auto change = isReadOnly() ? std::nullopt : text_.undo()) {
    apply(*change);
  }
}

void BaselineEdit::redoEdit() {
  if (const auto change = isReadOnly() ? std::nullopt : text_.redo()) {
    apply(*change);
  }
}

void BaselineEdit::insertLineEnd() {
  Range range = selection();
  // A line end at the break of a long line takes its place: the break would look like an empty line.
  if (range.length == 0 && text_.isRowBreak(range.position)) {
    range.length = 1;
  } else if (range.length == 0 && range.position > 0 && text_.isRowBreak(range.position - 1)) {
    range = {range.position - 1, 1};
  }
  apply(text_.paste(range.position, range.length, u"\n"));
}

// The break of a long line is no character: erasing reaches over it.
void BaselineEdit::stepOverRowBreak(const QKeyEvent& event) {
  const Range range = selection();
  if (range.length > 0) {
    return;
  }
  const bool modified = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::ControlModifier)) != 0;
  QTextCursor cursor = textCursor();
  if (!modified && event.key() == Qt::Key_Backspace && range.position > 0 && text_.isRowBreak(range.position - 1)) {
    cursor.setPosition(static_cast<int>(range.position - 1));
    setTextCursor(cursor);
  } else if (!modified && event.key() == Qt::Key_Delete && text_.isRowBreak(range.position)) {
    cursor.setPosition(static_cast<int>(range.position + 1));
    setTextCursor(cursor);
  }
}

void BaselineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Undo)) {
    undoEdit();
  } else if (event->matches(QKeySequence::Redo)) {
    redoEdit();
  } else if (!isReadOnly() && (event->matches(QKeySequence::InsertParagraphSeparator) ||
                               event->matches(QKeySequence::InsertLineSeparator))) {
    insertLineEnd();
  } else {
    if (!isReadOnly()) {
      stepOverRowBreak(*event);
    }
    QPlainTextEdit::keyPressEvent(event);
    return;
  }
  event->accept();
}

void BaselineEdit::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  const auto add = [&](const QString& name, QKeySequence::StandardKey key, auto slot, bool enabled) {
    QAction* action = menu.addAction(name, this, slot);
    action->setShortcut(key);
    action->setEnabled(enabled);
  };
  const bool editable = !isReadOnly();
  const bool selected = textCursor().hasSelection();
  add(tr("&Undo"), QKeySequence::Undo, &BaselineEdit::undoEdit, editable && text_.canUndo());
  add(tr("&Redo"), QKeySequence::Redo, &BaselineEdit::redoEdit, editable && text_.canRedo());
  menu.addSeparator();
  add(tr("Cu&t"), QKeySequence::Cut, &BaselineEdit::cut, editable && selected);
  add(tr("&Copy"), QKeySequence::Copy, &BaselineEdit::copy, selected);
  add(tr("&Paste"), QKeySequence::Paste, &BaselineEdit::paste, canPaste());
  menu.addSeparator();
  add(tr("Select &All"), QKeySequence::SelectAll, &BaselineEdit::selectAll, !document()->isEmpty());
  menu.exec(event->globalPos());
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
  mime->setText(toQString(text_.text(range.position, range.length)));
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
