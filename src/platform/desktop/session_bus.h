// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>

namespace tarnwick {

/// The bus of the user's desktop; one that is not connected where there is none. No bus is started for it.
QDBusConnection sessionBus();

/// Whether somebody has that name on the bus, or is started when he is asked for.
bool isServed(const QDBusConnection& bus, const QString& name);

}  // namespace tarnwick
