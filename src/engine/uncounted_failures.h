// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "engine/back_off.h"

namespace tarnwick {

class DueSites;
class ResultRecording;
class RunView;

/// Failures that stand in the log, but that could not be counted: the counter comes after the alerts, and the database
/// may be locked or away by then. Each is counted once, as soon as that is possible.
class UncountedFailures {
 public:
  UncountedFailures(ResultRecording& results, DueSites& dueSites, RunView& view)
      : results_(results), dueSites_(dueSites), view_(view) {}

  /// Keeps a failure in mind from here on until `counted` is called: however its alerts end, it is not forgotten.
  class Pending {
   public:
    Pending(UncountedFailures& all, std::int16_t idSite);
    ~Pending();
    Pending(const Pending&) = delete;
    Pending& operator=(const Pending&) = delete;

    void counted() { counted_ = true; }

   private:
    UncountedFailures& all_;
    std::int16_t idSite_;
    bool counted_ = false;
  };

  /// Counts what there is to count, after a time that grows with the tries that failed. Raises OverflowError, with the
  /// failure forgotten, when a counter is full.
  void tick();
  /// Counts what can be counted, now, and shows nothing: the program ends.
  void end() noexcept;

 private:
  void countLast();

  ResultRecording& results_;
  DueSites& dueSites_;
  RunView& view_;
  std::vector<std::int16_t> sites_;
  BackOff backOff_;
};

}  // namespace tarnwick
