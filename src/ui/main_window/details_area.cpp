// SPDX-License-Identifier: MIT
#include "ui/main_window/details_area.h"

#include <algorithm>
#include <numeric>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLayout>
#include <QScreen>
#include <QShortcut>

#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"
#include "ui/details/change_window.h"
#include "ui/details/same_changes.h"

namespace tarnwick {
namespace {

constexpr int kLeastHeight = 150;
constexpr int kUsualHeight = 190;
/// A screen that has less of it has no room for the list with the details.
constexpr int kLeastScreen = 560;
constexpr int kLeastRows = 5;
constexpr int kRememberedAfter = 500;  // milliseconds
constexpr const char* kHeight = "detailsHeight";

}  // namespace

DetailsArea::DetailsArea(Program& program, QWidget& canvas, const MasterControls& controls, QObject* parent)
    : QObject(parent),
      program_(program),
      canvas_(canvas),
      grid_(*controls.grid1),
      reason_(*controls.lReason),
      bar_(*controls.noticeBar),
      settling_(new SiteSettling(program, *canvas.window(), this)),
      pane_(new DetailsPane(program, *settling_, &canvas)),
      splitter_(named(new QSplitter(Qt::Vertical, &canvas), "listSplitter", QObject::tr("List and details"))),
      below_(kUsualHeight) {
  pane_->hide();
  pane_->setMinimumHeight(kLeastHeight);
  const std::unique_ptr<QLayoutItem> placeOfTheGrid(canvas.layout()->replaceWidget(&grid_, splitter_));
  splitter_->addWidget(&grid_);
  splitter_->addWidget(pane_);
  splitter_->setChildrenCollapsible(false);
  splitter_->setStretchFactor(0, 1);
  splitter_->setStretchFactor(1, 0);
  connectKeys();
  later_.setSingleShot(true);
  later_.setInterval(kRememberedAfter);
  connect(&later_, &QTimer::timeout, this, [this] {
    if (habits_ != nullptr) {
      habits_->remember(kHeight, below_);
    }
  });
  connect(splitter_, &QSplitter::splitterMoved, this, [this] {
    share(splitter_->sizes().constLast());
    below_ = splitter_->sizes().constLast();
    later_.start();
  });
  connect(pane_, &DetailsPane::alarmWanted, this, [this](std::int16_t idSite) {
    if (editAlarm_) {
      program_.faults().run([&] { editAlarm_(idSite); });
    }
  });
  connect(pane_, &DetailsPane::closed, this, &DetailsArea::close);
  connect(pane_, &DetailsPane::windowWanted, this,
          [this](std::int16_t idSite) { openChangeWindow(program_, *settling_, *canvas_.window(), idSite); });
  connect(&grid_, &SiteGridView::detailsWanted, this, [this](int row) {
    if (const auto idSite = grid_.sites().siteOfRow(row)) {
      show(*idSite);
    }
  });
  controls.listButton->menu()->insertAction(
      controls.outbox,
      makeAction("sameChanges", tr("&Same Change on Many Sites…"), {}, &DetailsArea::openSameChangesOfAll));
  connect(&reason_, &SiteReason::clicked, this, &DetailsArea::open);
  follow();
}

void DetailsArea::connectKeys() {
  connect(new QShortcut(Qt::Key_F4, canvas_.window()), &QShortcut::activated, this, &DetailsArea::toggle);
  connect(new QShortcut(Qt::Key_F6, canvas_.window()), &QShortcut::activated, this, &DetailsArea::goOnToNextArea);
  connect(new QShortcut(Qt::Key_Escape, pane_, nullptr, nullptr, Qt::WidgetWithChildrenShortcut), &QShortcut::activated,
          this, &DetailsArea::close);
}

// From the list to the details, to the notices, and back, as far as they are there.
void DetailsArea::goOnToNextArea() {
  const QWidget* focus = canvas_.window()->focusWidget();
  if (pane_->isVisible() && focus == &grid_) {
    pane_->takeFocus();
  } else if (bar_.first() != nullptr && (focus == &grid_ || pane_->isAncestorOf(focus))) {
    bar_.first()->setFocus(Qt::ShortcutFocusReason);
  } else {
    grid_.setFocus(Qt::ShortcutFocusReason);
  }
}

int DetailsArea::heightOfRows(int rows) const {
  return grid_.verticalHeader()->defaultSectionSize() * rows + grid_.horizontalHeader()->height() +
         2 * grid_.frameWidth();
}

void DetailsArea::share(int below) {
  const int whole = splitter_->height() - splitter_->handleWidth();
  const int height = std::max(1, grid_.verticalHeader()->defaultSectionSize());
  const int rows = std::max(kLeastRows, (whole - std::max(below, kLeastHeight) - heightOfRows(0)) / height);
  const int list = std::min(heightOfRows(rows), whole - kLeastHeight);
  splitter_->setSizes({list, whole - list});
}

void DetailsArea::follow() {
  const auto look = [this] { pane_->showSite(grid_.currentSite()); };
  connect(grid_.selectionModel(), &QItemSelectionModel::currentRowChanged, this, look);
  // Once the list has its current row again.
  connect(grid_.model(), &QAbstractItemModel::modelReset, this, look, Qt::QueuedConnection);
  connect(settling_, &SiteSettling::settled, this, look);
  connect(grid_.selectionModel(), &QItemSelectionModel::selectionChanged, this, &DetailsArea::tellChosen,
          Qt::QueuedConnection);
  connect(pane_, &DetailsPane::sameChangesWanted, this, [this] { openSameChanges(grid_.chosenRows()); });
  connect(grid_.model(), &QAbstractItemModel::dataChanged, this,
          [this, look](const QModelIndex& first, const QModelIndex& last) {
            const int row = grid_.currentIndex().row();
            if (first.row() <= row && row <= last.row()) {
              look();
            }
          });
}

void DetailsArea::tellChosen() {
  if (pane_->isVisible()) {
    const std::vector<int> rows = grid_.chosenRows();
    pane_->tellChosen(static_cast<int>(rows.size()), static_cast<int>(std::ranges::count_if(rows, [this](int row) {
                        return grid_.sites().row(row).shade == SiteRow::Shade::down;
                      })));
  }
}

void DetailsArea::addTo(QMenu& rowMenu, UndoList& undo) {
  remember(undo);
  const auto entry = [&](const char* name) { return rowMenu.findChild<QAction*>(QString::fromLatin1(name)); };
  rowMenu.insertAction(entry("checkNow"),
                       makeAction("showChanged", tr("Show &What Changed"), Qt::Key_F4, &DetailsArea::toggle));
  QAction* always = entry("alwaysChanges");
  rowMenu.insertAction(
      always, makeAction("acceptPage", tr("&Accept…"), Qt::CTRL | Qt::SHIFT | Qt::Key_A, &DetailsArea::accept));
  connect(pane_, &DetailsPane::varyWanted, always, &QAction::trigger);
  pane_->panel().view().addAction(always);
  rowMenu.insertAction(always, makeAction("acceptAlso", tr("Accept A&lso…"), {}, &DetailsArea::acceptAlso));
  if (auto* pauses = rowMenu.findChild<QMenu*>(QStringLiteral("pauseSite"))) {
    pane_->setPauses(*pauses);
  }
  const QList<QAction*> all = rowMenu.actions();
  const auto acknowledge = all.indexOf(entry("acknowledge"));
  rowMenu.insertAction(all.value(acknowledge + 1),
                       makeAction("undoAccept", tr("&Undo Accept…"), {}, &DetailsArea::undoAccept));
}

// Told in the menu, carried out by the list alone, but for F4, which holds in the window.
QAction* DetailsArea::makeAction(const char* name, const QString& caption, const QKeySequence& keys,
                                 void (DetailsArea::*doing)()) {
  auto* action = new QAction(caption, this);
  action->setObjectName(QString::fromLatin1(name));
  connect(action, &QAction::triggered, this, doing);
  if (!keys.isEmpty()) {
    action->setText(caption + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText));
  }
  if (!keys.isEmpty() && keys != QKeySequence(Qt::Key_F4)) {
    connect(new QShortcut(keys, &grid_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, action,
            &QAction::trigger);
  }
  return action;
}

void DetailsArea::remember(UndoList& undo) {
  connect(new QShortcut(QKeySequence::Undo, pane_, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
          &QShortcut::activated, &undo, &UndoList::undoLast);
  connect(settling_, &SiteSettling::accepted, this, [this, &undo](const std::vector<std::int16_t>& ids) {
    const bool isOne = ids.size() == 1;
    undo.add({.sentence = isOne ? tr("Site %1: the new page is the baseline.").arg(ids.front())
                                : tr("%1 sites: the new pages are the baselines.").arg(ids.size()),
              .caption = isOne ? tr("&Undo Accept of Site %1").arg(ids.front())
                               : tr("&Undo Accept of %1 Sites").arg(ids.size()),
              .undo = [this, ids](const std::function<void()>& done) {
                settling_->undoAccept(ids);
                done();
              }});
  });
}

void DetailsArea::show(std::int16_t idSite) {
  grid_.selectSite(idSite);
  open();
}

void DetailsArea::showHistory(std::int16_t idSite) {
  show(idSite);
  pane_->showHistory();
  bringToFront(*canvas_.window());
}

void DetailsArea::toggle() { pane_->isVisible() ? close() : open(); }

void DetailsArea::open() {
  if (grid_.sites().rowCount() == 0) {
    return;
  }
  if (canvas_.screen()->availableSize().height() < kLeastScreen) {
    if (const auto idSite = grid_.currentSite()) {
      openChangeWindow(program_, *settling_, *canvas_.window(), *idSite);
    }
    return;
  }
  if (!pane_->isVisible()) {
    below_ = habits_ == nullptr ? below_ : habits_->remembered(kHeight).value_or(below_);
    pane_->showSite(grid_.currentSite());
    pane_->show();
    tellChosen();
    share(below_);
    reason_.setAway(true);
  }
}

void DetailsArea::close() {
  const bool hadFocus = pane_->isAncestorOf(canvas_.window()->focusWidget());
  pane_->hide();
  reason_.setAway(false);
  if (hadFocus) {
    grid_.setFocus();
  }
}

void DetailsArea::accept() {
  if (const auto idSite = grid_.currentSite()) {
    settling_->accept(*idSite);
  }
}

void DetailsArea::acceptAlso() {
  if (const auto idSite = grid_.currentSite()) {
    settling_->accept(*idSite, true);
  }
}

void DetailsArea::undoAccept() {
  if (const auto idSite = grid_.currentSite()) {
    settling_->undoAccept({*idSite});
  }
}

void DetailsArea::openSameChangesOfAll() {
  std::vector<int> rows(static_cast<std::size_t>(grid_.sites().rowCount()));
  std::iota(rows.begin(), rows.end(), 0);
  openSameChanges(rows);
}

void DetailsArea::openSameChanges(const std::vector<int>& rows) {
  std::vector<std::int16_t> ids;
  for (const int row : rows) {
    if (const auto idSite = grid_.sites().siteOfRow(row); idSite && grid_.sites().differsInRow(row)) {
      ids.push_back(*idSite);
    }
  }
  auto* dialog = new SameChanges(program_, *settling_, std::move(ids), canvas_.window());
  placeOver(*dialog, *canvas_.window());
  endModalityAt(*dialog);
  dialog->show();
}

}  // namespace tarnwick
