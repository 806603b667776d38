// SPDX-License-Identifier: MIT
// Which rows of the list are chosen, and how.
#include <algorithm>
#include <iterator>
#include <utility>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QUrl>

#include "ui/main_window/site_grid_view.h"
#include "ui/main_window/site_row_delegate.h"

namespace tarnwick {

void SiteGridView::selectSite(std::int16_t idSite) {
  const int row = sites_.rowOfSite(idSite);
  if (row < 0 && awaitsSites_) {
    awaited_ = idSite;
    return;
  }
  if (row >= 0 && order_.shownRow(row) < 0) {
    Q_EMIT hiddenSiteWanted();
  }
  selectListRow(row);
}

void SiteGridView::selectListRow(int row) {
  if (const int shown = row < 0 ? -1 : order_.shownRow(row); shown >= 0) {
    selectShown(shown);
    scrollTo(order_.index(shown, SiteGridModel::idColumn));
  }
}

// Shift begins at this row.
void SiteGridView::selectShown(int shownRow) { setCurrentIndex(order_.index(shownRow, SiteGridModel::idColumn)); }

void SiteGridView::selectSites(const std::vector<std::int16_t>& ids) {
  std::vector<int> shown;
  shown.reserve(ids.size());
  for (const std::int16_t id : ids) {
    const int row = sites_.rowOfSite(id);
    if (const int at = row < 0 ? -1 : order_.shownRow(row); at >= 0) {
      shown.push_back(at);
    }
  }
  std::ranges::sort(shown);
  QItemSelection rows;
  const int last = order_.columnCount() - 1;
  for (auto begin = shown.begin(); begin != shown.end();) {
    auto end = std::next(begin);
    while (end != shown.end() && *end == *std::prev(end) + 1) {
      ++end;
    }
    rows.append(QItemSelectionRange(order_.index(*begin, 0), order_.index(*std::prev(end), last)));
    begin = end;
  }
  // Ranges are compared with those before, each with each, so there are none before.
  selectionModel()->clearSelection();
  selectionModel()->select(rows, QItemSelectionModel::Select);
}

std::optional<std::int16_t> SiteGridView::currentDifferingSite() const {
  const int row = listRow(currentIndex());
  return row >= 0 && sites_.differsInRow(row) ? currentSite() : std::nullopt;
}

std::optional<std::int16_t> SiteGridView::currentSite() const { return sites_.siteOfRow(listRow(currentIndex())); }

std::vector<int> SiteGridView::chosenRows() const {
  std::vector<int> shown;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      shown.push_back(row);
    }
  }
  if (shown.empty() && currentIndex().isValid()) {
    shown.push_back(currentIndex().row());
  }
  std::ranges::sort(shown);
  shown.erase(std::unique(shown.begin(), shown.end()), shown.end());
  std::ranges::transform(shown, shown.begin(), [this](int row) { return order_.listRow(row); });
  std::erase_if(shown, [this](int row) { return !sites_.siteOfRow(row); });
  return shown;
}

void SiteGridView::setSites(const TextTable& sites) {
  SiteRows rows;
  rows.add(sites, {}, sites_.columns());
  setSites(std::move(rows));
}

void SiteGridView::setSites(SiteRows sites) {
  const int scrolled = verticalScrollBar()->value();
  keepChosen([&] { sites_.setSites(std::move(sites)); });
  // The scroll bar learns of the new rows with the next layout, which must come first.
  updateGeometries();
  verticalScrollBar()->setValue(scrolled);
  isFilled_ = true;
  shareRoom();
  awaitsSites_ = false;
  if (const auto idSite = std::exchange(awaited_, std::nullopt)) {
    selectSite(*idSite);
  }
  Q_EMIT filled();
}

// Who looks at other rows than the current one goes on doing so.
void SiteGridView::changeOrder(const std::function<void()>& change) {
  const auto before = currentSite();
  const bool wasSeen = viewport()->rect().intersects(visualRect(currentIndex()));
  const int scrolled = verticalScrollBar()->value();
  keepChosen(change);
  updateGeometries();
  verticalScrollBar()->setValue(scrolled);
  if (currentIndex().isValid() && (wasSeen || currentSite() != before)) {
    scrollTo(currentIndex());
  }
}

// There is always a row that the keys begin at; where its site is gone, the one that has moved up.
void SiteGridView::keepChosen(const std::function<void()>& change) {
  const auto current = currentSite();
  const int place = std::max(currentIndex().row(), 0);
  std::vector<std::int16_t> chosen;
  for (const int row : chosenRows()) {
    chosen.push_back(*sites_.siteOfRow(row));
  }
  // What moves is not followed index by index, of which there are many.
  selectionModel()->clearSelection();
  change();
  const int row = current ? sites_.rowOfSite(*current) : -1;
  const int shown = row >= 0 ? order_.shownRow(row) : -1;
  if (order_.rowCount() > 0) {
    selectShown(shown >= 0 ? shown : std::min(place, order_.rowCount() - 1));
    if (shown >= 0 && chosen != std::vector{*current}) {
      selectSites(chosen);
    }
  }
}

// What the program itself chooses is chosen alone, whatever keys are held.
QItemSelectionModel::SelectionFlags SiteGridView::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const {
  return event == nullptr ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                          : QTableView::selectionCommand(index, event);
}

void SiteGridView::dragEnterEvent(QDragEnterEvent* event) { dragMoveEvent(event); }

void SiteGridView::dragMoveEvent(QDragMoveEvent* event) {
  if (event->mimeData()->hasText() || event->mimeData()->hasUrls()) {
    event->acceptProposedAction();
  }
}

void SiteGridView::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  Q_EMIT addressesGiven(addressesIn(*event->mimeData()));
}

QString SiteGridView::addressesIn(const QMimeData& data) {
  QStringList addresses;
  for (const QUrl& url : data.urls()) {
    addresses << url.toString(QUrl::FullyEncoded);
  }
  return addresses.isEmpty() ? data.text() : addresses.join(QLatin1Char('\n'));
}

// The frame of the current row goes round all of its cells.
void SiteGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  for (const QModelIndex& index : {current, previous}) {
    const QRect cell = visualRect(index);
    viewport()->update(0, cell.top(), viewport()->width(), cell.height());
  }
}

void SiteGridView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->pos();
  pressedWith_ = event->modifiers();
  QTableView::mousePressEvent(event);
}

void SiteGridView::onClick(const QModelIndex& cell) {
  const bool onlyChooses = pressedWith_.testFlag(Qt::ControlModifier) || pressedWith_.testFlag(Qt::ShiftModifier) ||
                           cell.column() > SiteGridModel::timeColumn;
  if (onlyChooses) {
    return;
  }
  const bool onIcon =
      cell.column() == SiteGridModel::idColumn && pressed_.x() < visualRect(cell).left() + SiteRowDelegate::kIconRoom;
  if (onIcon || click_ == Click::showsDetails) {
    Q_EMIT detailsWanted(listRow(cell));
  } else {
    Q_EMIT rowChosen(listRow(cell));
  }
}

void SiteGridView::onDoubleClick(const QModelIndex& cell) {
  if (click_ == Click::showsDetails && pressedWith_ == Qt::NoModifier) {
    Q_EMIT rowChosen(listRow(cell));
  }
}

}  // namespace tarnwick
