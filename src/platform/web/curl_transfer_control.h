// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/transfer_control.h"
#include "platform/web/curl_request.h"
#include "platform/web/page_body.h"

namespace tarnwick {

/// A control that fetches by libcurl.
class CurlTransferControl final : public TransferControl {
 public:
  CurlTransferControl(std::shared_ptr<CurlEventLoop> loop, std::shared_ptr<Authorities> authorities,
                      CurlTransfers::Options options);
  ~CurlTransferControl() override;
  CurlTransferControl(const CurlTransferControl&) = delete;
  CurlTransferControl& operator=(const CurlTransferControl&) = delete;

  void execute(Request request) override;
  bool stillExecuting() const override { return run_ != nullptr; }
  void cancel() override;

  TransferResult takeResult() override;

  void onStateChanged(std::function<void(int state)> handler) override { stateHandler_ = std::move(handler); }
  void onIdle(std::function<void()> handler) override { idleHandler_ = std::move(handler); }

 private:
  struct Run;

  void start(Request request);
  std::unique_ptr<CurlRequest> makeRequest(Run& run, Request request);
  void begin(Run& run);
  void finish(Run& run, CURLcode reported) noexcept;
  void finishWith(Run& run, TransferResult result) noexcept;
  void report(int state);
  void deliverLast(const std::shared_ptr<Run>& run);
  void endRun();

  std::shared_ptr<CurlEventLoop> loop_;
  std::shared_ptr<Authorities> authorities_;
  CurlTransfers::Options options_;
  std::function<void(int)> stateHandler_;
  std::function<void()> idleHandler_;
  // The request under way, from `execute` until its last event.
  std::shared_ptr<Run> run_;
  // Without its page.
  TransferResult result_;
  PageBody page_;
};

}  // namespace tarnwick
