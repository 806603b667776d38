// SPDX-License-Identifier: MIT
#include "ui/main_window/site_search.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QShortcut>

#include "finding/site_query.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/main_window/sort_chip.h"

namespace tarnwick {
namespace {

constexpr int kRenewAfter = 1000;  // milliseconds

}  // namespace

SearchControls makeSearch(QWidget& canvas) {
  SearchControls controls{};
  controls.filterEdit = named(new FilterEdit(&canvas), "filterEdit", SiteSearch::tr("Filter the list of sites"));
  controls.filterEdit->setPlaceholderText(SiteSearch::tr("Filter: down, never, tag:shop … (Ctrl+F)"));
  // Nothing moves when it comes and goes.
  QSizePolicy policy = controls.filterEdit->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  controls.filterEdit->setSizePolicy(policy);
  controls.filterCount = named(new QLabel(&canvas), "filterCount");
  controls.filterCount->setTextFormat(Qt::PlainText);
  controls.sortChip = named(new SortChip(&canvas), "sortChip");
  controls.sortChip->setToolTip(SiteSearch::tr("Show the original order again"));
  controls.sortChip->hide();
  return controls;
}

SiteSearch::SiteSearch(Program& program, SiteGridView& grid, const SearchControls& controls, QAction& originalOrder,
                       QObject* parent)
    : QObject(parent),
      program_(program),
      grid_(grid),
      controls_(controls),
      nothingFound_(named(new QLabel(tr("No site matches."), grid.viewport()), "nothingFound")),
      showAllSites_(named(new QPushButton(tr("Show All Sites"), grid.viewport()), "showAllSites")),
      originalOrder_(originalOrder),
      kept_("listSort", [this] { return sortedBy(); }) {
  connect(showAllSites_, &QPushButton::clicked, this, [this] {
    find({});
    grid_.setFocus();
  });
  connect(controls_.filterEdit, &QLineEdit::textChanged, this, &SiteSearch::findTyped);
  connect(controls_.filterEdit, &FilterEdit::left, &grid_, [this] { grid_.setFocus(); });
  connect(controls_.sortChip, &QPushButton::clicked, this, &SiteSearch::endSorting);
  connect(&originalOrder_, &QAction::triggered, this, &SiteSearch::endSorting);
  originalOrder_.setEnabled(false);
  connect(&grid_, &SiteGridView::hiddenSiteWanted, this, [this] { find({}); });
  connect(&grid_, &SiteGridView::captionClicked, this, &SiteSearch::sortByNext);
  connect(grid_.horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int /*old*/, int width) {
    if (width == 0 && column == grid_.order().sortColumn()) {
      endSorting();  // nobody sees by what any more
    }
  });
  connect(new QShortcut(QKeySequence::Find, grid_.window()), &QShortcut::activated, this, [this] {
    controls_.filterEdit->setFocus(Qt::ShortcutFocusReason);
    controls_.filterEdit->selectAll();
  });
  soon_.setSingleShot(true);
  soon_.setInterval(kRenewAfter);
  connect(&soon_, &QTimer::timeout, this, &SiteSearch::renew);
  connect(grid_.order().sourceModel(), &QAbstractItemModel::dataChanged, this, &SiteSearch::renewSoon);
  connect(grid_.order().sourceModel(), &QAbstractItemModel::modelReset, this, &SiteSearch::tellCount);
  grid_.viewport()->installEventFilter(this);
  tellCount();
}

void SiteSearch::find(const QString& line) { controls_.filterEdit->setText(line); }

void SiteSearch::findTyped() {
  try {
    const SiteQuery query(controls_.filterEdit->text().toStdString());
    controls_.filterEdit->setFault({});
    grid_.changeOrder([&] { grid_.order().find(query, moment(query)); });
  } catch (const std::invalid_argument& fault) {
    controls_.filterEdit->setFault(displayMessage(fault.what()));
  }
  tellCount();
}

// Up, down, and the original order again.
void SiteSearch::sortByNext(int column) {
  const SiteOrder& order = grid_.order();
  if (order.sortColumn() != column) {
    sortBy(column, Qt::AscendingOrder);
  } else if (order.sortOrder() == Qt::AscendingOrder) {
    sortBy(column, Qt::DescendingOrder);
  } else {
    endSorting();
  }
}

void SiteSearch::sortBy(int column, Qt::SortOrder sortOrder) {
  SiteOrder& order = grid_.order();
  grid_.changeOrder([&] { order.sortBy(column, sortOrder); });
  QHeaderView& header = *grid_.horizontalHeader();
  header.setSortIndicator(column, order.sortOrder());
  header.setSortIndicatorShown(true);
  // With room for the arrow.
  header.resizeSection(column, std::max(header.sectionSize(column), header.sectionSizeHint(column)));
  const QString caption = order.headerData(column, Qt::Horizontal).toString();
  controls_.sortChip->setText(tr("Sorted by %1 ✕").arg(caption));
  controls_.sortChip->setToolTip(
      plainToolTip(tr("Sorted by %1").arg(caption) + QLatin1Char('\n') + tr("Show the original order again")));
  controls_.sortChip->show();
  originalOrder_.setEnabled(true);
  kept_.change();
}

// 0 in the original order, else the number of the column, from 1 on, which is negative while it falls.
int SiteSearch::sortedBy() const {
  const int column = grid_.order().sortColumn() + 1;
  return grid_.order().sortOrder() == Qt::AscendingOrder ? column : -column;
}

void SiteSearch::rememberIn(UserHabits& habits) {
  const int sorted = kept_.keepIn(habits).value_or(0);
  const int column = std::abs(sorted) - 1;
  if (column >= 0 && column < grid_.order().columnCount() && !grid_.isColumnHidden(column)) {
    sortBy(column, sorted > 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
  }
}

void SiteSearch::endSorting() {
  if (controls_.sortChip->hasFocus()) {
    grid_.setFocus();
  }
  grid_.changeOrder([this] { grid_.order().sortBy(-1, Qt::AscendingOrder); });
  grid_.horizontalHeader()->setSortIndicatorShown(false);
  controls_.sortChip->hide();
  originalOrder_.setEnabled(false);
  kept_.change();
}

void SiteSearch::renewSoon() {
  if (!soon_.isActive()) {
    soon_.start();
  }
}

void SiteSearch::renew() {
  if (QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() != nullptr) {
    renewSoon();
    return;
  }
  if (grid_.order().isFiltered() || grid_.order().isSorted()) {
    grid_.changeOrder([this] { grid_.order().renew(moment(grid_.order().query())); });
  }
  tellCount();
}

SiteOrder::Moment SiteSearch::moment(const SiteQuery& query) {
  SiteOrder::Moment moment{.now = program_.services().clock.localNow()};
  try {
    moment.runIsOn = program_.run().running();
    moment.newSitesAtOnce = program_.data().optionsInForce().newSitesAtOnce();
    if (query.asksForTags()) {
      moment.tags = tags();
    }
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere.
  }
  return moment;
}

std::vector<std::int16_t> SiteSearch::sitesFoundBy(const QString& line) {
  SiteOrder order(static_cast<SiteGridModel&>(*grid_.order().sourceModel()));
  const SiteQuery query(line.toStdString());
  order.find(query, moment(query));
  std::vector<std::int16_t> ids;
  for (int row = 0; row < order.rowCount(); ++row) {
    if (const auto idSite = grid_.sites().siteOfRow(order.listRow(row))) {
      ids.push_back(*idSite);
    }
  }
  std::ranges::sort(ids);
  return ids;
}

// Read once, and again after a change: not with each letter that is typed.
std::shared_ptr<const SiteOrder::TagsOfSites> SiteSearch::tags() {
  if (!changes_) {
    changes_.emplace(program_.data().database());
  }
  if (changes_->byAnyone() || !tags_) {
    tags_ = std::make_shared<const SiteOrder::TagsOfSites>(program_.data().tagsOfSites());
  }
  return tags_;
}

void SiteSearch::tellCount() {
  const SiteOrder& order = grid_.order();
  const int all = order.sourceModel()->rowCount();
  const int shown = order.rowCount();
  QString count;
  if (order.isFiltered()) {
    count = tr("%1 of %2 sites").arg(shown).arg(all);
  } else if (all > 0) {
    count = all == 1 ? tr("1 site, %1 down").arg(grid_.downCount())
                     : tr("%1 sites, %2 down").arg(all).arg(grid_.downCount());
  }
  controls_.filterCount->setText(count);
  controls_.filterEdit->setVisible(all > 0 || order.isFiltered());
  const bool isNothingFound = order.isFiltered() && shown == 0 && all > 0;
  nothingFound_->setVisible(isNothingFound);
  showAllSites_->setVisible(isNothingFound);
  placeNothingFound();
}

void SiteSearch::placeNothingFound() {
  const QRect room = grid_.viewport()->rect();
  int below = room.top() + room.height() / 3;
  for (QWidget* widget : {static_cast<QWidget*>(nothingFound_), static_cast<QWidget*>(showAllSites_)}) {
    widget->resize(widget->sizeHint());
    widget->move(room.center().x() - widget->width() / 2, below);
    below += 2 * widget->height();
  }
}

bool SiteSearch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    placeNothingFound();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tarnwick
