// SPDX-License-Identifier: MIT
#include "ui/main_window/site_menu.h"

#include <algorithm>
#include <functional>
#include <QClipboard>
#include <QDateTimeEdit>
#include <QDialog>
#include <QGuiApplication>
#include <QShortcut>
#include <QVBoxLayout>

#include "store/site_pauses.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/page_opener.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

const QString kMoment = QStringLiteral("yyyy-MM-dd HH:mm");

QDateTime shown(LocalTime time) {
  return QDateTime::fromString(QString::fromStdString(dateTimeText(time)), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

}  // namespace

SiteMenu::SiteMenu(Program& program, SiteGridView& grid, QMenu& all, QObject* parent)
    : QObject(parent),
      program_(program),
      grid_(grid),
      actions_(new RowActions(program, *grid.window(), this)),
      row_(new QMenu(&grid)) {
  makeRowMenu();
  addPauses(
      all, [this](const Pause& pause) { pauseAll(pause); }, [this] { resumeAll(); });
  connect(&grid_, &QWidget::customContextMenuRequested, this, &SiteMenu::open);
}

void SiteMenu::makeRowMenu() {
  row_->setObjectName(QStringLiteral("rowMenu"));
  row_->setToolTipsVisible(true);
  openSite_ = row_->addAction(tr("&Open Site…"), this, [this] {
    if (grid_.currentIndex().isValid()) {
      Q_EMIT grid_.rowChosen(grid_.listRow(grid_.currentIndex()));
    }
  });
  openSite_->setObjectName(QStringLiteral("openSite"));
  openSite_->setText(openSite_->text() + QLatin1Char('\t') +
                     QKeySequence(Qt::Key_Enter).toString(QKeySequence::NativeText));
  check_ = add("checkNow", tr("Check &Now"), Qt::CTRL | Qt::Key_R, &RowActions::checkNow);
  row_->addSeparator();
  always_ = add("alwaysChanges", tr("This Always C&hanges…"), Qt::CTRL | Qt::SHIFT | Qt::Key_V, [this] {
    if (const auto idSite = grid_.currentDifferingSite()) {
      Q_EMIT alwaysChanges(*idSite);
    }
  });
  acknowledge_ = add("acknowledge", tr("Ac&knowledge"), Qt::CTRL | Qt::SHIFT | Qt::Key_K, &RowActions::acknowledge);
  QMenu* pauses = row_->addMenu(tr("&Pause"));
  pauses->setObjectName(QStringLiteral("pauseSite"));
  addPauses(
      *pauses, [this](const Pause& pause) { actions_->pause(chosen(), pause); },
      [this] { actions_->resume(chosen()); });
  addKey(*pauses->actions().front(), Qt::CTRL | Qt::Key_P);
  row_->addSeparator();
  add("editTags", tr("&Tags…"), Qt::CTRL | Qt::Key_T, &RowActions::editTags);
  add("changeSites", tr("Chan&ge…"), Qt::CTRL | Qt::Key_E, &RowActions::change);
  reset_ = add("resetCounters", tr("&Reset Counters…"), {}, &RowActions::resetCounters);
  row_->addSeparator();
  browser_ = add("openInBrowser", tr("Open in &Browser"), Qt::CTRL | Qt::Key_B, [this] { openInBrowser(); });
  add("copyAddress", tr("&Copy Address"), QKeySequence::Copy, [this] { copyAddresses(); });
  add("copyRows", tr("Cop&y Rows as Text"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { copyRows(); });
  row_->addSeparator();
  add("deleteSite", tr("&Delete…"), QKeySequence::Delete, &RowActions::remove);
  // What means nothing is told while the menu is shown; the keys look for themselves.
  connect(row_, &QMenu::aboutToHide, this, &SiteMenu::allowAll);
}

QAction* SiteMenu::add(const char* name, const QString& caption, const QKeySequence& keys,
                       const std::function<void()>& action) {
  QAction* entry = row_->addAction(caption, this, [this, action] { program_.faults().run(action); });
  entry->setObjectName(QString::fromLatin1(name));
  addKey(*entry, keys);
  return entry;
}

QAction* SiteMenu::add(const char* name, const QString& caption, const QKeySequence& keys, Doing action) {
  return add(name, caption, keys, [this, action] { std::invoke(action, *actions_, chosen()); });
}

// Told in the menu, carried out by the list alone: elsewhere the keys are those of a text.
void SiteMenu::addKey(QAction& action, const QKeySequence& keys) {
  if (!keys.isEmpty()) {
    action.setText(action.text() + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText));
    connect(new QShortcut(keys, &grid_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, &action,
            &QAction::trigger);
  }
}

void SiteMenu::addPauses(QMenu& menu, const Pausing& pause, const std::function<void()>& resume) {
  const auto add = [&](const char* name, const QString& caption, const std::function<void()>& action) {
    menu.addAction(caption, this, [this, action] { program_.faults().run(action); })
        ->setObjectName(QString::fromLatin1(name));
  };
  const auto now = [this] { return program_.services().clock.localNow(); };
  add("pauseHour", tr("for 1 &Hour"), [pause, now] { pause({true, now() + std::chrono::hours(1)}); });
  add("pauseTomorrow", tr("until &Tomorrow 8:00"), [pause, now] { pause({true, tomorrowMorning(now())}); });
  add("pauseUntil", tr("&Until…"), [this, pause] { pauseUntil(pause); });
  add("pauseForGood", tr("for &Good"), [pause] { pause({true, std::nullopt}); });
  menu.addSeparator();
  add("resume", tr("&Resume"), resume);
}

ChosenSites SiteMenu::chosen() const {
  ChosenSites chosen;
  for (const int row : grid_.chosenRows()) {
    const SiteRow& site = grid_.sites().row(row);
    const auto isCounted = [&](std::size_t column) { return !site.cells[column].empty() && site.cells[column] != "0"; };
    chosen.push_back({.idSite = *grid_.sites().siteOfRow(row),
                      .url = site.cells[SiteGridModel::urlColumn],
                      .active = site.shade != SiteRow::Shade::inactive,
                      .down = site.status == false,
                      .known = site.alarm.acknowledged,
                      .paused = site.alarm.paused,
                      .counted = isCounted(SiteGridModel::upColumn) || isCounted(SiteGridModel::downColumn)});
  }
  return chosen;
}

void SiteMenu::allowAll() {
  for (QAction* action : row_->actions()) {
    action->setEnabled(true);
    action->setToolTip({});
  }
}

void SiteMenu::adjust() {
  const ChosenSites sites = chosen();
  const bool isOne = sites.size() == 1;
  const auto allow = [](QAction& action, bool means, const QString& whyNot) {
    action.setEnabled(means);
    action.setToolTip(means ? QString() : whyNot);
  };
  allow(*openSite_, isOne, tr("Choose one site"));
  allow(*always_, isOne && grid_.currentDifferingSite(), tr("No page differs from its baseline"));
  allow(*browser_, isOne, tr("Choose one site"));
  allow(*check_, std::ranges::any_of(sites, &ChosenSite::active), tr("The site is not active"));
  allow(*acknowledge_, !RowActions::toAcknowledge(sites).empty(), tr("There is no wrong page"));
  allow(*reset_, std::ranges::any_of(sites, &ChosenSite::counted), tr("The counters are at 0"));
  const QString keys = acknowledge_->text().section(QLatin1Char('\t'), 1);
  acknowledge_->setText((RowActions::endsAcknowledgement(sites) ? tr("Alarm A&gain") : tr("Ac&knowledge")) +
                        QLatin1Char('\t') + keys);
}

void SiteMenu::open(const QPoint& place) {
  adjust();
  const QModelIndex cell = grid_.indexAt(place);
  const QRect current = grid_.visualRect(grid_.currentIndex());
  // The Menu key asks for the current row, wherever the pointer is.
  if (grid_.currentIndex().isValid() && (cell.isValid() || current.contains(place))) {
    row_->popup(grid_.viewport()->mapToGlobal(place));
  } else if (grid_.currentIndex().isValid() && !grid_.underMouse()) {
    row_->popup(grid_.viewport()->mapToGlobal(current.bottomLeft()));
  }
}

void SiteMenu::pauseUntil(const Pausing& pause) {
  auto* dialog = new QDialog(grid_.window());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setObjectName(QStringLiteral("frmPauseUntil"));
  dialog->setWindowTitle(tr("Pause Alerts"));
  auto* until = named(new QDateTimeEdit(dialog), "untilMoment", tr("Tell nothing until"));
  until->setDisplayFormat(kMoment);
  until->setCalendarPopup(true);
  until->setDateTime(shown(tomorrowMorning(program_.services().clock.localNow())));
  QPushButton* ok = addButton(*dialog, "untilOk", tr("OK"));
  QPushButton* cancel = addButton(*dialog, "untilCancel", tr("Cancel"));
  ok->setDefault(true);
  auto* line = new QHBoxLayout;
  line->addWidget(addLabel(tr("Tell nothing until"), *until));
  line->addWidget(until);
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(ok);
  foot->addWidget(cancel);
  auto* lines = new QVBoxLayout(dialog);
  lines->addLayout(line);
  lines->addLayout(foot);
  connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
  connect(dialog, &QDialog::accepted, this, [this, until, pause] {
    program_.faults().run([&] { pause({true, parseStamp(until->dateTime().toString(kMoment).toStdString())}); });
  });
  dialog->open();
}

void SiteMenu::pauseAll(const Pause& pause) {
  SitePauses(program_.data().database(), program_.data()).pauseAll(pause, program_.services().clock.localNow());
  program_.run().init();
}

void SiteMenu::resumeAll() {
  SitePauses(program_.data().database(), program_.data()).resumeAll();
  program_.run().init();
}

void SiteMenu::openInBrowser() {
  if (const ChosenSites sites = chosen(); sites.size() == 1) {
    visitPage(program_.services(), sites.front().url, grid_.window());
  }
}

void SiteMenu::copyAddresses() {
  QStringList addresses;
  for (const ChosenSite& site : chosen()) {
    addresses << displayText(site.url);
  }
  QGuiApplication::clipboard()->setText(addresses.join(QLatin1Char('\n')));
}

// What is shown, as a table that spreadsheets take.
void SiteMenu::copyRows() {
  QStringList lines;
  for (const int row : grid_.chosenRows()) {
    QStringList cells;
    for (int column = 0; column < grid_.sites().columnCount(); ++column) {
      if (!grid_.isColumnHidden(column)) {
        cells << grid_.sites().index(row, column).data(SiteGridModel::copyRole).toString().simplified();
      }
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace tarnwick
