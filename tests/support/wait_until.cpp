// SPDX-License-Identifier: MIT
#include "support/wait_until.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace tarnwick::testing {

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const QDeadlineTimer deadline(limit, Qt::PreciseTimer);
  // Wakes the loop when the limit is reached and nothing else happens.
  QTimer alarm;
  alarm.setTimerType(Qt::PreciseTimer);
  alarm.start(limit);
  while (!condition()) {
    if (deadline.hasExpired()) {
      return false;
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    // Outside of exec() nobody else does.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

void pumpFor(std::chrono::milliseconds duration) {
  waitUntil([] { return false; }, duration);
}

}  // namespace tarnwick::testing
