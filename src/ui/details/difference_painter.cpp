// SPDX-License-Identifier: MIT
#include "ui/details/difference_painter.h"

#include <algorithm>
#include <QCoreApplication>
#include <QLocale>

#include "difference/shown_line.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

constexpr int kTab = 8;
constexpr int kPad = 4;
/// The sign in the gutter, with a blank on each side.
constexpr int kSignColumns = 3;

/// A page's text with its tabs filled up to the next multiple of eight columns; `column` goes on behind it.
QString withoutTabs(const std::string& text, int& column) {
  QString filled;
  for (const QChar letter : QString::fromStdString(text)) {
    const int count = letter == QLatin1Char('\t') ? kTab - column % kTab : 1;
    filled += letter == QLatin1Char('\t') ? QString(count, QLatin1Char(' ')) : QString(letter);
    column += count;
  }
  return filled;
}

}  // namespace

QString foldWords(const DifferenceRow& row) {
  const QString count = QLocale().toString(static_cast<qulonglong>(row.hidden));
  const char* words = row.kind == DifferenceRow::Kind::bytes
                          ? QT_TRANSLATE_NOOP("tarnwick::DifferenceView", "%1 equal bytes")
                      : row.hidden == 1 ? QT_TRANSLATE_NOOP("tarnwick::DifferenceView", "%1 equal line")
                                        : QT_TRANSLATE_NOOP("tarnwick::DifferenceView", "%1 equal lines");
  return QCoreApplication::translate("tarnwick::DifferenceView", words).arg(count);
}

struct DifferencePainter::Side {
  std::string_view page;
  std::optional<ByteSpan> span;
  std::size_t number;
  PageForm form;
  const ByteSpans* words;
  const ByteSpans* bytes;
  const ByteSpans* varying;
  bool isAdded;
};

DifferencePainter::DifferencePainter(const ComparedPages& pages, const PageDifference& difference,
                                     const DifferenceRows& rows, const QFontMetrics& metrics, const QPalette& palette,
                                     Look look)
    : pages_(pages), difference_(difference), rows_(rows), metrics_(metrics), palette_(palette), look_(look) {}

int DifferencePainter::rowHeight() const { return metrics_.height() + 2; }

int DifferencePainter::gutter() const {
  if (look_.layout == DifferenceLayout::hex) {
    return kSignColumns * metrics_.horizontalAdvance(QLatin1Char('0'));
  }
  const std::size_t lines = std::max(difference_.before.count(), difference_.after.count());
  const auto digits = std::max<qsizetype>(QString::number(lines).size(), 2);
  return static_cast<int>(digits + kSignColumns) * metrics_.horizontalAdvance(QLatin1Char('0')) + kPad;
}

int DifferencePainter::wholeWidth() const {
  const auto letters = look_.layout == DifferenceLayout::hex ? kHexColumn + 4 * kHexBytes + 2 : rows_.widest() + 2;
  return gutter() + static_cast<int>(letters) * metrics_.horizontalAdvance(QLatin1Char('0')) + 2 * kPad;
}

DifferencePainter::Side DifferencePainter::sideOf(const DifferenceRow& row, bool after) const {
  static const ByteSpans kNone;
  const bool isChanged = row.kind == DifferenceRow::Kind::changed;
  const PageChange* change = isChanged ? &difference_.changes[row.change] : nullptr;
  return after ? Side{pages_.after,
                      row.after,
                      row.numberAfter,
                      rows_.formAfter(),
                      isChanged ? &change->addedWords : &kNone,
                      isChanged ? &change->added : &kNone,
                      &pages_.varyingAfter,
                      true}
               : Side{pages_.before,
                      row.before,
                      row.numberBefore,
                      rows_.formBefore(),
                      isChanged ? &change->removedWords : &kNone,
                      isChanged ? &change->removed : &kNone,
                      &pages_.varyingBefore,
                      false};
}

void DifferencePainter::paint(QPainter& painter, const QRect& area, std::size_t index) const {
  const DifferenceRow& row = rows_.at(index);
  if (row.isFold()) {
    paintFold(painter, area, row);
    return;
  }
  if (look_.layout == DifferenceLayout::unified) {
    // Of an equal line the number is that of the page of the latest check.
    paintSide(painter, area, row, sideOf(row, row.after.has_value()));
    return;
  }
  const int half = area.width() / 2;
  paintSide(painter, {area.left(), area.top(), half, area.height()}, row, sideOf(row, false));
  paintSide(painter, {area.left() + half, area.top(), area.width() - half, area.height()}, row, sideOf(row, true));
  painter.setPen(palette_.color(QPalette::Mid));
  painter.drawLine(area.left() + half, area.top(), area.left() + half, area.bottom());
}

void DifferencePainter::paintFold(QPainter& painter, const QRect& area, const DifferenceRow& row) const {
  painter.fillRect(area, palette_.color(QPalette::AlternateBase));
  painter.setPen(mutedInk(palette_));
  painter.drawText(area, Qt::AlignCenter, QStringLiteral("⋯ %1 ⋯").arg(foldWords(row)));
}

void DifferencePainter::paintSide(QPainter& painter, const QRect& area, const DifferenceRow& row,
                                  const Side& side) const {
  const bool isChanged = row.kind == DifferenceRow::Kind::changed;
  const DifferenceColours colours = differenceColours(side.isAdded, isDark(palette_));
  if (!side.span) {
    painter.fillRect(area, QBrush(palette_.color(QPalette::Mid), Qt::BDiagPattern));
    return;
  }
  if (isChanged) {
    painter.fillRect(area, colours.fill);
  }
  QRect numbers = area;
  numbers.setWidth(gutter());
  painter.setPen(isChanged ? colours.ink : mutedInk(palette_));
  const int column = metrics_.horizontalAdvance(QLatin1Char('0'));
  if (side.number > 0) {
    painter.drawText(numbers.adjusted(0, 0, -kSignColumns * column, 0), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(side.number));
  }
  if (isChanged) {
    painter.drawText(numbers.adjusted(0, 0, -column, 0), Qt::AlignRight | Qt::AlignVCenter,
                     side.isAdded ? QStringLiteral("+") : QStringLiteral("−"));
  }
  painter.save();
  painter.setClipRect(area.adjusted(gutter(), 0, 0, 0));
  const QRect text = area.adjusted(gutter() - look_.scrolled, 0, 0, 0);
  if (look_.layout == DifferenceLayout::hex) {
    paintHex(painter, text, row, side);
  } else {
    paintRuns(painter, text, row, side);
    paintVarying(painter, text, side);
  }
  painter.restore();
}

void DifferencePainter::paintRuns(QPainter& painter, QRect area, const DifferenceRow& row, const Side& side) const {
  const DifferenceColours colours = differenceColours(side.isAdded, isDark(palette_));
  const QColor ink = row.kind == DifferenceRow::Kind::changed ? colours.ink : palette_.color(QPalette::Text);
  int column = 0;
  for (const ShownRun& run : shownLine(side.page, *side.span, side.form, *side.words, *side.bytes, look_.invisible)) {
    const QString text = withoutTabs(run.text, column);
    area.setWidth(metrics_.horizontalAdvance(text));
    if (run.mark != ShownMark::none) {
      painter.fillRect(area, colours.wordFill);
    }
    painter.setPen(run.mark == ShownMark::none ? ink : colours.wordInk);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    if (run.mark == ShownMark::byte) {
      painter.drawLine(area.left(), area.bottom() - 1, area.right(), area.bottom() - 1);
    }
    area.moveLeft(area.left() + area.width());
  }
}

// Over whatever is marked there: a change in it is none.
void DifferencePainter::paintVarying(QPainter& painter, QRect area, const Side& side) const {
  if (within(*side.varying, *side.span).empty()) {
    return;
  }
  const HoleColours colours = holeColours(isDark(palette_));
  int column = 0;
  for (const ShownRun& run : shownLine(side.page, *side.span, side.form, {}, *side.varying, look_.invisible)) {
    const QString text = withoutTabs(run.text, column);
    area.setWidth(metrics_.horizontalAdvance(text));
    if (run.mark != ShownMark::none) {
      painter.fillRect(area, colours.fill);
      painter.setPen(QPen(colours.edge, 1, Qt::DashLine));
      painter.drawRect(area.adjusted(0, 0, -1, -1));
      painter.setPen(colours.ink);
      painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    }
    area.moveLeft(area.left() + area.width());
  }
}

void DifferencePainter::paintHex(QPainter& painter, QRect area, const DifferenceRow& row, const Side& side) const {
  const DifferenceColours colours = differenceColours(side.isAdded, isDark(palette_));
  const int column = metrics_.horizontalAdvance(QLatin1Char('0'));
  const auto isMarked = [&](ByteSpan byte) {
    // The rows of several changes may be one.
    for (std::size_t change = row.change; change < difference_.changes.size(); ++change) {
      const PageChange& here = difference_.changes[change];
      const ByteSpans& marks = side.isAdded ? here.added : here.removed;
      if (!within(marks, byte).empty()) {
        return true;
      }
      if (!marks.empty() && marks.front().begin >= byte.end) {
        return false;
      }
    }
    return false;
  };
  if (row.kind == DifferenceRow::Kind::changed) {
    for (std::size_t i = 0; i < side.span->size(); ++i) {
      if (isMarked({side.span->begin + i, side.span->begin + i + 1})) {
        for (const std::size_t place : {kHexColumn + 3 * i, kHexColumn + 3 * kHexBytes + 1 + i}) {
          painter.fillRect(area.left() + static_cast<int>(place) * column, area.top(),
                           (place < kHexColumn + 3 * kHexBytes ? 2 : 1) * column, area.height(), colours.wordFill);
        }
      }
    }
  }
  painter.setPen(row.kind == DifferenceRow::Kind::changed ? colours.ink : palette_.color(QPalette::Text));
  const QString text = QString::fromStdString(hexRow(side.page.substr(0, side.span->end), side.span->begin));
  for (qsizetype place = 0; place < text.size(); ++place) {
    painter.drawText(QRect(area.left() + static_cast<int>(place) * column, area.top(), column, area.height()),
                     Qt::AlignCenter, text.mid(place, 1));
  }
}

int DifferencePainter::textWidth(int viewWidth) const {
  return (look_.layout == DifferenceLayout::unified ? viewWidth : viewWidth / 2) - gutter();
}

std::optional<std::pair<int, int>> DifferencePainter::firstMark(const DifferenceRow& row) const {
  std::optional<std::pair<int, int>> first;
  if (row.kind != DifferenceRow::Kind::changed || look_.layout == DifferenceLayout::hex) {
    return first;
  }
  for (const bool after : {false, true}) {
    const Side side = sideOf(row, after);
    int column = 0;
    int left = 0;
    if (!side.span) {
      continue;
    }
    for (const ShownRun& run : shownLine(side.page, *side.span, side.form, *side.words, *side.bytes, look_.invisible)) {
      const int right = left + metrics_.horizontalAdvance(withoutTabs(run.text, column));
      if (run.mark != ShownMark::none) {
        first = !first || left < first->first ? std::pair(left, right) : *first;
        break;
      }
      left = right;
    }
  }
  return first;
}

QString DifferencePainter::textOf(const DifferenceRow& row, bool after) const {
  const Side side = sideOf(row, after);
  if (!side.span) {
    return {};
  }
  if (look_.layout == DifferenceLayout::hex) {
    return QString::fromStdString(hexRow(side.page.substr(0, side.span->end), side.span->begin));
  }
  QString text;
  for (const ShownRun& run : shownLine(side.page, *side.span, side.form, {}, {}, look_.invisible)) {
    text += QString::fromStdString(run.text);
  }
  return text;
}

}  // namespace tarnwick
