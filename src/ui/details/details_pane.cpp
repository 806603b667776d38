// SPDX-License-Identifier: MIT
#include "ui/details/details_pane.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/row_table.h"
#include "ui/details/settling_words.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds kPause{80};

}  // namespace

DetailsPane::DetailsPane(Program& program, SiteSettling& settling, QWidget* parent)
    : QWidget(parent),
      program_(program),
      settling_(settling),
      history_(new HistoryPage(program, this)),
      log_(new LogList(program, this)),
      alarm_(new AlarmPage(program, this)),
      choices_(new QMenu(this)) {
  setObjectName(QStringLiteral("details"));
  layOut();
  tellNothing();
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, [this] { program_.faults().run([this] { read(); }); });
}

void DetailsPane::layOut() {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 4, 0, 0);
  lines->setSpacing(4);
  lines->addWidget(makeHead());
  tabs_ = named(new QTabWidget(this), "detailsTabs", tr("Details"));
  tabs_->setDocumentMode(true);
  panel_ = new DifferencePanel(program_.services().clock, this);
  connect(&panel_->view(), &DifferenceView::compared, this,
          [this] { program_.faults().run([this] { tellHeadline(); }); });
  tabs_->addTab(panel_, tr("What changed"));
  tabs_->addTab(history_, tr("History"));
  tabs_->addTab(makeLog(), tr("Log"));
  tabs_->addTab(alarm_, tr("Alarm"));
  tabs_->setCornerWidget(makeCorner());
  connect(history_, &HistoryPage::failureWanted, this,
          [this](std::int16_t, Moment began) { program_.faults().run([&] { showFailure(localTimeAt(began)); }); });
  connect(alarm_, &AlarmPage::changeWanted, this, [this] {
    if (idSite_) {
      Q_EMIT alarmWanted(*idSite_);
    }
  });
  connect(tabs_, &QTabWidget::currentChanged, this, &DetailsPane::turn);
  turn();
  lines->addWidget(tabs_, 1);
  constexpr int kMostTabs = 9;
  for (int tab = 0; tab < kMostTabs; ++tab) {
    const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab));
    connect(new QShortcut(keys, this), &QShortcut::activated, tabs_, [this, tab] {
      if (tab < tabs_->count()) {
        tabs_->setCurrentIndex(tab);
      }
    });
  }
}

QWidget* DetailsPane::makeLog() {
  auto* log = named(new QTableView(this), "detailsLog", tr("Log of the site, the latest first"));
  log->setModel(log_);
  setUpList(*log);
  log->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  log->horizontalHeader()->setStretchLastSection(true);
  connect(log, &QTableView::activated, this, [this](const QModelIndex& index) {
    if (const auto moment = log_->momentOf(index.row())) {
      program_.faults().run([&] { showFailure(*moment); });
    }
  });
  return log;
}

// Beside the tabs, where it takes no room of its own.
QWidget* DetailsPane::makeCorner() {
  auto* corner = new QWidget(this);
  auto* window = named(new QToolButton(&panel_->corner()), "differenceWindow", tr("Show it in a window of its own"));
  window->setIcon(style()->standardIcon(QStyle::SP_TitleBarNormalButton));
  window->setAutoRaise(true);
  window->setToolTip(window->accessibleName());
  panel_->corner().layout()->addWidget(window);
  connect(window, &QToolButton::clicked, this, [this] {
    if (idSite_) {
      Q_EMIT windowWanted(*idSite_);
    }
  });
  auto* line = new QHBoxLayout(corner);
  line->setContentsMargins({});
  line->addWidget(&panel_->corner());
  line->addWidget(&history_->corner());
  return corner;
}

void DetailsPane::turn() {
  panel_->corner().setVisible(tabs_->currentWidget() == panel_);
  history_->corner().setVisible(tabs_->currentWidget() == history_);
  if (tabs_->currentWidget() != panel_) {
    logged_.reset();
  }
  program_.faults().run([this] { read(); });
}

void DetailsPane::showFailure(LocalTime since) {
  logged_.reset();
  program_.data().readLog({.since = since, .idSite = idSite_, .failures = true, .newest = {}, .content = true},
                          [this](const LogRow& row) {
                            logged_ = row;
                            return false;
                          });
  tabs_->setCurrentWidget(panel_);
}

void DetailsPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  pause_.start();
}

void DetailsPane::showSite(std::optional<std::int16_t> idSite) {
  if (idSite != idSite_) {
    kept_.reset();
    logged_.reset();
  }
  idSite_ = idSite;
  if (isVisible()) {
    pause_.start();
  }
}

void DetailsPane::read() {
  if (!idSite_ || !isVisible()) {
    tellNothing();
    return;
  }
  setAccessibleName(tr("Details of site %1").arg(*idSite_));
  found_ = program_.data().toSettle(*idSite_);
  isSettled_ = found_->state == ToSettle::State::same && !program_.data().getStatus(*idSite_);
  const AlarmPolicy policy = alarmPolicyOf(program_.data().optionsInForce(), *idSite_);
  isPaused_ = isPaused(policy.pause, program_.services().clock.localNow());
  tellButtons();
  readTab();
  tellHeadline();
}

// What is not looked at is read when somebody turns to it.
void DetailsPane::readTab() {
  if (tabs_->currentWidget() == alarm_) {
    alarm_->showSite(*idSite_);
  } else if (tabs_->currentWidget() == panel_) {
    readDifference();
  } else if (tabs_->currentWidget() == history_) {
    history_->showSite(*idSite_);
  } else {
    log_->read(*idSite_);
  }
}

void DetailsPane::readDifference() {
  const QString sentence = logged_ ? loggedWords(*logged_) : nothingToShow(*idSite_, *found_);
  if (!sentence.isEmpty()) {
    panel_->tell(sentence);
    return;
  }
  const auto all = program_.data().baselinesOf(*idSite_);
  const auto chosen = std::ranges::find(all, kept_.value_or(0), &KeptBaseline::number);
  std::optional<std::string> kept;
  if (kept_ && chosen != all.end()) {
    kept = program_.data().keptPage(*idSite_, *kept_);
  }
  kept_ = kept ? kept_ : std::nullopt;
  makeChoices(all);
  const std::string& before = kept ? *kept : found_->baseline;
  const std::string& after = logged_ ? *logged_->content : found_->page;
  panel_->heads().tell(kept ? keptHead(*chosen) : baselineHead(found_->baseline.size()),
                       logged_ ? loggedHead(*logged_)
                               : latestHead(after.size(), program_.data().getLastChecked(*idSite_),
                                            program_.services().clock.localNow()));
  const DifferenceView& view = panel_->view();
  if (!view.hasPages() || view.pages().before != before || view.pages().after != after) {
    panel_->compare(kept || logged_ ? ComparedPages{before, after} : comparedPages(*found_),
                    tr("What changed in site %1").arg(*idSite_));
  }
}

// The baseline, those before it, and further good pages.
void DetailsPane::makeChoices(const std::vector<KeptBaseline>& kept) {
  choices_->clear();
  const auto add = [this](const QString& words, std::optional<std::int64_t> number) {
    QAction* choice = choices_->addAction(words, this, [this, number] {
      kept_ = number;
      program_.faults().run([this] { read(); });
    });
    choice->setCheckable(true);
    choice->setChecked(kept_ == number);
  };
  add(baselineHead(found_->baseline.size()), std::nullopt);
  for (const KeptBaseline& one : kept) {
    add(keptHead(one), one.number);
  }
  panel_->heads().setChoices(kept.empty() ? nullptr : choices_);
}

void DetailsPane::tellNothing() {
  found_.reset();
  setAccessibleName(tr("Details"));
  headline_->showText({});
  panel_->tell(tr("Choose a site to see what changed."));
  log_->clear();
  history_->clear();
  alarm_->clear();
  isPaused_ = false;
  isSettled_ = false;
  tellButtons();
}

void DetailsPane::takeFocus() {
  QWidget& shown = *tabs_->currentWidget();
  (&shown == panel_     ? static_cast<QWidget&>(panel_->view())
   : &shown == history_ ? history_->first()
   : &shown == alarm_   ? *tabs_->tabBar()
                        : shown)
      .setFocus();
}

void DetailsPane::accept() {
  if (!idSite_ || !found_) {
    return;
  }
  if (offersCheck()) {
    program_.checkNow({*idSite_});
  } else {
    settling_.accept(*idSite_);
  }
}

void DetailsPane::acknowledge() {
  if (!idSite_ || !found_ || !canBeSettled(*found_)) {
    return;
  }
  found_->isAcknowledged ? settling_.alarmAgain(*idSite_) : settling_.acknowledge(*idSite_, found_->page);
  pause_.start();
}

}  // namespace tarnwick
