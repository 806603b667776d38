// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/agenda.h"

namespace tarnwick::simulation {

/// What can befall a machine, in classes that can be left out one by one.
enum class Trouble { sites, mail, clock, user, verbs, locks, disk, power, kill, restart, programs, sleep, memory };
inline constexpr std::array<std::string_view, 13> kTroubleNames{"sites",    "mail",  "clock", "user", "verbs",
                                                                "locks",    "disk",  "power", "kill", "restart",
                                                                "programs", "sleep", "memory"};
inline constexpr std::size_t kTroubles = kTroubleNames.size();

/// Something that is going to happen. What exactly is drawn from `draw`, so that it is the same whatever else happens.
struct Happening {
  Time at{0};
  Trouble trouble{};
  std::uint64_t draw = 0;
};

/// A run of the simulation: the same plan gives the same run.
struct Plan {
  std::uint64_t seed = 1;
  Time length{0};
  int sites = 10;
  /// The classes that are left out.
  std::set<Trouble> without{};
  /// The happenings that are left out, by their numbers.
  std::set<std::size_t> leftOut{};
  /// Without any recommended option; drawn from the seed when it is not said.
  bool original = false;
  /// Compared with the executable model at each wait. That knows nothing of failing disks, of locks, of want of memory,
  /// nor of what other programs check and set: these troubles are left out.
  bool model = false;

  /// Everything that happens, in the order of its numbers.
  std::vector<Happening> happenings() const;
  bool takes(std::size_t number, const Happening& happening) const {
    return !without.contains(happening.trouble) && !leftOut.contains(number);
  }
  /// More requests than there originally were, from the beginning.
  bool takesManyAtATime() const { return !model && !original && seed % 5 == 2; }
  /// The command that repeats it.
  std::string command() const;
};

}  // namespace tarnwick::simulation
