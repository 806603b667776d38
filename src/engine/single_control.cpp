// SPDX-License-Identifier: MIT
#include "engine/single_control.h"

#include <utility>

namespace tarnwick {

SingleControl::SingleControl(TransferMaker& transfers) : sInet_(transfers.makeTransferControl()) {
  sInet_->onStateChanged([this](int state) { stateChanged(state); });
  sInet_->onIdle([this] {
    if (const auto ended = std::exchange(ended_, {})) {
      ended();
    }
  });
}

void SingleControl::execute(Request request, std::function<void()> ended) {
  ended_ = std::move(ended);
  sInetContent.clear();
  result_ = {};
  sInet_->execute(std::move(request));
}

void SingleControl::stateChanged(int state) {
  if (transfer_state::isLast(state)) {
    result_ = sInet_->takeResult();
    const bool failed = result_.fault != TransferFault::none;
    sInetContent = failed ? std::to_string(result_.code()) + " : " + result_.cause : std::move(result_.page);
  }
}

}  // namespace tarnwick
