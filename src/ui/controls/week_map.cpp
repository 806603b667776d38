// SPDX-License-Identifier: MIT
#include "ui/controls/week_map.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "ui/controls/alarm_words.h"
#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

constexpr int kDays = 7;
constexpr int kHours = 24;
constexpr QSize kCell{22, 18};

std::size_t hourOf(const QModelIndex& cell) {
  const int hour = cell.row() * kHours + cell.column();
  return static_cast<std::size_t>(hour);
}

/// A quiet hour is blue and bears the two bars of a pause: nobody has to tell it by its colour.
class HourDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool dark = isDark(option.palette);
    const bool quiet = index.data(Qt::UserRole).toBool();
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->fillRect(option.rect,
                      quiet ? (dark ? QColor(0x2C3E5C) : QColor(0xB9CBE8)) : option.palette.color(QPalette::Base));
    if (quiet) {
      const QPointF middle = QRectF(option.rect).center();
      painter->setPen(Qt::NoPen);
      painter->setBrush(dark ? QColor(0xE2EAF6) : QColor(Qt::black));
      painter->drawRect(QRectF(middle.x() - 3.5, middle.y() - 4, 2.5, 8));
      painter->drawRect(QRectF(middle.x() + 1, middle.y() - 4, 2.5, 8));
    }
    if (chosen) {
      const bool inHand = option.widget != nullptr && option.widget->hasFocus();
      painter->setBrush(Qt::NoBrush);
      painter->setPen(QPen(option.palette.color(QPalette::Text), 2, inHand ? Qt::SolidLine : Qt::DotLine, Qt::FlatCap));
      painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    painter->restore();
  }
};

}  // namespace

void WeekMapModel::setHours(const WeekHours& hours) {
  hours_ = hours;
  Q_EMIT dataChanged(index(0, 0), index(kDays - 1, kHours - 1));
}

bool WeekMapModel::isQuiet(const QModelIndex& cell) const { return hours_.test(hourOf(cell)); }

void WeekMapModel::setQuiet(const QModelIndex& cell, bool quiet) {
  hours_.set(hourOf(cell), quiet);
  Q_EMIT dataChanged(cell, cell);
}

int WeekMapModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kDays; }

int WeekMapModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kHours; }

QVariant WeekMapModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  switch (role) {
    case Qt::UserRole:
      return isQuiet(index);
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
      return (isQuiet(index) ? tr("%1 %2 to %3: quiet") : tr("%1 %2 to %3: not quiet"))
          .arg(dayName(index.row()), QString::number(index.column()), QString::number(index.column() + 1));
    default:
      return {};
  }
}

QVariant WeekMapModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) {
    return {};
  }
  return orientation == Qt::Horizontal ? QString::number(section) : shortDayName(section);
}

WeekMap::WeekMap(QWidget* parent) : QTableView(parent), map_(this) {
  setModel(&map_);
  setItemDelegate(new HourDelegate(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(ContiguousSelection);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(1);
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setDefaultAlignment(Qt::AlignCenter);
  }
  const int height = std::max(kCell.height(), fontMetrics().height() + 2);
  const int width = std::max(kCell.width(), fontMetrics().horizontalAdvance(QStringLiteral("23")) + 6);
  horizontalHeader()->setDefaultSectionSize(width);
  verticalHeader()->setDefaultSectionSize(height);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setCurrentIndex(map_.index(0, 0));
}

QSize WeekMap::sizeHint() const {
  return {verticalHeader()->sizeHint().width() + kHours * horizontalHeader()->defaultSectionSize() + 2 * frameWidth(),
          horizontalHeader()->sizeHint().height() + kDays * verticalHeader()->defaultSectionSize() + 2 * frameWidth()};
}

void WeekMap::paintOver(const QModelIndex& cell) {
  if (cell.isValid() && map_.isQuiet(cell) != becomesQuiet_) {
    map_.setQuiet(cell, becomesQuiet_);
    Q_EMIT edited();
  }
}

void WeekMap::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
    becomesQuiet_ = !map_.isQuiet(currentIndex());
    for (const QModelIndex& cell : selectionModel()->selectedIndexes()) {
      paintOver(cell);
    }
    paintOver(currentIndex());
    event->accept();
    return;
  }
  QTableView::keyPressEvent(event);
}

void WeekMap::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  if (event->button() == Qt::LeftButton && cell.isValid()) {
    isDragged_ = true;
    becomesQuiet_ = !map_.isQuiet(cell);
    setCurrentIndex(cell);
    paintOver(cell);
  }
}

void WeekMap::mouseMoveEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  if (!isDragged_ || !cell.isValid()) {
    return;
  }
  // All between the first cell and this one, as far as the pointer jumps.
  const QModelIndex first = currentIndex();
  for (int row = std::min(first.row(), cell.row()); row <= std::max(first.row(), cell.row()); ++row) {
    for (int hour = std::min(first.column(), cell.column()); hour <= std::max(first.column(), cell.column()); ++hour) {
      paintOver(map_.index(row, hour));
    }
  }
}

void WeekMap::mouseReleaseEvent(QMouseEvent*) { isDragged_ = false; }

}  // namespace tarnwick
