// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/timer.h"

namespace tarnwick {

/// Tells the service manager that has started this process, if one has and wants to know: at its beginning that the
/// service is ready, then as long as the event loop turns that it lives, and at its end that it stops (the protocol of
/// sd_notify(3)). What cannot be told is not.
class ServiceNotice {
 public:
  explicit ServiceNotice(TimerMaker& timers);
  ~ServiceNotice();
  ServiceNotice(const ServiceNotice&) = delete;
  ServiceNotice& operator=(const ServiceNotice&) = delete;

 private:
  std::unique_ptr<Timer> watchdog_;
};

}  // namespace tarnwick
