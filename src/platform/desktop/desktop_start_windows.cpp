// SPDX-License-Identifier: MIT
#include "platform/desktop/desktop_start.h"

#include <stdexcept>
#include <QCoreApplication>
#include <QDir>
#include <QSettings>

namespace tarnwick {
namespace {

const QString kName = QStringLiteral("Tarnwick");

/// What the desktop starts for this user.
const QString kStarted = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");

}  // namespace

bool isStartedWithDesktop() { return QSettings(kStarted, QSettings::NativeFormat).contains(kName); }

void startWithDesktop(bool wanted) {
  QSettings run(kStarted, QSettings::NativeFormat);
  if (wanted) {
    run.setValue(
        kName, QLatin1Char('"') + QDir::toNativeSeparators(QCoreApplication::applicationFilePath()) + QLatin1Char('"'));
  } else {
    run.remove(kName);
  }
  run.sync();
  if (run.status() != QSettings::NoError) {
    throw std::runtime_error("What starts with the desktop cannot be changed: Windows has refused it.");
  }
}

}  // namespace tarnwick
