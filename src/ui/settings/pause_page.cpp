// SPDX-License-Identifier: MIT
#include "ui/settings/pause_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/alarm_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

const QString kMoment = QStringLiteral("yyyy-MM-dd HH:mm");
constexpr std::string_view kNone = "none";

QDateTime shown(LocalTime time) {
  return QDateTime::fromString(QString::fromStdString(dateTimeText(time)), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

}  // namespace

PausePage::PausePage(Program& program, QWidget* parent) : QScrollArea(parent), program_(program) {
  setFrameShape(NoFrame);
  setWidgetResizable(true);
}

void PausePage::makePage() {
  auto* page = new QWidget;
  pause_ = named(new QComboBox(page), "pauseNow", tr("Right now"));
  pause_->addItems({tr("not paused"), tr("paused for 1 hour"), tr("paused until tomorrow 8:00"), tr("paused until …"),
                    tr("paused for good")});
  explain(*pause_, tr("While the alerts are paused sites are checked, and what is still so afterwards is told then"));
  until_ = named(new QDateTimeEdit(page), "pauseUntil", tr("Paused until"));
  until_->setDisplayFormat(kMoment);
  until_->setCalendarPopup(true);
  quiet_ = new QuietHoursForm(page);
  quietHow_ = named(new QComboBox(page), "quietHow", tr("In quiet hours"));
  quietHow_->addItems({quietKindWords(QuietKind::keepAlerts), quietKindWords(QuietKind::noChecks)});

  auto* now = new QHBoxLayout;
  now->addWidget(addLabel(tr("Right now"), *pause_));
  now->addWidget(pause_);
  now->addWidget(until_);
  now->addStretch();
  auto* how = new QHBoxLayout;
  how->addWidget(addLabel(tr("In quiet hours"), *quietHow_));
  how->addWidget(quietHow_);
  how->addStretch();
  auto* lines = new QVBoxLayout(page);
  lines->addLayout(now);
  lines->addLayout(how);
  lines->addWidget(quiet_, 1);
  setWidget(page);
  page->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  connectPage();
}

void PausePage::connectPage() {
  connect(pause_, &QComboBox::activated, this, &PausePage::choosePause);
  connect(until_, &QDateTimeEdit::dateTimeChanged, this, [this] {
    if (pause_->currentIndex() == until) {
      choosePause();
    }
  });
  connect(quietHow_, &QComboBox::activated, this, &PausePage::chooseKind);
  connect(quiet_, &QuietHoursForm::hoursEdited, this, [this] {
    quiet_->hours().none() ? options_.unset(option_name::quiet)
                           : options_.set(option_name::quiet, weekHoursText(quiet_->hours()));
  });
  connect(quiet_, &QuietHoursForm::windowsEdited, this, [this] {
    quiet_->windows().empty() ? options_.unset(option_name::maintenance)
                              : options_.set(option_name::maintenance, datedWindowsText(quiet_->windows()));
  });
}

QSize PausePage::sizeHint() const { return {762, 430}; }

void PausePage::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  if (!loaded_) {
    program_.faults().run([this] { load(); });
  }
}

void PausePage::load() {
  if (widget() == nullptr) {
    makePage();
  }
  // What could not be read cannot be changed either.
  widget()->setEnabled(false);
  options_ = OptionEdit(program_.data().options(kAllSites));
  showPause();
  const auto valueOf = [this](std::string_view name) { return options_.ownOf(name).value_or(std::string(kNone)); };
  quiet_->setValues(readWeekHours(valueOf(option_name::quiet)).value_or(WeekHours()),
                    readDatedWindows(valueOf(option_name::maintenance)).value_or(std::vector<DatedWindow>()),
                    program_.services().clock.localNow());
  quietHow_->setCurrentIndex(options_.ownOf(option_name::quietHow) == option_value::doNotCheck ? 1 : 0);
  widget()->setEnabled(true);
  loaded_ = true;
}

void PausePage::showPause() {
  const LocalTime now = program_.services().clock.localNow();
  const Pause pause = readPause(options_.ownOf(option_name::pause).value_or("no")).value_or(Pause());
  const bool isOn = isPaused(pause, now);
  pause_->setCurrentIndex(!isOn ? notPaused : pause.until ? until : forGood);
  const QSignalBlocker quiet(until_);
  until_->setDateTime(shown(isOn && pause.until ? *pause.until : tomorrowMorning(now)));
  until_->setVisible(isOn && pause.until.has_value());
}

void PausePage::choosePause() {
  const LocalTime now = program_.services().clock.localNow();
  const int choice = pause_->currentIndex();
  until_->setVisible(choice == until);
  Pause pause{choice != notPaused, std::nullopt};
  if (choice == oneHour) {
    pause.until = now + std::chrono::hours(1);
  } else if (choice == tomorrow) {
    pause.until = tomorrowMorning(now);
  } else if (choice == until) {
    pause.until = parseStamp(until_->dateTime().toString(kMoment).toStdString());
  }
  pause.isOn ? options_.set(option_name::pause, pauseText(pause)) : options_.unset(option_name::pause);
}

void PausePage::chooseKind(int choice) {
  choice == 0 ? options_.unset(option_name::quietHow)
              : options_.set(option_name::quietHow, std::string(option_value::doNotCheck));
}

void PausePage::store() {
  if (!isChanged()) {
    return;
  }
  try {
    options_.store(program_.data(), kAllSites);
  } catch (...) {
    turnTo(*this);
    throw;
  }
  load();
}

}  // namespace tarnwick
