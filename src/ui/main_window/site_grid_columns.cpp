// SPDX-License-Identifier: MIT
// The further columns of the list: how wide they are, and what room they leave.
#include <algorithm>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "ui/main_window/site_grid_view.h"

namespace tarnwick {
namespace {

constexpr int kPadding = 20;
constexpr int kLeastForAddresses = 200;

}  // namespace

void SiteGridView::setUpExtraColumns() {
  const auto columns = extraColumns();
  for (std::size_t extra = 0; columnOfExtra(extra) < order_.columnCount(); ++extra) {
    const int column = columnOfExtra(extra);
    const bool isHidden = isColumnHidden(column) || !isSetUp_;
    setColumnHidden(column, false);
    const int widest = fontMetrics().horizontalAdvance(QLatin1String(columns[extra].widest)) + kPadding;
    setColumnWidth(column, std::max(widest, horizontalHeader()->sectionSizeHint(column)));
    setColumnHidden(column, isHidden);
  }
  isSetUp_ = true;
  keepRoomForAddresses();
}

void SiteGridView::showExtraColumn(std::size_t extra, bool isShown) {
  setColumnHidden(columnOfExtra(extra), !isShown);
  keepRoomForAddresses();
}

bool SiteGridView::isExtraColumnShown(std::size_t extra) const {
  const int column = columnOfExtra(extra);
  return column < order_.columnCount() && !isColumnHidden(column);
}

void SiteGridView::repaintExtraColumns() {
  for (std::size_t extra = 0; extra < extraColumns().size(); ++extra) {
    if (isExtraColumnShown(extra)) {
      const int column = columnOfExtra(extra);
      viewport()->update(columnViewportPosition(column), 0, columnWidth(column), viewport()->height());
    }
  }
}

void SiteGridView::keepRoomForAddresses() {
  if (keepsRoom_) {
    return;
  }
  const QScopedValueRollback keeps(keepsRoom_, true);
  QHeaderView& header = *horizontalHeader();
  int others = 0;
  bool isExtra = false;
  for (int column = 0; column < order_.columnCount(); ++column) {
    others += column == stretched_ ? 0 : header.sectionSize(column);
    isExtra = isExtra || (sites_.extraColumnAt(column) && !isColumnHidden(column));
  }
  if (isExtra && viewport()->width() - others < kLeastForAddresses) {
    header.setSectionResizeMode(stretched_, QHeaderView::Interactive);
    header.resizeSection(stretched_, kLeastForAddresses);
    isNarrow_ = true;
  } else if (isNarrow_) {
    header.setSectionResizeMode(stretched_, QHeaderView::Stretch);
    isNarrow_ = false;
  }
}

void SiteGridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  keepRoomForAddresses();
}

}  // namespace tarnwick
