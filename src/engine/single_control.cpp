#include "engine/single_control.h"

#include "engine/response_body.h"

namespace tarnwick {

SingleControl::SingleControl(TransferMaker& transfers) : sInet_(transfers.makeTransferControl()) {
  sInet_->onStateChanged([this](int state) { stateChanged(state); });
}

void SingleControl::stateChanged(int state) {
  if (state == transfer_state::error) {
    sInetContent = std::to_string(sInet_->responseCode()) + " : " + sInet_->responseInfo();
  } else if (state == transfer_state::responseCompleted) {
    sInetContent = readResponseBody(*sInet_, 1024);
  }
}

}  // namespace tarnwick
