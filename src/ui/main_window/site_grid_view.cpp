// SPDX-License-Identifier: MIT
#include "ui/main_window/site_grid_view.h"

#include <algorithm>
#include <cmath>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"
#include "ui/main_window/site_row_delegate.h"

namespace tarnwick {
SiteGridView::SiteGridView(SiteGridModel& model, QWidget* parent) : QTableView(parent), sites_(model), order_(model) {
  setModel(&order_);
  setItemDelegate(new SiteRowDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setGridStyle(Qt::SolidLine);

  QPalette white = palette();
  white.setColor(QPalette::Base, colourFromText(colours::kUnpainted));
  white.setColor(QPalette::Text, Qt::black);
  viewport()->setPalette(white);

  setUpColumns();
  setUpExtraColumns();
  setRowHeight();

  viewport()->setMouseTracking(true);
  viewport()->setAcceptDrops(true);
  horizontalHeader()->viewport()->setMouseTracking(true);
  horizontalHeader()->viewport()->installEventFilter(this);
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(this, &QTableView::clicked, this, &SiteGridView::onClick);
  connect(this, &QTableView::doubleClicked, this, &SiteGridView::onDoubleClick);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &SiteGridView::captionClicked);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, &SiteGridView::keepRoomForAddresses);
}

void SiteGridView::setUpColumns() {
  QHeaderView& header = *horizontalHeader();
  header.setHighlightSections(false);
  header.setSectionsMovable(false);
  header.setMinimumSectionSize(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 4);
  header.setSectionResizeMode(QHeaderView::Interactive);

  constexpr int kPadding = 20;
  int section = 0;
  int widestPart = 0;
  for (const SiteColumn& column : sites_.columns()) {
    if (column.widest != nullptr) {
      const int widest = fontMetrics().horizontalAdvance(QLatin1String(column.widest)) + kPadding;
      header.resizeSection(section, std::max(widest, header.sectionSizeHint(section)));
    } else if (column.part > widestPart) {
      widestPart = column.part;
      stretched_ = section;
    }
    ++section;
  }
  header.setSectionResizeMode(stretched_, QHeaderView::Stretch);
  isShared_ = false;
}

// The room is known when the list is filled and laid out in its window for the first time; from then on one column
// follows the window.
void SiteGridView::shareRoom() {
  if (isShared_ || !isFilled_ || !isVisible()) {
    return;
  }
  QHeaderView& header = *horizontalHeader();
  int room = viewport()->width();
  int parts = 0;
  int section = 0;
  for (const SiteColumn& column : sites_.columns()) {
    room -= column.widest != nullptr ? header.sectionSize(section) : 0;
    parts += column.part;
    ++section;
  }
  section = 0;
  for (const SiteColumn& column : sites_.columns()) {
    if (column.widest == nullptr && section != stretched_) {
      // No caption is cut, in whatever language and letters.
      const auto part = static_cast<int>(std::lround(static_cast<double>(room) * column.part / parts));
      header.resizeSection(section, std::max(part, header.sectionSizeHint(section)));
    }
    ++section;
  }
  isShared_ = true;
}

void SiteGridView::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  shareRoom();
}

void SiteGridView::setRowHeight() {
  // One height for all rows: thirty thousand of them are laid out by a multiplication.
  constexpr int kPadding = 8;
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kPadding);
}

QSize SiteGridView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 100, verticalHeader()->defaultSectionSize() * 12};
}

QString SiteGridView::columnToolTip(int column) const {
  if (const auto extra = sites_.extraColumnAt(column)) {
    return QCoreApplication::translate("tarnwick::ExtraColumns", extraColumns()[*extra].hint);
  }
  const SiteColumns columns = sites_.columns();
  const auto index = static_cast<std::size_t>(column);
  if (column < 0 || index > columns.size()) {
    return {};
  }
  // The original hints are one more than the columns.
  const char* hint = index == columns.size() ? QT_TR_NOOP("Date Last Checked") : columns[index].hint;
  return hint == nullptr ? QString() : tr(hint);
}

QString SiteGridView::reasonOf(int row) const {
  const auto idSite = sites_.siteOfRow(row);
  return idSite && reasons_ && needsReason(sites_.stateOfRow(row)) ? reasons_(*idSite) : QString();
}

void SiteGridView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentIndex().isValid()) {
    event->accept();
    Q_EMIT rowChosen(listRow(currentIndex()));
    return;
  }
  QTableView::keyPressEvent(event);
}

bool SiteGridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    followMouse(static_cast<QMouseEvent*>(event)->pos().x());
  } else if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<QHelpEvent&>(*event);
    const QModelIndex cell = indexAt(help.pos());
    const QString reason = toolTipOf(cell);
    if (reason.isEmpty()) {
      showColumnToolTip(help.globalPos());
    } else {
      QToolTip::showText(help.globalPos(), plainToolTip(reason), viewport(), visualRect(cell));
    }
    return true;
  }
  return QTableView::viewportEvent(event);
}

// The icon tells why its site is down; so does the column of results.
QString SiteGridView::toolTipOf(const QModelIndex& cell) const {
  if (!cell.isValid()) {
    return {};
  }
  const auto extra = sites_.extraColumnAt(cell.column());
  const bool tellsReason = cell.column() == SiteGridModel::idColumn || extra == kLastResultColumn;
  const QString reason = tellsReason ? reasonOf(listRow(cell)) : QString();
  return reason.isEmpty() && extra ? cell.data(Qt::ToolTipRole).toString() : reason;
}

bool SiteGridView::eventFilter(QObject* watched, QEvent* event) {
  // The header row is part of the grid: the column under the mouse counts there as well.
  if (watched == horizontalHeader()->viewport()) {
    if (event->type() == QEvent::MouseMove) {
      followMouse(static_cast<QMouseEvent*>(event)->pos().x());
    } else if (event->type() == QEvent::ToolTip) {
      showColumnToolTip(static_cast<QHelpEvent*>(event)->globalPos());
      return true;
    }
  }
  return QTableView::eventFilter(watched, event);
}

void SiteGridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    setUpColumns();
    setUpExtraColumns();
    setRowHeight();
    shareRoom();
  }
}

void SiteGridView::followMouse(int x) { setToolTip(columnToolTip(columnAt(x))); }

void SiteGridView::showColumnToolTip(const QPoint& globalPosition) {
  if (toolTip().isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(globalPosition, toolTip(), this);
  }
}

}  // namespace tarnwick
