// SPDX-License-Identifier: MIT
#include "ui/controls/alarm_words.h"

#include <array>
#include <QCoreApplication>

namespace tarnwick {
namespace {

constexpr int kDays = 7;

QString translated(const char* text) { return QCoreApplication::translate("tarnwick::AlarmWords", text); }

constexpr std::array<const char*, kDays> kShortDays{
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Mon"), QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Tue"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Wed"), QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Thu"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Fri"), QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Sat"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Sun")};
constexpr std::array<const char*, kDays> kDayNames{
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Monday"),    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Tuesday"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Wednesday"), QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Thursday"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Friday"),    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Saturday"),
    QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "Sunday")};

QString hourText(LocalTime time) {
  const QString stamp = QString::fromStdString(dateTimeText(time));
  const QString text = stamp.mid(11, 5);
  return text.startsWith(QLatin1Char('0')) ? text.mid(1) : text;
}

}  // namespace

LocalTime tomorrowMorning(LocalTime now) {
  return std::chrono::floor<std::chrono::days>(now) + std::chrono::days(1) + std::chrono::hours(8);
}

QString momentWords(LocalTime moment, LocalTime now) {
  const auto days = std::chrono::floor<std::chrono::days>(moment) - std::chrono::floor<std::chrono::days>(now);
  if (days.count() == 0) {
    return hourText(moment);
  }
  if (days.count() == 1) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "tomorrow %1")).arg(hourText(moment));
  }
  return QString::fromStdString(dateTimeText(moment)).left(10) + QLatin1Char(' ') + hourText(moment);
}

QString pauseWords(const Pause& pause, LocalTime now) {
  return pause.until
             ? translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "until %1")).arg(momentWords(*pause.until, now))
             : translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "for good"));
}

QString hoursWords(const WeekHours& hours) {
  if (hours.none()) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "no quiet hours"));
  }
  QString text = QString::fromStdString(weekHoursText(hours));
  text.replace(QLatin1String("daily"), translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "daily")));
  for (int day = 0; day < kDays; ++day) {
    // Each name behind what none of them holds, so that none is put in for the second time.
    text.replace(QLatin1String(kShortDays[static_cast<std::size_t>(day)]), QChar(0xE000 + day));
  }
  for (int day = 0; day < kDays; ++day) {
    text.replace(QChar(0xE000 + day), shortDayName(day));
  }
  return text;
}

QString dayName(int day) { return translated(kDayNames.at(static_cast<std::size_t>(day))); }
QString shortDayName(int day) { return translated(kShortDays.at(static_cast<std::size_t>(day))); }

QString quietKindWords(QuietKind kind) {
  return kind == QuietKind::noChecks
             ? translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "do not check"))
             : translated(QT_TRANSLATE_NOOP("tarnwick::AlarmWords", "check, and keep the alerts until they end"));
}

}  // namespace tarnwick
