// SPDX-License-Identifier: MIT
#include "ui/details/difference_view.h"

#include <algorithm>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>

namespace tarnwick {
namespace {

using std::chrono::milliseconds;

/// How long the event loop waits for the comparison at a time.
constexpr milliseconds kSlice{8};

}  // namespace

DifferenceView::DifferenceView(const Clock& clock, QWidget* parent) : QAbstractScrollArea(parent), clock_(clock) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  connect(&slices_, &QTimer::timeout, this, &DifferenceView::goOnComparing);
}

void DifferenceView::compare(ComparedPages pages) {
  rows_.reset();
  comparison_.reset();
  pages_ = std::make_unique<const ComparedPages>(std::move(pages));
  comparison_.emplace(pages_->before, pages_->after);
  sentence_ = tr("Comparing …");
  current_ = anchor_ = 0;
  setBars();
  slices_.start(0);
  viewport()->update();
}

void DifferenceView::tell(const QString& sentence) {
  slices_.stop();
  rows_.reset();
  comparison_.reset();
  pages_.reset();
  sentence_ = sentence;
  setBars();
  viewport()->update();
}

void DifferenceView::goOnComparing() {
  if (!comparison_->step(clock_, kSlice)) {
    return;
  }
  slices_.stop();
  difference_ = &comparison_->difference();
  layOut();
  if (changes() > 0) {
    goTo(0);
  }
  Q_EMIT compared();
}

void DifferenceView::layOut() {
  rows_.emplace(pages_->before, pages_->after, *difference_, layout_);
  sentence_ = rows_->count() == 0 ? tr("Both pages are empty.") : QString();
  current_ = anchor_ = 0;
  setBars();
  viewport()->update();
}

void DifferenceView::setDifferenceLayout(DifferenceLayout layout) {
  if (layout == layout_) {
    return;
  }
  const int change = rows_ ? currentChange() : -1;
  layout_ = layout;
  if (rows_) {
    layOut();
    goTo(std::max(change, 0));
  }
}

void DifferenceView::setInvisible(bool invisible) {
  invisible_ = invisible;
  viewport()->update();
}

int DifferenceView::changes() const { return rows_ ? static_cast<int>(difference()->changes.size()) : 0; }

int DifferenceView::currentChange() const {
  int change = -1;
  while (change + 1 < changes() && rows_->rowOf(static_cast<std::size_t>(change) + 1) <= current_) {
    ++change;
  }
  return change;
}

// Some rows before it stay in sight.
void DifferenceView::goTo(int change) {
  if (change < 0 || change >= changes()) {
    return;
  }
  const std::size_t row = rowToShow(static_cast<std::size_t>(change));
  const auto first = static_cast<int>(row);
  QScrollBar& bar = *verticalScrollBar();
  if (first < bar.value() || first + 1 >= bar.value() + static_cast<int>(rowsOnPage())) {
    bar.setValue(first - static_cast<int>(rowsOnPage()) / 3);
  }
  setCurrent(row, false);
  scrollToMark();
}

// Its first row with a mark: a long line begins with what is equal.
std::size_t DifferenceView::rowToShow(std::size_t change) const {
  constexpr std::size_t kMost = 8;
  const std::size_t first = rows_->rowOf(change);
  const std::size_t end = std::min(rows_->count(), first + kMost);
  for (std::size_t row = first; row < end && rows_->at(row).change == change; ++row) {
    if (painterOf().firstMark(rows_->at(row))) {
      return row;
    }
  }
  return first;
}

// To the side only where it would not be seen otherwise.
void DifferenceView::scrollToMark() {
  const DifferencePainter painter = painterOf();
  const auto mark = painter.firstMark(rows_->at(current_));
  const int width = painter.textWidth(viewport()->width());
  QScrollBar& bar = *horizontalScrollBar();
  if (!mark || mark->second <= width) {
    bar.setValue(0);
  } else if (mark->first < bar.value() || mark->second > bar.value() + width) {
    bar.setValue(mark->first - width / 3);
  }
}

void DifferenceView::goOn(int by) {
  const int change = currentChange();
  const bool isBehind = change >= 0 && by < 0 && rowToShow(static_cast<std::size_t>(change)) < current_;
  goTo(isBehind ? change : change + by);
}

DifferencePainter DifferenceView::painterOf() const {
  return {*pages_,       *difference_, *rows_,
          fontMetrics(), palette(),    {layout_, invisible_, horizontalScrollBar()->value()}};
}

std::size_t DifferenceView::rowsOnPage() const {
  return static_cast<std::size_t>(std::max(1, viewport()->height() / (fontMetrics().height() + 2)));
}

void DifferenceView::setBars() {
  const int count = rows_ ? static_cast<int>(rows_->count()) : 0;
  const int onPage = static_cast<int>(rowsOnPage());
  verticalScrollBar()->setRange(0, std::max(0, count - onPage));
  verticalScrollBar()->setPageStep(onPage);
  verticalScrollBar()->setSingleStep(1);
  const int width = viewport()->width() / (layout_ == DifferenceLayout::unified ? 1 : 2);
  horizontalScrollBar()->setRange(0, rows_ ? std::max(0, painterOf().wholeWidth() - width) : 0);
  horizontalScrollBar()->setPageStep(width);
  horizontalScrollBar()->setSingleStep(4 * fontMetrics().horizontalAdvance(QLatin1Char('0')));
}

void DifferenceView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  setBars();
}

void DifferenceView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
    setBars();
    viewport()->update();
  }
}

void DifferenceView::scrollContentsBy(int, int) { viewport()->update(); }

void DifferenceView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  if (!rows_ || rows_->count() == 0) {
    // Named, or else the painter would take that of the texts.
    QFont plain = QGuiApplication::font();
    plain.setFamily(plain.family());
    painter.setFont(plain);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, sentence_);
    return;
  }
  const DifferencePainter rows = painterOf();
  const auto [from, to] = std::minmax(anchor_, current_);
  auto row = static_cast<std::size_t>(verticalScrollBar()->value());
  for (int y = 0; y < viewport()->height() && row < rows_->count(); y += rows.rowHeight(), ++row) {
    const QRect area(0, y, viewport()->width(), rows.rowHeight());
    rows.paint(painter, area, row);
    if (from != to && from <= row && row <= to) {
      QColor selected = palette().color(QPalette::Highlight);
      selected.setAlphaF(0.25F);
      painter.fillRect(area, selected);
    }
    if (row == current_ && hasFocus()) {
      painter.setPen(palette().color(QPalette::Highlight));
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(area.adjusted(0, 0, -1, -1));
    }
  }
}

std::optional<std::size_t> DifferenceView::rowAt(int y) const {
  const auto row =
      static_cast<std::size_t>(verticalScrollBar()->value() + std::max(0, y) / (fontMetrics().height() + 2));
  return rows_ && row < rows_->count() ? std::optional(row) : std::nullopt;
}

void DifferenceView::setCurrent(std::size_t row, bool select) {
  current_ = std::min(row, rows_->count() - 1);
  if (!select) {
    anchor_ = current_;
  }
  QScrollBar& bar = *verticalScrollBar();
  const auto place = static_cast<int>(current_);
  bar.setValue(std::clamp(bar.value(), place - static_cast<int>(rowsOnPage()) + 1, place));
  setAccessibleDescription(rowText(current_));
  viewport()->update();
  Q_EMIT moved();
}

void DifferenceView::openFold(std::size_t row) {
  rows_->open(row);
  setBars();
  setCurrent(row, false);
}

void DifferenceView::copy() const { QGuiApplication::clipboard()->setText(selectedText()); }

QString DifferenceView::rowText(std::size_t index) const {
  const DifferenceRow& row = rows_->at(index);
  if (row.isFold()) {
    return foldWords(row);
  }
  const DifferencePainter painter = painterOf();
  if (row.kind == DifferenceRow::Kind::equal) {
    return QStringLiteral("  ") + painter.textOf(row, row.after.has_value());
  }
  QStringList lines;
  if (row.before) {
    lines << QStringLiteral("- ") + painter.textOf(row, false);
  }
  if (row.after) {
    lines << QStringLiteral("+ ") + painter.textOf(row, true);
  }
  return lines.join(QLatin1Char('\n'));
}

QString DifferenceView::selectedText() const {
  if (!rows_ || rows_->count() == 0) {
    return {};
  }
  const auto [from, to] = std::minmax(anchor_, current_);
  QStringList lines;
  for (std::size_t row = from; row <= to; ++row) {
    lines << rowText(row);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tarnwick
