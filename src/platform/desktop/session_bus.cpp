// SPDX-License-Identifier: MIT
#include "platform/desktop/session_bus.h"

#include <QDBusConnectionInterface>
#include <QFile>

namespace tarnwick {

QDBusConnection sessionBus() {
  const bool isNamed = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const bool isUsual = !folder.isEmpty() && QFile::exists(folder + QStringLiteral("/bus"));
  return isNamed || isUsual ? QDBusConnection::sessionBus() : QDBusConnection(QStringLiteral("none"));
}

bool isServed(const QDBusConnection& bus, const QString& name) {
  QDBusConnectionInterface* const daemon = bus.interface();
  return bus.isConnected() && daemon != nullptr &&
         (daemon->isServiceRegistered(name) || daemon->activatableServiceNames().value().contains(name));
}

}  // namespace tarnwick
