// SPDX-License-Identifier: MIT
#include "ui/main_window/notices.h"

#include <chrono>
#include <exception>
#include <string>
#include <utility>
#include <QGuiApplication>
#include <QTime>

#include "engine/proof_of_life.h"
#include "platform/run_lock_file.h"
#include "store/site_pauses.h"
#include "store/site_table.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kNowAndThen = 1000;  // milliseconds
// A list that is locked holds the window up each time that it is asked.
constexpr int kAfterFault = 30000;
constexpr std::size_t kMostListed = 20;
constexpr qsizetype kLongestListed = 300;

int secondsOfDay(LocalTime time) {
  return static_cast<int>((time - std::chrono::floor<std::chrono::days>(time)).count());
}

/// "16:30" of today, "tomorrow 8:00", else with the date.
QString whenText(LocalTime time, LocalTime now) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const auto today = std::chrono::floor<std::chrono::days>(now);
  QString hour = QTime(0, 0).addSecs(secondsOfDay(time)).toString(QStringLiteral("H:mm"));
  if (day == today) {
    return hour;
  }
  if (day == today + std::chrono::days(1)) {
    return Notices::tr("tomorrow %1").arg(hour);
  }
  return QString::fromStdString(dateText(time)) + QLatin1Char(' ') + hour;
}

/// Bytes of elsewhere, for a line among others.
QString onOneLine(const QString& text) { return text.left(kLongestListed).simplified(); }

}  // namespace

Notices::Notices(Program& program, NoticeBar& bar, SiteGridView& grid, QObject* parent)
    : QObject(parent), program_(program), bar_(bar), grid_(grid) {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &Notices::lookAround);
  connect(&bar_.outbox(), &NoticeButton::clicked, this, &Notices::openOutbox);
  connect(&bar_.life(), &NoticeButton::clicked, this, &Notices::channelsWanted);
  connect(&bar_.unwatched(), &NoticeButton::clicked, this, &Notices::helpUnwatched);
  connect(&bar_.offline(), &NoticeButton::clicked, this, [this] { program_.run().network().lookAtOnce(); });
  connect(&bar_.paused(), &NoticeButton::clicked, this, [this] { program_.faults().run([this] { resume(); }); });
  // Whoever comes back to the window may have started or ended a run elsewhere.
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive && changes_) {
      look();
    }
  });
}

void Notices::look() {
  isStale_ = true;
  soon_.start(0);
}

void Notices::lookNowAndThen() {
  if (!soon_.isActive()) {
    soon_.start(kNowAndThen);
  }
}

void Notices::lookAround() {
  try {
    if (!changes_) {
      changes_.emplace(program_.data().database());
    }
    const bool isChanged = changes_->byAnyone();
    // A site may be overdue by nothing but the time.
    const auto minute = std::chrono::floor<std::chrono::minutes>(program_.services().clock.steadyNow());
    const bool isNewMinute = std::exchange(counted_, minute) != minute;
    const bool isFaultNew = program_.data().delivery().fault() != fault_;
    if (!std::exchange(isStale_, false) && !isChanged && !isNewMinute && !isFaultNew) {
      return;
    }
    countUnwatched();
    lookAtOutbox();
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere. What was counted last stays until it can be read again.
    isStale_ = true;
    soon_.start(kAfterFault);
  }
}

void Notices::countUnwatched() {
  const bool runIsOn = program_.run().running();
  tellUnwatched(runIsOn || !anotherRunIsOn() ? program_.run().unwatched().count : 0, runIsOn);
}

void Notices::lookAtOutbox() {
  fault_ = program_.data().delivery().fault();
  summary_ = program_.data().outboxSummary();
  lostTrial_ = program_.data().delivery().lostTrial();
  tellOutbox();
  tellLife();
}

// As far as its file tells, which a run that was killed may have left behind.
bool Notices::anotherRunIsOn() const {
  return program_.services().files.kindOf(program_.programFolder() + "/" + kRunLockFile) == FileKind::file;
}

void Notices::tellUnwatched(std::int64_t count, bool runIsOn) {
  QString sentence;
  if (count > 0 && runIsOn) {
    sentence = count == 1 ? tr("1 site is unwatched") : tr("%1 sites are unwatched").arg(count);
  } else if (count > 0) {
    sentence =
        count == 1 ? tr("1 site is unwatched: no run is on") : tr("%1 sites are unwatched: no run is on").arg(count);
  }
  bar_.tell(bar_.unwatched(), sentence, runIsOn ? tr("Show") : tr("Start"), grid_);
}

void Notices::helpUnwatched() {
  if (!program_.run().running()) {
    program_.startRun();
    return;
  }
  program_.faults().run([this] { showFirstUnwatched(); });
}

void Notices::showFirstUnwatched() {
  const SomeSites left = program_.run().unwatched();
  if (left.count > 0) {
    const std::int16_t idSite = siteIdFromText(std::to_string(left.first));
    grid_.selectSite(idSite);
    if (grid_.currentSite() != idSite) {
      // Another program has added it since the list was read.
      program_.run().init();
      grid_.selectSite(idSite);
    }
    grid_.setFocus();
  }
  look();
}

void Notices::add(const LostMail& mail) {
  lost_.push_back({mail.idSite, onOneLine(displayText(mail.url)), onOneLine(displayMessage(mail.why))});
  if (lost_.size() > kMostListed) {
    lost_.pop_front();
  }
  ++lostInAll_;
  tellOutbox();
}

void Notices::tellOffline(std::optional<LocalTime> since) {
  const QString sentence =
      since ? tr("This machine is offline since %1. Nothing is counted as down.").arg(whenText(*since, *since))
            : QString();
  bar_.tell(bar_.offline(), sentence, tr("Check Again"), grid_);
}

void Notices::tellPaused(const std::optional<Pause>& pause) {
  QString sentence;
  if (pause && pause->until) {
    sentence = tr("Alerts are paused until %1.").arg(whenText(*pause->until, program_.services().clock.localNow()));
  } else if (pause) {
    sentence = tr("Alerts are paused for good.");
  }
  bar_.tell(bar_.paused(), sentence, tr("Resume"), grid_);
}

void Notices::resume() {
  m& data = program_.data();
  SitePauses(data.database(), data).resumeAll();
  tellPaused(std::nullopt);
  program_.run().init();
}

QString Notices::outboxSentence() const {
  if (!fault_.empty()) {
    return tr("No alert can be delivered: %1").arg(displayMessage(fault_));
  }
  if (lostTrial_) {
    const QString channel = onOneLine(displayText(lostTrial_->channel));
    return lostTrial_->answer.empty() ? tr("The daily test alert has not arrived through %1.").arg(channel)
                                      : tr("The daily test alert has not arrived through %1: %2")
                                            .arg(channel, onOneLine(displayMessage(lostTrial_->answer)));
  }
  if (summary_.failed > 0) {
    const QString why = onOneLine(displayMessage(summary_.failedBy));
    return summary_.failed == 1 ? tr("1 alert was not delivered: %1").arg(why)
                                : tr("%1 alerts were not delivered: %2").arg(QString::number(summary_.failed), why);
  }
  if (summary_.delayed > 0) {
    const QString why = onOneLine(displayMessage(summary_.delayedBy));
    return summary_.delayed == 1 ? tr("1 alert is waiting: %1").arg(why)
                                 : tr("%1 alerts are waiting: %2").arg(QString::number(summary_.delayed), why);
  }
  return {};
}

void Notices::tellLife() {
  m& data = program_.data();
  const std::string& fault = program_.run().heartbeatFault();
  const QString sentence = !fault.empty() ? tr("The heartbeat is not taken: %1").arg(onOneLine(displayMessage(fault)))
                           : ProofOfLife::lacksChannel(data.optionsInForce(), data.delivery())
                               ? tr("The daily messages cannot leave: no channel is on for all sites.")
                               : QString();
  bar_.tell(bar_.life(), sentence, tr("Channels…"), grid_);
}

// Mails that nobody tries again come first, and are over once they have been read.
void Notices::tellOutbox() {
  if (lostInAll_ == 0) {
    bar_.tell(bar_.outbox(), outboxSentence(), tr("Outbox…"), grid_);
    return;
  }
  const QString& why = lost_.back().why;
  const QString sentence = lostInAll_ == 1
                               ? tr("1 alert was not delivered: %1").arg(why)
                               : tr("%1 alerts were not delivered: %2").arg(QString::number(lostInAll_), why);
  bar_.tell(bar_.outbox(), sentence, tr("Details"), grid_);
}

void Notices::openOutbox() {
  if (lostInAll_ > 0) {
    listLost();
  } else {
    Q_EMIT outboxWanted();
  }
}

void Notices::listLost() {
  QStringList lines{lostInAll_ == 1 ? tr("1 alert was not delivered.")
                                    : tr("%1 alerts were not delivered.").arg(lostInAll_)};
  if (lostInAll_ > lost_.size()) {
    lines.back() += QLatin1Char(' ') + tr("The last %1 of them:").arg(lost_.size());
  }
  lines << QString();
  for (const Lost& mail : lost_) {
    lines << tr("Site %1, %2: %3").arg(QString::number(mail.idSite), mail.url, mail.why);
  }
  lost_.clear();
  lostInAll_ = 0;
  tellOutbox();
  program_.services().prompts.inform(
      {.text = lines.join(QLatin1Char('\n')).toStdString(), .icon = PromptIcon::exclamation});
}

}  // namespace tarnwick
