// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>

#include "simulation/agenda.h"
#include "simulation/simulated_time.h"

namespace tarnwick::simulation {

/// What the system tells of the time to those who ask it and not the program's clock, as SQLite does: the simulated
/// clocks. One at a time.
class SystemTime {
 public:
  SystemTime(Agenda& agenda, const SimulatedClock& clock) : agenda_(agenda), clock_(clock) { inUse = this; }
  ~SystemTime() { inUse = nullptr; }
  SystemTime(const SystemTime&) = delete;
  SystemTime& operator=(const SystemTime&) = delete;

  static SystemTime* inUse;

  int tell(bool wall, timespec& time) const {
    const std::chrono::milliseconds now =
        wall ? std::chrono::milliseconds(clock_.localNow().time_since_epoch()) : clock_.steadyNow();
    time = {now.count() / 1000, now.count() % 1000 * 1'000'000};
    return 0;
  }
  /// The process sleeps.
  void pass(long microseconds) { agenda_.passBlocked(Time(std::max(1L, microseconds / 1000))); }

 private:
  Agenda& agenda_;
  const SimulatedClock& clock_;
};

}  // namespace tarnwick::simulation
