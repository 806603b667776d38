#pragma once

#include <memory>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

/// The single transfer control for one-off fetches, apart from the pool of the check run.
class SingleControl {
 public:
  explicit SingleControl(TransferMaker& transfers);

  TransferControl& sInet() { return *sInet_; }

  /// The page of the last request that completed, or of one that failed its response code, " : " and its cause.
  std::string sInetContent;

 private:
  void stateChanged(int state);

  std::unique_ptr<TransferControl> sInet_;
};

}  // namespace tarnwick
