// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "simulation/chance.h"

namespace tarnwick::simulation {

/// The memory of the simulated machine, SQLite's own included: now and then it has none for the programs on it. What is
/// around them has always enough. One for the process.
class SimulatedMemory {
 public:
  /// From now on one allocation in so many is refused; none with 0.
  static void refuseOneIn(std::uint64_t times, Chance chance);

  /// Who runs during this object's life: a program on the machine, or what is around it.
  class Of {
   public:
    explicit Of(bool program) : before_(programRuns_) { programRuns_ = program; }
    ~Of() { programRuns_ = before_; }
    Of(const Of&) = delete;
    Of& operator=(const Of&) = delete;

   private:
    bool before_;
  };
  struct OfProgram : Of {
    OfProgram() : Of(true) {}
  };
  struct OfWorld : Of {
    OfWorld() : Of(false) {}
  };

  /// Whether the next allocation is refused.
  static bool strikes();
  static std::uint64_t refusals() { return refusals_; }

 private:
  static bool programRuns_;
  static std::uint64_t oneIn_;
  static Chance chance_;
  static std::uint64_t refusals_;
};

}  // namespace tarnwick::simulation
