// SPDX-License-Identifier: MIT
#include "platform/web/curl_transfer_control.h"

#include <utility>

namespace tarnwick {

/// One request from `execute` until its last event has been delivered, or until it is cancelled.
struct CurlTransferControl::Run {
  /// Set when no further event of it may arrive. The control may be gone then.
  bool over = false;
  std::unique_ptr<CurlRequest> request;
  TransferResult result{};
};

CurlTransferControl::CurlTransferControl(std::shared_ptr<CurlEventLoop> loop, CurlTransfers::Options options)
    : loop_(std::move(loop)), options_(std::move(options)) {}

CurlTransferControl::~CurlTransferControl() { endRun(); }

void CurlTransferControl::execute(Request request) {
  endRun();
  result_ = {};
  if (request.timeout <= std::chrono::seconds::zero()) {
    request.timeout = kDefaultRequestTimeout;
  }
  run_ = std::make_shared<Run>();
  start(std::move(request));
}

void CurlTransferControl::start(Request request) {
  Run& run = *run_;
  if (auto refusal = refusalOf(request)) {
    finishWith(run, std::move(*refusal));
    return;
  }
  run.request =
      std::make_unique<CurlRequest>(std::move(request), options_, *loop_, [this](int state) { report(state); });
  // The request ends its transfer when it goes, so `run` and `this` are there when it is called.
  if (!run.request->start([this, &run](CURLcode result) { finish(run, result); })) {
    finishWith(run, noMemory());
  }
}

void CurlTransferControl::finish(Run& run, CURLcode reported) {
  finishWith(run, run.request->finish(reported));
  run.request.reset();
}

void CurlTransferControl::finishWith(Run& run, TransferResult result) {
  run.result = std::move(result);
  report(run.result.fault == TransferFault::none ? transfer_state::responseCompleted : transfer_state::error);
}

void CurlTransferControl::report(int state) {
  // Posted, never delivered from here: libcurl or the caller of `execute` is still at work.
  loop_->post([this, weak = std::weak_ptr(run_), state] {
    const auto run = weak.lock();
    if (run && !run->over) {
      deliver(run, state);
    }
  });
}

void CurlTransferControl::deliver(const std::shared_ptr<Run>& run, int state) {
  const bool last = transfer_state::isLast(state);
  if (last) {
    result_ = std::move(run->result);
  }
  // A copy, since the handler may set another one or destroy the control.
  const auto stateHandler = stateHandler_;
  if (stateHandler) {
    stateHandler(state);
  }
  if (run->over || !last) {
    return;
  }
  endRun();
  const auto idleHandler = idleHandler_;
  if (idleHandler) {
    idleHandler();
  }
}

void CurlTransferControl::cancel() {
  if (run_) {
    endRun();
    result_ = {};
  }
}

void CurlTransferControl::endRun() {
  if (run_) {
    run_->over = true;
    run_->request.reset();
    run_.reset();
  }
}

}  // namespace tarnwick
