#pragma once

#include <memory>
#include <string>

#include "platform/transfer_control.h"
#include "platform/web/curl_request.h"

namespace tarnwick {

/// A control that fetches by libcurl.
class CurlTransferControl final : public TransferControl {
 public:
  CurlTransferControl(std::shared_ptr<CurlEventLoop> loop, CurlTransfers::Options options);
  ~CurlTransferControl() override;
  CurlTransferControl(const CurlTransferControl&) = delete;
  CurlTransferControl& operator=(const CurlTransferControl&) = delete;

  void setUrl(const std::string& url) override { order_.url = url; }
  void setUserName(const std::string& userName) override { order_.userName = userName; }
  void setPassword(const std::string& password) override { order_.password = password; }
  void setRequestTimeout(std::chrono::seconds timeout) override;
  std::chrono::seconds requestTimeout() const override { return order_.timeout; }

  void execute(const std::string& operation, const std::string& data, const std::string& headers) override;
  bool stillExecuting() const override { return run_ != nullptr; }
  void cancel() override;

  long responseCode() const override { return static_cast<long>(failure_.fault); }
  const std::string& responseInfo() const override { return failure_.cause; }
  std::string getChunk(std::size_t size) override;

  void onStateChanged(std::function<void(int state)> handler) override { stateHandler_ = std::move(handler); }
  void onIdle(std::function<void()> handler) override { idleHandler_ = std::move(handler); }

 private:
  struct Run;

  void begin(const std::shared_ptr<Run>& run);
  void ended(Run& run, CURLcode reported);
  void report(int state);
  void deliver(const std::shared_ptr<Run>& run, int state);
  void endRun();
  void forgetResult();

  std::shared_ptr<CurlEventLoop> loop_;
  CurlTransfers::Options options_;
  RequestOrder order_;
  std::function<void(int)> stateHandler_;
  std::function<void()> idleHandler_;
  // The request under way, from `execute` until its last event.
  std::shared_ptr<Run> run_;
  TransferFailure failure_;
  std::string page_;
  std::size_t taken_ = 0;
};

}  // namespace tarnwick
