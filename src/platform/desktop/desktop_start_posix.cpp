// SPDX-License-Identifier: MIT
// As the desktops agree on it: "Desktop Application Autostart Specification" and "Desktop Entry Specification",
// freedesktop.org.
#include "platform/desktop/desktop_start.h"

#include <stdexcept>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace tarnwick {
namespace {

QString entryFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/autostart/tarnwick.desktop");
}

/// An argument of the key Exec: its quotes are read first, then the escapes of every text in such a file.
QString quoted(const QString& argument) {
  QString text;
  for (const QChar letter : argument) {
    if (letter == QLatin1Char('%')) {
      text += letter;
    } else if (QStringLiteral("\"`$\\").contains(letter)) {
      text += QLatin1Char('\\');
    }
    text += letter;
  }
  return QLatin1Char('"') + text.replace(QLatin1Char('\\'), QLatin1String("\\\\")) + QLatin1Char('"');
}

[[noreturn]] void refuse(const QString& what, const QString& why) {
  throw std::runtime_error("The file " + what.toStdString() + " cannot be changed: " + why.toStdString() + ".");
}

}  // namespace

bool isStartedWithDesktop() { return QFile::exists(entryFile()); }

void startWithDesktop(bool wanted) {
  const QString file = entryFile();
  if (!wanted) {
    QFile entry(file);
    if (entry.exists() && !entry.remove()) {
      refuse(file, entry.errorString());
    }
    return;
  }
  QDir().mkpath(QFileInfo(file).path());
  QSaveFile entry(file);
  const QString text =
      QStringLiteral("[Desktop Entry]\nType=Application\nName=Tarnwick\nIcon=tarnwick\nExec=%1\nTerminal=false\n")
          .arg(quoted(QCoreApplication::applicationFilePath()));
  if (!entry.open(QIODevice::WriteOnly) || entry.write(text.toUtf8()) < 0 || !entry.commit()) {
    refuse(file, entry.errorString());
  }
}

}  // namespace tarnwick
