// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include "platform/events/qt_event_wait.h"

namespace tarnwick {

void waitForQtEvent() { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); }

}  // namespace tarnwick
