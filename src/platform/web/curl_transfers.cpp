// SPDX-License-Identifier: MIT
#include "platform/web/curl_transfers.h"

#include "platform/web/authorities.h"
#include "platform/web/curl_event_loop.h"
#include "platform/web/curl_transfer_control.h"
#include "platform/web/way_out.h"

namespace tarnwick {

CurlTransfers::CurlTransfers() : CurlTransfers(Options{}) {}

CurlTransfers::CurlTransfers(Options options)
    : options_(std::move(options)),
      loop_(std::make_shared<CurlEventLoop>()),
      authorities_(std::make_shared<Authorities>(options_.caFile, options_.caFolder)) {}

CurlTransfers::~CurlTransfers() = default;

std::unique_ptr<TransferControl> CurlTransfers::makeTransferControl() {
  return std::make_unique<CurlTransferControl>(loop_, authorities_, options_);
}

bool CurlTransfers::hasWayOut() { return knowsWayOut(); }

}  // namespace tarnwick
