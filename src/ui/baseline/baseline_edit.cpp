// SPDX-License-Identifier: MIT
#include "ui/baseline/baseline_edit.h"

#include <algorithm>
#include <utility>
#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QKeyEvent>
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

// A document takes its time and its memory by the block. A text of more lines than this becomes blocks of several
// lines each, which look the same.
constexpr std::ptrdiff_t kMostBlocks = 50'000;
constexpr qsizetype kLongestSharedBlock = 1000;
// So much text at a time changes the scroll bar.
constexpr std::size_t kMuchText = 10'000;

// The text as it is put into the document.
QString documentText(std::u16string_view shown) {
  QString text = toQString(shown);
  if (std::ranges::count(shown, u'\n') <= kMostBlocks) {
    return text;
  }
  qsizetype blockStart = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) != QLatin1Char('\n')) {
      continue;
    }
    if (i - blockStart < kLongestSharedBlock) {
      text[i] = QChar::LineSeparator;
    } else {
      blockStart = i + 1;
    }
  }
  return text;
}

// The rows that `text` takes up in a box of so many columns.
int rowsOf(QStringView text, qsizetype columns) {
  qsizetype rows = 0;
  for (const QStringView line : text.split(QChar::LineSeparator)) {
    rows += std::max<qsizetype>(1, (line.size() + columns - 1) / columns);
  }
  return static_cast<int>(rows);
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
  setPlainText(documentText(text_.shown()));
  estimateRows();
}

// A block is laid out when it is first seen, and until then counts as one row: the scroll bar would lead astray.
void BaselineEdit::estimateRows() {
  const int width = std::max(1, fontMetrics().horizontalAdvance(QLatin1Char('0')));
  const qsizetype columns = std::max(1, viewport()->width() / width);
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.length() > columns) {
      block.setLineCount(rowsOf(block.text(), columns));
    }
  }
  QAbstractTextDocumentLayout& layout = *document()->documentLayout();
  Q_EMIT layout.documentSizeChanged(layout.documentSize());
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
  cursor.insertText(documentText(change.added));
  cursor.setPosition(static_cast<int>(change.position + change.added.size()));
  setTextCursor(cursor);
  if (change.added.size() > kMuchText) {
    estimateRows();
  }
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

}  // namespace tarnwick
