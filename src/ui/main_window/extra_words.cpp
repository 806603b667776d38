// SPDX-License-Identifier: MIT
#include "ui/main_window/extra_words.h"

#include <chrono>
#include <QCoreApplication>

namespace tarnwick {
namespace {

using namespace std::chrono;

QString translated(const char* text) { return QCoreApplication::translate("tarnwick::ExtraColumns", text); }

// Days come from two on, so that none of these is one of its kind with the words of many.
constexpr hours kDaysFrom{48};

}  // namespace

QString agoWords(LocalTime then, LocalTime now) {
  const auto ago = now - then;
  if (ago < minutes(1)) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "just now"));
  }
  if (ago < hours(1)) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "%1 min ago")).arg(floor<minutes>(ago).count());
  }
  if (ago < kDaysFrom) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "%1 h ago")).arg(floor<hours>(ago).count());
  }
  return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "%1 days ago")).arg(floor<days>(ago).count());
}

QString inWords(LocalTime then, LocalTime now, Past past) {
  if (then <= now) {
    return past == Past::told ? agoWords(then, now) : translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "now"));
  }
  const auto left = then - now;
  if (left < hours(1)) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "in %1 min")).arg(ceil<minutes>(left).count());
  }
  if (left < kDaysFrom) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "in %1 h")).arg(floor<hours>(left).count());
  }
  return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "in %1 days")).arg(floor<days>(left).count());
}

QString sinceWords(LocalTime then, LocalTime now) {
  const QString stamp = QString::fromStdString(dateTimeText(then));
  return floor<days>(then) == floor<days>(now) ? stamp.mid(11, 5) : stamp.left(10);
}

}  // namespace tarnwick
