// SPDX-License-Identifier: MIT
#include "ui/history/overview_list.h"

#include <algorithm>
#include <array>
#include <utility>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "history/history_text.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr double kMargin = 3;

QRectF stripeArea(const QRect& cell) {
  const double height = std::min<double>(kStripeHeight, cell.height() - 2 * kMargin);
  return {cell.left() + kMargin, cell.bottom() + 1 - kMargin - height, cell.width() - 2 * kMargin, height};
}

}  // namespace

void OverviewList::show(std::vector<Row> rows, const Period& period, Moment now) {
  constexpr double kBehindAll = 101;
  std::ranges::stable_sort(rows, {}, [=](const Row& row) { return row.uptime.value_or(kBehindAll); });
  beginResetModel();
  rows_ = std::move(rows);
  period_ = period;
  edges_ = edgesOf(period, now);
  now_ = now;
  endResetModel();
}

Stripe OverviewList::stripeOf(int row) const {
  Stripe whole{.view = {period_, edges_, std::vector<TimeSum>(edges_.size() - 1)}, .now = now_};
  const std::vector<KnownTime>& cells = rows_.at(static_cast<std::size_t>(row)).cells;
  for (std::size_t i = 0; i < std::min(cells.size(), whole.view.cells.size()); ++i) {
    whole.view.cells[i].up = std::chrono::seconds(cells[i].up);
    whole.view.cells[i].down = std::chrono::seconds(cells[i].down);
  }
  return whole;
}

int OverviewList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int OverviewList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

QVariant OverviewList::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Row& row = rows_.at(static_cast<std::size_t>(index.row()));
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(Qt::Alignment(Qt::AlignVCenter) |
                               (index.column() == uptime ? Qt::AlignRight : Qt::AlignLeft));
  }
  if (role == Qt::AccessibleTextRole && index.column() == stripe) {
    return wholeWords(stripeOf(index.row()));
  }
  if (role != Qt::DisplayRole && !(role == Qt::ToolTipRole && index.column() == address)) {
    return {};
  }
  switch (index.column()) {
    case site:
      return row.idSite;
    case address:
      return role == Qt::ToolTipRole ? plainToolTip(row.url) : row.url;
    case uptime:
      return QString::fromStdString(uptimeText(row.uptime));
    default:
      return {};
  }
}

QVariant OverviewList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const std::array<QString, last> captions{tr("ID"), tr("URL"), edges_.empty() ? QString() : periodWords(period_),
                                           tr("Up")};
  return captions.at(static_cast<std::size_t>(section));
}

StripeDelegate::StripeDelegate(const OverviewList& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

void StripeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem plain = option;
  plain.state &= ~QStyle::State_Selected;  // its colours would be read as a state
  QStyledItemDelegate::paint(painter, plain, index);
  paintStripe(*painter, stripeArea(option.rect), list_.stripeOf(index.row()), isDark(option.palette));
}

bool StripeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  const Stripe stripe = list_.stripeOf(index.row());
  const QRectF area = stripeArea(option.rect);
  const auto cell = cellAt(stripe, event->pos().x() - area.left(), area.width());
  QToolTip::showText(event->globalPos(), cell ? plainToolTip(cellWords(stripe, *cell)) : QString(), view);
  return true;
}

}  // namespace tarnwick
