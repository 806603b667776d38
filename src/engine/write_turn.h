// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "base/errors.h"
#include "engine/run_controller.h"
#include "store/database.h"

namespace tarnwick {

/// Takes the database for a result as soon as no other program has it. Events go on meanwhile, so the site that the
/// result is of may change.
class WriteTurn {
 public:
  /// `stopped` ends the wait; `guard` is where it is told, once, that the wait lasts.
  WriteTurn(const RunController::Needs& needs, const RunController::Guard& guard, std::function<bool()> stopped);

  /// A transaction that has begun. Raises DataAccessError; for a lock of another program only when stopped.
  Transaction take();

 private:
  Transaction await(const DataAccessError& refusal);
  void waitABit();

  const RunController::Needs& needs_;
  const RunController::Guard& guard_;
  std::function<bool()> stopped_;
};

}  // namespace tarnwick
