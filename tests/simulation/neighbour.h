// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <memory>

#include "simulation/chance.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// Another program that has the list locked for a while.
class Neighbour {
 public:
  explicit Neighbour(World& world) : world_(world), letGo_(world.agenda) {}

  /// Takes the lock of who writes, unless it is taken, and lets go of it after a while.
  void lock(Chance chance);
  void letGo();

 private:
  World& world_;
  Appointment letGo_;
  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database_{nullptr, &sqlite3_close};
};

}  // namespace tarnwick::simulation
