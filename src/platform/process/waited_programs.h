// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace tarnwick {

/// Runs programs as DetachedPrograms starts them, but keeps what they write for a while: 16 MiB of each stream, in
/// memory; what is beyond that they cannot write. On Windows nobody waits for them: only whether they were started is
/// told.
class WaitedPrograms final : public ProgramRunner {
 public:
  WaitedPrograms();
  /// The programs that are still running go on.
  ~WaitedPrograms() override;
  WaitedPrograms(const WaitedPrograms&) = delete;
  WaitedPrograms& operator=(const WaitedPrograms&) = delete;

  void run(const std::vector<std::string>& arguments, std::chrono::seconds limit,
           std::function<void(ProgramEnd)> done) override;

 private:
  class Runs;
  std::unique_ptr<Runs> runs_;
};

}  // namespace tarnwick
