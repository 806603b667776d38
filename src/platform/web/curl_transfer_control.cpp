#include "platform/web/curl_transfer_control.h"

#include <utility>

namespace tarnwick {

/// One request from `execute` until its last event has been delivered, or until it is cancelled.
struct CurlTransferControl::Run {
  /// Set when no further event of it may arrive. The control may be gone then.
  bool over = false;
  std::unique_ptr<CurlRequest> request;
  TransferFailure failure{};
  std::string page{};
};

CurlTransferControl::CurlTransferControl(std::shared_ptr<CurlEventLoop> loop, CurlTransfers::Options options)
    : loop_(std::move(loop)), options_(std::move(options)) {}

CurlTransferControl::~CurlTransferControl() { endRun(); }

void CurlTransferControl::setRequestTimeout(std::chrono::seconds timeout) {
  order_.timeout = timeout.count() > 0 ? timeout : kDefaultRequestTimeout;
}

void CurlTransferControl::execute(const std::string& operation, const std::string& data, const std::string& headers) {
  endRun();
  forgetResult();
  order_.method = operation;
  order_.body = data;
  order_.headers = headers;
  run_ = std::make_shared<Run>();
  begin(run_);
}

void CurlTransferControl::begin(const std::shared_ptr<Run>& run) {
  if (auto refusal = refusalOf(order_)) {
    run->failure = std::move(*refusal);
    report(transfer_state::error);
    return;
  }
  run->request = std::make_unique<CurlRequest>(order_, options_, *loop_, [this](int state) { report(state); });
  // The request ends its transfer when it goes, so `run` and `this` are there when it is called.
  if (!run->request->start([this, one = run.get()](CURLcode result) { ended(*one, result); })) {
    run->failure = noMemory();
    report(transfer_state::error);
  }
}

void CurlTransferControl::ended(Run& run, CURLcode reported) {
  const CURLcode result = run.request->judged(reported);
  run.request->completeStates(result);
  if (result == CURLE_OK) {
    run.page = run.request->takePage();
    report(transfer_state::responseCompleted);
  } else {
    run.failure = run.request->failure(result);
    report(transfer_state::error);
  }
  run.request.reset();
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
  const bool last = state == transfer_state::error || state == transfer_state::responseCompleted;
  if (last) {
    failure_ = std::move(run->failure);
    page_ = std::move(run->page);
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
    forgetResult();
  }
}

void CurlTransferControl::endRun() {
  if (run_) {
    run_->over = true;
    run_->request.reset();
    run_.reset();
  }
}

void CurlTransferControl::forgetResult() {
  failure_ = {};
  page_ = {};
  taken_ = 0;
}

std::string CurlTransferControl::getChunk(std::size_t size) {
  if (taken_ == 0 && size >= page_.size()) {
    return std::exchange(page_, {});
  }
  std::string chunk = page_.substr(taken_, size);
  taken_ += chunk.size();
  if (taken_ == page_.size()) {
    page_ = {};
    taken_ = 0;
  }
  return chunk;
}

}  // namespace tarnwick
