// SPDX-License-Identifier: MIT
#include "ui/history/history_page.h"

#include <algorithm>
#include <iterator>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "engine/alarm_policy.h"
#include "history/history_text.h"
#include "store/option_table.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/row_table.h"
#include "ui/history/history_picture.h"

namespace tarnwick {
namespace {

/// In place of one of the periods.
constexpr int kAll = -1;
/// Whose answer times are told while all are shown: 30 days.
constexpr std::size_t kMonth = 2;
/// With all of them there is room for the answer times only in a page that is higher than this.
constexpr int kRoomForAll = 170;

}  // namespace

HistoryPage::HistoryPage(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      pages_(new QStackedWidget(this)),
      outages_(new OutageList(this)),
      corner_(new QWidget(this)) {
  setObjectName(QStringLiteral("history"));
  makeCorner();
  pages_->addWidget(makeStripes());
  pages_->addWidget(makeInvitation());
  auto* whole = new QHBoxLayout(this);
  whole->setContentsMargins({});
  whole->addWidget(pages_);
  clear();
}

QWidget* HistoryPage::makeStripes() {
  auto* halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  auto* area = new QScrollArea(halves);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  auto* left = new QWidget(area);
  area->setWidget(left);
  auto* grid = new QGridLayout(left);
  grid->setContentsMargins(0, 4, 8, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(0);
  grid->setColumnStretch(1, 1);
  for (std::size_t period = 0; period < periods().size(); ++period) {
    const auto row = static_cast<int>(period);
    const QString name = QStringLiteral("historyStripe%1").arg(periods()[period].length);
    Line& line = lines_.emplace_back();
    line.name = new QLabel(periodWords(periods()[period]), left);
    line.stripe = named(new StripeView(left), name.toLatin1().constData(), periodWords(periods()[period]));
    line.uptime = named(new QLabel(left), (name + QLatin1String("Uptime")).toLatin1().constData());
    line.uptime->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(line.name, row, 0);
    grid->addWidget(line.stripe, row, 1);
    grid->addWidget(line.uptime, row, 2);
    connect(line.stripe, &StripeView::cellChosen, this, &HistoryPage::showOutages);
  }
  latency_ = named(new LatencyView(left), "historyLatency", tr("Answer times"));
  const auto below = static_cast<int>(lines_.size());
  grid->addWidget(latency_, below, 1);
  grid->setRowStretch(below, 1);
  table_ = named(new QTableView(halves), "historyOutages", tr("Outages, the latest first"));
  table_->setModel(outages_);
  setUpList(*table_);
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setSectionResizeMode(OutageList::cause, QHeaderView::Stretch);
  table_->setToolTip(tr("Enter, or a double click, shows what came at the first failed check"));
  connect(table_, &QTableView::activated, this, [this](const QModelIndex& index) {
    if (idSite_) {
      Q_EMIT failureWanted(*idSite_, outages_->outages().at(static_cast<std::size_t>(index.row())).began);
    }
  });
  halves->addWidget(area);
  halves->addWidget(table_);
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  halves->setSizes({480, 320});
  return halves;
}

QWidget* HistoryPage::makeInvitation() {
  auto* page = new QWidget(this);
  auto* words =
      named(new QLabel(tr("No history is kept: only the log tells how the sites have been."), page), "historyNotKept");
  words->setWordWrap(true);
  keep_ = addButton(*page, "historyKeep", tr("Keep th&e History"),
                    tr("From now on keep for years when each site was up or down; the log is read into it"));
  onClick(*keep_, program_.faults(), [this] { keep(); });
  auto* lines = new QVBoxLayout(page);
  lines->addStretch(1);
  lines->addWidget(words, 0, Qt::AlignHCenter);
  lines->addWidget(keep_, 0, Qt::AlignHCenter);
  lines->addStretch(1);
  return page;
}

void HistoryPage::makeCorner() {
  figures_ = named(new QLabel(corner_), "historyFigures");
  period_ = named(new QComboBox(corner_), "historyPeriod", tr("Which periods are shown"));
  period_->addItem(tr("All periods"), kAll);
  for (std::size_t period = 0; period < periods().size(); ++period) {
    period_->addItem(periodWords(periods()[period]), static_cast<int>(period));
  }
  period_->setToolTip(period_->accessibleName());
  save_ = addButton(*corner_, "historySave", tr("Save…"), tr("Write the stripes into a picture, SVG or PNG"));
  onClick(*save_, program_.faults(), [this] { save(); });
  connect(period_, &QComboBox::currentIndexChanged, this, &HistoryPage::show);
  auto* line = new QHBoxLayout(corner_);
  line->setContentsMargins({});
  line->addWidget(figures_);
  line->addWidget(period_);
  line->addWidget(save_);
}

QWidget& HistoryPage::first() {
  if (pages_->currentIndex() == 1) {
    return *keep_;
  }
  const int period = period_->currentData().toInt();
  return *lines_.at(period == kAll ? 0 : static_cast<std::size_t>(period)).stripe;
}

void HistoryPage::clear() {
  idSite_.reset();
  stripes_.clear();
  show();
}

void HistoryPage::showSite(std::int16_t idSite) {
  m& list = program_.data();
  const Moment now = program_.services().clock.now();
  idSite_ = idSite;
  stripes_.clear();
  const OptionsInForce options = list.optionsInForce();
  const auto slow = alarmPolicyOf(options, idSite).slow;
  std::vector<PeriodView> views = periodsOf(list, idSite, checkedSite(list, idSite).interval, now);
  const std::vector<Outage> outages = list.outages(idSite, {views.back().edges.front(), now + std::chrono::seconds(1)});
  for (PeriodView& view : views) {
    stripes_.push_back({std::move(view), outages, slow, now});
  }
  const bool isKept = options.valueOf(kAllSites, option_name::history) == option_value::on;
  // What was kept before it was switched off is still there to be seen.
  pages_->setCurrentIndex(isKept || stripes_.back().view.whole().checks > 0 ? 0 : 1);
  show();
}

bool HistoryPage::isShown(std::size_t period) const {
  const int chosen = period_->currentData().toInt();
  return chosen == kAll || chosen == static_cast<int>(period);
}

void HistoryPage::show() {
  const bool known = !stripes_.empty() && pages_->currentIndex() == 0;
  corner_->setEnabled(known);
  for (std::size_t period = 0; period < lines_.size(); ++period) {
    const Line& line = lines_[period];
    const bool shown = known && isShown(period);
    for (QWidget* const part :
         {static_cast<QWidget*>(line.name), static_cast<QWidget*>(line.stripe), static_cast<QWidget*>(line.uptime)}) {
      part->setVisible(shown);
    }
    if (known) {
      line.stripe->showStripe(stripes_[period]);
      line.uptime->setText(QString::fromStdString(uptimeText(stripes_[period].view.whole().uptime())));
    }
  }
  if (known) {
    const int chosen = period_->currentData().toInt();
    const Stripe& stripe = stripes_[chosen == kAll ? kMonth : static_cast<std::size_t>(chosen)];
    latency_->showStripe(stripe);
    const PeriodView& time = chosen == kAll ? stripes_.back().view : stripe.view;
    showOutages(time.edges.front(), time.edges.back());
  } else {
    outages_->show({}, {});
  }
  latency_->setVisible(known && (period_->currentData().toInt() != kAll || height() > kRoomForAll));
  tellFigures();
}

// A page that is made higher has room for more.
void HistoryPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  latency_->setVisible(!stripes_.empty() && (period_->currentData().toInt() != kAll || height() > kRoomForAll));
}

void HistoryPage::showOutages(Moment from, Moment until) {
  std::vector<Outage> some;
  const Moment now = stripes_.front().now;
  std::ranges::copy_if(stripes_.back().outages, std::back_inserter(some), [&](const Outage& outage) {
    return outage.began <= until && outage.ended.value_or(now) >= from;
  });
  outages_->show(std::move(some), now);
}

void HistoryPage::tellFigures() {
  QString words;
  if (!stripes_.empty() && pages_->currentIndex() == 0) {
    const int chosen = period_->currentData().toInt();
    const PeriodView& view = stripes_[chosen == kAll ? kMonth : static_cast<std::size_t>(chosen)].view;
    const TimeSum whole = view.whole();
    if (const auto median = whole.latency.quantile(0.5)) {
      words = tr("Median %1, slowest %2")
                  .arg(QString::fromStdString(tookText(median)), QString::fromStdString(tookText(whole.slowest)));
      figures_->setToolTip(tr("Of the answers of %1").arg(periodWords(view.period)));
    }
  }
  figures_->setText(words);
}

void HistoryPage::keep() {
  program_.data().setOption(kAllSites, option_name::history, option_value::on);
  if (idSite_) {
    showSite(*idSite_);
  }
}

void HistoryPage::save() {
  if (!idSite_ || stripes_.empty()) {
    return;
  }
  std::vector<NamedStripe> shown;
  for (std::size_t period = 0; period < stripes_.size(); ++period) {
    if (isShown(period)) {
      shown.push_back({periodWords(stripes_[period].view.period), stripes_[period]});
    }
  }
  saveHistoryPicture(program_, *window(), displayText(checkedSite(program_.data(), *idSite_).url), std::move(shown));
}

}  // namespace tarnwick
