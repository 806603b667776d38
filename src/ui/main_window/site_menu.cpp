// SPDX-License-Identifier: MIT
#include "ui/main_window/site_menu.h"

#include <algorithm>
#include <QDateTimeEdit>
#include <QDialog>
#include <QShortcut>
#include <QVBoxLayout>

#include "store/site_pauses.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

const QString kMoment = QStringLiteral("yyyy-MM-dd HH:mm");

QDateTime shown(LocalTime time) {
  return QDateTime::fromString(QString::fromStdString(dateTimeText(time)), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

}  // namespace

SiteMenu::SiteMenu(Program& program, SiteGridView& grid, QMenu& all, QObject* parent)
    : QObject(parent), program_(program), grid_(grid), row_(new QMenu(&grid)) {
  makeRowMenu();
  addPauses(
      all, [this](const Pause& pause) { pauseAll(pause); }, [this] { resumeAll(); });
  connect(&grid_, &QWidget::customContextMenuRequested, this, &SiteMenu::open);
}

void SiteMenu::makeRowMenu() {
  row_->setObjectName(QStringLiteral("rowMenu"));
  QAction* openSite = row_->addAction(tr("&Open Site…"), this, [this] {
    if (grid_.currentIndex().isValid()) {
      Q_EMIT grid_.rowChosen(grid_.listRow(grid_.currentIndex()));
    }
  });
  openSite->setObjectName(QStringLiteral("openSite"));
  row_->addSeparator();
  always_ = row_->addAction(tr("This Always C&hanges…"), this, [this] {
    if (const auto idSite = grid_.currentDifferingSite()) {
      Q_EMIT alwaysChanges(*idSite);
    }
  });
  always_->setObjectName(QStringLiteral("alwaysChanges"));
  // It says whether there is something to do while the menu is shown; the keys look for themselves.
  connect(row_, &QMenu::aboutToHide, always_, [this] { always_->setEnabled(true); });
  row_->addSeparator();
  QMenu* pauses = row_->addMenu(tr("&Pause"));
  pauses->setObjectName(QStringLiteral("pauseSite"));
  addPauses(
      *pauses, [this](const Pause& pause) { pauseSite(pause); }, [this] { resumeSite(); });
  row_->addSeparator();
  QAction* remove = row_->addAction(tr("&Delete…"), this, &SiteMenu::remove);
  remove->setObjectName(QStringLiteral("deleteSite"));
  // Told in the menu, carried out by the list alone: elsewhere the keys are those of a text.
  const auto key = [this](QAction& action, const QKeySequence& keys) {
    action.setText(action.text() + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText));
    connect(new QShortcut(keys, &grid_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, &action,
            &QAction::trigger);
  };
  openSite->setText(openSite->text() + QLatin1Char('\t') +
                    QKeySequence(Qt::Key_Enter).toString(QKeySequence::NativeText));
  key(*always_, Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  key(*pauses->actions().front(), Qt::CTRL | Qt::Key_P);
  key(*remove, QKeySequence::Delete);
}

QMenu* SiteMenu::addPauses(QMenu& menu, const Pausing& pause, const std::function<void()>& resume) {
  const auto add = [&](const char* name, const QString& caption, const std::function<void()>& action) {
    menu.addAction(caption, this, [this, action] { run(action); })->setObjectName(QString::fromLatin1(name));
  };
  const auto now = [this] { return program_.services().clock.localNow(); };
  add("pauseHour", tr("for 1 &Hour"), [pause, now] { pause({true, now() + std::chrono::hours(1)}); });
  add("pauseTomorrow", tr("until &Tomorrow 8:00"), [pause, now] { pause({true, tomorrowMorning(now())}); });
  add("pauseUntil", tr("&Until…"), [this, pause] { pauseUntil(pause); });
  add("pauseForGood", tr("for &Good"), [pause] { pause({true, std::nullopt}); });
  menu.addSeparator();
  add("resume", tr("&Resume"), resume);
  return &menu;
}

void SiteMenu::open(const QPoint& place) {
  always_->setEnabled(grid_.currentDifferingSite().has_value());
  const QModelIndex cell = grid_.indexAt(place);
  const QRect current = grid_.visualRect(grid_.currentIndex());
  // The Menu key asks for the current row, wherever the pointer is.
  if (grid_.currentIndex().isValid() && (cell.isValid() || current.contains(place))) {
    row_->popup(grid_.viewport()->mapToGlobal(place));
  } else if (grid_.currentIndex().isValid() && !grid_.underMouse()) {
    row_->popup(grid_.viewport()->mapToGlobal(current.bottomLeft()));
  }
}

void SiteMenu::run(const std::function<void()>& action) { program_.faults().run(action); }

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
    run([&] { pause({true, parseStamp(until->dateTime().toString(kMoment).toStdString())}); });
  });
  dialog->open();
}

void SiteMenu::pauseSite(const Pause& pause) {
  if (const auto idSite = grid_.currentSite()) {
    SitePauses(program_.data().database(), program_.data()).pause({*idSite}, pause);
    program_.run().init();
  }
}

void SiteMenu::resumeSite() {
  if (const auto idSite = grid_.currentSite()) {
    SitePauses(program_.data().database(), program_.data()).resume({*idSite}, program_.services().clock.localNow());
    program_.run().init();
  }
}

void SiteMenu::pauseAll(const Pause& pause) {
  SitePauses(program_.data().database(), program_.data()).pauseAll(pause, program_.services().clock.localNow());
  program_.run().init();
}

void SiteMenu::resumeAll() {
  SitePauses(program_.data().database(), program_.data()).resumeAll();
  program_.run().init();
}

void SiteMenu::remove() {
  const auto idSite = grid_.currentSite();
  if (!idSite) {
    return;
  }
  const QString url = grid_.model()->index(grid_.currentIndex().row(), SiteGridModel::urlColumn).data().toString();
  const QString site = tr("Site %1: %2").arg(*idSite).arg(url);
  ask(*grid_.window(), program_,
      {.text = "Do You Want To Delete This Site?\n\n" + site.toStdString(), .destroys = true},
      [this, id = *idSite](bool yes) {
        if (yes) {
          program_.data().deleteSite(id);
          program_.run().init();
        }
      });
}

}  // namespace tarnwick
