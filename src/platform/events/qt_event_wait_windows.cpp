// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QObject>

#include "platform/events/qt_event_wait.h"

namespace tarnwick {
namespace {

/// Notices events that are handled while it lives.
class Notice final : public QObject {
 public:
  Notice() { QCoreApplication::instance()->installEventFilter(this); }
  bool handled() const { return handled_; }

 protected:
  bool eventFilter(QObject*, QEvent*) override {
    handled_ = true;
    return false;
  }

 private:
  bool handled_ = false;
};

}  // namespace

void waitForQtEvent() {
  // Qt's event loop here counts messages of the system only. The one that announces posted events is used up by the
  // round before the one that handles them; that one then blocks, though what was waited for has come.
  const Notice notice;
  QCoreApplication::sendPostedEvents();
  if (!notice.handled()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace tarnwick
