// SPDX-License-Identifier: MIT
// The parts of a page that are marked in its text: those that may vary.
#include <algorithm>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

#include "ui/baseline/baseline_edit.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

// A part without any text is still to be seen.
constexpr qreal kLeastWidth = 3;

// The rectangles of a part of a block, one for each of its rows, in the block's own coordinates.
std::vector<QRectF> rowsOf(const QTextLayout& layout, int from, int to) {
  std::vector<QRectF> rows;
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    const int begin = std::max(from, line.textStart());
    const int end = std::min(to, line.textStart() + line.textLength());
    const bool isEmptyHere = from == to && begin == end;
    if (begin < end || (isEmptyHere && begin == from)) {
      const qreal left = line.cursorToX(begin);
      const qreal right =
          end == line.textStart() + line.textLength() ? line.x() + line.naturalTextWidth() : line.cursorToX(end);
      rows.emplace_back(left, line.y(), std::max(right - left, kLeastWidth), line.height());
    }
  }
  return rows;
}

}  // namespace

BaselineEdit::Part BaselineEdit::selectedPart() const {
  const Range range = selection();
  const std::size_t begin = text_.offsetOf(range.position);
  return {begin, begin + text_.bytes(range.position, range.length).size()};
}

void BaselineEdit::markParts(const std::vector<Part>& parts) {
  std::vector<std::size_t> offsets;
  for (const Part& part : parts) {
    offsets.insert(offsets.end(), {part.begin, part.end});
  }
  const std::vector<std::size_t> positions = text_.positionsOf(offsets);
  marks_.clear();
  for (std::size_t i = 0; i < positions.size(); i += 2) {
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(positions[i]));
    cursor.setPosition(static_cast<int>(positions[i + 1]), QTextCursor::KeepAnchor);
    marks_.push_back(cursor);
  }
  shadeMarks();
}

void BaselineEdit::shadeMarks() {
  const HoleColours colours = holeColours(isDark(palette()));
  QTextCharFormat shaded;
  shaded.setBackground(colours.fill);
  shaded.setForeground(colours.ink);
  QList<QTextEdit::ExtraSelection> selections;
  for (const QTextCursor& mark : marks_) {
    selections.push_back({mark, shaded});
  }
  setExtraSelections(selections);
}

void BaselineEdit::showMark(std::size_t mark) {
  setTextCursor(marks_.at(mark));
  centerCursor();
}

void BaselineEdit::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !marks_.empty()) {
    shadeMarks();
  }
}

void BaselineEdit::paintEvent(QPaintEvent* event) {
  QPlainTextEdit::paintEvent(event);
  if (marks_.empty() || notice_) {
    return;
  }
  QPainter painter(viewport());
  painter.setPen(QPen(holeColours(isDark(palette())).edge, 1, Qt::DashLine));
  const auto end = [](const QTextCursor& mark) { return mark.selectionEnd(); };
  QTextBlock block = firstVisibleBlock();
  auto mark = std::ranges::lower_bound(marks_, block.position(), {}, end);
  for (; block.isValid() && mark != marks_.end(); block = block.next()) {
    const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    if (place.top() > event->rect().bottom()) {
      return;
    }
    const int last = block.position() + block.length() - 1;
    for (auto here = mark; here != marks_.end() && here->selectionStart() <= last; ++here) {
      const int from = std::max(here->selectionStart() - block.position(), 0);
      const int to = std::min(here->selectionEnd(), last) - block.position();
      for (const QRectF& row : rowsOf(*block.layout(), from, to)) {
        painter.drawRect(row.translated(place.topLeft()).adjusted(-0.5, 0.5, -0.5, -0.5));
      }
    }
    while (mark != marks_.end() && mark->selectionEnd() <= last) {
      ++mark;
    }
  }
}

}  // namespace tarnwick
