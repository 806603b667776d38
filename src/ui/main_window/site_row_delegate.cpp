// SPDX-License-Identifier: MIT
#include "ui/main_window/site_row_delegate.h"

#include <utility>
#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QTableView>

#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

constexpr int kIconSize = 14;
constexpr int kIconLeft = 5;
constexpr int kGap = 7;

void paintState(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
  const auto state = static_cast<SiteState>(index.data(SiteGridModel::stateRole).toInt());
  const auto ink = index.data(Qt::ForegroundRole).value<QColor>();
  const QRect& cell = option.rect;
  const QRect icon(cell.left() + kIconLeft, cell.top() + (cell.height() - kIconSize) / 2, kIconSize, kIconSize);
  paintIcon(painter, icon, state, ink);

  const QRect texts = cell.adjusted(kIconLeft + kIconSize + kGap, 0, -kGap, 0);
  const QString number = index.data().toString();
  const int room = texts.width() - option.fontMetrics.horizontalAdvance(number) - kGap;
  const QString word =
      option.fontMetrics.elidedText(index.data(SiteGridModel::wordRole).toString(), Qt::ElideRight, room);
  painter.save();
  painter.setPen(ink);
  painter.setFont(option.font);
  painter.drawText(texts, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, number);
  if (room > 0) {
    painter.drawText(texts, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, word);
  }
  painter.restore();
}

// The edges of the row that this cell has.
void paintEdges(QPainter& painter, const QPen& pen, const QRect& cell, bool first, bool last) {
  const qreal half = pen.widthF() / 2;
  const QRectF middle = QRectF(cell).adjusted(0, half, 0, -half);
  painter.setPen(pen);
  painter.drawLine(middle.topLeft(), middle.topRight());
  painter.drawLine(middle.bottomLeft(), middle.bottomRight());
  for (const auto& [isEdge, x] : {std::pair(first, cell.left() + half), std::pair(last, cell.right() + 1 - half)}) {
    if (isEdge) {
      painter.drawLine(QPointF(x, cell.top()), QPointF(x, cell.bottom() + 1));
    }
  }
}

int lastShown(const QStyleOptionViewItem& option, const QModelIndex& index) {
  int last = index.model()->columnCount() - 1;
  if (const auto* grid = qobject_cast<const QTableView*>(option.widget)) {
    while (last > 0 && grid->isColumnHidden(last)) {
      --last;
    }
  }
  return last;
}

bool isCurrentRow(const QStyleOptionViewItem& option, const QModelIndex& index) {
  const auto* grid = qobject_cast<const QTableView*>(option.widget);
  return grid != nullptr && grid->currentIndex().row() == index.row();
}

void paintFrame(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, int thickness) {
  const QRect& cell = option.rect;
  const bool first = index.column() == 0;
  const bool last = index.column() == lastShown(option, index);
  painter.save();
  // The grid is white in every theme, so the frame is dark in every theme.
  QPen pen(Qt::black, thickness, Qt::SolidLine, Qt::FlatCap);
  if (option.widget != nullptr && !option.widget->hasFocus()) {
    paintEdges(painter, QPen(Qt::white, thickness, Qt::SolidLine, Qt::FlatCap), cell, first, last);
    // The dashes of a cell go on in the next one.
    pen.setDashPattern({3, 2});
    pen.setDashOffset(cell.left() / static_cast<qreal>(thickness));
  }
  paintEdges(painter, pen, cell, first, last);
  painter.restore();
}

}  // namespace

void SiteRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem plain = option;
  plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
  if (index.column() == SiteGridModel::idColumn) {
    initStyleOption(&plain, index);
    plain.text.clear();
    const QStyle& style = plain.widget != nullptr ? *plain.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &plain, painter, plain.widget);
    paintState(*painter, plain, index);
  } else {
    QStyledItemDelegate::paint(painter, plain, index);
  }
  constexpr int kChosen = 2;
  constexpr int kCurrent = 1;
  if (option.state.testFlag(QStyle::State_Selected)) {
    paintFrame(*painter, option, index, kChosen);
  } else if (isCurrentRow(option, index)) {
    paintFrame(*painter, option, index, kCurrent);
  }
}

}  // namespace tarnwick
