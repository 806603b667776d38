// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QHeaderView>
#include <QTableView>

namespace tarnwick {

/// Makes a table of one line a row, of which one is chosen, and in which nothing is edited; Tab leaves it.
inline void setUpList(QTableView& table) {
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setSelectionMode(QAbstractItemView::SingleSelection);
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.verticalHeader()->hide();
  constexpr int kAroundText = 10;
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kAroundText);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

/// The same for a table whose cells are edited in place.
inline void setUpRows(QTableView& table) {
  setUpList(table);
  table.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                        QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
}

}  // namespace tarnwick
