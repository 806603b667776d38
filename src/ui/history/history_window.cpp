// SPDX-License-Identifier: MIT
#include "ui/history/history_window.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPointer>
#include <QVBoxLayout>

#include "store/history_view.h"
#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"
#include "ui/controls/row_table.h"
#include "ui/history/history_picture.h"

namespace tarnwick {
namespace {

/// That many cells are read at a time: some milliseconds of work.
constexpr std::size_t kCellsAtOnce = 500;
/// What is shown at first: 30 days.
constexpr int kMonth = 2;
/// A picture has so many stripes at most.
constexpr std::size_t kMostInPicture = 200;
constexpr int kStripeWidth = 330;

}  // namespace

HistoryWindow::HistoryWindow(Program& program, HistorySites sites, QWidget* parent)
    : QDialog(parent),
      program_(program),
      sites_(std::move(sites)),
      filter_(named(new FilterEdit(this), "historyFilter", tr("Filter the sites"))),
      count_(named(new QLabel(this), "historyCount")),
      period_(named(new QComboBox(this), "historyAllPeriod", tr("Which period is shown"))),
      table_(named(new QTableView(this), "historyAll", tr("Sites, the worst first"))),
      list_(new OverviewList(this)) {
  setObjectName(QStringLiteral("frmHistory"));
  setWindowTitle(tr("History of All Sites"));
  filter_->setPlaceholderText(tr("Filter: down, never, tag:shop …"));
  for (const Period& period : periods()) {
    period_->addItem(periodWords(period));
  }
  period_->setCurrentIndex(kMonth);
  period_->setToolTip(period_->accessibleName());
  save_ = addButton(*this, "historyAllSave", tr("&Save…"), tr("Write the stripes into a picture, SVG or PNG"));
  layOut();
  onClick(*save_, program_.faults(), [this] { save(); });
  const auto again = [this] { program_.faults().run([this] { read(); }); };
  connect(period_, &QComboBox::currentIndexChanged, this, again);
  connect(filter_, &QLineEdit::textChanged, this, again);
  connect(filter_, &FilterEdit::left, table_, [this] { table_->setFocus(); });
  connect(table_, &QTableView::activated, this, [this](const QModelIndex& index) {
    program_.faults().run([&] { sites_.show(list_->rows().at(static_cast<std::size_t>(index.row())).idSite); });
  });
  read();
}

void HistoryWindow::layOut() {
  table_->setModel(list_);
  setUpList(*table_);
  table_->setItemDelegateForColumn(OverviewList::stripe, new StripeDelegate(*list_, table_));
  table_->setToolTip(tr("Enter, or a double click, shows the history of a site alone"));
  QHeaderView& header = *table_->horizontalHeader();
  header.setSectionResizeMode(OverviewList::address, QHeaderView::Stretch);
  header.resizeSection(OverviewList::site, fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 12);
  header.resizeSection(OverviewList::stripe, kStripeWidth);
  header.resizeSection(OverviewList::uptime, fontMetrics().horizontalAdvance(QStringLiteral("100.00 %")) + 16);
  auto* top = new QHBoxLayout;
  top->addWidget(filter_, 1);
  top->addWidget(count_);
  top->addWidget(period_);
  top->addWidget(save_);
  auto* lines = new QVBoxLayout(this);
  lines->addLayout(top);
  lines->addWidget(table_, 1);
}

const Period& HistoryWindow::period() const { return periods().at(static_cast<std::size_t>(period_->currentIndex())); }

void HistoryWindow::read() {
  std::vector<std::int16_t> found;
  try {
    found = sites_.find(filter_->text());
    filter_->setFault({});
  } catch (const std::invalid_argument& fault) {
    filter_->setFault(displayMessage(fault.what()));
    return;
  }
  work_.reset();
  wanted_.clear();
  rows_.clear();
  next_ = 0;
  now_ = program_.services().clock.now();
  for (const std::int16_t idSite : found) {
    wanted_.push_back({.idSite = idSite});
  }
  work_ = std::make_unique<SlicedWork>(
      program_, SlicedWork::Aim::read, [this](m& own) { return readNext(own); },
      [this] { program_.faults().run([this] { told(); }); });
  tellCount();
}

bool HistoryWindow::readNext(m& own) {
  const std::size_t cells = static_cast<std::size_t>(period().cells);
  const std::size_t count = std::min(std::max<std::size_t>(1, kCellsAtOnce / cells), wanted_.size() - next_);
  const std::span<SiteToShow> some(wanted_.data() + next_, count);
  std::vector<QString> urls;
  urls.reserve(count);
  for (SiteToShow& site : some) {
    const CheckedSite checked = checkedSite(own, site.idSite);
    site.interval = checked.interval;
    urls.push_back(displayText(checked.url));
  }
  std::vector<SiteOverview> overviews = overviewsOf(own, period(), some, now_);
  for (std::size_t i = 0; i < count; ++i) {
    const auto uptime = overviews[i].uptime();
    rows_.push_back({.idSite = static_cast<std::int16_t>(overviews[i].idSite),
                     .url = urls[i],
                     .cells = std::move(overviews[i].cells),
                     .uptime = uptime});
  }
  next_ += count;
  return next_ < wanted_.size();
}

// They are ordered when all have come: a row that moves away under the hand is worse than one that comes late.
void HistoryWindow::told() {
  if (work_->ended()) {
    work_->raiseFailure();
    list_->show(std::exchange(rows_, {}), period(), now_);
    known_ = static_cast<std::size_t>(
        std::ranges::count_if(list_->rows(), [](const OverviewList::Row& row) { return row.uptime.has_value(); }));
  }
  tellCount();
}

void HistoryWindow::tellCount() {
  save_->setEnabled(work_->ended() && known_ > 0);
  if (!work_->ended()) {
    count_->setText(tr("%1 of %2 …").arg(next_).arg(wanted_.size()));
    return;
  }
  const std::size_t all = list_->rows().size();
  count_->setText(all == 1 ? tr("1 site") : tr("%1 sites").arg(all));
}

void HistoryWindow::save() {
  std::vector<NamedStripe> stripes;
  const std::size_t count = std::min(list_->rows().size(), kMostInPicture);
  stripes.reserve(count);
  for (std::size_t row = 0; row < count; ++row) {
    stripes.push_back({list_->rows()[row].url, list_->stripeOf(static_cast<int>(row))});
  }
  saveHistoryPicture(program_, *this, tr("History of All Sites, %1").arg(periodWords(period())), std::move(stripes));
}

void HistoryWindow::done(int result) {
  QDialog::done(result);
  deleteLater();
}

std::function<void()> historyOf(Program& program, QWidget& parent, HistorySites sites) {
  return [&program, &parent, sites = std::move(sites), shown = QPointer<HistoryWindow>()]() mutable {
    // One that has been closed may not have been taken down yet.
    if (shown == nullptr || !shown->isVisible()) {
      shown = new HistoryWindow(program, sites, &parent);
      sizeToContents(*shown, parent);
      placeOver(*shown, parent);
      endModalityAt(*shown);
      shown->QDialog::show();
    }
    bringToFront(*shown);
  };
}

}  // namespace tarnwick
