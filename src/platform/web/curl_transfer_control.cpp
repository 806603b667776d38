// SPDX-License-Identifier: MIT
#include "platform/web/curl_transfer_control.h"

#include <exception>
#include <list>
#include <new>
#include <utility>

#include "platform/web/authorities.h"

namespace tarnwick {

/// One request from `execute` until its last event has been delivered, or until it is cancelled.
struct CurlTransferControl::Run {
  /// Set when no further event of it may arrive. The control may be gone then.
  bool over = false;
  /// Reported last.
  int state = transfer_state::none;
  std::unique_ptr<CurlRequest> request;
  TransferResult result{};
  PageBody page{};
  /// What to say and to do when there is no memory left for either.
  TransferResult shortage = noMemory();
  std::list<CurlEventLoop::Event> lastEvent;
};

CurlTransferControl::CurlTransferControl(std::shared_ptr<CurlEventLoop> loop, std::shared_ptr<Authorities> authorities,
                                         CurlTransfers::Options options)
    : loop_(std::move(loop)), authorities_(std::move(authorities)), options_(std::move(options)) {}

CurlTransferControl::~CurlTransferControl() { endRun(); }

void CurlTransferControl::execute(Request request) {
  endRun();
  result_ = {};
  page_ = {};
  if (request.timeout <= std::chrono::seconds::zero()) {
    request.timeout = kDefaultRequestTimeout;
  }
  const auto run = std::make_shared<Run>();
  run->lastEvent.emplace_back([this, weak = std::weak_ptr(run)] {
    const auto ended = weak.lock();
    if (ended && !ended->over) {
      deliverLast(ended);
    }
  });
  run_ = run;
  try {
    start(std::move(request));
  } catch (...) {
    endRun();
    throw;
  }
}

void CurlTransferControl::start(Request request) {
  Run& run = *run_;
  if (auto refusal = refusalOf(request)) {
    finishWith(run, std::move(*refusal));
    return;
  }
  run.request = makeRequest(run, std::move(request));
  if (!run.request->isSecured() || authorities_->areRead()) {
    begin(run);
    return;
  }
  authorities_->whenRead(*loop_, [this, weak = std::weak_ptr(run_)] {
    const auto waiting = weak.lock();
    if (!waiting || waiting->over) {
      return;
    }
    try {
      begin(*waiting);
    } catch (const std::exception&) {
      finishWith(*waiting, std::move(waiting->shortage));
    }
  });
}

std::unique_ptr<CurlRequest> CurlTransferControl::makeRequest(Run& run, Request request) {
  return std::make_unique<CurlRequest>(std::move(request), options_, *authorities_, *loop_, [this, &run](int state) {
    // A second one of the same run passes through the first states again.
    if (state > run.state) {
      run.state = state;
      report(state);
    }
  });
}

void CurlTransferControl::begin(Run& run) {
  // The request ends its transfer when it goes, so `run` and `this` are there when it is called.
  if (!run.request->start([this, &run](CURLcode result) { finish(run, result); })) {
    finishWith(run, noMemory());
  }
}

void CurlTransferControl::finish(Run& run, CURLcode reported) noexcept {
  try {
    if (run.request->knowsNoOtherAddress(reported)) {
      Request request = run.request->request();
      request.otherThan.clear();
      run.request = makeRequest(run, std::move(request));
      begin(run);
      return;
    }
    run.result = run.request->finish(reported);
    if (run.result.fault == TransferFault::none) {
      run.page = run.request->takePage();
    }
  } catch (const std::exception&) {
    run.result = std::move(run.shortage);
  }
  loop_->post(std::move(run.lastEvent));
  run.request.reset();
}

void CurlTransferControl::finishWith(Run& run, TransferResult result) noexcept {
  run.result = std::move(result);
  loop_->post(std::move(run.lastEvent));
}

void CurlTransferControl::report(int state) {
  // Posted, never delivered from here: libcurl or the caller of `execute` is still at work.
  loop_->post([this, weak = std::weak_ptr(run_), state] {
    const auto run = weak.lock();
    if (run && !run->over && stateHandler_) {
      // A copy, since the handler may set another one or destroy the control.
      const auto handler = stateHandler_;
      handler(state);
    }
  });
}

void CurlTransferControl::deliverLast(const std::shared_ptr<Run>& run) {
  result_ = std::move(run->result);
  page_ = std::move(run->page);
  const int state = result_.fault == TransferFault::none ? transfer_state::responseCompleted : transfer_state::error;
  try {
    if (const auto handler = stateHandler_) {
      handler(state);
    }
  } catch (...) {
    // Whatever became of the news, the request is over.
    if (!run->over) {
      endRun();
    }
    throw;
  }
  if (run->over) {
    return;
  }
  endRun();
  if (const auto handler = idleHandler_) {
    handler();
  }
}

void CurlTransferControl::cancel() {
  if (run_) {
    endRun();
    result_ = {};
    page_ = {};
  }
}

TransferResult CurlTransferControl::takeResult() {
  TransferResult result = std::exchange(result_, {});
  try {
    result.page = std::exchange(page_, {}).take();
  } catch (const std::bad_alloc&) {
    return noMemory();
  }
  return result;
}

void CurlTransferControl::endRun() {
  if (run_) {
    run_->over = true;
    run_->request.reset();
    run_.reset();
  }
}

}  // namespace tarnwick
