// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "simulation/chance.h"
#include "simulation/ledger.h"
#include "simulation/process.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// Somebody who has the program, and does things to it at odd moments.
class User {
 public:
  User(World& world, Ledger& ledger) : world_(world), ledger_(ledger) {}

  /// Something in the window of the running program, also in the middle of a pass.
  void act(Process& process, Chance chance);
  /// Something in a terminal beside it.
  void runSomeVerb(Chance chance);
  /// The same while no program has the list open.
  void runVerbOffline(Chance chance);
  /// A fresh address that belongs to no site yet.
  std::string newUrl() { return "http://added" + std::to_string(++added_) + ".example/"; }

 private:
  void perform(const std::string& what, const std::function<void()>& action);
  void verb(const std::vector<std::string>& arguments);
  /// One of the sites in the list; 0 when there is none.
  std::int16_t someSite(Chance& chance) const;

  World& world_;
  Ledger& ledger_;
  std::uint64_t added_ = 0;
  int verbsAtWork_ = 0;
};

}  // namespace tarnwick::simulation
