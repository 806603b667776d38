// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>

namespace tarnwick {

/// The addresses of a host in the order in which they should be tried; none when the name is not found. Waits for the
/// system's answer, which may take many seconds. `asciiName` is the name as name servers know it.
QList<QHostAddress> hostAddresses(const QByteArray& asciiName);

}  // namespace tarnwick
