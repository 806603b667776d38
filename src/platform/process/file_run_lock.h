// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/run_lock.h"

namespace tarnwick {

/// The lock as the file "tarnwick.lock" in the folder, which the system keeps for this process and lets go at its end,
/// however that comes: a file that was left does not count. It holds who has it: process, program and machine, a line
/// each.
class FileRunLocks final : public RunLockMaker {
 public:
  std::unique_ptr<RunLock> makeRunLock(const std::string& programFolder) override;
};

}  // namespace tarnwick
