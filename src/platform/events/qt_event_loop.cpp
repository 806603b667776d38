// SPDX-License-Identifier: MIT
#include "platform/events/qt_event_loop.h"

#include <algorithm>
#include <utility>
#include <QCoreApplication>
#include <QTimer>

#include "platform/events/qt_event_wait.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class QtTimer final : public Timer {
 public:
  explicit QtTimer(std::function<void()> tick) : tick_(std::move(tick)) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { fire(); });
  }

  void setInterval(milliseconds interval) override {
    interval_ = interval;
    restart();
  }
  milliseconds interval() const override { return interval_; }

  void setEnabled(bool enabled) override {
    if (enabled != enabled_) {
      enabled_ = enabled;
      restart();
    }
  }
  bool enabled() const override { return enabled_; }

 private:
  void restart() {
    timer_.stop();
    if (enabled_ && interval_ > milliseconds::zero()) {
      due_ = steady_clock::now() + interval_;
      arm();
    }
  }

  void arm() {
    const auto left = std::chrono::ceil<milliseconds>(due_ - steady_clock::now());
    timer_.start(std::max(left, milliseconds::zero()));
  }

  void fire() {
    // The next tick is armed before this one acts: an action that pumps events for long is no reason to stop ticking,
    // and Qt does not fire a repeating timer again while its own handler runs.
    due_ = std::max(due_ + interval_, steady_clock::now());
    arm();
    tick_();
  }

  std::function<void()> tick_;
  QTimer timer_;
  milliseconds interval_{0};
  bool enabled_ = false;
  steady_clock::time_point due_;
};

}  // namespace

void QtEventPump::pump() { QCoreApplication::processEvents(); }

void QtEventPump::waitForEvent() {
  if (!closing_) {
    waitForQtEvent();
  }
}

void QtEventPump::close() { closing_ = true; }

std::unique_ptr<Timer> QtTimers::makeTimer(std::function<void()> tick) {
  return std::make_unique<QtTimer>(std::move(tick));
}

}  // namespace tarnwick
