// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

/// The single transfer control for one-off fetches, apart from the pool of the check run.
class SingleControl {
 public:
  explicit SingleControl(TransferMaker& transfers);

  TransferControl& sInet() { return *sInet_; }
  /// Starts a request on `sInet`; nothing is left of the one before. `ended`, if given, is called when it has come to
  /// its end, and not when it was cancelled. REQUIRES: it is not executing.
  void execute(Request request, std::function<void()> ended = {});

  /// The page of the last request that completed, or of one that failed its fault's number, " : " and its cause.
  std::string sInetContent;
  /// What the last request came to, but for its page, which has been moved to `sInetContent`.
  const TransferResult& result() const { return result_; }

 private:
  void stateChanged(int state);

  std::unique_ptr<TransferControl> sInet_;
  TransferResult result_;
  std::function<void()> ended_;
};

}  // namespace tarnwick
