// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
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

  /// Called when something was changed, and whether that was with an editor that was closed; after a verb; before the
  /// run is stopped, and before it is started.
  std::function<void(bool editor)> onEdited;
  std::function<void()> onVerb;
  std::function<void()> onStop;
  std::function<void()> onStart;
  /// No verb that makes checks of its own, or changes how many there are at a time.
  bool edits = false;
  /// Adds no site: without the option for new sites they would be unwatched, and the run stand still for them.
  bool addsSites = true;
  /// Has as many checks as ten sites have that are checked every ten minutes.
  bool hasPatience = false;

  /// Something in the window of the running program, also in the middle of a pass.
  void act(Process& process, Chance chance);
  void clearCounters(Process& process);
  /// Something in a terminal beside it.
  void runSomeVerb(Chance chance);
  /// The same while no program has the list open.
  void runVerbOffline(Chance chance);
  /// A fresh address that belongs to no site yet.
  std::string newUrl() { return "http://added" + std::to_string(++added_) + ".example/"; }

 private:
  void actAs(Process& process, Chance chance);
  std::string someInterval(Chance& chance) const;
  bool wantsSite() const;
  void runUpkeep(Chance chance);
  std::vector<std::string> wholeList() const;
  /// As the window does when an editor was closed.
  void showAfresh(Program& program);
  void perform(const std::string& what, const std::function<void()>& action);
  bool verb(const std::vector<std::string>& arguments);
  /// One of the sites in the list; 0 when there is none.
  std::int16_t someSite(Chance& chance) const;

  World& world_;
  Ledger& ledger_;
  std::uint64_t added_ = 0;
  int verbsAtWork_ = 0;
  bool edited_ = false;
  bool initialized_ = false;
};

}  // namespace tarnwick::simulation
