// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "support/wait_until.h"

namespace tarnwick::testing {

/// A bus of a desktop for this process alone, whose home is a folder that goes with it. One for a process, before
/// anything asks for the bus.
class PrivateBus {
 public:
  PrivateBus() {
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
      qputenv(name, home_.path().toLocal8Bit());
    }
    qunsetenv("DISPLAY");
    qunsetenv("XDG_CURRENT_DESKTOP");
    // The session's own configuration would start services that this machine happens to have.
    const QString configuration = home_.filePath(QStringLiteral("bus.conf"));
    QFile file(configuration);
    file.open(QIODevice::WriteOnly);
    file.write("<busconfig><type>session</type><listen>unix:dir=" + home_.path().toUtf8() +
               "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\"/>"
               "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
    file.close();
    daemon_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + configuration,
                                                  QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    waitUntil([this] { return daemon_.canReadLine() || daemon_.state() == QProcess::NotRunning; });
    address_ = daemon_.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address_);
  }
  ~PrivateBus() {
    for (QProcess* process : {&ring_, &daemon_}) {
      process->terminate();
      if (process->state() != QProcess::NotRunning && !process->waitForFinished(5000)) {
        process->kill();
        process->waitForFinished();
      }
    }
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;

  /// Empty when the machine has no such program.
  QString address() const { return QString::fromLatin1(address_); }

  /// Starts a key ring that is open; false when the machine has none.
  bool startKeyRing() {
    ring_.start(QStringLiteral("gnome-keyring-daemon"),
                {QStringLiteral("--foreground"), QStringLiteral("--unlock"), QStringLiteral("--components=secrets")});
    if (!ring_.waitForStarted()) {
      return false;
    }
    ring_.write("password\n");
    ring_.closeWriteChannel();
    return true;
  }

 private:
  QTemporaryDir home_;
  QProcess daemon_;
  QProcess ring_;
  QByteArray address_;
};

}  // namespace tarnwick::testing
